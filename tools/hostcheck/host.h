// A database that was loaded from its DLL: looks up the functions of the contract by name.
#pragma once

#include <string>

#include "orlo/host/host.h"

// Thrown if the database does not export a function.
struct Missing {
    std::string name;
};

class Host {
public:
    // Throws std::runtime_error if the file cannot be loaded. The database is never unloaded.
    explicit Host(const wchar_t* file);

    bool Has(const char* name) const;
    // Returns an exported function. Throws Missing if there is none with that name.
    template <class F>
    F* Function(const char* name) const {
        return reinterpret_cast<F*>(Address(name));
    }

private:
    void* Address(const char* name) const;

    HMODULE module_;
};

// The database's function with the type that orlo/host declares: CALL(host, GraphicNewEx)(kGraphicText, 0, 1).
#define CALL(host, name) (host).Function<decltype(::name)>(#name)
