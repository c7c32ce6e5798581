// Makes memory allocations fail by replacing a module's imported operator new.

#include "support/failing_memory.h"

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

} // namespace

FailingMemory::FailingMemory(const char* module, int nth) {
    for (const char* name : kNames)
        if (Imports(module, name)) m_imports.emplace_back(module, name, Allocate);
    if (m_imports.empty()) throw std::runtime_error("the module does not import operator new");
    g_left = nth;
}

FailingMemory::~FailingMemory() = default;

bool FailingMemory::HasFailed() const {
    return g_left <= 0;
}
