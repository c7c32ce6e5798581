// StyleControl: the common base of the combo boxes and list boxes of styles. Each item is shown by a sample that the
// host draws; all items are drawn with one sample graphic and one viewport.
#pragma once

#include "orlo/controls/combo_control.h"
#include "orlo/controls/list_control.h"
#include "orlo/samples/style_sample.h"

class StyleKind;

// Control: CComboControl or CListControl.
template <class Control>
class StyleControl : public Control {
public:
    ~StyleControl() override;

    void DrawItem(DRAWITEMSTRUCT* pDIS) override;
    void FillControl(WPARAM wParam, LPARAM lParam) override;
    // Returns the name of the style that a field without a selected item shows.
    CString DescribeItem(int index) override;

protected:
    // kind exists as long as the control.
    StyleControl(unsigned int nControlID, const StyleKind& kind) : Control(nControlID), m_kind(kind) {}
    StyleControl(unsigned int nControlID, HWND hWnd, const StyleKind& kind) : Control(nControlID, hWnd), m_kind(kind) {}

    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct);

    // Created with the window, or when first filled if the control subclasses an existing window.
    SampleGraphic m_pGraphic;
    SampleViewport m_pViewport;

private:
    const StyleKind& m_kind;
};

extern template class ORLO_API StyleControl<CComboControl>;
extern template class ORLO_API StyleControl<CListControl>;
