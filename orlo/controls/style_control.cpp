// StyleControl: the common base of the combo boxes and list boxes of styles.

#include "orlo/controls/style_control.h"

#include "orlo/controls/fill_scope.h"
#include "orlo/controls/item_drawing.h"
#include "orlo/controls/style_kind.h"
#include "orlo/controls/table_control.h"

namespace {

void AddItem(CComboControl& control, const char* text) {
    control.AddControlItem(text);
}
void AddItem(CListControl& control, const char* text) {
    control.AddString(text);
}

} // namespace

// The graphic is freed first, because it depends on the viewport.
template <class Control>
StyleControl<Control>::~StyleControl() {
    m_pGraphic.reset();
}

template <class Control>
int StyleControl<Control>::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (this->Default() == -1) return -1;
    m_pGraphic = m_kind.MakeSample(lpCreateStruct->cx);
    m_pViewport.reset(::ViewportNewEx());
    return 0;
}

template <class Control>
void StyleControl<Control>::FillControl(WPARAM, LPARAM lParam) {
    const FillScope scope(this->m_hWnd);
    const bool hasTable = BeginFill(*this, lParam);
    AttachSample(m_pGraphic, m_pViewport, this->m_pTable,
                 [this] { return m_kind.MakeSample(WindowSize(this->m_hWnd).cx); });
    if (!hasTable) return;
    m_kind.ForEachItem(this->m_pTable, [this](const char* text) { AddItem(*this, text); });
    this->SetCurSel(this->FindItem(this->m_nSelected));
}

template <class Control>
void StyleControl<Control>::DrawItem(DRAWITEMSTRUCT* pDIS) {
    DrawRequest(*pDIS, m_kind.FrameBeyond(), [&] {
        char name[kItemTextSize];
        const unsigned int style = RequestedStyle(*this, *pDIS, name);
        return m_kind.DrawStyle(*pDIS, {style, name, this->m_pTable, m_pGraphic.get(), m_pViewport.get()});
    });
}

template <class Control>
CString StyleControl<Control>::DescribeItem(int index) {
    char name[kItemTextSize] = "";
    if (index < 0 && this->m_pTable && IsTableIdentifier(this->m_nSelected))
        ::TableEntryGetName(this->m_pTable, static_cast<uint16_t>(this->m_nSelected), name, kEntryNameSize);
    return *name ? CString(name) : Control::DescribeItem(index);
}

template class StyleControl<CComboControl>;
template class StyleControl<CListControl>;
