// How the functions of orlo_c.h answer: a number for the caller, the reason in words kept for its thread.
#pragma once

#include <orlo_c.h>

#include <functional>
#include <string>

namespace orlo {

// Thrown inside, and never past Answer.
struct Refusal {
    OrloResult result;
    std::string text;
};

[[noreturn]] void Refuse(OrloResult result, const char* text);
// With the system's text of that error; null for what goes before.
[[noreturn]] void RefuseBySystem(long error, const char* what);

// Runs the work of one function. Whatever is thrown in it becomes the answer.
OrloResult Answer(const std::function<void()>& work);

// A pointer that has to be there.
template <class T>
T& Given(T* pointer, const char* name) {
    if (pointer == nullptr) Refuse(kOrloBadArgument, (std::string(name) + " is null").c_str());
    return *pointer;
}

// A record of the caller's whose size this library knows.
template <class Record>
Record& GivenRecord(Record* record, const char* name) {
    if (Given(record, name).size != sizeof(Record))
        Refuse(kOrloBadArgument, (std::string(name) + " has a size that this library does not know").c_str());
    return *record;
}

} // namespace orlo
