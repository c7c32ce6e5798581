// The Brush page: style, color, hatch scale and angle, cross hatch and draw mode of the selected graphics. Text that is
// not an angle is ignored with a beep.
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

    ORLO_API void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    // Creates a single outline around two overlapping squares, so that the draw mode is visible.
    ORLO_API void* CreatePreviewGraphic() override;
    ORLO_API void SetPreviewProperties(int bAll) override;

    // Exchanges the style list and updates the style name above it.
    ORLO_API int DDX_ConvertStyle(int bReport, CDataExchange* pDX, unsigned int& style);

protected:
    // Handles the arrows beside the angle, which change it by one unit of the drawing's angular system; the host parses
    // and formats it. A step beyond a full turn wraps around, and an indeterminate angle starts at 0. Text that is not
    // an angle is not changed, and the page beeps.
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    struct Preview; // a row of SetPreviewProperties

    void ExchangeAngle(CDataExchange* pDX);
    void TurnAngle(int steps);
    CString StyleName(unsigned int style) const;
    unsigned long PenColorOfSelection();
    void SetPreviewStyle(CDataExchange* pDX);
    void EnableHatchControls(unsigned int style, unsigned short flags);

    TableStruct* m_pBrushStyles;
    unsigned long m_dwColor;
    double m_dAngle; // in radians
    double m_dScale;
    unsigned int m_nStyle;
    char m_szStyleName[kStyleNameSize]; // the style name that is shown
    int m_nHatchCross;
    int m_nLastCross; // last determinate state of the check box
    int m_nDrawMode;  // 1: winding, 0: alternate
    CRadioGroup m_drawModes;
};
