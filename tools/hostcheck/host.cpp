// Loads the database and looks up its functions.

#include "host.h"

#include <stdexcept>

Host::Host(const wchar_t* file) : module_(::LoadLibraryW(file)) {
    if (!module_) throw std::runtime_error("cannot load the database: error " + std::to_string(::GetLastError()));
}

bool Host::Has(const char* name) const {
    return ::GetProcAddress(module_, name) != nullptr;
}

void* Host::Address(const char* name) const {
    const FARPROC address = ::GetProcAddress(module_, name);
    if (!address) throw Missing{name};
    return reinterpret_cast<void*>(address);
}
