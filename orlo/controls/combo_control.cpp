// CComboControl: a combo box that shows the entries of a host table.

#include "orlo/controls/combo_control.h"

#include <algorithm>
#include <utility>

#include "orlo/controls/filling.h"
#include "orlo/controls/table_control.h"
#include "orlo/controls/type_ahead.h"
#include "orlo/win/screen_scale.h"

namespace {

// Pixels at 96 dpi.
constexpr int kMaxDropHeight = 320; // closed field and open list together
constexpr int kButtonWidth = 16;    // at the right of the client area

bool IsControlBarID(int nID) {
    return nID >= 0xE800 && nID <= 0xE8FF;
}

// What the system's combo opens its list for.
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

} // namespace

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

CComboControl::CComboControl(unsigned int nControlID) : m_nControlID(nControlID) {}

CComboControl::CComboControl(unsigned int nControlID, HWND hWnd)
    : m_nControlID(nControlID), m_bAutoDelete(1) {
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
    m_beingMade = true;
    return CComboBox::PreCreateWindow(cs);
}

// Called for a window being created and for one that is taken over, whose rows the parent has measured without an object
// and whose WM_INITIALUPDATE is over.
void CComboControl::PreSubclassWindow() {
    if (std::exchange(m_beingMade, false)) return;
    m_dwStyle = GetStyle();
    TakeWindowOver(m_hWnd, ControlItems::OfCombo(m_hWnd), MeasuredRow(*this));
}

void CComboControl::PostNcDestroy() {
    m_beingMade = false; // where no window could be made
    if (m_bAutoDelete) delete this;
}

LRESULT CComboControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CHAR && TypeAhead(m_hWnd, ControlItems::OfCombo(m_hWnd), wParam)) return 0;
    // Here, and not at CBN_DROPDOWN, which only the parent gets.
    if (OpensList(message, wParam) && !GetDroppedState()) SizeDropDown();
    return CComboBox::WindowProc(message, wParam, lParam);
}

void CComboControl::SizeDropDown() {
    RECT rect = {};
    ::GetWindowRect(m_hWnd, &rect);
    const int row = std::max(MeasuredRow(*this), 1);
    const int frame = 3 * ::GetSystemMetrics(SM_CYBORDER) + (rect.bottom - rect.top);
    const int count = std::max(GetCount(), 0);
    if (m_nDropHeight != count * row + frame) {
        const int room = std::max(ScreenPixels(kMaxDropHeight) - frame, 0);
        m_nDropHeight = std::min(count, room / row) * row + frame;
    }
    SetControlHeight(m_hWnd, m_nDropHeight);
}

unsigned long CComboControl::GetControlItem(int index, char* text) {
    return ItemOf(ControlItems::OfCombo(m_hWnd), index, text);
}

int CComboControl::AddControlItem(const char* text) {
    return AddString(text);
}

void CComboControl::FillControl(WPARAM, LPARAM lParam) {
    const Filling filling(m_hWnd);
    if (!BeginFill(*this, lParam)) return;
    ForEachTableItem(m_pTable, [this](ItemText& text) { AddControlItem(text.c_str()); });
    SetCurSel(FindItem(m_nSelected));
}

void CComboControl::OnDestroy() {
    NotifyApplication(*this, m_nControlID, kControlGone);
    Default();
}

// The edit field scrolls, whatever the template says: one that does not drops what is typed beyond its width.
int CComboControl::OnNcCreate(LPCREATESTRUCT lpCreateStruct) {
    m_dwStyle = static_cast<unsigned long>(lpCreateStruct->style);
    lpCreateStruct->style |= CBS_AUTOHSCROLL;
    ::SetWindowLongPtrA(m_hWnd, GWL_STYLE, ::GetWindowLongPtrA(m_hWnd, GWL_STYLE) | CBS_AUTOHSCROLL);
    return static_cast<int>(Default());
}

// Only the button opens the list: a click on the text part goes to the parent, in the parent's coordinates.
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
    return 0;
}

LRESULT CComboControl::OnInitialUpdate(WPARAM, LPARAM) {
    SubclassCtl3d(3);
    UseSharedFont(m_hWnd);
    SizeDropDown();
    NotifyApplication(*this, m_nControlID, kControlReady);
    return 0;
}
