// A task during which the main window hears nothing: shows the hourglass and the bar of the status line, paints what is
// uncovered, and looks for the Escape key.
//
//   LongTask task(*this, m_status, "Opening roof.dxf");
//   Document::Open(path, [&](int permille) { return task.GoOn(permille); });
#pragma once

#include <afxwin.h>

#include <string>

#include "demo/viewer/status_line.h"

// Posted to the window; it ends the hourglass by EndHourglass.
constexpr UINT kHourglassEnds = WM_APP + 1;

// Until the window comes to its next messages.
void ShowHourglass(const CWnd& window);
// The cursor of what is under the pointer.
void EndHourglass();

class LongTask {
public:
    LongTask(const CWnd& window, CStatusLine& line, const std::string& text);
    ~LongTask();
    LongTask(const LongTask&) = delete;
    LongTask& operator=(const LongTask&) = delete;

    // So much has been done. False: Escape has been pressed. All other keys are dropped.
    bool GoOn(int permille);

private:
    CStatusLine& m_line;
};
