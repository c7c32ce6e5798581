// Files by their names in 16-bit characters.

#include "system_file.h"

#include "failure.h"
#include "orlo/summary/compound_file.h"
#include "wide_text.h"

namespace suminfo {

OwnedFile OpenFile(const std::wstring& file, DWORD access, DWORD sharing) {
    const HANDLE opened = ::CreateFileW(file.c_str(), access, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE) FailBySystem("can't be opened");
    return OwnedFile(opened);
}

OwnedFile OpenDocument(const std::string& file) {
    return OpenFile(ToWide(file), GENERIC_READ, FILE_SHARE_READ);
}

orlo::CompoundReader ReadCompound(const OwnedFile& file) {
    return orlo::ReadCompoundFile(file.get());
}

} // namespace suminfo
