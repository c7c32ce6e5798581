// A scripted tour for machines without a user: opens a drawing, selects graphics that differ, edits its pen in the
// sheet, takes it back and makes it again, makes a style by the wizard, selects all and visits every page, saves a
// copy, and shows the pane and the layers; all by keys and mouse messages, with a picture of each station and a report
// of what changed.
#pragma once

#include <functional>
#include <string>

#include "demo/automation/user_input.h"

class CMainFrame;
class PropertySnapshot;

class Tour {
public:
    // Pictures go to the folder, which exists; the report to standard output.
    Tour(CMainFrame& frame, const std::string& folder);

    // Plays over the drawing. True: everything came out as it should.
    bool Play(const std::string& drawing);

private:
    void TakePicture(const std::string& name);

    void Open(const std::string& drawing);
    bool SelectVariedSet();
    void ShowClosely(const struct WorldBox& box);
    bool EditAndUndo(const std::string& changed, const std::string& undone, const std::function<void()>& edit);
    void MakeStyle();
    void EditAllPages();
    void SaveCopy();
    void ShowPaneAndLayers();
    void EditPen();
    void EditPenPage(HWND sheet);
    void OpenPage(HWND sheet, const std::string& title);
    void PickColor(HWND page);
    void PickPaperScale(HWND page);
    void PickWidth(HWND page);
    void PickStyle(HWND page);
    bool ReportChanges(const PropertySnapshot& before, const PropertySnapshot& after);

    CMainFrame& m_frame;
    std::string m_folder;
    UserInput m_user;
    int m_pictures = 0;
};
