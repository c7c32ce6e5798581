// What the host did not accept in a write-back: reported to the user once, when it is over.
#pragma once

#include <afx.h>

#include <set>

#include "orlo/host/graphic.h"

class CGraphicPropertyPage;

class WriteOutcome {
public:
    // The page's writes to the selection are recorded while the object lives.
    explicit WriteOutcome(CGraphicPropertyPage* page);
    ~WriteOutcome();
    WriteOutcome(const WriteOutcome&) = delete;
    WriteOutcome& operator=(const WriteOutcome&) = delete;

    // The graphics that did not accept a value.
    std::set<const GraphicStruct*>& Unchanged() { return m_unchanged; }
    // An exception other than the framework's; of several texts the first counts.
    void AddFailure(const char* text);
    // A message box, if there is anything to report. total: the graphics of the selection.
    void Report(int total) const;

private:
    CGraphicPropertyPage* m_page;
    WriteOutcome* m_before;
    std::set<const GraphicStruct*> m_unchanged;
    CString m_failure;
};
