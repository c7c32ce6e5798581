// The library's sheet for the selection of a document or any other set of graphics.
#pragma once

#include <afxwin.h>

#include <memory>

#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/records.h"

class Document;

// Sets the layer of previews during the object's lifetime: the layer shared by all members of the set, or none.
class PreviewLayer {
public:
    explicit PreviewLayer(GraphicStruct* set);
    ~PreviewLayer();
    PreviewLayer(const PreviewLayer&) = delete;
    PreviewLayer& operator=(const PreviewLayer&) = delete;

private:
    long m_before = 0;
};

// Return and store the number of the page that the user selected last, in this or an earlier session; 0 if none.
unsigned LastSheetPage();
void SetLastSheetPage(unsigned page);

// A sheet with all pages for the members of the set, and the regen methods that they use.
class SelectionSheet {
public:
    // owner is the main window, which fills the sheet's controls; flags are kAllGraphics or kWithStylePart.
    SelectionSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags);

    // Returns null if the sheet could not be created.
    CGraphicPropertySheet* get() const { return m_sheet.get(); }
    CGraphicPropertySheet* operator->() const { return get(); }

    // Makes the sheet open on the last page, if it has that page.
    void SelectStoredPage();
    // Stores the active page in the settings, unless it is the one that the sheet opened on.
    void StorePage() const;

private:
    struct RegenMethodsDeleter {
        void operator()(void* methods) const;
    };
    PreviewLayer m_previewLayer;
    std::unique_ptr<void, RegenMethodsDeleter> m_methods; // destroyed after the sheet
    std::unique_ptr<CGraphicPropertySheet> m_sheet;
    int m_openedOn = 0;
};

// Shows the sheet modally. Returns IDOK, IDCANCEL, an end code of a page, or kNotShown.
constexpr int kNotShown = -1;
int RunSheet(CWnd* owner, DrawingStruct* drawing, GraphicStruct* set, unsigned long flags);

struct SheetOutcome {
    int code;    // as returned by RunSheet
    int changed; // number of graphics; one step undoes all changes
};

// Cancel undoes everything that the sheet has written.
SheetOutcome EditSelection(CWnd* owner, Document& document);
