// CCheckListBox: a list box with a check box in front of each item.

#include "orlo/controls/check_list_box.h"

#include <oleacc.h>

#include <algorithm>

#include "orlo/controls/control_font.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/paint.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"
#include "orlo/win/accessible_window.h"
#include "orlo/win/screen_scale.h"

namespace {

constexpr int kPictureSize = 12;   // size in pixels of the check mark's bitmap, and of the box at 96 dpi
constexpr int kMinimumHeight = 14; // minimum row height at 96 dpi; the box grows within the row
constexpr int kTextGap = 3;

// Returns the bitmap of the check mark, shared by all lists of the process. It has a color table.
orlo::OwnedBitmap& CheckPicture() {
    static orlo::OwnedBitmap picture;
    return picture;
}

void LoadCheckPicture() {
    constexpr char kName[] = "W95CHECK";
    orlo::OwnedBitmap& picture = CheckPicture();
    if (picture) return;
    picture.reset(static_cast<HBITMAP>(::LoadImageA(LibraryModule(), kName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

int BoxMargin() {
    return ::GetSystemMetrics(SM_CXDLGFRAME);
}

void SetTableColor(HDC picture, UINT index, int systemColor) {
    const COLORREF color = ::GetSysColor(systemColor);
    const RGBQUAD entry = {GetBValue(color), GetGValue(color), GetRValue(color), 0};
    ::SetDIBColorTable(picture, index, 1, &entry);
}

// Black and white of the picture become the scheme's colors, which may have changed since the last time.
void DrawPicture(HDC dc, const RECT& rect, HBITMAP picture) {
    const orlo::OwnedDC source(::CreateCompatibleDC(dc));
    if (!source) return;
    const orlo::SelectedObject selected(source.get(), picture);
    SetTableColor(source.get(), 0, COLOR_WINDOWTEXT);
    SetTableColor(source.get(), 15, COLOR_WINDOW);
    ::StretchBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, source.get(), 0, 0,
                 kPictureSize, kPictureSize, SRCCOPY);
}

} // namespace

namespace {

class CheckListKind : public AccessibleListBox {
public:
    long ItemRole() const override { return ROLE_SYSTEM_CHECKBUTTON; }
    std::string ItemName(HWND window, int index) const override {
        CString name;
        if (const CCheckListBox* const list = Of(window)) list->GetText(index, name);
        return std::string(name);
    }
    long ItemState(HWND window, int index) const override {
        const long state = AccessibleListBox::ItemState(window, index);
        return IsChecked(window, index) ? state | STATE_SYSTEM_CHECKED : state;
    }
    std::string ItemAction(HWND window, int index) const override {
        return std::string(LibraryText(IsChecked(window, index) ? IDS_UNCHECK : IDS_CHECK));
    }
    void DoItemAction(HWND window, int index) const override {
        if (CCheckListBox* const list = Of(window)) list->ToggleItem(index);
    }

private:
    static CCheckListBox* Of(HWND window) { return dynamic_cast<CCheckListBox*>(CWnd::FromHandlePermanent(window)); }
    static bool IsChecked(HWND window, int index) {
        const CCheckListBox* const list = Of(window);
        return list && list->IsItemChecked(index);
    }
};
const CheckListKind kCheckListKind;

} // namespace

BEGIN_MESSAGE_MAP(CCheckListBox, CWnd)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

CCheckListBox::CCheckListBox() = default;

CCheckListBox::~CCheckListBox() = default;

int CCheckListBox::AddString(const char* pszItem, int bChecked) {
    const int index = CListBox::AddString(pszItem);
    if (index != LB_ERR && index != LB_ERRSPACE) CheckItem(index, bChecked);
    return index;
}

int CCheckListBox::InsertString(int nIndex, const char* pszItem, int bChecked) {
    const int index = CListBox::InsertString(nIndex, pszItem);
    if (index != LB_ERR && index != LB_ERRSPACE) CheckItem(index, bChecked);
    return index;
}

// The data of an item that does not exist is LB_ERR.
int CCheckListBox::IsItemChecked(int nIndex) const {
    return GetItemData(nIndex) != 0;
}

void CCheckListBox::CheckItem(int nIndex, int bChecked) {
    SetItemData(nIndex, static_cast<DWORD_PTR>(bChecked));
    InvalidateItem(nIndex, 0);
    ::NotifyWinEvent(EVENT_OBJECT_STATECHANGE, m_hWnd, OBJID_CLIENT, nIndex + 1);
}

void CCheckListBox::ToggleItem(int nIndex) {
    CheckItem(nIndex, !IsItemChecked(nIndex));
}

int CCheckListBox::ItemHeight() {
    return std::max(GetOwnerDrawFixedTextHeight(m_hWnd), ScreenPixels(kMinimumHeight));
}

int CCheckListBox::InvalidateItem(int nIndex, int bErase) {
    RECT rect = {};
    if (GetItemRect(nIndex, &rect) == LB_ERR) return 0;
    ::InvalidateRect(m_hWnd, &rect, bErase);
    return 1;
}

int CCheckListBox::GetCheckRect(int nIndex, CRect& rect) {
    if (GetItemRect(nIndex, &rect) == LB_ERR) return -1;
    const int height = rect.Height();
    int side = height - 2 * BoxMargin(), margin = BoxMargin();
    if (CheckPicture()) {
        side = ScreenPixels(kPictureSize);
        margin = (height - side) / 2;
    }
    rect.left += margin;
    rect.top += margin;
    rect.right = rect.left + side;
    rect.bottom = rect.top + side;
    return 0;
}

void CCheckListBox::MeasureItem(MEASUREITEMSTRUCT* pMIS) {
    pMIS->itemHeight = static_cast<UINT>(ItemHeight());
}

void CCheckListBox::DrawItem(DRAWITEMSTRUCT* pDIS) {
    LoadCheckPicture();
    const int index = static_cast<int>(pDIS->itemID);
    CRect row, box;
    if (GetItemRect(index, &row) == LB_ERR || GetCheckRect(index, box) != 0) return;
    if (!(pDIS->itemAction & (ODA_DRAWENTIRE | ODA_SELECT | ODA_FOCUS))) return;

    CDC* const dc = CDC::FromHandle(pDIS->hDC);
    const RowColors colors = ColorsOf(*pDIS);
    CString name;
    GetText(index, name);
    CRect text = row;
    text.left += box.Width() + 2 * BoxMargin();
    const int top = CenteredTextTop(pDIS->hDC, row, 0);
    FillSolid(pDIS->hDC, text, colors.background);
    DrawClippedText(pDIS->hDC, text.left + kTextGap, top, text, name, colors.text);
    {
        const orlo::SavedDC clipped(pDIS->hDC);
        ::IntersectClipRect(pDIS->hDC, row.left, row.top, row.right, row.bottom);
        DrawCheck(dc, box.left, box.top, box.Width(), box.Height(), colors.text, IsItemChecked(index));
    }
    if (pDIS->itemState & ODS_FOCUS) {
        text.InflateRect(-1, -1);
        ::DrawFocusRect(pDIS->hDC, &text);
    }
}

void CCheckListBox::DrawCheck(CDC* pDC, int x, int y, int cx, int cy, DWORD, int bChecked) {
    const RECT box = {x, y, x + cx, y + cy};
    FillSolid(pDC->m_hDC, box, ::GetSysColor(COLOR_WINDOW));
    RECT edge = box;
    ::DrawEdge(pDC->m_hDC, &edge, EDGE_SUNKEN, BF_RECT);
    if (bChecked && CheckPicture()) DrawPicture(pDC->m_hDC, box, CheckPicture().get());
}

int CCheckListBox::ItemFromPoint(CPoint point, int bPastEnd) {
    CRect client;
    GetClientRect(client);
    if (!client.PtInRect(point)) return -1;
    const int height = static_cast<int>(SendMessage(LB_GETITEMHEIGHT)); // the host may have changed it
    const int row = point.y / std::max(height, 1) + GetTopIndex(), count = GetCount();
    if (row < count) return row;
    return bPastEnd ? count : -1;
}

// If an existing window is subclassed, its parent measured the rows before this object existed. A window that is still
// being created ignores the message and measures its rows later.
void CCheckListBox::PreSubclassWindow() {
    ::SendMessageA(m_hWnd, LB_SETITEMHEIGHT, 0, ItemHeight());
}

// The list box would treat the space bar as the first letter of an item. This also bypasses LBS_WANTKEYBOARDINPUT for
// the space bar, because such a host may toggle the item itself.
LRESULT CCheckListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETOBJECT) {
        if (const LRESULT object = HandleGetObject(m_hWnd, wParam, lParam, kCheckListKind)) return object;
    }
    constexpr LPARAM kHeldDown = LPARAM{KF_REPEAT} << 16;
    if ((message == WM_KEYDOWN || message == WM_CHAR) && wParam == VK_SPACE) {
        const int current = static_cast<int>(SendMessage(LB_GETCARETINDEX));
        if (message == WM_KEYDOWN && !(lParam & kHeldDown) && current >= 0 && current < GetCount()) ToggleItem(current);
        return 0;
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

void CCheckListBox::OnLButtonDown(UINT, CPoint point) {
    const int index = ItemFromPoint(point, 1);
    if (index != -1) ToggleItem(index);
    Default();
}

// The second click of a double click toggles again.
void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point) {
    OnLButtonDown(nFlags, point);
}
