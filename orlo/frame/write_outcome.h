// Collects what the host rejects during a write-back and reports it to the user once at the end.
#pragma once

#include <afx.h>

#include <set>

#include "orlo/host/graphic.h"

class CGraphicPropertyPage;

class WriteOutcome {
public:
    // Records the page's writes to the selection during its lifetime.
    explicit WriteOutcome(CGraphicPropertyPage* page);
    ~WriteOutcome();
    WriteOutcome(const WriteOutcome&) = delete;
    WriteOutcome& operator=(const WriteOutcome&) = delete;

    // Returns the graphics that rejected a value.
    std::set<const GraphicStruct*>& Unchanged() { return m_unchanged; }
    // Records an exception that is not the framework's. Only the first text is reported.
    void AddFailure(const char* text);
    // Shows a message box if there is anything to report. total: number of selected graphics.
    void Report(int total) const;

private:
    CGraphicPropertyPage* m_page;
    WriteOutcome* m_before;
    std::set<const GraphicStruct*> m_unchanged;
    CString m_failure;
};
