// The General page, first in every sheet: the page's own life over its dialog.
#pragma once

#include "orlo/frame/graphic_property_page.h"

class CGeneralPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CGeneralPage)

public:
    static constexpr unsigned int kTemplate = 29000;

    CGeneralPage();
    ~CGeneralPage() override;
};
