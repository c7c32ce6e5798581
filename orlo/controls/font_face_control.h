// CFontFaceControl: a combo box of the system's TrueType faces, shown as plain names.
//
// The host fills it with the face to select in dwValue (const char*) and any nSelected but kEntryNone and
// kEntryIndeterminate. A face that the system does not have is added to the list.
#pragma once

#include "orlo/controls/combo_control.h"

class ORLO_API CFontFaceControl : public CComboControl {
    DECLARE_DYNCREATE(CFontFaceControl)
    friend CWnd* CreateComboObject(HWND hWnd, int nID);

public:
    CFontFaceControl();
    ~CFontFaceControl() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void MeasureItem(MEASUREITEMSTRUCT* pMIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;

protected:
    CFontFaceControl(HWND hWnd);
    int MeasureNameWidth(HDC dc, const char* name) override;
};
