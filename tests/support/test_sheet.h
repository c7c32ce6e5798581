// A real graphic property sheet for a GraphicKit's selection, with pages whose exchange a test writes as a function.
#pragma once

#include <functional>
#include <memory>

#include "orlo/frame/graphic_property_page.h"
#include "orlo/frame/graphic_property_sheet.h"
#include "support/graphic_kit.h"
#include "support/sheet_driver.h"

// The page template of tests/support/test_page.rc.
enum TestPageControl : int {
    kTestPage = 500,
    kWordsPage = 501,     // without controls that accept the focus
    kWideFieldPage = 502, // a field that is wider than the page, and a label that is a tab stop
    kLargePage = 503,     // the size of the test page in a larger font
    kGroupPage = 504,     // a field within a group of radio buttons, with a label that starts the next group
    kExtendedPage = 505,  // the same in the extended format of templates
    kLabelsPage = 506,    // a label beside the list of a combo box, and arrows beside a field
    kEdit = 101,
    kOtherEdit = 102,
    kCheck = 103,
    kRadio = 108, // first of the group 108, 109, 110
    kLoneRadio = 115,
    kCombo = 120,
    kList = 121,
    kButton = 130,
    kLabel = 131,
};

class ExchangePage : public CGraphicPropertyPage {
public:
    using Exchange = std::function<void(CDataExchange*)>;

    explicit ExchangePage(Exchange exchange, unsigned int nIDTemplate = kTestPage);
    ~ExchangePage() override;

    void* CreatePreviewGraphic() override;
    void SetPreviewProperties(int bAll) override;
    void DoDataExchange(CDataExchange* pDX) override;
    void FitControls() { m_bFitControls = 1; }

    bool hasPreview = false;
    std::vector<int> previewCalls; // the arguments of SetPreviewProperties
    std::function<void(ExchangePage&, int bAll)> onPreview;

private:
    Exchange m_exchange;
};

// Owns the sheet with its pages: the General page, followed by the pages of the test.
class TestSheet {
public:
    explicit TestSheet(GraphicKit& kit, unsigned long dwGraphicFlags = kAllGraphics);
    ~TestSheet();

    ExchangePage& Add(ExchangePage::Exchange exchange, unsigned int nIDTemplate = kTestPage);
    // Opens the sheet, activates the first page of the test, and runs the script.
    int Run(SheetDriver::Script script);
    CGraphicPropertySheet& Sheet() { return *m_sheet; }

private:
    CGraphicPropertySheet* m_sheet;
};
