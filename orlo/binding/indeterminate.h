// The indeterminate values, one per member type, which mark that the selected graphics differ.
//
// Merging stores the marker when two graphics differ. A member that still contains the marker is not written back, so
// that every graphic keeps its own value.
#pragma once

#include <afx.h>

#include <cmath>
#include <cstdint>
#include <cstring>

constexpr int kIndeterminateCheck = 2;                // third state of a check box
constexpr char kIndeterminateString[] = "\xFF";       // the complete text of a CString; in some code pages, other texts
                                                      // may begin with this character
constexpr unsigned int kIndeterminateId = 0xFFFFFFFF; // for an identifier or color

// Texts that fields show for the marker, and that mean no value.
constexpr char kIndeterminateStars[] = "*****";          // for a number
constexpr char kIndeterminateWord[] = "Indeterminate";   // for a scale, an angle or a style name
constexpr char kIndeterminateInfo[] = "<Indeterminate>"; // for the attribute text

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
