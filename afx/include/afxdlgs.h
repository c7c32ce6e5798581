// Property sheets and their pages; the file dialog.
//
//   CPropertySheet sheet("Properties", pParent);
//   CColorPage colors;      // CPropertyPage(IDD_COLORS): the tab has the caption of the template
//   sheet.AddPage(&colors); // not owned: it must outlive the sheet or be removed
//   if (sheet.DoModal() == IDOK)
//       Use(colors);
//
// The window of a page is created when the page is first activated. Before another page is activated, OnKillActive of
// the active page saves its values; if it returns false, the sheet stays on that page. OK calls OnKillActive and OnOK
// of the active page; the other pages were saved when the user left them. Cancel calls OnCancel of all pages that have
// a window.
#pragma once

#include <afxcmn.h>

#include <commdlg.h>

#include <vector>

class CPropertySheet;

class AFX_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    // nIDCaption is the string for the tab; if it is 0, the caption of the template is used.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    explicit CPropertyPage(LPCSTR lpszTemplateName, UINT nIDCaption = 0);
    ~CPropertyPage() override;

    // Marks the page as modified. The Apply button of the sheet is enabled while a page is modified.
    void SetModified(BOOL bChanged = TRUE);

    // Called when the page is activated. Creates its window if it does not exist. Returns false if this or the first
    // exchange fails; the user has then been informed. An exception here or in OnKillActive has the same effect as
    // returning FALSE: the page is not activated, or not left.
    virtual BOOL OnSetActive();
    // Called before the page is left. Saves the values. Returns false if a value is invalid.
    virtual BOOL OnKillActive();
    void OnOK() override;
    void OnCancel() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    CPropertySheet* GetParentSheet() const { return m_pSheet; } // null if the page is not in a sheet

protected:
    BOOL m_bChanged;
    HINSTANCE m_hTemplateModule; // module of the template; null: searched for in the list of modules
    // If not empty, a template in memory that is used instead of a resource. m_lpszTemplateName then only identifies
    // the page.
    std::vector<BYTE> m_dialogTemplate;
    // TRUE: edit fields of combo boxes scroll, even without CBS_AUTOHSCROLL in the template. Without scrolling, text is
    // limited to the width of the field.
    BOOL m_bScrollingCombos;

    DECLARE_MESSAGE_MAP()
    afx_msg void OnClose();

private:
    friend class CPropertySheet;
    class AfxDialogTemplate GetTemplate() const;
    CString GetTabText() const;
    BOOL CreatePageWindow();

    CPropertySheet* m_pSheet;
    UINT m_nIDCaption;
};

// The tab control of a sheet. Its height is always that of its rows of tabs.
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
    // If pParentWnd is null, the application's main window is the owner. iSelectPage is the page to activate first.
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    // Does not delete pages.
    ~CPropertySheet() override;

    // Returns the argument of EndDialog (IDOK, IDCANCEL), or -1 if the sheet cannot be created.
    virtual int DoModal();
    // Creates a modeless sheet, without buttons. The object belongs to the caller and must outlive the window.
    BOOL Create(CWnd* pParentWnd = nullptr,
                DWORD dwStyle = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | WS_VISIBLE,
                DWORD dwExStyle = WS_EX_DLGMODALFRAME);
    using CWnd::Create;
    void EndDialog(int nEndID);

    void AddPage(CPropertyPage* pPage);
    // Remove a page and destroy its window. If it was active, the adjacent page is activated, without an exchange.
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.size()); }
    CPropertyPage* GetPage(int nPage) const { return m_pages[static_cast<std::size_t>(nPage)]; }
    int GetPageIndex(const CPropertyPage* pPage) const; // -1 if it is not in this sheet
    int GetActiveIndex() const { return m_nCurPage; }
    CPropertyPage* GetActivePage() const; // null if none is active
    // Activate a page. Return false, and change nothing, if the active page cannot be left or the new one cannot be
    // created. The active page then remains active and visible. An exception of either page is reported like one of a
    // message handler, whether the user or the program activates the page.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);
    // Returns whether a page is being left or activated. Its message boxes have message loops, during which the sheet
    // must not be destroyed.
    bool IsChangingPage() const { return m_nPageChanges > 0; }
    CTabCtrl* GetTabControl() const { return const_cast<CTabRow*>(&m_tabRow); }

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Creates the tab control, the buttons (unless modeless) and the first page, in this order. Returns -1 on failure.
    // Then lays out tabs, page and buttons, unless a derived class sets the size in its own OnCreate.
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);
    afx_msg void OnOK();
    afx_msg void OnCancel();
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    // For derived classes that replace OnCreate; these functions return false on failure. BeginCreate performs the
    // default handling of the message, sets the caption, and ensures that m_nCurPage is one of the pages.
    bool BeginCreate();
    // Creates the tab control with a tab for each page, in m_font and with the width of `place`.
    bool CreateTabRow(DWORD dwStyle, const RECT& place, UINT nID);
    // Sets the focus to the first control of the active page or, if there is none, to the tabs or the default button.
    void FocusActivePage();
    // Returns the position and size at which a page is shown, in client coordinates. The default is `before`, those of
    // the previous page; an empty rectangle leaves the page where it is.
    virtual CRect GetPagePlace(const CPropertyPage& page, const CRect& before) const;

    // In pixels. Set to 50 x 14, 4 x 4 and 4 dialog units of the first page when its window is created.
    CSize m_sizeButton;
    CSize m_sizeTabMargin;
    int m_cxButtonGap;

    // TRUE by default. Set it to FALSE before the window is created for a sheet without an Apply button.
    BOOL m_bHasApply;
    CFont m_font; // font of tabs and buttons: that of the first page
    CTabRow m_tabRow;
    BOOL m_bModeless;
    BOOL m_bStacked; // tabs in several rows if they do not fit into one
    int m_nCurPage;  // -1 if none is active

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
    bool ShowFirstPage(const CRect& before);
    bool ShowPage(int nPage, const CRect& before);
    CRect ActivePlace() const; // of the active page, in client coordinates; empty if it has no window
    bool HasFocus(const CPropertyPage* page) const;
    void EnableApplyButton();
    static int PageStep(const MSG& msg);

    std::vector<CPropertyPage*> m_pages;
    int m_nPageChanges = 0; // in progress
    CString m_strCaption;
    CWnd* m_pParentWnd;
};

// The system's dialogs to open and save a file.
class AFX_API CFileDialog {
public:
    // lpszFilter is for example "Drawings (*.dxf)|*.dxf|All files (*.*)|*.*||".
    explicit CFileDialog(BOOL bOpenFileDialog, LPCSTR lpszDefExt = nullptr, LPCSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);
    int DoModal(); // returns IDOK or IDCANCEL
    CString GetPathName() const { return m_szPath; }

private:
    BOOL m_bOpen;
    CString m_strDefExt;
    CString m_strFilter; // with NULs instead of bars
    DWORD m_dwFlags;
    CWnd* m_pParentWnd;
    char m_szPath[MAX_PATH];
};
