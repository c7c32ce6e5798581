// Fills a control with texts that may repeat, adding each only once. Internal to the library.
#pragma once

#include <afxwin.h>

#include <set>

#include "orlo/controls/control_items.h"

// Adding n texts takes O(n log n) comparisons, because the control itself is not searched.
class DistinctItems {
public:
    // The control must be empty.
    explicit DistinctItems(const ControlItems& items) : items_(items) {}

    // Adds the text unless it was added before, ignoring case.
    void Add(const char* text) {
        if (added_.insert(text).second) items_.Add(text);
    }

private:
    // Compares as the control does when it finds a text.
    struct ComesBefore {
        bool operator()(const CString& a, const CString& b) const { return ::lstrcmpiA(a, b) < 0; }
    };

    ControlItems items_;
    std::set<CString, ComesBefore> added_;
};
