// A window that shows a modeless sheet for the current selection, either a pane beside the drawing or a separate
// window. It has the buttons Apply, Reset, Close and Help.
//
//   class CMyPane : public CSheetPane {
//       CGraphicPropertySheet* NewSheet() override { ... }     // for the current selection
//       void DeleteSheet() override { m_sheet.reset(); }
//       ...
//   };
//   pane.CreatePane(WS_CHILD, &frame, IDC_PANE);
//   pane.Open();
//   if (pane.Apply()) { ...; pane.Follow(); }                   // before and after another selection
//
// A page writes its values when the user presses Apply or selects another page. If it rejects one, it informs the user
// in a message box; meanwhile, the pane is busy: Follow and Renew take effect afterward, and its other functions and
// its buttons have no effect.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/export.h"

class CGraphicPropertySheet;
class ScrollArea;

// Identifiers of the buttons. Apply is IDOK, help ID_HELP.
enum PaneButton : unsigned { kPaneReset = 3996, kPaneClose = 3997 };

class ORLO_API CSheetPane : public CWnd {
    DECLARE_DYNAMIC(CSheetPane)
public:
    CSheetPane();
    ~CSheetPane() override;

    // Creates the window, hidden: a child with WS_CHILD in dwStyle, else a window that pParent owns. Returns false if
    // it cannot be created.
    BOOL CreatePane(DWORD dwStyle, CWnd* pParent, UINT nID);

    bool IsOpen() const { return m_isOpen; }
    // Returns whether a page is writing its values.
    bool IsBusy() const;
    void Open();
    // Hides the window and deletes the sheet. Typed values that were not applied are discarded.
    void Close();

    // Replace the sheet with one for the current selection: Follow after the current message, Renew immediately.
    void Follow();
    void Renew();
    // Writes typed values. Returns false if a page rejects one; the user has then been informed, and the field has the
    // focus. Also returns false if the pane is busy.
    bool Apply();
    // Discards typed values and calls OnReset.
    void Reset();

    // Returns the width in pixels at which a pane of the given height shows the whole sheet.
    int FittingWidth(int height) const;
    // Scrolls to the control with the focus if it has just received it. Must be called for each message of the pane.
    void RevealFocus();
    bool HasFocus() const { return ::IsChild(m_hWnd, ::GetFocus()) != FALSE; }
    // Sets the focus to the first field of the page.
    void TakeFocus();

protected:
    // Creates a sheet without a window for the current selection, which may be empty. The derived class owns it until
    // DeleteSheet is called. Returns null if no sheet can be shown.
    virtual CGraphicPropertySheet* NewSheet() = 0;
    virtual void DeleteSheet() = 0;
    // Returns whether the sheet has graphics; otherwise a text is shown in its place.
    virtual bool HasGraphics() const = 0;
    // Return and store the number of the page that the user selected last; a new sheet opens on it if it has that page.
    // Default: remembered as long as the pane exists.
    virtual unsigned int LastPage() const;
    virtual void SetLastPage(unsigned int nPage);
    virtual void OnOpen();        // before the first sheet
    virtual void OnClose();       // before the sheet is deleted
    virtual void OnApplied();     // after a successful Apply
    virtual void OnReset();       // undo the changes since the last Apply
    virtual void OnCloseButton(); // default: Close
    virtual void OnEscape();      // default: Reset

    CGraphicPropertySheet* Sheet() const { return m_sheet; }
    // Returns the size of the whole sheet in pixels.
    CSize SheetSize() const { return m_sheetSize; }
    // Deletes the sheet; a later Follow or Renew creates another.
    void DropSheet();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    CGraphicPropertySheet* m_sheet = nullptr; // owned by the derived class
    CWnd m_emptyText;                         // the text shown if nothing is selected
    std::unique_ptr<ScrollArea> m_scroll;
    CSize m_sheetSize;
    unsigned int m_lastPage = 0;
    int m_openedOn = 0; // index of the page on which the sheet opened
    bool m_isOpen = false;
    bool m_isStale = false; // the sheet is to be replaced
    bool m_isApplying = false;
    HWND m_revealed = nullptr; // the control that had the focus at the last RevealFocus
};
