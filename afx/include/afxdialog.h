// CDialog, and the data exchange between its members and its controls.
//
//   void CMyDialog::DoDataExchange(CDataExchange* pDX) {
//       DDX_Text(pDX, IDC_NAME, m_strName);
//       DDX_Check(pDX, IDC_BOLD, m_bBold);
//   }
//
// After the window of a dialog has been created, WM_INITIALUPDATE is sent to all of its descendants. Then OnInitDialog
// performs the first exchange. A control that fills itself in response to that message is therefore filled before its
// value is set.
#pragma once

#include <afxwnd.h>

#include <memory>
#include <vector>

class AFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);
    ~CDataExchange();
    CDataExchange(const CDataExchange&) = delete;
    CDataExchange& operator=(const CDataExchange&) = delete;

    BOOL m_bSaveAndValidate; // TRUE: from controls to variables; FALSE: from variables to controls
    CWnd* m_pDlgWnd;

    // Return the window of a control. If Fail is called, this control gets the focus and, after PrepareEditCtrl, its
    // text is selected. Throw a CNotSupportedException if there is no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Takes ownership of an object until the exchange ends.
    void Keep(std::unique_ptr<CObject> pObject);
    // Sets the focus to the control that was prepared last and throws a CUserException. The caller must have informed
    // the user.
    [[noreturn]] void Fail();

private:
    HWND m_hWndLastControl;
    BOOL m_bEditLastControl;
    std::vector<std::unique_ptr<CObject>> m_kept;
};

AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// Saving stores the text of the selected item, or an empty string if none is selected. Loading selects the first item
// that begins with the text.
AFX_API void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
// Saving stores the text of the combo box. Loading selects the first item that begins with the text or, if there is
// none, sets the text.
AFX_API void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);

class AFX_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    // For Create.
    CDialog();
    // For DoModal. If pParentWnd is null, the application's main window is the owner.
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    explicit CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Create a modeless dialog. The template is searched for in the list of modules. Return false if it does not exist
    // or the window cannot be created.
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    BOOL Create(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    using CWnd::Create;

    // Returns the argument of EndDialog, or -1 if the dialog cannot be created.
    virtual int DoModal();
    void EndDialog(int nResult);

    // Return TRUE to set the focus to the first control, or FALSE if the focus was set. If the first exchange fails or
    // throws an exception, the dialog ends with -1.
    virtual BOOL OnInitDialog();
    void GotoDlgCtrl(CWnd* pWndCtrl);
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // Saves the values and, if all of them are valid, ends the dialog with IDOK.
    virtual void OnOK();
    // Ends the dialog with IDCANCEL.
    virtual void OnCancel();

    LPCSTR m_lpszTemplateName; // a name, or a number below 0x10000
    CWnd* m_pParentWnd;

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFromTemplate(HWND hWndParent);
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
};
