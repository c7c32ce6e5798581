// CFontSizeControl: a combo box in which a font height is typed or chosen, as a length of the drawing.
//
// The host fills it with any table of the drawing, the height in dwValue (the bits of a float) and any nSelected but
// kEntryNone and kEntryIndeterminate. The heights are those of the drawing's current font (kUnitFontName of its units
// table); a height that is not in the list is added. Return in the edit field counts as choosing an item: see
// enter_edit.h.
#pragma once

#include "orlo/controls/combo_control.h"
#include "orlo/controls/enter_edit.h"

class ORLO_API CFontSizeControl : public CComboControl {
    DECLARE_DYNCREATE(CFontSizeControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CFontSizeControl();
    ~CFontSizeControl() override;

    // The text as a height in the drawing's coordinate space; a text that cannot be read leaves the value alone.
    void ReConvertFontSize(const char* text, double& value);

    // Texts in the drawing's units, empty if they cannot be written: of a height, and of a raster font by its height in
    // points.
    void FontSizeText(double value, CString& text);
    void RasterSizeText(const TEXTMETRICA& metrics, CString& text);

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;

    DrawingStruct* m_pDrawing = nullptr; // the host's; null without a table
    int m_nCoordSpace = 0;               // of the drawing
    int m_nLogicalInch = 72;             // points of an inch, for raster fonts
    CString m_strFontName;               // the face whose sizes are listed
    CEnterEdit m_editSize;               // the edit field

protected:
    CFontSizeControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    DECLARE_MESSAGE_MAP()

private:
    void WatchEditField();
    bool TakeDrawing();
    void Show(double size);
};
