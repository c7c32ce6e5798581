// CListControl: a list box that shows the entries of a host table.

#include "orlo/controls/list_control.h"

#include <algorithm>
#include <utility>

#include "orlo/controls/combo_control.h"
#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_names.h"
#include "orlo/controls/table_control.h"
#include "orlo/controls/type_ahead.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/accessible_window.h"
#include "orlo/win/screen_scale.h"

namespace {

class ListKind : public AccessibleListBox {
public:
    std::optional<std::string> Value(HWND window) const override {
        CListControl* const list = Of(window);
        if (!list) return std::nullopt;
        return std::string(list->DescribeItem(list->GetCurSel()));
    }
    std::string ItemName(HWND window, int index) const override {
        CListControl* const list = Of(window);
        return list ? std::string(list->DescribeItem(index)) : "";
    }

private:
    static CListControl* Of(HWND window) { return dynamic_cast<CListControl*>(CWnd::FromHandlePermanent(window)); }
};
const ListKind kListKind;

// Sends the notification that the system sends for a selection by keyboard.
void NotifySelection(HWND list, int index) {
    NotifyValueChange(list);
    if (index < 0) return;
    ::NotifyWinEvent(EVENT_OBJECT_SELECTION, list, OBJID_CLIENT, index + 1);
    if (::GetFocus() == list) ::NotifyWinEvent(EVENT_OBJECT_FOCUS, list, OBJID_CLIENT, index + 1);
}

} // namespace

WNDPROC CListControl::lpfnSuperWndProc = nullptr;

IMPLEMENT_DYNAMIC(CListControl, CListBox)

BEGIN_MESSAGE_MAP(CListControl, CListBox)
ON_WM_DESTROY()
ON_WM_NCCREATE()
ON_WM_LBUTTONDOWN()
ON_MESSAGE(kFillMessage, &CListControl::OnFillMessage)
ON_MESSAGE(WM_INITIALUPDATE, &CListControl::OnInitialUpdate)
END_MESSAGE_MAP()

CListControl::CListControl(unsigned int nControlID)
    : m_nControlID(nControlID), m_names(std::make_unique<ItemNames>()) {}

CListControl::CListControl(unsigned int nControlID, HWND hWnd)
    : m_nControlID(nControlID), m_bAutoDelete(1), m_names(std::make_unique<ItemNames>()) {
    Attach(hWnd);
}

CListControl::~CListControl() = default;

int CListControl::Create(unsigned long dwStyle, const RECT& rect, CWnd* pParent, unsigned int nID) {
    return CWnd::Create("ListBox", nullptr, dwStyle, rect, pParent, nID);
}

WNDPROC* CListControl::GetSuperWndProcAddr() {
    return &lpfnSuperWndProc;
}

BOOL CListControl::PreCreateWindow(CREATESTRUCT& cs) {
    m_beingCreated = true;
    return CListBox::PreCreateWindow(cs);
}

// Called for windows being created and for existing windows that are subclassed. The parent has already measured the
// rows of an existing window, and its WM_INITIALUPDATE is over.
void CListControl::PreSubclassWindow() {
    if (std::exchange(m_beingCreated, false)) return;
    m_dwStyle = GetStyle();
    InitializeSubclassedWindow(m_hWnd, ControlItems::OfList(m_hWnd), MeasuredRow(*this));
}

void CListControl::PostNcDestroy() {
    m_beingCreated = false; // in case window creation failed
    if (m_bAutoDelete) delete this;
}

LRESULT CListControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const ControlItems items = ControlItems::OfList(m_hWnd);
    if (message == WM_CHAR && TypeAhead(m_hWnd, items, *m_names, wParam)) return 0;
    if (message == WM_GETOBJECT) {
        if (const LRESULT object = HandleGetObject(m_hWnd, wParam, lParam, kListKind)) return object;
    }
    if (message == WM_DESTROY) *m_names = ItemNames();
    const LRESULT result = CListBox::WindowProc(message, wParam, lParam); // can delete this object
    if (items.IsChange(message)) m_names->Change(items, message, lParam, result);
    if (items.IsSelection(message)) NotifySelection(m_hWnd, GetCurSel());
    return result;
}

unsigned long CListControl::GetControlItem(int index, char* text) {
    return ItemOf(ControlItems::OfList(m_hWnd), index, text);
}

CString CListControl::DescribeItem(int index) {
    char name[kItemTextSize];
    GetControlItem(index, name);
    return index >= 0 || GetCount() <= 0 ? CString(name) : LibraryText(IDS_VARIED);
}

void CListControl::FillControl(WPARAM, LPARAM lParam) {
    const FillScope scope(m_hWnd);
    if (!BeginFill(*this, lParam)) return;
    ForEachTableItem(m_pTable, [this](ItemText& text) { AddString(text.c_str()); });
    SetCurSel(FindItem(m_nSelected));
}

void CListControl::OnDestroy() {
    NotifyApplication(*this, m_nControlID, kControlGone);
    Default();
}

int CListControl::OnNcCreate(LPCREATESTRUCT lpCreateStruct) {
    m_dwStyle = static_cast<unsigned long>(lpCreateStruct->style);
    return static_cast<int>(Default());
}

void CListControl::OnLButtonDown(UINT, CPoint) {
    Default();
}

LRESULT CListControl::OnFillMessage(WPARAM wParam, LPARAM lParam) {
    FillControl(wParam, lParam);
    return 0;
}

// Returns the height reduced to whole rows.
static int HeightOfWholeRows(HWND list, int height, int row) {
    RECT client = {};
    ::GetClientRect(list, &client);
    const int frame = static_cast<int>(WindowSize(list).cy) - client.bottom;
    return frame + std::max((height - frame) / std::max(row, 1), 1) * row;
}

// Rows grow with the resolution. The list may grow with them only within the size that the template reserves, since the
// dialog font may grow less.
static int HeightInTemplate(HWND list, int at96) {
    return std::clamp(static_cast<int>(WindowSize(list).cy), at96, std::max(at96, ScreenPixels(at96)));
}

LRESULT CListControl::OnInitialUpdate(WPARAM, LPARAM) {
    SubclassCtl3d(1);
    UseSharedFont(m_hWnd);
    const int height = HeightInTemplate(m_hWnd, m_nHeight);
    SetControlHeight(m_hWnd, HeightOfWholeRows(m_hWnd, height, MeasuredRow(*this)));
    NotifyApplication(*this, m_nControlID, kControlReady);
    return 0;
}
