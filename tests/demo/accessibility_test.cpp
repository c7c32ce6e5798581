// Accessibility of the viewer: each part of its windows and each field of its dialogs has a name.

#include "demo/viewer.h"

#include "demo/automation/sheet_pages.h"
#include "demo/viewer/resource.h"
#include "orlo/resources/resource.h"
#include "support/accessible.h"
#include "support/accessible_names.h"

namespace {

struct FieldCase {
    int page;
    int control;
    const char* name;
};
const FieldCase kFields[] = {
    {0, IDC_INFO, "Attribute:"},         {0, IDC_LAYER, "Layer:"},
    {1, IDC_LINE_STYLE_LIST, "Pattern"}, {1, IDC_COLOR, "Color"},
    {1, IDC_PEN_SCALE, "Dash Scale:"},   {1, IDC_SCALE_SYSTEM, "Width scaling:"},
    {1, IDC_PEN_WIDTH, "Width:"},        {2, IDC_BRUSH_STYLE_LIST, "Pattern"},
    {2, IDC_BRUSH_COLOR, "Color"},       {2, IDC_BRUSH_SCALE, "Scale:"},
    {2, IDC_BRUSH_ANGLE, "Angle:"},      {3, IDC_FONT_FACE, "Font:"},
    {3, IDC_FONT_SIZE, "Height:"},       {3, IDC_FONT_STYLE, "Style:"},
    {3, IDC_TEXT_COLOR, "Color:"},       {4, IDC_ROTATION_X, "X-Axis"},
    {4, IDC_SCALE_Z, "Z-Axis"},          {4, IDC_POSITION_Y, "Y"},
};

class ScreenReader : public Viewer {
protected:
    void InDialog(UINT key, unsigned modifiers, const std::function<void(HWND)>& play) {
        user.InDialog([&] { user.Key(key, modifiers); },
                      [&](HWND dialog) {
                          play(dialog);
                          user.Key(VK_ESCAPE);
                      });
    }
};

TEST_F(ScreenReader, GetsANameForEachFieldOfTheSheet) {
    frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf");
    user.Key('A', UserInput::kControl);
    InDialog(VK_RETURN, UserInput::kAlt, [&](HWND sheet) {
        EXPECT_EQ(Accessible(sheet).Name(), "Properties");
        for (const FieldCase& row : kFields) {
            ASSERT_TRUE(ClickTab(user, sheet, row.page));
            const HWND field = ::GetDlgItem(ActivePageOf(sheet), row.control);
            EXPECT_EQ(AccessibleName(field), row.name);
            const bool isEdit = ::SendMessageA(field, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
            EXPECT_EQ(Accessible(field).Role() == ROLE_SYSTEM_TEXT, isEdit) << row.name;
        }
    });
}

TEST_F(ScreenReader, GetsThePartsOfTheMainWindow) {
    user.Key(VK_F4);
    EXPECT_EQ(Accessible(frame->Pane().m_hWnd).Name(), "Properties");
    EXPECT_EQ(AccessibleName(::FindWindowExA(frame->Pane().m_hWnd, nullptr, "STATIC", nullptr)), "Nothing is selected");
    user.Key('A', UserInput::kControl);
    user.Wait(100);
    EXPECT_LT(6, ExpectAccessible(frame->m_hWnd)) << "the sheet in the pane";
    for (HWND part = ::GetWindow(frame->m_hWnd, GW_CHILD); part; part = ::GetWindow(part, GW_HWNDNEXT)) {
        if (!::IsWindowVisible(part)) continue;
        EXPECT_NE(Accessible(part).Name(), "") << ::GetDlgCtrlID(part);
    }
}

TEST_F(ScreenReader, GetsEachFieldOfTheDialogs) {
    user.Key('A', UserInput::kControl);
    const struct {
        UINT key;
        unsigned modifiers;
        const char* title;
        int fields;
    } rows[] = {{'L', UserInput::kControl, "Layers", 7}, {VK_F1, 0, "Keys and Mouse", 1}};
    for (const auto& row : rows)
        InDialog(row.key, row.modifiers, [&](HWND dialog) {
            EXPECT_EQ(Accessible(dialog).Name(), row.title);
            EXPECT_EQ(ExpectAccessible(dialog), row.fields) << row.title;
        });
    InDialog('L', UserInput::kControl, [](HWND dialog) {
        EXPECT_EQ(AccessibleName(::GetDlgItem(dialog, IDC_LAYER_FIND)), "Find:");
        EXPECT_EQ(AccessibleName(::GetDlgItem(dialog, IDC_LAYER_LIST)), "Layers of the drawing:");
    });
}

TEST_F(ScreenReader, GetsEachStepOfTheStyleWizard) {
    constexpr int kNext = 101;
    user.Key('A', UserInput::kControl);
    InDialog('N', UserInput::kControl, [&](HWND wizard) {
        user.Type("Walls");
        for (int step = 0; step < 3; ++step) {
            SCOPED_TRACE(step);
            EXPECT_LT(2, ExpectAccessible(wizard));
            if (step < 2) user.Click(::GetDlgItem(wizard, kNext));
        }
    });
}

} // namespace
