// Entry points of the library: DllMain, resource registration with the framework, and selection of a sheet's pages.

#include "orlo/entry/entry.h"

#include <afxext.h>

#include <memory>
#include <new>

#include "orlo/controls/control_classes.h"
#include "orlo/controls/control_font.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "orlo/host/regen.h"
#include "orlo/pages/brush_page.h"
#include "orlo/pages/general_page.h"
#include "orlo/pages/insert_page.h"
#include "orlo/pages/line_page.h"
#include "orlo/pages/text_page.h"
#include "orlo/resources/library_text.h"
#include "orlo/resources/resource.h"

namespace {

AFX_EXTENSION_MODULE extensionModule, translationModule;
bool initDone = false;

// One of the library's pages. Its template is always the library's or that of its translation, even if the host has a
// template with the same number.
template <class Page>
class BuiltIn final : public Page {
public:
    BuiltIn() {
        this->m_hTemplateModule = LibraryModule();
        this->m_dialogTemplate = LibraryDialog(Page::kTemplate);
        this->m_bFitControls = 1;
    }
};

// Adds a page to the sheet, which then owns it.
void Add(std::unique_ptr<CPropertyPage> page, CGraphicPropertySheet* sheet) {
    sheet->AddPage(page.get());
    page.release();
}

template <class Page>
void AddPageOnce(CGraphicPropertySheet* sheet, unsigned int nIDTemplate) {
    if (sheet->FindPage(nIDTemplate) == nullptr) Add(std::make_unique<BuiltIn<Page>>(), sheet);
}

bool TakesPenAndBrush(GraphicStruct* graphic) {
    if (graphic->bType == kGraphicPenBrush) return true;
    if (graphic->bType != kGraphicVertices || ::GraphicGetIsGroup(graphic)) return false;
    return (graphic->dwFlags & kFlagNoPenBrush) == 0;
}

void AddOwnPages(GraphicStruct* graphic, CGraphicPropertySheet* sheet) {
    if (TakesPenAndBrush(graphic)) {
        AddPageOnce<CLinePage>(sheet, CLinePage::kTemplate);
        AddPageOnce<CBrushPage>(sheet, CBrushPage::kTemplate);
    }
    if (graphic->bType == kGraphicText) AddPageOnce<CTextPage>(sheet, CTextPage::kTemplate);
    if (graphic->bType == kGraphicInsert) AddPageOnce<CInsertPage>(sheet, CInsertPage::kTemplate);
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* processEnds) {
    if (reason == DLL_PROCESS_ATTACH) {
        AfxInitExtensionModule(extensionModule, instance);
        RegisterControlClasses(instance);
    } else if (reason == DLL_PROCESS_DETACH) {
        ReleaseSharedFont();
        if (processEnds == nullptr) { // when the process ends, the framework may be unloaded already
            AfxTermExtensionModule(extensionModule);
            AfxTermExtensionModule(translationModule);
            ReleaseTranslation();
            UnregisterControlClasses(instance);
        }
    }
    return TRUE;
}

extern "C" int PropPageInit() try {
    if (initDone) return 1;
    new CDynLinkLibrary(extensionModule); // owned by the framework's list of modules
    // The translation also has the framework's strings that appear in sheets, such as the captions of their buttons.
    if (HINSTANCE translation = TranslationModule()) {
        AfxInitExtensionModule(translationModule, translation);
        new CDynLinkLibrary(translationModule);
    }
    initDone = true;
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

extern "C" CGraphicPropertySheet* InitGraphicPropertySheet(CWnd* pParentWnd, void* pRegenMethods,
                                                           DrawingStruct* pDrawing, void* pGraphics,
                                                           unsigned long dwGraphicFlags) try {
    auto sheet = std::make_unique<CGraphicPropertySheet>(IDS_PROPERTIES, pRegenMethods, pDrawing, pGraphics,
                                                         dwGraphicFlags, pParentWnd, 0);
    Add(std::make_unique<BuiltIn<CGeneralPage>>(), sheet.get());
    return sheet.release();
} catch (const std::bad_alloc&) {
    return nullptr;
}

extern "C" int AddGraphicPropertyPage(void* pRegenMethods, void* pGraphic, CGraphicPropertySheet* pSheet) try {
    auto* graphic = static_cast<GraphicStruct*>(pGraphic);
    if (graphic == nullptr || pSheet == nullptr) return 0;
    AddOwnPages(graphic, pSheet);
    if (graphic->wRegenMethod == 0) return 0;
    return ::RegenMethodGetPropPage(pRegenMethods, graphic->wRegenMethod, graphic, pSheet);
} catch (const std::bad_alloc&) {
    return 0;
}
