// The closed fields of all owner-drawn combo boxes in light and dark schemes: focus and disabled state. The place of
// texts in rows.

#include "control_dialog.h"

namespace {

class ComboField : public ControlDialog {
protected:
    ComboField() {
        const std::pair<int, const char*> filled[] = {{IDC_COLOR, kTableColors},
                                                      {IDC_LINE_STYLE_COMBO, kTableLineStyles},
                                                      {IDC_BRUSH_STYLE_COMBO, kTableBrushStyles},
                                                      {IDC_LAYER, kTableLayers}};
        for (const auto& [id, table] : filled)
            Fill(id, m_drawing.Table(table));
        for (const int id : {IDC_FONT_FACE, IDC_STYLE_NAME})
            Get<CComboControl>(id).AddString("Mmm");
    }
    using Picture = std::vector<COLORREF>;
    Picture Draw(int id, UINT state, UINT action = ODA_DRAWENTIRE, int times = 1, int item = 0) {
        m_pixels.Draw(Get<CComboControl>(id), item, kField, action, state, times);
        Picture picture;
        for (int y = kField.top; y < kField.bottom; ++y)
            for (int x = kField.left; x < kField.right; ++x)
                picture.push_back(m_pixels.At(x, y));
        return picture;
    }
    static int Differences(const Picture& a, const Picture& b) {
        int differences = 0;
        for (size_t i = 0; i < a.size(); ++i)
            differences += a[i] != b[i];
        return differences;
    }
    void ExpectFocusAndDisabledState(int id) {
        const Picture plain = Draw(id, 0), focused = Draw(id, ODS_FOCUS), disabled = Draw(id, ODS_DISABLED);
        EXPECT_LE(50, Differences(plain, focused)) << id;
        EXPECT_EQ(focused, Draw(id, ODS_FOCUS, ODA_FOCUS)) << id << ": drawn completely";
        EXPECT_EQ(focused, Draw(id, ODS_FOCUS, ODA_DRAWENTIRE, 2)) << id;
        EXPECT_EQ(Draw(id, ODS_FOCUS, ODA_DRAWENTIRE, 1, -1), Draw(id, ODS_FOCUS, ODA_DRAWENTIRE, 2, -1)) << id;
        Draw(id, ODS_DISABLED);
        EXPECT_LE(5, m_pixels.Count(kField, ::GetSysColor(COLOR_GRAYTEXT))) << id;
        EXPECT_LE(800, m_pixels.Count(kField, ::GetSysColor(COLOR_3DFACE))) << id;
    }

    static constexpr RECT kField = {10, 10, 110, 26};
    DrawnPixels m_pixels{120, 40};
};

TEST_F(ComboField, ShowsTheFocusAndThatItIsDisabled) {
    const int ids[] = {IDC_COLOR, IDC_LINE_STYLE_COMBO, IDC_BRUSH_STYLE_COMBO,
                       IDC_LAYER, IDC_FONT_FACE,        IDC_STYLE_NAME};
    for (const int id : ids)
        ExpectFocusAndDisabledState(id);
    const SchemeColors dark({{COLOR_WINDOW, RGB(0, 0, 0)},
                             {COLOR_WINDOWTEXT, RGB(255, 255, 0)},
                             {COLOR_3DFACE, RGB(0, 0, 64)},
                             {COLOR_GRAYTEXT, RGB(0, 255, 0)}});
    for (const int id : ids)
        ExpectFocusAndDisabledState(id);
}

// In rows that are higher than the text, as at high resolutions.
TEST_F(ComboField, TextsAreCenteredInHighRows) {
    Get<CComboControl>(IDC_FONT_SIZE).AddString("Mmm");
    Get<CComboControl>(IDC_LINE_STYLE_COMBO).m_nSelected = kLineStyleByLayer;
    const CRect row(0, 0, 120, 60);
    DrawnPixels pixels(row.Width(), row.Height());
    const auto drawn = [&](int id, int item) { // without the frame
        CComboControl& combo = Get<CComboControl>(id);
        pixels.Draw(combo, item < 0 ? item : combo.GetCount() - 1 - item, row);
        const COLORREF background = ::GetSysColor(COLOR_WINDOW);
        CRect ink;
        for (int y = row.top + 4; y < row.bottom - 4; ++y)
            for (int x = row.left + 4; x < row.right - 4; ++x)
                if (pixels.At(x, y) != background) ink.UnionRect(CRect(ink), CRect(x, y, x + 1, y + 1));
        return ink;
    };
    for (const auto& [id, item] : {std::pair(IDC_FONT_FACE, 0),
                                   {IDC_FONT_SIZE, 0},
                                   {IDC_STYLE_NAME, 0},
                                   {IDC_COLOR, 0}, // by layer
                                   {IDC_LINE_STYLE_COMBO, -1}}) {
        const CRect ink = drawn(id, item);
        EXPECT_LT(4, ink.Height()) << id;
        EXPECT_NEAR(ink.CenterPoint().y, row.CenterPoint().y, 4) << id;
    }
    const int last = Get<CComboControl>(IDC_BRUSH_STYLE_COMBO).GetCount() - 1;
    const CRect noBrush = drawn(IDC_BRUSH_STYLE_COMBO, last);
    EXPECT_NEAR(noBrush.CenterPoint().y, row.CenterPoint().y, 4);
    EXPECT_NEAR(noBrush.CenterPoint().x, row.CenterPoint().x, 2) << "like the samples";
}

} // namespace
