// The wizard that creates a style.

#include "demo/viewer/style_wizard.h"

#include <afxdlgs.h>

#include "demo/viewer/document.h"
#include "demo/viewer/resource.h"
#include "demo/viewer/value_counts.h"
#include "orlo/controls/check_list_box.h"
#include "orlo/wizard/wizard_sheet.h"

namespace {

// The values entered on the pages.
struct Draft {
    const Document& document;
    std::vector<GraphicStruct*> graphics;
    std::string name;
    StyleBook::Parts parts;
};

std::string Trimmed(const std::string& text) {
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

// ---- 1: the name

class CNameStep : public CPropertyPage {
public:
    explicit CNameStep(Draft& draft) : CPropertyPage(IDD_STYLE_NAME), m_draft(draft) {}

protected:
    BOOL OnInitDialog() override {
        ::SendDlgItemMessageA(m_hWnd, IDC_STYLE_NAME_EDIT, EM_LIMITTEXT, StyleBook::kLongestName, 0);
        return CPropertyPage::OnInitDialog();
    }

    BOOL OnKillActive() override {
        CString text;
        GetDlgItem(IDC_STYLE_NAME_EDIT)->GetWindowText(text);
        m_draft.name = Trimmed(static_cast<LPCSTR>(text));
        const std::string error = m_draft.document.Styles().NameError(m_draft.name);
        if (error.empty()) return CPropertyPage::OnKillActive();
        AfxMessageBox(error.c_str());
        const HWND edit = ::GetDlgItem(m_hWnd, IDC_STYLE_NAME_EDIT);
        ::SetFocus(edit);
        ::SendMessageA(edit, EM_SETSEL, 0, -1);
        return FALSE;
    }

private:
    Draft& m_draft;
};

// ---- 2: the attributes

class CPartsStep : public CPropertyPage {
public:
    explicit CPartsStep(Draft& draft) : CPropertyPage(IDD_STYLE_PARTS), m_draft(draft) {}

protected:
    // The list replaces a label of the template.
    BOOL OnInitDialog() override {
        CPropertyPage::OnInitDialog();
        CWnd* place = GetDlgItem(IDC_STYLE_PARTS_PLACE);
        CRect rect;
        place->GetWindowRect(&rect);
        ScreenToClient(&rect);
        constexpr DWORD kStyle =
            WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY;
        if (!m_list.Create(kStyle, rect, this, IDC_STYLE_PARTS)) return TRUE;
        m_list.SetFont(GetFont());
        place->DestroyWindow();
        m_list.AddString("Pen: color, width, line style", m_draft.parts.pen);
        m_list.AddString("Brush: fill or hatch, its color, scale and angle", m_draft.parts.brush);
        m_list.AddString("Text: font, height, effects, color", m_draft.parts.text);
        m_list.SetCurSel(0);
        return TRUE;
    }

    BOOL OnKillActive() override {
        m_draft.parts = {IsChecked(0), IsChecked(1), IsChecked(2)};
        return CPropertyPage::OnKillActive();
    }

private:
    bool IsChecked(int index) const { return m_list.IsItemChecked(index) != 0; }

    Draft& m_draft;
    CCheckListBox m_list;
};

// ---- 3: the summary

std::string PartText(const char* part, bool kept, GraphicStruct* example, const std::vector<const char*>& properties) {
    std::string line = std::string(part) + ": ";
    if (!kept) return line + "unchanged\r\n";
    if (!example) return line + "the default\r\n";
    for (const char* property : properties)
        line += (property == properties.front() ? "" : ", ") + PropertyText(example, property);
    return line + "\r\n";
}

class CSummaryStep : public CPropertyPage {
public:
    explicit CSummaryStep(Draft& draft) : CPropertyPage(IDD_STYLE_SUMMARY), m_draft(draft) {}

protected:
    BOOL OnSetActive() override {
        if (!CPropertyPage::OnSetActive()) return FALSE;
        const StyleBook::Examples examples = StyleBook::ExamplesOf(m_draft.graphics);
        const StyleBook::Parts& parts = m_draft.parts;
        const std::string text =
            "Style \"" + m_draft.name + "\"\r\n\r\n" +
            PartText("Pen", parts.pen, examples.pen, {kPropPenColor, kPropPenWidth, kPropPenStyle}) +
            PartText("Brush", parts.brush, examples.brush, {kPropBrushStyle, kPropBrushColor}) +
            PartText("Text", parts.text, examples.text, {kPropTextFont, kPropTextSize, kPropPenColor});
        SetDlgItemText(IDC_STYLE_SUMMARY, text.c_str());
        return TRUE;
    }

private:
    Draft& m_draft;
};

} // namespace

bool MakeStyleByWizard(CWnd* owner, Document& document) {
    const std::vector<GraphicStruct*> graphics = document.Selected().Members();
    Draft draft = {document, graphics, "", StyleBook::PartsOf(graphics)};
    CNameStep name(draft);
    CPartsStep parts(draft);
    CSummaryStep summary(draft);
    CWizardSheet wizard("New Style", owner, 0);
    CPropertyPage* const steps[] = {&name, &parts, &summary};
    for (CPropertyPage* step : steps)
        wizard.AddPage(step);
    if (wizard.DoModal() != IDOK) return false;
    return document.Styles().Create(draft.name, draft.graphics, draft.parts) != 0;
}
