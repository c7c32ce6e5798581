// Converts the encodings of file names.

#include "demo/viewer/file_name.h"

#include "orlo/win/encoded_text.h"

std::string Utf8(const wchar_t* text) {
    return orlo::Narrow(text, CP_UTF8);
}

std::wstring Wide(const std::string& utf8) {
    return orlo::Widen(utf8, CP_UTF8);
}

std::string WithoutFolder(const std::string& path) {
    return path.substr(path.find_last_of("\\/") + 1);
}

std::string Utf8FromSystem(const char* text) {
    return orlo::Narrow(orlo::Widen(text, CP_ACP), CP_UTF8);
}

std::string SystemText(const std::string& utf8) {
    return orlo::Narrow(Wide(utf8), CP_ACP);
}
