// The main window of a host, for tests: fills the library's controls when they announce themselves.
#pragma once

#include <afxwin.h>

#include <vector>

#include "orlo/host/records.h"

class HostFrame : public CFrameWnd {
public:
    // An invisible window, the thread's main window until it is destroyed. It fills from the tables of the drawing.
    explicit HostFrame(DrawingStruct* drawing);
    ~HostFrame() override;

    struct Notification {
        unsigned int kind; // m_nControlID
        unsigned int code;
    };
    std::vector<Notification> notifications;
    unsigned int currentStyle = 0; // block whose style tree the style names show

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override; // the test owns the object

private:
    DrawingStruct* m_drawing;
};
