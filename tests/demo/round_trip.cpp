// Edits drawings on all pages and undoes the edits.

#include "demo/round_trip.h"

#include <map>
#include <stdexcept>

#include "demo/automation/sheet_pages.h"
#include "demo/tour/page_edits.h"
#include "demo/tour/report.h"
#include "demo/viewer/main_frame.h"
#include "orlo/host/words.h"
#include "orlo/pages/field_page.h"
#include "support/drawing_state.h"

namespace {

constexpr size_t kMaxDifferences = 5; // maximum number reported per drawing

// The value (see DrawingState) that the edit on each page changes.
const std::map<std::string, std::string> kEditedValues = {{"General", kPropInfo},
                                                          {"Pen", kPropPenColor},
                                                          {"Brush", kPropBrushStyle},
                                                          {"Text", kPropTextStyle},
                                                          {"Block Insertion", "vertices"}};

// Edits the page that the viewer makes from a table; the library's pages are edited by page_edits.h.
void MoveFirstPoints(UserInput& user, HWND page) {
    user.Replace(::GetDlgItem(page, CFieldPage::FieldID(3)), "1");
}

} // namespace

bool RoundTrip::Check(const std::vector<std::string>& drawings) {
    int different = 0, unchecked = 0;
    for (const std::string& drawing : drawings) {
        try {
            different += !CheckOne(drawing);
        } catch (const OpenError&) {
            Report(drawing + ": cannot be opened");
        } catch (const std::exception& error) {
            Report(drawing + ": " + error.what());
            ++unchecked;
        }
    }
    std::string end = std::to_string(drawings.size()) + " drawings, " + std::to_string(different) + " with differences";
    if (unchecked) end += ", " + std::to_string(unchecked) + " not checked to the end";
    Report(end);
    return different + unchecked == 0;
}

bool RoundTrip::CheckOne(const std::string& drawing) {
    m_frame.Show(Document::Open(drawing, [](int) { return true; }));
    m_user.MoveFocus(m_frame.View().m_hWnd);
    Document& document = *m_frame.GetDocument();
    const DrawingState before(document.Drawing());
    m_user.Key('A', UserInput::kControl);
    const int count = document.Selected().Count();
    if (count == 0) {
        Report(drawing + ": nothing can be selected");
        return true;
    }
    const std::vector<std::string> pages = EditAllPages();
    const DrawingState changed(document.Drawing());

    std::string line = drawing + ": " + std::to_string(count) + " graphics";
    bool passed = true;
    for (const std::string& title : pages) {
        const bool does = before.Differs(changed, kEditedValues.at(title));
        line += ", " + title + (does ? "" : " (changed nothing!)");
        passed = passed && does;
    }
    m_user.Key('Z', UserInput::kControl);
    const std::vector<std::string> differences =
        before.DifferencesTo(DrawingState(document.Drawing()), kMaxDifferences);
    Report(line + (differences.empty() ? ": as before" : ": DIFFERENT"));
    for (const std::string& difference : differences)
        Report("  " + difference.substr(0, 300));
    return passed && differences.empty();
}

// Returns the titles of the edited pages.
std::vector<std::string> RoundTrip::EditAllPages() {
    std::vector<std::string> edited;
    m_user.InDialog([this] { m_user.Key(VK_RETURN, UserInput::kAlt); },
                    [&](HWND sheet) {
                        const std::vector<std::string> titles = PageTitles(sheet);
                        for (size_t i = 0; i < titles.size(); ++i) {
                            if (!ClickTab(m_user, sheet, static_cast<int>(i)))
                                throw std::runtime_error("page " + titles[i] + " does not come up");
                            if (titles[i] == "Geometry") {
                                MoveFirstPoints(m_user, ActivePageOf(sheet));
                                continue;
                            }
                            if (titles[i] == "Extended Data") continue; // read-only
                            const PageEdit* page = FindPageEdit(titles[i]);
                            if (!page) throw std::runtime_error("page " + titles[i] + " is not known");
                            page->edit(m_user, ActivePageOf(sheet));
                            edited.push_back(titles[i]);
                        }
                        m_user.Click(::GetDlgItem(sheet, IDOK));
                    });
    return edited;
}
