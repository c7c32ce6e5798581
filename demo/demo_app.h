// The demo's application object: one main window, opened on the drawing that it is given.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class CMainFrame;

struct DemoOptions {
    std::string drawing;              // empty: none
    std::string tourFolder;           // empty: no tour
    std::vector<std::string> checked; // drawings to take through all pages and back
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
    bool IsPlayed() const; // by the tour or the check, in place of a user

    DemoOptions m_options;
};

// The folder that the program lies in, with a backslash at its end.
std::string ProgramFolder();
