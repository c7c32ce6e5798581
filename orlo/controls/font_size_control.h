// CFontSizeControl: a combo box to type or select a font height, as a length of the drawing.
//
// The host fills it with any table of the drawing, the height in dwValue (the bits of a float) and any nSelected but
// kEntryNone and kEntryIndeterminate. The list contains the heights of the drawing's current font (kUnitFontName in its
// units table); a missing height is added. Pressing Return in the edit field is reported as selecting an item.
#pragma once

#include "orlo/controls/combo_control.h"

// The edit field of a combo box of the library. When Return is pressed, it sends WM_COMMAND to the thread's main window
// as if an item had been selected (CBN_SELENDOK with the kind of the combo box, its m_nControlID, and its window), and
// then sets the focus to the main window.
class ORLO_API CEnterEdit : public CWnd {
    DECLARE_DYNAMIC(CEnterEdit)
public:
    CEnterEdit();
    ~CEnterEdit() override;

protected:
    WNDPROC* GetSuperWndProcAddr() override;
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);

    static WNDPROC lpfnSuperWndProc; // the system edit control's window procedure

    DECLARE_MESSAGE_MAP()
};

class ORLO_API CFontSizeControl : public CComboControl {
    DECLARE_DYNCREATE(CFontSizeControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CFontSizeControl();
    ~CFontSizeControl() override;

    // Converts the text to a height in the drawing's coordinate space. Leaves the value unchanged if the text cannot be
    // converted.
    void ReConvertFontSize(const char* text, double& value);

    // Format a height, or the height in points of a raster font, in the drawing's units. The text is empty if it cannot
    // be converted.
    void FontSizeText(double value, CString& text);
    void RasterSizeText(const TEXTMETRICA& metrics, CString& text);

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;

    DrawingStruct* m_pDrawing = nullptr; // owned by the host; null without a table
    int m_nCoordSpace = 0;               // of the drawing
    int m_nLogicalInch = 72;             // points per inch, for raster fonts
    CString m_strFontName;               // the face whose sizes are listed
    CEnterEdit m_editSize;               // the edit field

protected:
    CFontSizeControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    DECLARE_MESSAGE_MAP()
};

// Returns the object of the window if it is a CFontSizeControl, else null.
CFontSizeControl* FontSizeControlOf(HWND window);
