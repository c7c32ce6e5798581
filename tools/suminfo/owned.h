// Owners of what the storage hands out.
#pragma once

#include <memory>
#include <windows.h>

#include <objbase.h>

#include "orlo/win/com_owner.h"

namespace suminfo {

using orlo::Owned;

struct FreeTaskMemory {
    void operator()(void* block) const { ::CoTaskMemFree(block); }
};
using OwnedName = std::unique_ptr<OLECHAR, FreeTaskMemory>;

} // namespace suminfo
