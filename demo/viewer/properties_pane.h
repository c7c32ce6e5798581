// The pane beside the drawing: the library's sheet, modeless, over the selection, with an Apply button of its own.
//
// A page writes when it is left, by Apply or for another page; all that was written since the last Apply becomes one
// step of undo with the next one. Escape and Reset take it back. What was typed is applied by whatever comes next,
// another selection or the end of the window: Apply says whether that may go on.
#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

#include "demo/viewer/document.h"
#include "demo/viewer/property_sheet.h"
#include "orlo/frame/orlo_property_page.h"

class CPropertiesPane : public CWnd {
    DECLARE_DYNAMIC(CPropertiesPane)
public:
    // Called after an Apply that has changed that many graphics.
    using Applied = std::function<void(int changed)>;

    explicit CPropertiesPane(Applied applied);
    ~CPropertiesPane() override;

    BOOL Create(CWnd* parent, UINT id); // hidden
    // To be called before the document goes that was shown; null: none.
    void SetDocument(Document* document);

    bool IsOpen() const { return m_isOpen; }
    void Open();
    void Close(); // what was written stays; what was typed has been applied before, or is dropped
    // The width in pixels at which a pane of that height shows all of its sheet.
    int FittingWidth(int height) const;
    // Scrolls so far that the control with the focus is seen, if it is in the pane and has just got it.
    void RevealFocus();

    // Selection or graphics have changed: a new sheet comes as soon as the present message has been dealt with.
    void Follow();
    // False: a page has refused what was typed, has told the user, and has the focus.
    bool Apply();
    // Discards typed text and undoes everything that was written since the last Apply.
    void Reset();

    bool HasFocus() const { return ::IsChild(m_hWnd, ::GetFocus()) != FALSE; }
    void TakeFocus(); // to the first field of the page

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnApply();
    afx_msg void OnCancel();
    afx_msg LRESULT OnRenew(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHScroll(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnVScroll(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint screenPoint);
    DECLARE_MESSAGE_MAP()

private:
    // The sheet with the set that it is open over: a copy of the selection, which changes before the sheet does.
    struct Edited {
        Edited(CWnd* owner, const Document& document);
        Selection graphics;
        SelectionSheet sheet;
    };
    struct Focus { // within the sheet, by the control's identifier
        bool inPage;
        int control;
    };

    CGraphicPropertySheet* Sheet() const { return m_edited ? m_edited->sheet.get() : nullptr; }
    COrloPropertyPage* ActivePage() const;
    std::optional<Focus> FocusWithin() const;
    void SetFocusWithin(const Focus& focus);
    bool IsTyped() const;
    void Renew();
    bool IsOverGraphics() const { return m_edited && m_edited->graphics.Count() > 0; }
    void DropSheet();
    bool ShowSheet();
    void AddButtons();
    void ArrangeScrollBars();
    void Scroll(int bar, int code);
    void ScrollBy(CSize pixels);
    static LRESULT CALLBACK OnSheetMessage(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                           DWORD_PTR pane);

    Applied m_applied;
    Document* m_document = nullptr;
    std::optional<Edited> m_edited;
    CWnd m_nothing; // says that nothing is selected
    bool m_isOpen = false;
    bool m_isStale = false; // the sheet is to be replaced
    CSize m_sheetSize;
    HWND m_revealed = nullptr; // the control that RevealFocus has seen last
};
