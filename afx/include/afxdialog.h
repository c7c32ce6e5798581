// CDialog, and the exchange of data between its members and its controls.
//
//   void CMyDialog::DoDataExchange(CDataExchange* pDX) {
//       DDX_Text(pDX, IDC_NAME, m_strName);
//       DDX_Check(pDX, IDC_BOLD, m_bBold);
//   }
//
// Once a dialog's window exists, all its descendants get WM_INITIALUPDATE, and then OnInitDialog runs,
// which does the first exchange: a control that fills itself at that message is filled when its value comes.
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

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the variables
    CWnd* m_pDlgWnd;

    // The control's window, remembered as the one that Fail gives the focus to; PrepareEditCtrl: with its
    // text selected. Throws a CNotSupportedException if there is no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // An object that lives as long as the exchange, whatever ends it.
    void Keep(std::unique_ptr<CObject> pObject);
    // Ends the exchange by a CUserException, the focus on the control last prepared. The user must have
    // been informed.
    [[noreturn]] void Fail();

private:
    HWND m_hWndLastControl;
    BOOL m_bEditLastControl;
    std::vector<std::unique_ptr<CObject>> m_kept;
};

AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFX_API void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
// Saving: the selected item's text, empty without one. Loading: selects the first item that begins with the
// text.
AFX_API void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
// Saving: the combo's text. Loading: selects the first item that begins with the text, or sets the text
// without one.
AFX_API void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);

class AFX_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    // For Create.
    CDialog();
    // For DoModal. Without a parent the application's main window owns the dialog.
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    explicit CDialog(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    // Modeless. The template is searched along the chain of modules. False: there is no such template, or the
    // window could not be made.
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    BOOL Create(LPCSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    using CWnd::Create;

    // What EndDialog was given; -1 if no dialog could be made.
    virtual int DoModal();
    void EndDialog(int nResult);

    // TRUE: the first control gets the focus. FALSE: OnInitDialog has set it. If the first exchange fails, or
    // something is thrown, the dialog ends with -1.
    virtual BOOL OnInitDialog();
    void GotoDlgCtrl(CWnd* pWndCtrl);
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    // IDOK: saves, and ends the dialog if that passed.
    virtual void OnOK();
    virtual void OnCancel();

    LPCSTR m_lpszTemplateName; // a number below 0x10000, or a name
    CWnd* m_pParentWnd;

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFromTemplate(HWND hWndParent);
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
};
