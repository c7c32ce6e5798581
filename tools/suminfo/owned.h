// Owners of what the system hands out.
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

struct CloseFile {
    void operator()(HANDLE file) const { ::CloseHandle(file); }
};
using OwnedFile = std::unique_ptr<void, CloseFile>;

} // namespace suminfo
