// A property sheet that shows one page at a time, with Back and Next; Next is Finish on the last page. The tab row
// exists, but is hidden.
//
//   CWizardSheet wizard("New style", pParent, 0);
//   wizard.AddPage(&name);                        // pages are the host's, as in any sheet
//   wizard.AddPage(&summary);
//   if (wizard.DoModal() == IDOK) ...
//
// A page is left in either direction only if its OnKillActive agrees; one that refuses stays, with unchanged buttons,
// and so does one whose successor cannot be created. Finish calls OnOK of all pages, the first one first, and then does
// what OK does in every sheet: the last page is asked to be left, and gets its OnOK once more. A host that must not act
// before the last page has agreed therefore acts after DoModal, not in OnOK.
//
// Next is the default button: Return presses it, but not while fields follow the one with the focus, which it would
// skip; on the last page it finishes from any field. A Next or Finish that the host has disabled is not pressed. Held
// down the key moves one step. After Next the focus is on the first field of the new page. The frame of the default
// button is on the push button that has the focus, else on Next.
//
// The sheet is as large as the page that it opens on, and grows with a larger one: what counts is the window rectangle
// of the page after its OnSetActive. It is centered when it opens; one that the user has moved grows where it is. The
// caption of the page is where the tabs would be. It opens with Back disabled and with "Next >", whatever page that is,
// until the first move. The buttons' texts are the library's strings 111 to 114, which are found after PropPageInit;
// strings of the host with these numbers are not used. A modeless sheet has no buttons; its owner sends it the commands
// 100 (back) and 101 (next).
#pragma once

#include <afxdlgs.h>

#include "orlo/export.h"

class ORLO_API CWizardSheet : public CPropertySheet {
    DECLARE_DYNAMIC(CWizardSheet)

public:
    // As in the base: iSelectPage is the page that it opens on.
    CWizardSheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage);
    CWizardSheet(const char* pszCaption, CWnd* pParentWnd, UINT iSelectPage);
    ~CWizardSheet() override;

protected:
    static constexpr int kTextSize = 256;

    // A string up to its line feed, into kTextSize bytes. 0: the string is missing, or empty before the line feed.
    int LoadButtonText(UINT nID, char* pszBuffer);
    // A button that has the focus gives it to the control nNewFocusID first, unless that is -1 or missing.
    void EnableButton(HWND hWndSheet, int nID, BOOL bEnable, int nNewFocusID = -1);
    // Texts and states of the buttons on that page.
    void SetButtonStates(int nPage);
    // 0 on failure.
    int CreateButtons();
    // Sizes the sheet to the window rectangle of the active page or to the row of buttons, whichever is wider, and
    // centers it unless the user has moved it. A host calls it after it has resized the page.
    void RecalcWizardLayout();
    void OnFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    // Makes room for a page that is larger than the one before it.
    CRect GetPagePlace(const CPropertyPage& page, const CRect& before) const override;

    afx_msg int OnCreate(CREATESTRUCTA* pCreateStruct);
    afx_msg void OnBack();
    afx_msg void OnNext();
    afx_msg void OnEnter();
    afx_msg LRESULT OnActivateMessage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetDefaultButton(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    struct Row; // the buttons' widths

    void TrimSystemMenu();
    void TakePageFont();
    void MeasureUnits();
    int ButtonWidth(UINT nIDText);
    Row MeasureRow();
    void PlaceRow(const Row& row, int cxClient, int cyClient);
    void Resize(CSize size);
    bool MoveTo(int nPage); // false: the page stayed
    void ShowHeading();
    void ShowDefaultButton();
    void OnReturn(const MSG& message);
};
