// Library entry, hook-up to the framework, and the choice of a sheet's pages.

#include "orlo/frame/entry.h"

#include <afxext.h>

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

namespace {

constexpr unsigned int kCaption = 2000;

AFX_EXTENSION_MODULE extensionModule;
bool initDone = false;

template <class Page>
void AddPageOnce(CGraphicPropertySheet* sheet, unsigned int nIDTemplate) {
    if (sheet->FindPage(nIDTemplate) == nullptr) sheet->AddPage(new Page);
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

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        AfxInitExtensionModule(extensionModule, instance);
        RegisterControlClasses(instance);
    } else if (reason == DLL_PROCESS_DETACH) {
        ReleaseSharedFont();
    }
    return TRUE;
}

extern "C" int PropPageInit() {
    if (!initDone) new CDynLinkLibrary(extensionModule); // the framework's chain owns it
    initDone = true;
    return 1;
}

extern "C" CGraphicPropertySheet* InitGraphicPropertySheet(CWnd* pParentWnd, void* pRegenMethods, DrawingStruct* pDrawing,
                                                           void* pGraphics, unsigned long dwGraphicFlags) try {
    auto* sheet = new CGraphicPropertySheet(kCaption, pRegenMethods, pDrawing, pGraphics, dwGraphicFlags, pParentWnd, 0);
    sheet->AddPage(new CGeneralPage);
    return sheet;
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
