// Makes memory allocations fail by replacing a module's imported operator new.

#include "support/failing_memory.h"

#include <cstring>
#include <new>
#include <stdexcept>

namespace {

// Mangled names of operator new and operator new[].
constexpr const char* kNames[] = {sizeof(void*) == 8 ? "_Znwy" : "_Znwj", sizeof(void*) == 8 ? "_Znay" : "_Znaj"};

int g_left = 0; // remaining requests, including the one that fails

void* Allocate(size_t size) {
    if (--g_left == 0) throw std::bad_alloc();
    return ::operator new(size);
}

void Write(void** place, void* function) {
    DWORD before = 0;
    ::VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before);
    *place = function;
    ::VirtualProtect(place, sizeof *place, before, &before);
}

bool IsOperatorNew(const char* name) {
    return std::strcmp(name, kNames[0]) == 0 || std::strcmp(name, kNames[1]) == 0;
}

} // namespace

FailingMemory::FailingMemory(const char* module, int nth) {
    ReplaceImports(::GetModuleHandleA(module));
    if (m_count == 0) throw std::runtime_error("the module does not import operator new");
    g_left = nth;
}

FailingMemory::~FailingMemory() {
    for (int i = 0; i < m_count; ++i)
        Write(m_imports[i].place, m_imports[i].function);
}

bool FailingMemory::HasFailed() const {
    return g_left <= 0;
}

void FailingMemory::ReplaceImports(HMODULE module) {
    auto* base = reinterpret_cast<unsigned char*>(module);
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos.e_lfanew);
    const DWORD imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); library->Name != 0;
         ++library) {
        const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* places = reinterpret_cast<void**>(base + library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++places) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto& import = *reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (m_count == 2 || !IsOperatorNew(reinterpret_cast<const char*>(import.Name))) continue;
            m_imports[m_count++] = {places, *places};
            Write(places, reinterpret_cast<void*>(Allocate));
        }
    }
}
