// The scripted tour.

#include "demo/tour/tour.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "demo/automation/sheet_pages.h"
#include "demo/tour/page_edits.h"
#include "demo/tour/report.h"
#include "demo/tour/screenshot.h"
#include "demo/tour/varied_window.h"
#include "demo/viewer/main_frame.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/selection_summary.h"

namespace {

constexpr unsigned kPause = 120; // milliseconds after an action, so that viewers can follow
constexpr int kBandMargin = 8;   // pixels by which the selection window is larger than the selected objects

constexpr int kWizardNext = 101;

// Returns "block-insertion" for "Block Insertion".
std::string FileNameOf(const std::string& title) {
    std::string name;
    for (const char character : title)
        name += character == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    return name;
}

} // namespace

Tour::Tour(CMainFrame& frame, const std::string& folder) : m_frame(frame), m_folder(folder), m_user(kPause) {}

bool Tour::Play(const std::string& drawing) {
    try {
        Open(drawing);
        if (!SelectVariedSet()) {
            Report("No graphic in this drawing has a pen; there is nothing to edit.");
            return true;
        }
        if (!EditAndUndo("changed", "undone", [this] { EditPen(); })) return false;
        Report("Ctrl+Y redoes it.");
        m_user.Key('Y', UserInput::kControl);
        CreateStyle();
        Report("Ctrl+A selects all.");
        m_user.Key(VK_HOME);
        m_user.Key('A', UserInput::kControl);
        TakePicture("all-selected");
        if (!EditAndUndo("all-changed", "all-undone", [this] { EditAllPages(); })) return false;
        SaveCopy();
        ShowPaneAndLayers();
        return true;
    } catch (const std::exception& error) {
        Report(std::string("The tour was stopped: ") + error.what());
        return false;
    }
}

// Returns true if the edit changed something and was undone in one step.
bool Tour::EditAndUndo(const std::string& changed, const std::string& undone, const std::function<void()>& edit) {
    const Document& document = *m_frame.GetDocument();
    const int steps = document.UndoSteps();
    edit();
    TakePicture(changed);
    const bool differs = document.UndoSteps() == steps + 1;
    Report(differs ? "After the edit:" : "Nothing has changed.");
    ReportPens();
    m_user.Key('Z', UserInput::kControl);
    TakePicture(undone);
    Report("Undone:");
    ReportPens();
    return differs && document.UndoSteps() == steps;
}

// Reports the pens of the selection.
void Tour::ReportPens() {
    const Document& document = *m_frame.GetDocument();
    for (const char* property : {kPropPenColor, kPropPenWidth, kPropPenStyle})
        Report(std::string("  ") + property + ": " +
               CountsText(CountValues(document.Drawing(), document.Selected().Members(), property)));
}

void Tour::TakePicture(const std::string& name) {
    m_user.Wait(2 * kPause);
    char file[64];
    std::snprintf(file, sizeof file, "%02d-%s.png", ++m_pictures, name.c_str());
    CRect window;
    m_frame.GetWindowRect(window);
    SaveScreenshot(window, m_folder + "\\" + file);
    Report(std::string("  [") + file + "]");
}

// ---- Steps

void Tour::Open(const std::string& drawing) {
    m_user.Wait(kPause);
    if (!m_frame.Open(drawing)) throw std::runtime_error("the drawing could not be opened");
    const Document& document = *m_frame.GetDocument();
    Report("Open " + document.Name() + ": " + std::to_string(document.Selectable().size()) + " graphics.");
    TakePicture("open");
}

bool Tour::SelectVariedSet() {
    const std::optional<WorldBox> box = FindVariedWindow(*m_frame.GetDocument());
    if (!box) return false;
    ZoomTo(*box);

    CRect frame = m_frame.View().GetCamera().ToPixels(*box);
    frame.InflateRect(kBandMargin, kBandMargin);
    const HWND view = m_frame.View().m_hWnd;
    m_user.Press(view, frame.TopLeft());
    m_user.MoveTo(view, frame.CenterPoint());
    m_user.MoveTo(view, frame.BottomRight());
    TakePicture("select-window");
    m_user.Release(view, frame.BottomRight());
    Selection& selection = m_frame.GetDocument()->Selected();
    Report("Select by window: " + std::to_string(selection.Count()) + " graphics.");
    ReportPens();
    TakePicture("selected");
    if (selection.Count() == 0) throw std::runtime_error("nothing was selected");
    return true;
}

// Moves to the center and turns the wheel, like a user.
void Tour::ZoomTo(const WorldBox& box) {
    const HWND view = m_frame.View().m_hWnd;
    CRect client;
    ::GetClientRect(view, client);
    const Camera& camera = m_frame.View().GetCamera();
    m_user.PanDrag(view, camera.ToPixels(box.Center()), client.CenterPoint());
    const CRect now = camera.ToPixels(box);
    const double factor = std::min(client.Width() * 0.8 / now.Width(), client.Height() * 0.8 / now.Height());
    m_user.Wheel(view, client.CenterPoint(), static_cast<int>(std::floor(std::log(factor) / std::log(1.25))));
}

void Tour::EditPen() {
    Report("Alt+Enter opens the properties.");
    m_user.InDialog([this] { m_user.Key(VK_RETURN, UserInput::kAlt); },
                    [this](HWND sheet) {
                        TakePicture("general-page");
                        OpenPage(sheet, "Pen");
                        TakePicture("pen-page");
                        FindPageEdit("Pen")->edit(m_user, ActivePageOf(sheet));
                        TakePicture("pen-page-edited");
                        Report("OK.");
                        m_user.Click(::GetDlgItem(sheet, IDOK));
                    });
}

void Tour::OpenPage(HWND sheet, const std::string& title) {
    const std::vector<std::string> titles = PageTitles(sheet);
    const auto found = std::find(titles.begin(), titles.end(), title);
    if (found == titles.end()) throw std::runtime_error("the sheet has no page \"" + title + "\"");
    ClickTab(m_user, sheet, static_cast<int>(found - titles.begin()));
}

// Three wizard pages and Finish.
void Tour::CreateStyle() {
    Report("Ctrl+N creates a style from the selection.");
    m_user.InDialog([this] { m_user.Key('N', UserInput::kControl); },
                    [this](HWND wizard) {
                        m_user.Type("Tour");
                        for (const char* step : {"wizard-name", "wizard-parts", "wizard-summary"}) {
                            TakePicture(step);
                            m_user.Click(::GetDlgItem(wizard, kWizardNext));
                        }
                    });
    Report("Ctrl+Enter shows the style.");
    m_user.InDialog([this] { m_user.Key(VK_RETURN, UserInput::kControl); },
                    [this](HWND sheet) {
                        TakePicture("style-page");
                        m_user.Click(::GetDlgItem(sheet, IDCANCEL));
                    });
}

void Tour::EditAllPages() {
    Report("Alt+Enter opens the properties of all.");
    m_user.InDialog([this] { m_user.Key(VK_RETURN, UserInput::kAlt); },
                    [this](HWND sheet) {
                        for (const std::string& title : PageTitles(sheet)) {
                            const PageEdit* page = FindPageEdit(title);
                            if (!page) continue;
                            OpenPage(sheet, title);
                            page->edit(m_user, ActivePageOf(sheet));
                            TakePicture("all-" + FileNameOf(title));
                        }
                        Report("OK.");
                        m_user.Click(::GetDlgItem(sheet, IDOK));
                    });
}

// Shows the drawing alone on a light background, and saves it with the redone edit.
void Tour::SaveCopy() {
    m_user.Key(VK_ESCAPE);
    m_user.Key(VK_HOME);
    m_frame.SendMessage(WM_COMMAND, ID_VIEW_LIGHT_BACKGROUND);
    const std::string name = m_frame.GetDocument()->Name();
    const std::string copy = name.substr(0, name.rfind('.')) + "-edited.dxf";
    if (!m_frame.Save(m_folder + "\\" + copy)) throw std::runtime_error(copy + " could not be saved");
    Report("Save as " + copy + ".");
    TakePicture("saved");
}

// Opens the pane for the next graphic that has a pen, and edits it.
void Tour::ShowPaneAndLayers() {
    Report("F4 opens the pane of properties; Tab selects the next graphic.");
    m_user.Key(VK_F4);
    m_user.Key(VK_TAB);
    m_user.Key(VK_END);
    TakePicture("pane");
    Report("F6 moves into it, Ctrl+Tab to the next page, Enter applies.");
    m_user.Key(VK_F6);
    m_user.Key(VK_TAB, UserInput::kControl);
    m_user.Key(VK_RETURN);
    TakePicture("pane-page");
    m_user.Key(VK_F6);
    Report("Ctrl+L lists the layers.");
    m_user.InDialog([this] { m_user.Key('L', UserInput::kControl); },
                    [this](HWND) {
                        m_user.Keys(VK_DOWN, 3);
                        TakePicture("layers");
                        m_user.Key(VK_ESCAPE);
                    });
}
