// CComboControl: a combo box that shows the entries of a host table.

#include "orlo/controls/combo_control.h"

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_names.h"
#include "orlo/controls/table_control.h"
#include "orlo/controls/type_ahead.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/accessible_window.h"
#include "orlo/win/gdi.h"
#include "orlo/win/screen_scale.h"

namespace {

// Pixels at 96 dpi.
constexpr int kMaxDropHeight = 320; // closed field and open list together
constexpr int kButtonWidth = 16;    // at the right edge of the client area

constexpr UINT kSetMinVisible = 0x1701; // CB_SETMINVISIBLE of common controls 6; ignored by older versions

bool IsControlBarID(int nID) {
    return nID >= 0xE800 && nID <= 0xE8FF;
}

bool IsDropDownList(HWND combo) {
    return (::GetWindowLongA(combo, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
}

// Returns whether the system's combo box opens its list for the message.
bool OpensList(UINT message, WPARAM wParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return true;
    case WM_KEYDOWN:
        return wParam == VK_F4;
    case WM_SYSKEYDOWN:
        return wParam == VK_DOWN || wParam == VK_UP;
    case CB_SHOWDROPDOWN:
        return wParam != FALSE;
    default:
        return false;
    }
}

class ComboKind : public AccessibleKind {
public:
    long Role() const override { return ROLE_SYSTEM_COMBOBOX; }
    // The system supplies the text of an edit field.
    std::optional<std::string> Value(HWND window) const override {
        CComboControl* const combo = ComboControlOf(window);
        if (!combo || !IsDropDownList(window)) return std::nullopt;
        return std::string(combo->DescribeItem(combo->GetCurSel()));
    }
};
const ComboKind kComboKind;

// The drop-down list's window, which is not a child of the combo box.
class DropList : public CWnd {
public:
    DropList(CComboControl& owner, ComboState& state) : combo(owner), m_state(state) {}
    CComboControl& combo;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool HasPointerMoved() const;

    ComboState& m_state;
    POINT m_pointer = {}; // on the screen, when the list was opened
};

class DropListKind : public AccessibleListBox {
public:
    std::string Name(HWND window) const override {
        const DropList* const list = Of(window);
        return list ? LabelOf(list->combo.m_hWnd) : "";
    }
    std::string ItemName(HWND window, int index) const override {
        const DropList* const list = Of(window);
        return list ? std::string(list->combo.DescribeItem(index)) : "";
    }
    void SelectItem(HWND window, int index) const override {
        const DropList* const list = Of(window);
        if (!list) return;
        list->combo.SetCurSel(index);
        NotifySelectionChange(list->combo.m_hWnd);
    }

private:
    static DropList* Of(HWND window) { return dynamic_cast<DropList*>(CWnd::FromHandlePermanent(window)); }
};
const DropListKind kDropListKind;

bool DropList::HasPointerMoved() const {
    POINT now = m_pointer;
    ::GetCursorPos(&now);
    return now.x != m_pointer.x || now.y != m_pointer.y;
}

} // namespace

// The part of a combo box that is not in its interface: the names of its items, the selection that Escape restores, and
// the window of its list.
class ComboState {
public:
    explicit ComboState(CComboControl& combo) : m_combo(combo) {}

    // Sizes the list and records the choice, unless the list is open.
    void PrepareToOpen();
    void RecordChoice() { m_choice = GetChoice(); }
    void RestoreSelection() const;
    // Gives the list its own accessibility object, without which it would expose its items with their keys.
    void WatchList();
    // Makes the list as wide as the widest name, if the control draws names.
    void FitListWidth();

    ItemNames names;

private:
    struct Choice {
        int index = -1;
        CString text; // only for an edit field
    };
    Choice GetChoice() const;

    CComboControl& m_combo;
    Choice m_choice;
    std::unique_ptr<DropList> m_list;
};

namespace {

// An edit field sends the keys that open the list to the list. A list that is opened by the keyboard under the pointer
// receives WM_MOUSEMOVE although the mouse does not move, and would select the item under the pointer.
LRESULT DropList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_KEYDOWN && wParam == VK_F4 && !IsDropDownList(combo.m_hWnd)) m_state.PrepareToOpen();
    if (message == WM_WINDOWPOSCHANGED && (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW))
        ::GetCursorPos(&m_pointer);
    if (message == WM_MOUSEMOVE && !HasPointerMoved()) return 0;
    if (message == WM_GETOBJECT) {
        if (const LRESULT object = HandleGetObject(m_hWnd, wParam, lParam, kDropListKind)) return object;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

} // namespace

void ComboState::PrepareToOpen() {
    if (m_combo.GetDroppedState()) return;
    m_combo.SizeDropDown();
    RecordChoice();
}

ComboState::Choice ComboState::GetChoice() const {
    Choice choice;
    choice.index = m_combo.GetCurSel();
    if (!IsDropDownList(m_combo.m_hWnd)) m_combo.GetWindowText(choice.text);
    return choice;
}

// With an edit field, the text determines the selection: the open list selects the item that begins with it.
void ComboState::RestoreSelection() const {
    const Choice now = GetChoice();
    const bool edit = !IsDropDownList(m_combo.m_hWnd);
    if (edit ? now.text == m_choice.text : now.index == m_choice.index) return;
    m_combo.SetCurSel(m_choice.index);
    if (edit) m_combo.SetWindowText(m_choice.text);
    NotifySelectionChange(m_combo.m_hWnd);
}

void ComboState::WatchList() {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    if ((m_list && m_list->m_hWnd) || !::GetComboBoxInfo(m_combo.m_hWnd, &info) || !info.hwndList) return;
    m_list = std::make_unique<DropList>(m_combo, *this);
    m_list->SubclassWindow(info.hwndList);
}

void ComboState::FitListWidth() {
    const orlo::OwnedDC dc(::CreateCompatibleDC(nullptr));
    const orlo::SelectedObject font(dc.get(), reinterpret_cast<HFONT>(m_combo.SendMessage(WM_GETFONT)));
    if (m_combo.MeasureNameWidth(dc.get(), "") == 0) return;
    int widest = 0;
    for (const std::string& name : names.Of(ControlItems::OfCombo(m_combo.m_hWnd)))
        widest = std::max(widest, m_combo.MeasureNameWidth(dc.get(), name.c_str()));
    const int frame = 2 * ::GetSystemMetrics(SM_CXBORDER) + ::GetSystemMetrics(SM_CXVSCROLL);
    const int width = std::min(widest + frame, ::GetSystemMetrics(SM_CXSCREEN) / 2);
    m_combo.SendMessage(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width));
}

WNDPROC CComboControl::lpfnSuperWndProc = nullptr;

IMPLEMENT_DYNAMIC(CComboControl, CComboBox)

BEGIN_MESSAGE_MAP(CComboControl, CComboBox)
ON_WM_DESTROY()
ON_WM_NCCREATE()
ON_WM_LBUTTONDOWN()
ON_MESSAGE(kFillMessage, &CComboControl::OnFillMessage)
ON_MESSAGE(WM_INITIALUPDATE, &CComboControl::OnInitialUpdate)
END_MESSAGE_MAP()

CComboControl* ComboControlOf(HWND window) {
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (!object || !object->IsKindOf(RUNTIME_CLASS(CComboControl))) return nullptr;
    return static_cast<CComboControl*>(object);
}

CComboControl::CComboControl(unsigned int nControlID)
    : m_nControlID(nControlID), m_state(std::make_unique<ComboState>(*this)) {}

CComboControl::CComboControl(unsigned int nControlID, HWND hWnd)
    : m_nControlID(nControlID), m_bAutoDelete(1), m_state(std::make_unique<ComboState>(*this)) {
    if (!CWnd::FromHandlePermanent(hWnd)) Attach(hWnd);
}

CComboControl::~CComboControl() = default;

int CComboControl::Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) {
    m_bDialogCtrl = !(pParent && IsControlBarID(::GetDlgCtrlID(pParent->m_hWnd)));
    return CWnd::Create("ComboBox", nullptr, dwStyle, rect, pParent, nID);
}

void CComboControl::DialogCtrl(int bDialogCtrl) {
    m_bDialogCtrl = bDialogCtrl;
}

int CComboControl::IsDialogCtrl() {
    return m_bDialogCtrl;
}

WNDPROC* CComboControl::GetSuperWndProcAddr() {
    return &lpfnSuperWndProc;
}

BOOL CComboControl::PreCreateWindow(CREATESTRUCT& cs) {
    m_beingCreated = true;
    return CComboBox::PreCreateWindow(cs);
}

// Called for windows being created and for existing windows that are subclassed. The parent has already measured the
// rows of an existing window, and its WM_INITIALUPDATE is over.
void CComboControl::PreSubclassWindow() {
    if (std::exchange(m_beingCreated, false)) return;
    m_dwStyle = GetStyle();
    InitializeSubclassedWindow(m_hWnd, ControlItems::OfCombo(m_hWnd), MeasuredRow(*this));
}

void CComboControl::PostNcDestroy() {
    m_beingCreated = false; // in case window creation failed
    if (m_bAutoDelete) delete this;
}

LRESULT CComboControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const ControlItems items = ControlItems::OfCombo(m_hWnd);
    if (message == WM_GETOBJECT) {
        if (const LRESULT object = HandleGetObject(m_hWnd, wParam, lParam, kComboKind)) return object;
    }
    if (message == WM_CHAR && TypeAhead(m_hWnd, items, m_state->names, wParam)) return 0;
    // Not done at CBN_DROPDOWN, because only the parent receives it.
    if (OpensList(message, wParam)) m_state->PrepareToOpen();
    const bool cancels = message == WM_KEYDOWN && wParam == VK_ESCAPE && GetDroppedState();
    if (message == WM_DESTROY) m_state->names = ItemNames();
    const LRESULT result = CComboBox::WindowProc(message, wParam, lParam); // can delete this object
    if (items.IsChange(message)) m_state->names.Change(items, message, lParam, result);
    if (cancels) m_state->RestoreSelection();
    if (items.IsSelection(message)) NotifyValueChange(m_hWnd);
    return result;
}

CString CComboControl::DescribeItem(int index) {
    char name[kItemTextSize];
    GetControlItem(index, name);
    return index >= 0 || GetCount() <= 0 ? CString(name) : LibraryText(IDS_VARIED);
}

void CComboControl::SizeDropDown() {
    m_state->WatchList();
    RECT rect = {};
    ::GetWindowRect(m_hWnd, &rect);
    const int row = std::max(MeasuredRow(*this), 1);
    const int frame = 3 * ::GetSystemMetrics(SM_CYBORDER) + (rect.bottom - rect.top);
    const int count = std::max(GetCount(), 0);
    if (m_nDropHeight != count * row + frame) {
        const int space = std::max(ScreenPixels(kMaxDropHeight) - frame, 0);
        m_nDropHeight = std::min(count, space / row) * row + frame;
    }
    SetControlHeight(m_hWnd, m_nDropHeight);
    // Common controls 6 show 30 rows regardless of the list's height unless this is set.
    SendMessage(kSetMinVisible, static_cast<WPARAM>(std::max((m_nDropHeight - frame) / row, 1)));
    m_state->FitListWidth();
}

int CComboControl::MeasureNameWidth(HDC, const char*) {
    return 0;
}

unsigned long CComboControl::GetControlItem(int index, char* text) {
    return ItemOf(ControlItems::OfCombo(m_hWnd), index, text);
}

int CComboControl::AddControlItem(const char* text) {
    return AddString(text);
}

void CComboControl::FillControl(WPARAM, LPARAM lParam) {
    const FillScope scope(m_hWnd);
    if (!BeginFill(*this, lParam)) return;
    ForEachTableItem(m_pTable, [this](ItemText& text) { AddControlItem(text.c_str()); });
    SetCurSel(FindItem(m_nSelected));
}

void CComboControl::OnDestroy() {
    NotifyApplication(*this, m_nControlID, kControlGone);
    Default();
}

// Forces CBS_AUTOHSCROLL: an edit field without it rejects text beyond its width.
int CComboControl::OnNcCreate(LPCREATESTRUCT lpCreateStruct) {
    m_dwStyle = static_cast<unsigned long>(lpCreateStruct->style);
    lpCreateStruct->style |= CBS_AUTOHSCROLL;
    ::SetWindowLongPtrA(m_hWnd, GWL_STYLE, ::GetWindowLongPtrA(m_hWnd, GWL_STYLE) | CBS_AUTOHSCROLL);
    return static_cast<int>(Default());
}

// Only the button opens the list. A click on the text is forwarded to the parent, in the parent's coordinates.
void CComboControl::OnLButtonDown(UINT nFlags, CPoint point) {
    RECT client = {};
    ::GetClientRect(m_hWnd, &client);
    const HWND parent = ::GetParent(m_hWnd);
    if (!parent || point.x >= client.right - ScreenPixels(kButtonWidth)) {
        Default();
        return;
    }
    ::MapWindowPoints(m_hWnd, parent, &point, 1);
    ::SendMessageA(parent, WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

LRESULT CComboControl::OnFillMessage(WPARAM wParam, LPARAM lParam) {
    FillControl(wParam, lParam);
    m_state->RecordChoice();
    return 0;
}

LRESULT CComboControl::OnInitialUpdate(WPARAM, LPARAM) {
    SubclassCtl3d(3);
    UseSharedFont(m_hWnd);
    SizeDropDown();
    NotifyApplication(*this, m_nControlID, kControlReady);
    return 0;
}
