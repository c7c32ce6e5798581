// Owners of what the system hands out.
#pragma once

#include <memory>
#include <windows.h>

#include <objbase.h>

#include "orlo/win/com_owner.h"

namespace suminfo {

using orlo::Owned;

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<void, CloseFile>;

} // namespace suminfo
