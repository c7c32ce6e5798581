// Replaces a function that a loaded module imports from another one.
//
//   const ReplacedImport without("orlo.dll", "ViewportNewEx", +[]() -> ViewportStruct* { return nullptr; });
#pragma once

#include <windows.h>

class ReplacedImport {
public:
    // Throws std::runtime_error if the module does not import the function.
    template <class Function>
    ReplacedImport(const char* module, const char* name, Function* function)
        : ReplacedImport(module, name, reinterpret_cast<void*>(function)) {}
    ReplacedImport(const char* module, const char* name, void* function);
    // Restores the original function.
    ~ReplacedImport();
    ReplacedImport(const ReplacedImport&) = delete;
    ReplacedImport& operator=(const ReplacedImport&) = delete;

private:
    void** m_place; // in the module's table of imports
    void* m_original;
};

// Returns whether the module imports a function of that name.
bool Imports(const char* module, const char* name);
