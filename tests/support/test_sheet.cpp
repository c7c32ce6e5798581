// Implements ExchangePage and TestSheet.

#include "support/test_sheet.h"

#include "orlo/entry/entry.h"

ExchangePage::ExchangePage(Exchange exchange, unsigned int nIDTemplate)
    : CGraphicPropertyPage(nIDTemplate, 0), m_exchange(std::move(exchange)) {}

ExchangePage::~ExchangePage() = default;

void* ExchangePage::CreatePreviewGraphic() {
    return hasPreview ? ::GraphicNewEx(kGraphicVertices, 0, 1) : nullptr;
}

void ExchangePage::SetPreviewProperties(int bAll) {
    previewCalls.push_back(bAll);
    if (onPreview) onPreview(*this, bAll);
}

void ExchangePage::DoDataExchange(CDataExchange* pDX) {
    m_exchange(pDX);
}

TestSheet::TestSheet(GraphicKit& kit, unsigned long dwGraphicFlags) {
    ::PropPageInit();
    m_sheet = ::InitGraphicPropertySheet(nullptr, nullptr, kit.Drawing(), kit.Selection(), dwGraphicFlags);
}

TestSheet::~TestSheet() {
    delete m_sheet;
}

ExchangePage& TestSheet::Add(ExchangePage::Exchange exchange, unsigned int nIDTemplate) {
    auto* page = new ExchangePage(std::move(exchange), nIDTemplate);
    m_sheet->AddPage(page);
    return *page;
}

int TestSheet::Run(SheetDriver::Script script) {
    return SheetDriver().Run(*m_sheet, [&](SheetDriver& user) {
        if (m_sheet->GetPageCount() > 1) user.SelectPage(1);
        script(user);
    });
}
