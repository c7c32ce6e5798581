// An operation during which the main window handles no input: shows the wait cursor and a progress bar in the status
// bar, repaints exposed windows, and checks for the Escape key.
//
//   LongTask task(*this, m_status, "Opening roof.dxf");
//   Document::Open(path, [&](int permille) { return task.GoOn(permille); });
#pragma once

#include <afxwin.h>

#include <string>

#include "demo/viewer/status_line.h"

// Posted to the window, which restores the cursor with EndHourglass.
constexpr UINT kHourglassEnds = WM_APP + 1;

// Shows the wait cursor until the window handles messages again.
void ShowHourglass(const CWnd& window);
// Restores the cursor of the window under the pointer.
void EndHourglass();

class LongTask {
public:
    LongTask(const CWnd& window, CStatusLine& line, const std::string& text);
    ~LongTask();
    LongTask(const LongTask&) = delete;
    LongTask& operator=(const LongTask&) = delete;

    // Updates the progress. Returns false if Escape was pressed; all other keys are discarded.
    bool GoOn(int permille);

private:
    CStatusLine& m_line;
};
