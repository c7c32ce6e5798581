// Replaces entries in a module's table of imports.

#include "support/replaced_import.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace {

// Returns the place of the function's address, or null if the module does not import the function.
void** PlaceOf(const char* module, const char* name) {
    auto* base = reinterpret_cast<unsigned char*>(::GetModuleHandleA(module));
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
            if (std::strcmp(reinterpret_cast<const char*>(import.Name), name) == 0) return places;
        }
    }
    return nullptr;
}

void Write(void** place, void* function) {
    DWORD before = 0;
    ::VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before);
    *place = function;
    ::VirtualProtect(place, sizeof *place, before, &before);
}

} // namespace

ReplacedImport::ReplacedImport(const char* module, const char* name, void* function) : m_place(PlaceOf(module, name)) {
    if (m_place == nullptr) throw std::runtime_error(std::string(module) + " does not import " + name);
    m_original = *m_place;
    Write(m_place, function);
}

ReplacedImport::~ReplacedImport() {
    Write(m_place, m_original);
}

bool Imports(const char* module, const char* name) {
    return PlaceOf(module, name) != nullptr;
}
