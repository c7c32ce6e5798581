// An operation during which the main window handles no input: shows the wait cursor and a progress bar in the status
// bar, repaints exposed windows, and checks for the Escape key.
//
//   LongOperation operation(*this, m_status, "Opening roof.dxf");
//   Document::Open(path, [&](int permille) { return operation.Update(permille); });
#pragma once

#include <afxwin.h>

#include <string>

#include "demo/viewer/status_bar.h"

// Posted to the window, which restores the cursor with RestoreCursor.
constexpr UINT kWaitCursorEnds = WM_APP + 1;

// Shows the wait cursor until the window handles messages again.
void ShowWaitCursor(const CWnd& window);
// Restores the cursor of the window under the pointer.
void RestoreCursor();

class LongOperation {
public:
    LongOperation(const CWnd& window, CStatusBar& line, const std::string& text);
    ~LongOperation();
    LongOperation(const LongOperation&) = delete;
    LongOperation& operator=(const LongOperation&) = delete;

    // Updates the progress. Returns false if Escape was pressed; all other keys are discarded.
    bool Update(int permille);

private:
    CStatusBar& m_line;
};
