// Makes one memory allocation of a loaded module fail.
//
//   const FailingMemory memory("orlo.dll", 4); // the fourth request from here on
#pragma once

#include <windows.h>

class FailingMemory {
public:
    // Throws std::runtime_error if the module does not import operator new.
    FailingMemory(const char* module, int nth);
    // Lets requests succeed again.
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    // Returns whether the request that fails has been made.
    bool HasFailed() const;

private:
    void ReplaceImports(HMODULE module);

    struct Import {
        void** place;
        void* function;
    };
    Import m_imports[2] = {};
    int m_count = 0;
};
