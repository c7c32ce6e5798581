// Collects the graphics that reject values during a write-back, and reports them to the user once at the end.
#pragma once

#include <afx.h>

#include <set>

#include "orlo/host/graphic.h"

class CGraphicPropertyPage;

class WriteOutcome {
public:
    // Records the page's writes to the selection during its lifetime. A nested object continues the outer one's changed
    // graphics.
    explicit WriteOutcome(CGraphicPropertyPage* page);
    ~WriteOutcome();
    WriteOutcome(const WriteOutcome&) = delete;
    WriteOutcome& operator=(const WriteOutcome&) = delete;

    // Returns the graphics that rejected a value.
    std::set<const GraphicStruct*>& Unchanged() { return m_unchanged; }
    // Returns the graphics that accepted a value, or null if the sheet does not count them.
    std::set<const GraphicStruct*>* Changed() { return m_countsChanged ? &m_changed : nullptr; }
    // Returns the outcome of the page's current write-back, or null.
    static WriteOutcome* Of(CGraphicPropertyPage& page);
    // Records an exception that is not the framework's. Only the first text is reported.
    void AddFailure(const char* text);
    // Shows a message box if there is anything to report, and notifies the sheet of the numbers of changed and
    // unchanged graphics. total: number of selected graphics.
    void Report(int total) const;

private:
    CGraphicPropertyPage* m_page;
    WriteOutcome* m_before;
    bool m_countsChanged;
    std::set<const GraphicStruct*> m_unchanged, m_changed;
    CString m_failure;
};
