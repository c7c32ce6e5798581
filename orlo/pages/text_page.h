// The Text page: font, height, font style, color, effects and justification of the selected texts. A height that the
// host cannot format is shown as a blank field, and text that is not a height is ignored with a beep.
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

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    // Creates a text graphic with the host's sample text.
    void* CreatePreviewGraphic() override;
    // Transfers everything but the height, since the preview is scaled to fit its frame.
    void SetPreviewProperties(int bAll) override;

protected:
    // Fills the list with the heights of the new font. The previous height stays selected even if the font does not
    // offer it; it is found by its complete text.
    void OnFontChange();

    DECLARE_MESSAGE_MAP()

private:
    struct Preview; // a row of SetPreviewProperties

    void ExchangeSize(CDataExchange* pDX);

    CString m_strFont;
    double m_dSize;             // in drawing units
    unsigned long m_dwColor;    // of the pen
    unsigned short m_wStyle[2]; // mask of the bits in which the texts differ, and the bits; see exchange/ddx_font.h
    unsigned short m_wFormat;   // 0: left, 1: center, 2: right
    int m_bFirstExchange;
    CRadioGroup m_formats;
};
