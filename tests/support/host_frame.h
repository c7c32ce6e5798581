// The main window of a test host: fills the library's controls when they notify it.
#pragma once

#include <afxwin.h>

#include <vector>

#include "orlo/host/records.h"

class HostFrame : public CFrameWnd {
public:
    // Creates an invisible window and makes it the thread's main window until it is destroyed. Controls are filled from
    // the tables of the drawing.
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
