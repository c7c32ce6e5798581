// CGeneralPage: exchange of layer and attribute text, and the selection of styles.

#include "orlo/pages/general_page.h"

#include <string.h>

#include "orlo/binding/indeterminate.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_items.h"
#include "orlo/exchange/ddp.h"
#include "orlo/exchange/ddx.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/block.h"
#include "orlo/host/strings.h"
#include "orlo/host/walk.h"
#include "orlo/host/words.h"
#include "orlo/resources/resource.h"

IMPLEMENT_DYNAMIC(CGeneralPage, CGraphicPropertyPage)

namespace {

constexpr int kLongestStyleName = 32;
constexpr int kNameSize = 256;

void ShowDlgControl(HWND hDlg, int nID, int bShow) {
    const HWND control = ::GetDlgItem(hDlg, nID);
    if (control == nullptr) return;
    ::ShowWindow(control, bShow ? SW_SHOW : SW_HIDE);
    ::EnableWindow(control, bShow);
}

void EnableDlgControl(HWND hDlg, int nID, bool enable) {
    if (const HWND control = ::GetDlgItem(hDlg, nID)) ::EnableWindow(control, enable);
}

// Returns the identifier of the first entry that passes the test, or 0.
template <class Test>
uint16_t FindEntry(TableStruct* table, Test matches) {
    for (const uint16_t id : orlo::host::Entries(table))
        if (matches(id)) return id;
    return 0;
}

uint16_t FindEntryByName(TableStruct* table, const char* name) {
    return FindEntry(table, [&](uint16_t id) {
        char entry[kNameSize];
        return ::TableEntryGetName(table, id, entry, sizeof entry) && ::_stricmp(entry, name) == 0;
    });
}

} // namespace

int IsUserStyleName(CString name) {
    for (unsigned int id : kStringsReservedStyles) {
        char reserved[64] = "";
        ::DrawCoreLoadString(id, reserved, sizeof reserved);
        if (::_stricmp(name, reserved) == 0) return 0;
    }
    return 1;
}

BEGIN_MESSAGE_MAP(CGeneralPage, CGraphicPropertyPage)
ON_CBN_EDITCHANGE(IDC_STYLE_NAME, &ThisClass::OnStyleEditChange)
ON_CBN_CLOSEUP(IDC_STYLE_NAME, &ThisClass::OnStyleCloseUp)
ON_CBN_SELCHANGE(IDC_STYLE_NAME, &ThisClass::OnStyleCloseUp)
ON_BN_CLICKED(IDC_STYLE_NEW, &ThisClass::OnNew)
ON_BN_CLICKED(IDC_STYLE_DELETE, &ThisClass::OnDelete)
ON_CBN_KILLFOCUS(IDC_STYLE_NAME, &ThisClass::OnStyleKillFocus)
END_MESSAGE_MAP()

CGeneralPage::CGeneralPage() : CGraphicPropertyPage(kTemplate, 0), m_nLayer(1), m_nStyleTree(0), m_bStyleChecked(0) {}

BOOL CGeneralPage::OnInitDialog() {
    CGraphicPropertyPage::OnInitDialog();
    // In the template, the layer list is not a tab stop.
    const HWND layers = ::GetDlgItem(m_hWnd, IDC_LAYER);
    ::SetWindowLongPtrA(layers, GWL_STYLE, ::GetWindowLongPtrA(layers, GWL_STYLE) | WS_TABSTOP);
    if (!HasStylePart()) {
        const int styleControls[] = {IDC_STYLE_NAME, IDC_STYLE_NEW, IDC_STYLE_DELETE, IDC_STYLE_GROUP};
        for (const int id : styleControls)
            ShowDlgControl(m_hWnd, id, 0);
    }
    ::SendDlgItemMessageA(m_hWnd, IDC_INFO, EM_SETLIMITTEXT, 0, 0); // instead of 32 KB
    ::SendDlgItemMessageA(m_hWnd, IDC_STYLE_NAME, CB_LIMITTEXT, kLongestStyleName, 0);
    return TRUE;
}

void CGeneralPage::DoDataExchange(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_LAYER, m_nLayer, kPropLayer);
    DDX_CBTableIndex(1, pDX, IDC_LAYER, m_nLayer);

    ExchangeInfo(pDX);

    if (HasStylePart()) {
        DDP_Text(pDX, IDC_STYLE_NAME, m_nStyleTree, kPropStyleTree);
        DDX_CBTableLookupIndex(1, pDX, IDC_STYLE_NAME, m_nStyleTree);
        if (!pDX->m_bSaveAndValidate) OnStyleEditChange();
    }
    DDP_PostProcessing(pDX);
}

// Different texts are shown as a placeholder, which counts as unchanged even if the user types it.
void CGeneralPage::ExchangeInfo(CDataExchange* pDX) {
    DDP_Text(pDX, IDC_INFO, m_strInfo, kPropInfo);
    CString shown = IsIndeterminate(m_strInfo) ? CString(kIndeterminateInfo) : m_strInfo;
    DDX_Text(1, pDX, IDC_INFO, shown);
    if (pDX->m_bSaveAndValidate) m_strInfo = shown == kIndeterminateInfo ? CString(kIndeterminateString) : shown;
}

// ---- The style part

bool CGeneralPage::HasStylePart() const {
    CGraphicPropertySheet* sheet = GetSheet();
    return sheet != nullptr && (sheet->GetGraphicFlags() & kNoStylePart) == 0;
}

TableStruct* CGeneralPage::StyleTable() const {
    const CComboControl* control = ComboControlOf(::GetDlgItem(m_hWnd, IDC_STYLE_NAME));
    return control != nullptr ? control->m_pTable : nullptr;
}

// Returns the name of the style that the sheet edits, or an empty string.
CString CGeneralPage::CurrentStyleName() const {
    TableStruct* table = StyleTable();
    char name[kNameSize] = "";
    CGraphicPropertySheet* sheet = GetSheet();
    if (table == nullptr || sheet == nullptr || sheet->GetGraphics() == nullptr) return name;
    const uint16_t id =
        FindEntry(table, [&](uint16_t entry) { return ::TableEntryGetData(table, entry) == sheet->GetGraphics(); });
    if (id != 0) ::TableEntryGetName(table, id, name, sizeof name);
    return name;
}

CString CGeneralPage::NameInCombo() const {
    char name[kNameSize] = "";
    ::GetDlgItemTextA(m_hWnd, IDC_STYLE_NAME, name, sizeof name);
    return name;
}

int CGeneralPage::FindInCombo(const char* name) const {
    return ControlItems::OfCombo(::GetDlgItem(m_hWnd, IDC_STYLE_NAME)).FindExact(name);
}

bool CGeneralPage::CanDelete(const char* name) const {
    return FindInCombo(name) != CB_ERR && IsUserStyleName(name);
}

void CGeneralPage::EnableButtons(const char* name) {
    EnableDlgControl(m_hWnd, IDC_STYLE_NEW, *name != '\0' && FindInCombo(name) == CB_ERR);
    EnableDlgControl(m_hWnd, IDC_STYLE_DELETE, CanDelete(name));
}

// The system sends no notification for a selection made by a program.
void CGeneralPage::SelectInCombo(int index) {
    ControlItems::OfCombo(::GetDlgItem(m_hWnd, IDC_STYLE_NAME)).Select(index);
    EnableButtons(NameInCombo());
}

void CGeneralPage::OnStyleEditChange() {
    m_bStyleChecked = 0;
    if (HasStylePart() && ::GetDlgItem(m_hWnd, IDC_STYLE_NAME) != nullptr) EnableButtons(NameInCombo());
}

void CGeneralPage::OnStyleCloseUp() {
    const HWND combo = ::GetDlgItem(m_hWnd, IDC_STYLE_NAME);
    if (!HasStylePart() || combo == nullptr) return;
    const ControlItems items = ControlItems::OfCombo(combo);
    CString name;
    if (items.GetText(items.Selected(), name)) EnableButtons(name);
}

void CGeneralPage::OnNew() {
    CGraphicPropertySheet* sheet = GetSheet();
    if (sheet == nullptr) return;
    GraphicStruct* copy = ::GraphicCopyEx(static_cast<GraphicStruct*>(sheet->GetGraphics()), 0, 0, 7);
    if (copy != nullptr && ::BlocksAddBlock(StyleTable(), NameInCombo(), copy) == 0) ::GraphicDispose(&copy);
    sheet->EndDialog(kStyleAdded);
}

void CGeneralPage::OnDelete() {
    const CString name = NameInCombo();
    if (!CanDelete(name)) return;
    SelectInCombo(0);
    TableStruct* table = StyleTable();
    CGraphicPropertySheet* sheet = GetSheet();
    const uint16_t id = table != nullptr ? FindEntryByName(table, name) : 0;
    if (id != 0 && sheet != nullptr) sheet->EndDialog(kStyleToDelete + id);
}

void CGeneralPage::OnStyleKillFocus() {
    const HWND combo = ::GetDlgItem(m_hWnd, IDC_STYLE_NAME);
    const bool checked = m_bStyleChecked != 0;
    m_bStyleChecked = 0;
    if (checked || combo == nullptr || !HasStylePart()) return;
    const HWND focus = ::GetFocus();
    // Without a focus window, another program is in front and the user is still editing the combo box.
    if (focus == nullptr || focus == combo || ::IsChild(combo, focus)) return;

    const CString name = NameInCombo();
    if (!name.IsEmpty() && FindInCombo(name) != CB_ERR)
        LeaveComboForStyle(name, focus);
    else if (name.IsEmpty() || focus != ::GetDlgItem(m_hWnd, IDC_STYLE_NEW))
        SelectCurrentStyle();
}

void CGeneralPage::LeaveComboForStyle(const CString& name, HWND focus) {
    CGraphicPropertySheet* sheet = GetSheet();
    if (focus == ::GetDlgItem(sheet->m_hWnd, IDCANCEL) || focus == ::GetDlgItem(m_hWnd, IDC_STYLE_DELETE)) return;
    const bool byOk = focus == ::GetDlgItem(sheet->m_hWnd, IDOK);
    TableStruct* table = StyleTable();
    const uint16_t id = table != nullptr ? FindEntryByName(table, name) : 0;
    SelectInCombo(0);
    if (id == 0) return;
    sheet->EndWithCode(id + (byOk ? kStyleChosenByOk : kStyleChosen));
    if (!byOk) ::PostMessageA(sheet->m_hWnd, WM_COMMAND, IDOK, 0);
}

void CGeneralPage::SelectCurrentStyle() {
    const CString current = CurrentStyleName();
    const int index = current.IsEmpty() ? CB_ERR : FindInCombo(current);
    SelectInCombo(index == CB_ERR ? 0 : index);
}

bool CGeneralPage::NamesOtherStyle(const char* name) {
    const CString current = CurrentStyleName();
    return FindInCombo(name) == CB_ERR || ::_stricmp(current, name) != 0;
}

BOOL CGeneralPage::OnKillActive() {
    m_bStyleChecked = 0;
    const HWND combo = ::GetDlgItem(m_hWnd, IDC_STYLE_NAME);
    if (combo == nullptr || !::IsWindowVisible(combo)) return CGraphicPropertyPage::OnKillActive();

    const CString name = NameInCombo();
    if (NamesOtherStyle(name)) {
        ::SetFocus(combo);
        ::SetWindowTextA(combo, name);
        ::MessageBeep(MB_ICONWARNING);
        return FALSE;
    }
    m_bStyleChecked = 1;
    return CGraphicPropertyPage::OnKillActive();
}
