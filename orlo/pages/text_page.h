// The Text page: font, height, font style, color, effects and justification of the selected texts. A height that the
// host cannot write shows as a blank field, and a text that is not a height is ignored with a beep.
#pragma once

#include "orlo/export.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/radio_group.h"
#include "orlo/resources/resource.h"

class CTextPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CTextPage)

public:
    static constexpr unsigned int kTemplate = IDD_TEXT_PAGE;

    CTextPage();
    ~CTextPage() override;

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // The host's sample text.
    void* CreatePreviewGraphic() override;
    // All but the height: the preview is fitted to its frame in any case.
    void SetPreviewProperties(int bAll) override;

protected:
    // Each font has its own heights. The height shown before stays selected, whether or not the new font offers it; it
    // is looked up by its whole text.
    void OnFontChange();

    DECLARE_MESSAGE_MAP()

private:
    struct Preview; // the rows of SetPreviewProperties

    void ExchangeSize(CDataExchange* pDX);

    CString m_strFont;
    double m_dSize;             // drawing units
    unsigned long m_dwColor;    // of the pen
    unsigned short m_wStyle[2]; // the bits in which the texts differ, and the bits; see exchange/ddx_font.h
    unsigned short m_wFormat;   // 0 left, 1 center, 2 right
    int m_bFirstExchange;
    CRadioGroup m_formats;
};
