// Fills a control with texts that may occur more than once, and shows each once. Internal to the library.
#pragma once

#include <afxwin.h>

#include <set>

#include "orlo/controls/control_items.h"

// n texts cost n log n comparisons: the control is not searched for each.
class DistinctItems {
public:
    // The control is empty.
    explicit DistinctItems(const ControlItems& items) : items_(items) {}

    // Adds the text unless it has been added before, in any case.
    void Add(const char* text) {
        if (added_.insert(text).second) items_.Add(text);
    }

private:
    // As the control itself finds a text.
    struct ComesBefore {
        bool operator()(const CString& a, const CString& b) const { return ::lstrcmpiA(a, b) < 0; }
    };

    ControlItems items_;
    std::set<CString, ComesBefore> added_;
};
