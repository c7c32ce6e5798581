// A scripted tour for machines without a user. Opens a drawing, selects graphics that differ, edits their pen in the
// sheet, undoes and redoes the edit, creates a style with the wizard, selects all graphics and visits every page, saves
// a copy, and shows the properties pane and the layers dialog. Uses only keyboard and mouse messages, saves a
// screenshot of each step, and reports changes.
#pragma once

#include <functional>
#include <string>

#include "demo/automation/user_input.h"

class CMainFrame;

class Tour {
public:
    // The folder for screenshots must exist; the report is written to standard output.
    Tour(CMainFrame& frame, const std::string& folder);

    // Runs the tour over the drawing. Returns true if all steps had the expected result.
    bool Play(const std::string& drawing);

private:
    void TakePicture(const std::string& name);

    void Open(const std::string& drawing);
    bool SelectVariedSet();
    void ZoomTo(const struct WorldBox& box);
    bool EditAndUndo(const std::string& changed, const std::string& undone, const std::function<void()>& edit);
    void CreateStyle();
    void EditAllPages();
    void SaveCopy();
    void ShowPaneAndLayers();
    void EditPen();
    void OpenPage(HWND sheet, const std::string& title);
    void ReportPens();

    CMainFrame& m_frame;
    std::string m_folder;
    UserInput m_user;
    int m_pictures = 0;
};
