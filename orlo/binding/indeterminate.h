// The indeterminate value, which means that the selected graphics differ: one for each member type.
//
// A merged member holds it when two graphics disagree; a member that still holds it at the write-back is skipped, so
// that every graphic keeps its own value.
#pragma once

#include <afx.h>

#include <cmath>
#include <cstdint>
#include <cstring>

constexpr int kIndeterminateCheck = 2;                // the third state of a check box
constexpr char kIndeterminateString[] = "\xFF";       // of a CString, the whole text: one may begin so in a code page
constexpr unsigned int kIndeterminateId = 0xFFFFFFFF; // of an identifier or color

// What a field shows for the marker. A text that reads so means no value.
constexpr char kIndeterminateStars[] = "*****";          // of a number
constexpr char kIndeterminateWord[] = "Indeterminate";   // of a scale or an angle, and as the name of a style
constexpr char kIndeterminateInfo[] = "<Indeterminate>"; // of the attribute text

template <class T>
struct Indeterminate;

template <>
struct Indeterminate<unsigned char> {
    static unsigned char Value() { return 0xFF; }
};
template <>
struct Indeterminate<unsigned short> {
    static unsigned short Value() { return 0xFFFF; }
};
template <>
struct Indeterminate<int> {
    static int Value() { return INT32_MIN; }
};
template <>
struct Indeterminate<long> {
    static long Value() { return INT32_MIN; }
};
template <>
struct Indeterminate<unsigned int> {
    static unsigned int Value() { return 0xFFFFFFFF; }
};
template <>
struct Indeterminate<unsigned long> {
    static unsigned long Value() { return 0xFFFFFFFF; }
};
template <>
struct Indeterminate<float> {
    static float Value() {
        float value;
        const uint32_t largest = 0x7F7FFFFF;
        std::memcpy(&value, &largest, sizeof value);
        return value;
    }
};
template <>
struct Indeterminate<double> {
    static double Value() { return HUGE_VAL; }
};
template <>
struct Indeterminate<CString> {
    static CString Value() { return CString(kIndeterminateString); }
};

template <class T>
bool IsIndeterminate(const T& value) {
    return value == Indeterminate<T>::Value();
}
