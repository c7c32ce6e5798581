// Creation, notification and destruction of controls by the two window classes.

#include "control_dialog.h"

#include <drawcore/object_counts.h>

#include "orlo/controls/brush_style_control_c.h"
#include "orlo/controls/brush_style_control_l.h"
#include "orlo/controls/color_control.h"
#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_size_control.h"
#include "orlo/controls/layer_control.h"
#include "orlo/controls/line_style_control_c.h"
#include "orlo/controls/line_style_control_l.h"
#include "orlo/controls/style_name_control.h"
#include "orlo/exchange/ddx_control.h"
#include "orlo/exchange/ddx_table.h"
#include "orlo/wizard/wizard_sheet.h"
#include "support/sheet_driver.h"

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

TEST_F(Factory, IdentifierDeterminesTheObject) {
    // Literal numbers, because hosts' templates and message handlers contain them.
    for (const int id : {32004, 32017, 32020, 32026})
        EXPECT_EQ(RUNTIME_CLASS(CLineStyleControlC), ClassOf(id)) << id;
    for (const int id : {32005, 32006, 32012, 32013, 32014, 32018, 32019, 32023, 32025, 32027})
        EXPECT_EQ(RUNTIME_CLASS(CColorControl), ClassOf(id)) << id;
    EXPECT_EQ(Get<CColorControl>(IDC_COLOR_4).m_bExtraEntries, 1);
    const struct {
        unsigned kind; // and identifier of its first control
        const CRuntimeClass* object;
    } rows[] = {
        {32000, RUNTIME_CLASS(CFontFaceControl)},    {32001, RUNTIME_CLASS(CFontSizeControl)},
        {32004, RUNTIME_CLASS(CLineStyleControlC)},  {32005, RUNTIME_CLASS(CColorControl)},
        {32007, RUNTIME_CLASS(CBrushStyleControlC)}, {32008, RUNTIME_CLASS(CLayerControl)},
        {32015, RUNTIME_CLASS(CStyleNameControl)},   {32021, RUNTIME_CLASS(CLineStyleControlL)},
        {32024, RUNTIME_CLASS(CBrushStyleControlL)},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.object, ClassOf(static_cast<int>(row.kind))) << row.kind;
        EXPECT_EQ(row.kind, KindOf(static_cast<int>(row.kind)));
    }
    EXPECT_EQ(RUNTIME_CLASS(CFontFaceControl), ClassOf(32022));
    EXPECT_EQ(KindOf(32020), kControlLineStyleCombo) << "the kind, not the identifier";
}

TEST_F(Factory, OtherIdentifiersRemainPlainControls) {
    EXPECT_EQ(ClassOf(IDC_PLAIN_COMBO), nullptr);
    EXPECT_EQ(ClassOf(IDC_PLAIN_LIST), nullptr);
    const HWND combo = Control(IDC_PLAIN_COMBO), list = Control(IDC_PLAIN_LIST);
    for (const char* item : {"one", "two"}) {
        ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        ::SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    ::SendMessageA(combo, CB_SETCURSEL, 1, 0);
    ::SendMessageA(list, LB_SETCURSEL, 1, 0);
    char text[16] = "";
    ::GetWindowTextA(combo, text, sizeof text);
    EXPECT_STREQ(text, "two");
    EXPECT_EQ(::SendMessageA(list, LB_GETCURSEL, 0, 0), 1);

    CComboBox object; // a dialog may attach its own object
    ASSERT_TRUE(object.SubclassWindow(combo));
    EXPECT_EQ(object.GetCount(), 2);
    object.UnsubclassWindow();
    EXPECT_EQ(::SendMessageA(combo, CB_GETCOUNT, 0, 0), 2);
}

TEST_F(Factory, ControlsNotifyWhenTheyAreCreatedAndDestroyed) {
    EXPECT_EQ(m_host.Count(kControlReady), 22);
    for (const HostWindow::Notification& n : m_host.notifications)
        EXPECT_EQ(KindOf(::GetDlgCtrlID(n.control)), n.kind);
    m_dialog.DestroyWindow();
    EXPECT_EQ(m_host.Count(kControlGone), 22);
}

TEST(ControlLife, WithoutAnApplicationWindowNoNotificationIsSent) {
    PropPageInit();
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DRAWN));
    EXPECT_TRUE(dialog.DestroyWindow());
}

TEST(ControlLife, ObjectsOfATemplateAreDeletedWithTheirWindows) {
    DrawCoreObjectCounts before = {}, after = {};
    {
        HostWindow host;
        for (int i = 0; i < 3; ++i) {
            if (i == 1) DrawCoreGetObjectCounts(&before);
            CDialog dialog;
            ASSERT_TRUE(dialog.Create(IDD_FACTORY));
            const HWND colors = ::GetDlgItem(dialog.m_hWnd, IDC_COLOR);
            dialog.DestroyWindow();
            EXPECT_EQ(CWnd::FromHandlePermanent(colors), nullptr);
        }
    }
    DrawCoreGetObjectCounts(&after);
    EXPECT_EQ(before.graphics, after.graphics);
    EXPECT_EQ(before.viewports, after.viewports);
    EXPECT_EQ(before.vertices, after.vertices);
}

TEST(ControlLife, ObjectsOfAProgramAreNotDeleted) {
    HostWindow host;
    CColorControl colors(0);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, CRect(0, 0, 100, 100),
                              &host, IDC_COLOR));
    EXPECT_TRUE(colors.IsDialogCtrl());
    EXPECT_EQ(static_cast<unsigned long>(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS),
              colors.m_dwStyle & ~WS_CLIPSIBLINGS);
    colors.DestroyWindow();
    EXPECT_EQ(colors.m_hWnd, nullptr);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &host, 1)) << "and can be used again";
    colors.DialogCtrl(0);
    EXPECT_FALSE(colors.IsDialogCtrl());
    colors.DestroyWindow();
    CWnd bar;
    bar.CWnd::Create(nullptr, "", WS_CHILD, CRect(0, 0, 200, 40), &host, 0xE81B);
    ASSERT_TRUE(colors.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &bar, 1));
    EXPECT_FALSE(colors.IsDialogCtrl()) << "in a control bar";
}

TEST(ControlLife, FrameworkCreatesControlsByName) {
    for (CRuntimeClass* const type :
         {RUNTIME_CLASS(CColorControl), RUNTIME_CLASS(CLineStyleControlC), RUNTIME_CLASS(CLineStyleControlL)}) {
        CObject* const object = type->CreateObject();
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(type, object->GetRuntimeClass());
        delete object;
    }
    EXPECT_EQ(RUNTIME_CLASS(CComboControl)->m_pfnCreateObject, nullptr) << "a base class cannot be created by name";
}

// A page of the program with one control created by its class, and one that the exchange subclasses and fills.
class LayerAndColor : public CPropertyPage {
public:
    LayerAndColor() : CPropertyPage(IDD_PAGE, 0) {}

    CColorControl colors;
    unsigned int layer = 1;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CPropertyPage::DoDataExchange(pDX);
        DDX_Control(1, pDX, IDC_TAKEN_OVER, colors);
        DDX_CBTableIndex(1, pDX, IDC_LAYER, layer);
    }
};

TEST(ControlLife, WizardPagesHaveThemToo) {
    HostWindow host;
    const TestDrawing drawing;
    TableStruct* layers = drawing.Table(kTableLayers);
    TableEntryAdd(layers, "Walls", nullptr);
    host.fillTable = layers;
    LayerAndColor page;
    CPropertyPage last(IDD_PAGE, 0);
    CWizardSheet wizard("New wall", nullptr, 0);
    wizard.AddPage(&page);
    wizard.AddPage(&last);
    constexpr int kNext = 101;
    EXPECT_EQ(SheetDriver().Run(wizard,
                                [&](SheetDriver& user) {
                                    const CWnd* control = CWnd::FromHandlePermanent(user.Control(IDC_LAYER));
                                    ASSERT_TRUE(control != nullptr && control->IsKindOf(RUNTIME_CLASS(CLayerControl)));
                                    EXPECT_EQ(layers, static_cast<const CLayerControl*>(control)->m_pTable);
                                    EXPECT_EQ(user.Control(IDC_TAKEN_OVER), page.colors.m_hWnd);
                                    EXPECT_EQ(layers, page.colors.m_pTable);
                                    EXPECT_EQ(host.Count(kControlReady), 2);
                                    EXPECT_EQ(user.Selection(IDC_LAYER), 0)
                                        << "filled before the page shows its values";
                                    user.SelectItem(IDC_LAYER, 1);
                                    user.ClickSheetButton(kNext);
                                    user.ClickSheetButton(kNext);
                                }),
              IDOK);
    EXPECT_EQ(page.layer, 2u);
}

} // namespace
