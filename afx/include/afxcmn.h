// Common controls: tab control, status bar, progress bar.
#pragma once

#include <afxwin.h>

#include <commctrl.h>

class AFX_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
public:
    CTabCtrl();
    ~CTabCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int InsertItem(int nItem, LPCSTR lpszItem);
    BOOL DeleteItem(int nItem) { return static_cast<BOOL>(SendMessage(TCM_DELETEITEM, static_cast<WPARAM>(nItem))); }
    int GetItemCount() const { return static_cast<int>(SendMessage(TCM_GETITEMCOUNT)); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const {
        return static_cast<BOOL>(
            SendMessage(TCM_GETITEMRECT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(lpRect)));
    }
    int GetCurSel() const { return static_cast<int>(SendMessage(TCM_GETCURSEL)); }
    // Sends no notification; see CPropertySheet::SetActivePage.
    int SetCurSel(int nItem) { return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(nItem))); }
};

class AFX_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)
public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    BOOL SetParts(int nParts, int* pWidths) {
        return static_cast<BOOL>(
            SendMessage(SB_SETPARTS, static_cast<WPARAM>(nParts), reinterpret_cast<LPARAM>(pWidths)));
    }
    BOOL SetText(LPCSTR lpszText, int nPane, int nType) {
        return static_cast<BOOL>(
            SendMessage(SB_SETTEXTA, static_cast<WPARAM>(nPane | nType), reinterpret_cast<LPARAM>(lpszText)));
    }
    BOOL GetRect(int nPane, LPRECT lpRect) const {
        return static_cast<BOOL>(SendMessage(SB_GETRECT, static_cast<WPARAM>(nPane), reinterpret_cast<LPARAM>(lpRect)));
    }
};

class AFX_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl();
    ~CProgressCtrl() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, static_cast<WPARAM>(nLower), nUpper); }
    int SetPos(int nPos) { return static_cast<int>(SendMessage(PBM_SETPOS, static_cast<WPARAM>(nPos))); }
};
