// The demo's application object: one main window that opens the given drawing.
#pragma once

#include <afxwin.h>

#include <string>

struct DemoOptions {
    std::string drawing;    // empty for none
    std::string tourFolder; // empty for no tour
};

class CDemoApp : public CWinApp {
    DECLARE_DYNAMIC(CDemoApp)
public:
    explicit CDemoApp(const DemoOptions& options);

    BOOL InitInstance() override;
    int Run() override;

private:
    DemoOptions m_options;
};

// Returns the folder of the program, with a trailing backslash.
std::string ProgramFolder();
