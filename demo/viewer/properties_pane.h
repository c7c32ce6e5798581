// The properties pane beside the drawing: the library's sheet, modeless, over the selection, with its own Apply button.
//
// A page is written when it is left, by Apply or for another page; everything written since the last Apply becomes one
// undo step at the next Apply. Escape and Reset undo it. Typed text is applied before the selection changes or the
// window closes; Apply returns whether that may proceed.
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

    BOOL Create(CWnd* parent, UINT id); // creates it hidden
    // Must be called before the displayed document is deleted; null for none.
    void SetDocument(Document* document);

    bool IsOpen() const { return m_isOpen; }
    void Open();
    void Close(); // keeps what was written; typed text must have been applied, or is discarded
    // Returns the width in pixels at which a pane of that height shows its whole sheet.
    int FittingWidth(int height) const;
    // Scrolls to make the focused control visible if it is in the pane and has just got the focus.
    void RevealFocus();

    // Called after selection or graphics have changed: creates a new sheet after the current message.
    void Follow();
    // Returns false if a page rejected typed text; the user was informed and the page has the focus.
    bool Apply();
    // Discards typed text and undoes everything that was written since the last Apply.
    void Reset();

    bool HasFocus() const { return ::IsChild(m_hWnd, ::GetFocus()) != FALSE; }
    void TakeFocus(); // sets the focus to the first field of the page

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
    // The sheet with its set of graphics: a copy of the selection, which changes before the sheet does.
    struct Edited {
        Edited(CWnd* owner, const Document& document);
        Selection graphics;
        SelectionSheet sheet;
    };
    struct Focus { // in the sheet, by control identifier
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
    CWnd m_nothing; // shows that nothing is selected
    bool m_isOpen = false;
    bool m_isStale = false; // the sheet must be replaced
    CSize m_sheetSize;
    HWND m_revealed = nullptr; // the control that RevealFocus last saw
};
