// The Pen page: color, width with its scale system, dash scale, line style and alignment of the selected graphics. A
// width that the host cannot write shows as a blank field and does not keep the user on the page.
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
    ~CLinePage() override;

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // A rectangle in the unit square.
    ORLO_API void* CreatePreviewGraphic() override;
    ORLO_API void SetPreviewProperties(int bAll) override;

    // Exchanges the style list and keeps the name of the style beside it current.
    ORLO_API int DDX_ConvertLStyle(int bReport, CDataExchange* pDX, unsigned int& style);

protected:
    void OnScaleSystemChange();

    DECLARE_MESSAGE_MAP()

private:
    struct Preview; // the rows of SetPreviewProperties

    void ExchangeWidth(CDataExchange* pDX);
    CString StyleName(unsigned int style) const;

    TableStruct* m_pLineStyles;
    unsigned long m_dwColor;
    double m_dWidth; // inches of paper, or drawing units: m_nScaleSystem
    double m_dScale;
    unsigned int m_nStyle;
    unsigned char m_nScaleSystem;       // follows its combo at once, unlike the others
    char m_szStyleName[kStyleNameSize]; // what the style's name shows
    int m_nAlignment;
    int m_nLastAlignment; // the last definite state of the check box
};
