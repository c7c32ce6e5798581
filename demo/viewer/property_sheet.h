// The library's sheet over the selection of a document, or over any set of graphics.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/records.h"

class Document;

// The layer of previews while the object lives: that which all members of the set share, else none.
class PreviewLayer {
public:
    explicit PreviewLayer(GraphicStruct* set);
    ~PreviewLayer();
    PreviewLayer(const PreviewLayer&) = delete;
    PreviewLayer& operator=(const PreviewLayer&) = delete;

private:
    long m_before = 0;
};

// A sheet with the pages that the members of the set deserve, and the regen methods that they use.
class SelectionSheet {
public:
    // owner is the main window, which fills the sheet's controls; flags are kAllGraphics or kWithStylePart.
    SelectionSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags);

    // Null if none could be made.
    CGraphicPropertySheet* get() const { return m_sheet.get(); }
    CGraphicPropertySheet* operator->() const { return get(); }

    // Before the sheet opens: it will be on the page that the user has chosen last, in this session or an earlier one,
    // if it has that page.
    void ChooseRememberedPage();
    // Remembers the page that is in front now, if it is not the one that the sheet has opened on.
    void RememberPage() const;

private:
    struct RegenMethodsDeleter {
        void operator()(void* methods) const;
    };
    PreviewLayer m_previewLayer;
    std::unique_ptr<void, RegenMethodsDeleter> m_methods; // goes after the sheet
    std::unique_ptr<CGraphicPropertySheet> m_sheet;
    int m_openedOn = 0;
};

// Shows the sheet and waits until it is closed. IDOK, IDCANCEL, an end code of a page, or kNotShown.
constexpr int kNotShown = -1;
int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags);

struct SheetOutcome {
    int code;    // as RunSheet gives it
    int changed; // graphics; one step of undo takes them back
};

// Cancel undoes everything that the sheet has written.
SheetOutcome EditSelection(CWnd* owner, Document& document);
