// Returns the texts and dialogs of the library's resources, or of their translation.

#include "orlo/resources/library_text.h"

#include <afxwin.h>

#include <string>

extern "C" IMAGE_DOS_HEADER __ImageBase; // start of the module

namespace {

struct Translation {
    bool searched = false;
    HINSTANCE module = nullptr;
};
Translation translation;

// Returns the path of the library without its extension.
std::wstring LibraryPath() {
    wchar_t path[MAX_PATH];
    const DWORD length = ::GetModuleFileNameW(LibraryModule(), path, MAX_PATH);
    const std::wstring file(path, length < MAX_PATH ? length : 0);
    return file.substr(0, file.rfind(L'.'));
}

HINSTANCE LoadTranslation(const std::wstring& language) {
    const std::wstring path = LibraryPath() + L'.' + language + L".dll";
    return ::LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
}

bool IsEnglish(const std::wstring& language) {
    return language == L"en" || language.compare(0, 3, L"en-") == 0;
}

// Tries the user's preferred languages in order, each with and without its region. English is the language of the
// library itself.
HINSTANCE FindTranslation() {
    wchar_t names[512];
    ULONG count = 0, size = static_cast<ULONG>(std::size(names));
    if (!::GetThreadPreferredUILanguages(MUI_LANGUAGE_NAME | MUI_UI_FALLBACK, &count, names, &size)) return nullptr;
    for (const wchar_t* name = names; *name != L'\0'; name += std::wcslen(name) + 1) {
        const std::wstring language = name;
        if (IsEnglish(language)) return nullptr;
        for (const std::wstring& tried : {language, language.substr(0, language.find(L'-'))})
            if (HINSTANCE module = LoadTranslation(tried)) return module;
    }
    return nullptr;
}

} // namespace

HINSTANCE LibraryModule() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

HINSTANCE TranslationModule() {
    if (!translation.searched) translation = {true, FindTranslation()};
    return translation.module;
}

void ReleaseTranslation() {
    if (translation.module != nullptr) ::FreeLibrary(translation.module);
    translation = {};
}

int LoadLibraryText(UINT nID, char* pszBuffer, int nSize) {
    for (HINSTANCE module : {TranslationModule(), LibraryModule()}) {
        const int length = module != nullptr ? ::LoadStringA(module, nID, pszBuffer, nSize) : 0;
        if (length > 0) return length;
    }
    *pszBuffer = '\0';
    return 0;
}

CString LibraryText(UINT nID) {
    char text[256];
    LoadLibraryText(nID, text, sizeof text);
    return text;
}

std::vector<BYTE> DialogTemplate(HINSTANCE module, const char* pszName) {
    HRSRC found = module != nullptr ? ::FindResourceA(module, pszName, RT_DIALOG) : nullptr;
    HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* data = loaded != nullptr ? static_cast<const BYTE*>(::LockResource(loaded)) : nullptr;
    if (data == nullptr) return {};
    return {data, data + ::SizeofResource(module, found)};
}

std::vector<BYTE> LibraryDialog(UINT nID) {
    std::vector<BYTE> dialog = DialogTemplate(TranslationModule(), MAKEINTRESOURCEA(nID));
    return dialog.empty() ? DialogTemplate(LibraryModule(), MAKEINTRESOURCEA(nID)) : dialog;
}
