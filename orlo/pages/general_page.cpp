// CGeneralPage.

#include "orlo/pages/general_page.h"

IMPLEMENT_DYNAMIC(CGeneralPage, CGraphicPropertyPage)

CGeneralPage::CGeneralPage() : CGraphicPropertyPage(kTemplate, 0) {}

CGeneralPage::~CGeneralPage() = default;
