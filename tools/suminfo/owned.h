// Owners of what the storage hands out.
#pragma once

#include <memory>
#include <windows.h>

#include <objbase.h>

namespace suminfo {

struct ReleaseReference {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, ReleaseReference>;

struct FreeTaskMemory {
    void operator()(void* block) const { ::CoTaskMemFree(block); }
};
using OwnedName = std::unique_ptr<OLECHAR, FreeTaskMemory>;

} // namespace suminfo
