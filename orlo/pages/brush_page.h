// The Brush page: style, color, hatch scale and angle, cross hatch and draw mode of the selected graphics' filling. A
// text that is not an angle is ignored with a beep.
#pragma once

#include "orlo/export.h"
#include "orlo/frame/graphic_property_page.h"
#include "orlo/pages/radio_group.h"
#include "orlo/pages/style_name.h"
#include "orlo/resources/resource.h"

class CBrushPage : public CGraphicPropertyPage {
    DECLARE_DYNAMIC(CBrushPage)

public:
    static constexpr unsigned int kTemplate = IDD_BRUSH_PAGE;

    CBrushPage();
    ~CBrushPage() override;

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // One outline around two squares that overlap, so that the draw mode shows.
    ORLO_API void* CreatePreviewGraphic() override;
    ORLO_API void SetPreviewProperties(int bAll) override;

    // Exchanges the style list and keeps the name of the style above it current.
    ORLO_API int DDX_ConvertStyle(int bReport, CDataExchange* pDX, unsigned int& style);

protected:
    // The arrows beside the angle turn it by one unit of the drawing's angular system, read and written by the host. A
    // step beyond a full turn wraps around, an indeterminate angle starts at 0, and a text that is not an angle stays,
    // with a beep.
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    struct Preview; // the rows of SetPreviewProperties

    void ExchangeAngle(CDataExchange* pDX);
    void TurnAngle(int steps);
    CString StyleName(unsigned int style) const;
    unsigned long PenColorOfSelection();
    void SetPreviewStyle(CDataExchange* pDX);
    void EnableHatchControls(unsigned int style, unsigned short flags);

    TableStruct* m_pBrushStyles;
    unsigned long m_dwColor;
    double m_dAngle; // radians
    double m_dScale;
    unsigned int m_nStyle;
    char m_szStyleName[kStyleNameSize]; // what the style's name shows
    int m_nHatchCross;
    int m_nLastCross; // the last definite state of the check box
    int m_nDrawMode;  // 1 winding, 0 alternate
    CRadioGroup m_drawModes;
};
