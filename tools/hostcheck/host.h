// A host's database, loaded from its file: the functions of the contract by name.
#pragma once

#include <string>

#include "orlo/host/host.h"

// A function that the database does not export.
struct Missing {
    std::string name;
};

class Host {
public:
    // Throws std::runtime_error if the file cannot be loaded. The database stays until the process ends.
    explicit Host(const wchar_t* file);

    bool Has(const char* name) const;
    // Throws Missing.
    template <class F>
    F* Function(const char* name) const {
        return reinterpret_cast<F*>(Address(name));
    }

private:
    void* Address(const char* name) const;

    HMODULE module_;
};

// The database's function, with the type that the contract declares it with: CALL(host, GraphicNewEx)(kGraphicText, 0, 1).
#define CALL(host, name) (host).Function<decltype(::name)>(#name)
