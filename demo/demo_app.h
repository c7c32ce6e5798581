// The demo's application object: one main window that opens the given drawing.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class CMainFrame;

struct DemoOptions {
    std::string drawing;              // empty for none
    std::string tourFolder;           // empty for no tour
    std::vector<std::string> checked; // drawings to edit on all pages, with undo
};

class CDemoApp : public CWinApp {
    DECLARE_DYNAMIC(CDemoApp)
public:
    explicit CDemoApp(const DemoOptions& options);
    ~CDemoApp() override;

    BOOL InitInstance() override;
    int Run() override;

private:
    CMainFrame* Frame() const;
    bool IsPlayed() const; // by the tour or the check instead of a user

    DemoOptions m_options;
};

// Returns the folder of the program, with a trailing backslash.
std::string ProgramFolder();
