// Files of Windows.
#pragma once

#include <memory>
#include <string>
#include <windows.h>

#include "orlo/summary/compound_reader.h"

namespace suminfo {

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<void, CloseFile>;

// Failure, with the reason, if the system doesn't open it.
OwnedFile OpenFile(const std::wstring& file, DWORD access, DWORD sharing);
// To be read. Others may read the file meanwhile, but not write it.
OwnedFile OpenDocument(const std::string& file);
// Over the open file, which stays the caller's.
orlo::CompoundReader ReadCompound(const OwnedFile& file);

} // namespace suminfo
