// Makes one memory allocation of a loaded module fail.
//
//   const FailingMemory memory("orlo.dll", 4); // the fourth request from here on
#pragma once

#include <list>

#include "support/replaced_import.h"

class FailingMemory {
public:
    // Throws std::runtime_error if the module does not import operator new.
    FailingMemory(const char* module, int nth);
    // Makes requests succeed again.
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    // Returns whether the request that fails has been made.
    bool HasFailed() const;

private:
    std::list<ReplacedImport> m_imports;
};
