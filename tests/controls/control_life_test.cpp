// How windows of the two classes become controls, announce themselves and go.

#include "control_dialog.h"

#include <drawcore/census.h>

#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/controls/style_name_control.h"

namespace {

class Factory : public ControlDialog {
protected:
    Factory() : ControlDialog(IDD_FACTORY) {}
    const CRuntimeClass* ClassOf(int id) const {
        const CWnd* const object = CWnd::FromHandlePermanent(Control(id));
        return object ? object->GetRuntimeClass() : nullptr;
    }
    unsigned KindOf(int id) const {
        const bool list = id == IDC_LINE_STYLE_LIST || id == IDC_BRUSH_STYLE_LIST;
        return list ? Get<CListControl>(id).m_nControlID : Get<CComboControl>(id).m_nControlID;
    }
};

TEST_F(Factory, TheIdentifierChoosesTheObject) {
    for (const int id :
         {IDC_LINE_STYLE_COMBO, IDC_LINE_STYLE_COMBO_2, IDC_LINE_STYLE_COMBO_3, IDC_LINE_STYLE_COMBO_4})
        EXPECT_EQ(RUNTIME_CLASS(CLineStyleControlC), ClassOf(id)) << id;
    for (const int id : {IDC_COLOR, IDC_BRUSH_COLOR, IDC_COLOR_2, IDC_COLOR_3, IDC_COLOR_4, IDC_COLOR_5,
                         IDC_COLOR_6, IDC_TEXT_COLOR, IDC_COLOR_7, IDC_COLOR_8})
        EXPECT_EQ(RUNTIME_CLASS(CColorControl), ClassOf(id)) << id;
    EXPECT_EQ(1, Get<CColorControl>(IDC_COLOR_4).m_bExtraEntries);
    const struct {
        int id;
        const CRuntimeClass* object;
        unsigned kind;
    } rows[] = {
        {IDC_FONT_FACE, RUNTIME_CLASS(CFontFaceControl), kControlFontFaces},
        {IDC_FONT_SIZE, RUNTIME_CLASS(CFontSizeControl), kControlFontSizes},
        {IDC_LINE_STYLE_COMBO, RUNTIME_CLASS(CLineStyleControlC), kControlLineStyleCombo},
        {IDC_COLOR, RUNTIME_CLASS(CColorControl), kControlColors},
        {IDC_BRUSH_STYLE_COMBO, RUNTIME_CLASS(CBrushStyleControlC), kControlBrushStyleCombo},
        {IDC_LAYER, RUNTIME_CLASS(CLayerControl), kControlLayers},
        {IDC_STYLE_NAME, RUNTIME_CLASS(CStyleNameControl), kControlStyleNames},
        {IDC_LINE_STYLE_LIST, RUNTIME_CLASS(CLineStyleControlL), kControlLineStyleList},
        {IDC_BRUSH_STYLE_LIST, RUNTIME_CLASS(CBrushStyleControlL), kControlBrushStyleList},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.object, ClassOf(row.id)) << row.id;
        EXPECT_EQ(row.kind, KindOf(row.id)) << row.id;
        EXPECT_EQ(static_cast<unsigned>(row.id), row.kind)
            << "hosts know a kind by the number of its first identifier";
    }
    EXPECT_EQ(RUNTIME_CLASS(CFontFaceControl), ClassOf(IDC_FONT_FACE_2));
    EXPECT_EQ(kControlLineStyleCombo, KindOf(IDC_LINE_STYLE_COMBO_3)) << "the kind, not the identifier";
}

TEST_F(Factory, OtherIdentifiersStayPlainControls) {
    EXPECT_EQ(nullptr, ClassOf(IDC_PLAIN_COMBO));
    EXPECT_EQ(nullptr, ClassOf(IDC_PLAIN_LIST));
    const HWND combo = Control(IDC_PLAIN_COMBO), list = Control(IDC_PLAIN_LIST);
    for (const char* item : {"one", "two"}) {
        ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        ::SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    ::SendMessageA(combo, CB_SETCURSEL, 1, 0);
    ::SendMessageA(list, LB_SETCURSEL, 1, 0);
    char text[16] = "";
    ::GetWindowTextA(combo, text, sizeof text);
    EXPECT_STREQ("two", text);
    EXPECT_EQ(1, ::SendMessageA(list, LB_GETCURSEL, 0, 0));

    CComboBox object; // a dialog may attach an object of its own
    ASSERT_TRUE(object.SubclassWindow(combo));
    EXPECT_EQ(2, object.GetCount());
    object.UnsubclassWindow();
    EXPECT_EQ(2, ::SendMessageA(combo, CB_GETCOUNT, 0, 0));
}

TEST_F(Factory, ControlsAnnounceTheirKindWhenTheyComeAndWhenTheyGo) {
    EXPECT_EQ(22, m_host.Count(kControlReady));
    for (const HostWindow::Notification& n : m_host.notifications)
        EXPECT_EQ(KindOf(::GetDlgCtrlID(n.control)), n.kind);
    m_dialog.DestroyWindow();
    EXPECT_EQ(22, m_host.Count(kControlGone));
}

TEST(ControlLife, WithoutAnApplicationWindowNobodyIsTold) {
    PropPageInit();
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DRAWN));
    EXPECT_TRUE(dialog.DestroyWindow());
}

TEST(ControlLife, TheClassesAreKnownToTheWholeProcess) {
    PropPageInit();
    for (const char* name : {"QXComboBox", "QXListBox"}) {
        WNDCLASSA windowClass = {};
        ASSERT_TRUE(::GetClassInfoA(::GetModuleHandleA(nullptr), name, &windowClass)) << name;
        EXPECT_TRUE(windowClass.style & CS_GLOBALCLASS);
    }
}

TEST(ControlLife, ObjectsOfATemplateGoWithTheirWindows) {
    DrawCoreCensus before = {}, after = {};
    {
        HostWindow host;
        for (int i = 0; i < 3; ++i) {
            if (i == 1) DrawCoreGetCensus(&before);
            CDialog dialog;
            ASSERT_TRUE(dialog.Create(IDD_FACTORY));
            const HWND colors = ::GetDlgItem(dialog.m_hWnd, IDC_COLOR);
            dialog.DestroyWindow();
            EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(colors));
        }
    }
    DrawCoreGetCensus(&after);
    EXPECT_EQ(before.graphics, after.graphics);
    EXPECT_EQ(before.viewports, after.viewports);
    EXPECT_EQ(before.vertices, after.vertices);
}

TEST(ControlLife, ObjectsOfAProgramStay) {
    HostWindow host;
    CColorControl colors(0);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                              CRect(0, 0, 100, 100), &host, IDC_COLOR));
    EXPECT_TRUE(colors.IsDialogCtrl());
    EXPECT_EQ(static_cast<unsigned long>(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS),
              colors.m_dwStyle & ~WS_CLIPSIBLINGS);
    colors.DestroyWindow();
    EXPECT_EQ(nullptr, colors.m_hWnd);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &host, 1))
        << "and can be used again";
    colors.DialogCtrl(0);
    EXPECT_FALSE(colors.IsDialogCtrl());
}

TEST(ControlLife, AControlBarsComboIsNoDialogControl) {
    HostWindow host;
    CWnd bar;
    bar.CWnd::Create(nullptr, "", WS_CHILD, CRect(0, 0, 200, 40), &host, 0xE81B);
    CColorControl colors(1);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &bar, 1));
    EXPECT_FALSE(colors.IsDialogCtrl());
}

TEST(ControlLife, TheFrameworkMakesControlsByName) {
    for (CRuntimeClass* const made : {RUNTIME_CLASS(CColorControl), RUNTIME_CLASS(CLineStyleControlC),
                                      RUNTIME_CLASS(CLineStyleControlL)}) {
        CObject* const object = made->CreateObject();
        ASSERT_NE(nullptr, object);
        EXPECT_EQ(made, object->GetRuntimeClass());
        delete object;
    }
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CComboControl)->m_pfnCreateObject) << "a base is not made by name";
}

} // namespace
