// The part of a graphic page that is not in its interface: dirty and ignored controls, the values that the controls
// were loaded with, the open list, the outcome of the current write-back, and adding the preview graphic.
#pragma once

#include <afxwin.h>

#include <vector>

#include "orlo/binding/property_merge.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/loaded_controls.h"

class WriteOutcome;

class PageState {
public:
    explicit PageState(CGraphicPropertyPage& page) : loaded(page), m_page(page) {}
    static PageState& Of(CGraphicPropertyPage& page) { return *page.m_pState; }

    // Return the selection of the sheet (bPreview 0) or its preview group, to read and to write. Both are empty without
    // a sheet. The outcome of the write-back, if any, is that of the selection.
    ObjectSet Objects(int bPreview) const;
    orlo::binding::WriteTarget Target(int bPreview) const;

    // Adds the page's preview graphic to the group of the sheet, unless the page has one already.
    void AddPreviewGraphic();
    // Frees the preview graphic, if any. The page creates a new one when its window is created again.
    void DisposePreviewGraphic();

    // Orders the labels in the page's template before its window is created.
    void PrepareTemplate();

    // Records one clean entry per child window.
    void BuildStatusTable();
    // Returns null if the control is not tracked.
    ControlStatus* FindStatus(unsigned int nID) const;
    bool IsIgnored(unsigned int nID) const;
    // Restores the selection when a combo box reports that its list was closed by Escape.
    void OnDroppedList(unsigned int code, HWND combo);
    // Marks the control as dirty if the notification changes it. Returns the flags for OnStatusChange.
    unsigned long ChangeFlags(unsigned int nID, unsigned int code, HWND control);

    // Returns all child windows of the page, recursively.
    const std::vector<HWND>& Children() const;
    // Returns the window of the page's control, or null.
    HWND Control(unsigned int nID) const;

    LoadedControls loaded;
    WriteOutcome* outcome = nullptr; // of the current write-back

private:
    CGraphicPropertyPage& m_page;
    HWND m_dropped = nullptr; // the combo box whose list is open or was opened last
    int m_droppedItem = -1;   // its selected item and text when the list was opened
    CString m_droppedText;
};
