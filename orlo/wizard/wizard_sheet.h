// A property sheet that shows one page at a time, with Back and Next; Next is Finish on the last page. The tab row
// exists, but is hidden.
//
//   CWizardSheet wizard("New style", pParent, 0);
//   wizard.AddPage(&name);                        // the host owns the pages, as in any sheet
//   wizard.AddPage(&summary);
//   if (wizard.DoModal() == IDOK) ...
//
// A page can be left in either direction only if its OnKillActive returns TRUE. If it does not, or if the next page
// cannot be created, the page and the buttons stay unchanged. Finish calls OnOK of all pages in order, and then
// proceeds like OK in any sheet: it calls OnKillActive and again OnOK of the last page. Therefore, a host that must
// wait for the validation of the last page uses the results after DoModal, not in OnOK.
//
// Next is the default button. Return presses it unless another field of the page follows the one with the focus; on the
// last page, Return finishes from any field. It does not press a button that the host has disabled or hidden. Holding
// the key down moves by only one page. After Next, the first field of the new page has the focus; a page without fields
// leaves it to Next or, if that cannot be pressed, to the button after it. The default button's frame is drawn on the
// push button with the focus, if any, else on Next.
//
// The sheet has the size of the page that it opens on, and grows for larger pages: it uses the window rectangle of the
// page after OnSetActive. The sheet is centered when it opens; if the user has moved it, it grows in place. The page's
// caption is shown in place of the tabs. Until the user moves to another page, Back is disabled and the other button is
// "Next >", whichever page the sheet opens on. The buttons' texts are the library's strings 111 to 114, available after
// PropPageInit; strings of the host with these numbers are not used. A modeless sheet has no buttons; its owner sends
// it the commands 100 (back) and 101 (next).
#pragma once

#include <afxdlgs.h>

#include "orlo/export.h"

class ORLO_API CWizardSheet : public CPropertySheet {
    DECLARE_DYNAMIC(CWizardSheet)

public:
    // Same as the base class: iSelectPage is the page that the sheet opens on.
    CWizardSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage);
    CWizardSheet(const char* pszCaption, CWnd* pParentWnd, UINT iSelectPage);
    ~CWizardSheet() override;

protected:
    static constexpr int kTextSize = 256;

    // Loads a string up to its line feed into a buffer of kTextSize bytes. Returns 0 if the string is missing, or empty
    // before the line feed.
    int LoadButtonText(UINT nID, char* pszBuffer);
    // Enables or disables a button. If it has the focus, first moves the focus to nNewFocusID, unless that is -1 or
    // missing.
    void EnableButton(HWND hWndSheet, int nID, BOOL bEnable, int nNewFocusID = -1);
    // Sets texts and states of the buttons for that page.
    void SetButtonStates(int nPage);
    // Returns 0 on failure.
    int CreateButtons();
    // Sizes the sheet to the window rectangle of the active page or to the row of buttons, whichever is wider, and
    // centers it unless the user has moved it. A host must call it after resizing the page.
    void RecalcWizardLayout();
    void OnFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    // Leaves space for a page that is larger than the previous one.
    CRect GetPagePlace(const CPropertyPage& page, const CRect& before) const override;

    afx_msg int OnCreate(CREATESTRUCTA* pCreateStruct);
    afx_msg void OnBack();
    afx_msg void OnNext();
    afx_msg void OnEnter();
    afx_msg LRESULT OnActivateMessage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetDefaultButton(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void MeasureUnits();
    void Resize(CSize size);
    bool MoveTo(int nPage); // Returns false if the page was not left.
    void OnReturn(const MSG& message);
};
