// The storage's results in words.

#include "failure.h"

#include <array>
#include <cstdio>
#include <objbase.h>

#include "storage_failure.h"

namespace suminfo {
namespace {

struct Words {
    HRESULT result;
    const char* text;
};
constexpr std::array kWords = {
    Words{STG_E_FILENOTFOUND, why::kNoFile},
    Words{STG_E_PATHNOTFOUND, why::kNoFolder},
    Words{STG_E_ACCESSDENIED, why::kDenied},
    Words{STG_E_SHAREVIOLATION, "another program has it open"},
    Words{STG_E_LOCKVIOLATION, "another program has it open"},
    Words{STG_E_OLDFORMAT, "a compound file of an old format"},
    Words{STG_E_DOCFILECORRUPT, "the compound file is damaged"},
    Words{STG_E_READFAULT, "it can't be read: the compound file is damaged, or the disk failed"},
    Words{STG_E_WRITEFAULT, why::kNotWritten},
    Words{STG_E_MEDIUMFULL, why::kFull},
    Words{E_OUTOFMEMORY, why::kNoMemory},
};

std::string TextOf(HRESULT result) {
    for (const Words& words : kWords)
        if (words.result == result) return words.text;
    char number[32];
    std::snprintf(number, sizeof number, "error 0x%08lX", static_cast<unsigned long>(result));
    return number;
}

} // namespace

void Fail(HRESULT result, const std::string& doing) {
    throw Failure(doing + ": " + TextOf(result));
}

// The storage's results are the system's numbers, of a facility of their own.
void FailBySystem(const std::string& doing) {
    Fail(MAKE_SCODE(SEVERITY_ERROR, FACILITY_STORAGE, ::GetLastError()), doing);
}

} // namespace suminfo
