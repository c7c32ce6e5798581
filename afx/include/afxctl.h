// The system's controls as CWnd classes. For owner-draw list boxes and combo boxes, the messages for items become calls
// of virtual functions as soon as the object is attached to its window. Before that, the system's default handling
// applies.
#pragma once

#include <afxwnd.h>

class AFX_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic();
    ~CStatic() override;
    virtual BOOL Create(LPCSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);
    using CWnd::Create;
};

class AFX_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    CButton();
    ~CButton() override;
    virtual BOOL Create(LPCSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
};

class AFX_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit();
    ~CEdit() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
};

// CListBox and CComboBox have the same methods where possible. On failure they return LB_ERR or CB_ERR (-1).
class AFX_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox();
    ~CListBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    int GetCount() const { return Send(LB_GETCOUNT); }
    int GetCurSel() const { return Send(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(LB_SETCURSEL, nSelect); }
    int GetTopIndex() const { return Send(LB_GETTOPINDEX); }
    int AddString(LPCSTR lpszItem) { return Send(LB_ADDSTRING, 0, lpszItem); }
    int InsertString(int nIndex, LPCSTR lpszItem) { return Send(LB_INSERTSTRING, nIndex, lpszItem); }
    void ResetContent() { Send(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCSTR lpszItem) const { return Send(LB_FINDSTRING, nStartAfter, lpszItem); }
    int FindStringExact(int nStartAfter, LPCSTR lpszFind) const {
        return Send(LB_FINDSTRINGEXACT, nStartAfter, lpszFind);
    }
    int GetText(int nIndex, LPSTR lpszBuffer) const { return Send(LB_GETTEXT, nIndex, lpszBuffer); }
    // rString is empty if the index is out of range.
    void GetText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(
            SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const { return Send(LB_GETITEMRECT, nIndex, lpRect); }

    // Owner drawing: override in a class for an owner-draw control. The base class draws nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Send(UINT message, int nIndex = 0, const void* pData = nullptr) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(pData)));
    }
};

class AFX_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox();
    ~CComboBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;

    int GetCount() const { return Send(CB_GETCOUNT); }
    int GetCurSel() const { return Send(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Send(CB_SETCURSEL, nSelect); }
    int AddString(LPCSTR lpszString) { return Send(CB_ADDSTRING, 0, lpszString); }
    int InsertString(int nIndex, LPCSTR lpszString) { return Send(CB_INSERTSTRING, nIndex, lpszString); }
    void ResetContent() { Send(CB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCSTR lpszString) const { return Send(CB_FINDSTRING, nStartAfter, lpszString); }
    int FindStringExact(int nIndexStart, LPCSTR lpszFind) const {
        return Send(CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int GetLBText(int nIndex, LPSTR lpszText) const { return Send(CB_GETLBTEXT, nIndex, lpszText); }
    // rString is empty if the index is out of range.
    void GetLBText(int nIndex, CString& rString) const;
    BOOL GetDroppedState() const { return Send(CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { Send(CB_SHOWDROPDOWN, bShowIt); }

    // Owner drawing, as with CListBox. Item -1 is the field of a closed combo box without a selection.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    // Passes the message of the combo box's list to the parent, which passes it back to this object.
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    DECLARE_MESSAGE_MAP()

private:
    int Send(UINT message, int nIndex = 0, const void* pData = nullptr) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(pData)));
    }
};
