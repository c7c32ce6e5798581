// The Pen page: color, width with its scale system, dash scale, line style and alignment of the selected graphics. A
// width that the host cannot format is shown as a blank field, which does not prevent the user from leaving the page.
#pragma once

#include "orlo/export.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/style_name.h"
#include "orlo/resources/resource.h"

class CLinePage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CLinePage)

public:
    static constexpr unsigned int kTemplate = IDD_PEN_PAGE;

    CLinePage();

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // Creates a rectangle in the unit square.
    ORLO_API void* CreatePreviewGraphic() override;
    ORLO_API void SetPreviewProperties(int bAll) override;

    // Exchanges the style list and updates the style name beside it.
    ORLO_API int DDX_ConvertLStyle(int bReport, CDataExchange* pDX, unsigned int& style);

protected:
    void OnScaleSystemChange();

    DECLARE_MESSAGE_MAP()

private:
    struct Preview; // a row of SetPreviewProperties

    void ExchangeWidth(CDataExchange* pDX);
    CString StyleName(unsigned int style) const;

    TableStruct* m_pLineStyles;
    unsigned long m_dwColor;
    double m_dWidth; // inches on paper or drawing units, depending on m_nScaleSystem
    double m_dScale;
    unsigned int m_nStyle;
    unsigned char m_nScaleSystem;       // updated immediately from its combo box, unlike the others
    char m_szStyleName[kStyleNameSize]; // the style name that is shown
    int m_nAlignment;
    int m_nLastAlignment; // last determinate state of the check box
};
