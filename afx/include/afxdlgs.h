// Property sheets and their pages; the file dialog.
//
//   CPropertySheet sheet("Properties", pParent);
//   CColorPage colors;      // CPropertyPage(IDD_COLORS): the template's caption is the tab's
//   sheet.AddPage(&colors); // borrowed: it outlives the sheet, or is removed
//   if (sheet.DoModal() == IDOK)
//       Use(colors);
//
// A page's window is made when the page is first activated. A page is left only if its OnKillActive, which
// saves by its exchange, allows it: otherwise the sheet stays on it. OK leaves the active page and calls its OnOK;
// the other pages have saved when they were left. Cancel calls OnCancel of all pages that have a window.
#pragma once

#include <afxcmn.h>

#include <commdlg.h>

#include <vector>

class CPropertySheet;

class AFX_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    // nIDCaption: the string for the tab; 0: the template's caption.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    explicit CPropertyPage(LPCSTR lpszTemplateName, UINT nIDCaption = 0);
    ~CPropertyPage() override;

    // Notifies the sheet, whose Apply button is enabled while a page is modified.
    void SetModified(BOOL bChanged = TRUE);

    // The page comes to the front. Here: makes its window if there isn't one yet; false on failure. A page whose first
    // exchange fails has none: the user has been informed why.
    virtual BOOL OnSetActive();
    // The page is to be left. Here: saves; false if a check has failed.
    virtual BOOL OnKillActive();
    void OnOK() override;
    void OnCancel() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    CPropertySheet* GetParentSheet() const { return m_pSheet; } // null: in none

protected:
    BOOL m_bChanged;
    HINSTANCE m_hTemplateModule; // the one module that has the template; null: searched along the chain
    // The fields of its combo boxes scroll, whatever the template says: otherwise text beyond their width is dropped.
    BOOL m_bScrollingCombos;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnClose();

private:
    friend class CPropertySheet;
    CString GetTabText() const;
    BOOL CreatePageWindow();

    CPropertySheet* m_pSheet;
    UINT m_nIDCaption;
};

// The row of tabs: as high as its tabs, whatever height it is given.
class AFX_API CTabRow : public CTabCtrl {
    DECLARE_DYNAMIC(CTabRow)
public:
    CTabRow();
    ~CTabRow() override;

protected:
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    DECLARE_MESSAGE_MAP()

private:
    int GetHeight() const;
};

class AFX_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
public:
    // Without a parent the application's main window owns the sheet. iSelectPage: the first page shown.
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    // Deletes no page.
    ~CPropertySheet() override;

    // What EndDialog was given: IDOK, IDCANCEL; -1 if the sheet could not be made.
    virtual int DoModal();
    // Modeless: no buttons. The object is the caller's and outlives the window.
    BOOL Create(CWnd* pParentWnd = nullptr,
                DWORD dwStyle = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | WS_VISIBLE,
                DWORD dwExStyle = WS_EX_DLGMODALFRAME);
    using CWnd::Create;
    void EndDialog(int nEndID);

    void AddPage(CPropertyPage* pPage);
    // Destroys the page's window. If it was the active one, its neighbour becomes active, without exchange.
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CPropertyPage* GetPage(int nPage) const { return m_pages[static_cast<std::size_t>(nPage)]; }
    int GetPageIndex(const CPropertyPage* pPage) const; // -1: not in this sheet
    int GetActiveIndex() const { return m_nCurPage; }
    CPropertyPage* GetActivePage() const; // null: none is active
    // False: the active page could not be left, or the new one could not be made. The sheet is as
    // before.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    CTabCtrl* GetTabControl() const { return const_cast<CTabRow*>(&m_tabRow); }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Tab row, buttons (not modeless), first page, in this order; -1 on failure. A sheet that a derived class
    // has not sized in its own OnCreate is laid out afterwards: tabs, page, row of buttons.
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);
    afx_msg void OnOK();
    afx_msg void OnCancel();
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    // For a derived class that replaces OnCreate; each false on failure. The first: the system's handling of the
    // message, the caption, and m_nCurPage one of the pages.
    bool BeginCreate();
    // Takes a tab per page, in m_font. It is as wide as the place says.
    bool CreateTabRow(DWORD dwStyle, const RECT& place, UINT nID);
    void FocusActivePage(); // its first control; without one the tabs, or the default button

    // Pixels; set when the first page has its window, from 50 x 14, 4 x 4 and 4 of its dialog units.
    CSize m_sizeButton;
    CSize m_sizeTabMargin;
    int m_cxButtonGap;

    BOOL m_bHasApply; // TRUE; a derived class without an Apply button clears it before the window is made
    CFont m_font;     // of tabs and buttons: that of the first page shown
    CTabRow m_tabRow;
    BOOL m_bModeless;
    BOOL m_bStacked; // tabs in several rows where one does not hold them
    int m_nCurPage;  // -1: none

    DECLARE_MESSAGE_MAP()

private:
    friend class CPropertyPage;
    BOOL CreateSheetWindow(HWND hWndParent, DWORD dwStyle, DWORD dwExStyle);
    void Open();
    bool CreateButtons();
    void MeasureUnits();
    void LayOut();
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg void OnApply();

    bool LeaveFor(int nPage);
    bool ActivatePage(int nPage);
    bool ActivateFirstPage();
    bool ShowPage(int nPage, const CRect& place);
    CRect ActivePlace() const; // of the active page, client coordinates; empty: it has no window
    bool HasFocus(const CPropertyPage* page) const;
    void EnableApplyButton();
    static int PageStep(const MSG& msg);

    std::vector<CPropertyPage*> m_pages;
    CString m_strCaption;
    CWnd* m_pParentWnd;
};

// The system's dialog that asks for a file.
class AFX_API CFileDialog {
public:
    // lpszFilter: "Drawings (*.dxf)|*.dxf|All files (*.*)|*.*||".
    explicit CFileDialog(BOOL bOpenFileDialog, LPCSTR lpszDefExt = nullptr, LPCSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);
    int DoModal(); // IDOK or IDCANCEL
    CString GetPathName() const { return m_szPath; }

private:
    BOOL m_bOpen;
    CString m_strDefExt;
    CString m_strFilter; // its bars are NULs
    DWORD m_dwFlags;
    CWnd* m_pParentWnd;
    char m_szPath[MAX_PATH];
};
