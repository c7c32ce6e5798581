// Accessibility of the sheet's fields and the viewer's windows: each has a name and a role. Wine reports roles and the
// names of edit controls as Windows does, but no names for combo boxes and lists, which Windows names after the label
// before them; there the label is checked.

#include "demo/viewer.h"

#include <oleacc.h>

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/viewer/resource.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "orlo/win/com_owner.h"
#include "orlo/win/encoded_text.h"

namespace {

struct Told {
    std::string name;
    long role;
};

Told AskOf(HWND window) {
    void* found = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found)))
        return {"no object", 0};
    const orlo::Owned<IAccessible> object(static_cast<IAccessible*>(found));
    Told told = {"", 0};
    VARIANT self = {}, role = {};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    if (object->get_accName(self, &name) == S_OK && name) told.name = orlo::Narrow(name, CP_UTF8);
    ::SysFreeString(name);
    if (object->get_accRole(self, &role) == S_OK && role.vt == VT_I4) told.role = role.lVal;
    return told;
}

std::string WithoutMnemonic(std::string text) {
    const size_t mark = text.find('&');
    return mark == std::string::npos ? text : text.erase(mark, 1);
}

// Returns the text of the label before it or of the group box around it.
std::string LabelOf(HWND field) {
    const HWND label = ::GetWindow(field, GW_HWNDPREV);
    if (!label || !(::SendMessageA(label, WM_GETDLGCODE, 0, 0) & DLGC_STATIC)) return "";
    return WithoutMnemonic(WindowText(label));
}

bool IsEdit(HWND field) {
    return ::SendMessageA(field, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
}

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

class ScreenReader : public Viewer {};

TEST_F(ScreenReader, GetsANameForEachFieldOfTheSheet) {
    frame->Open(TEST_DATA "/dxf/kabeja-draft4-roof-details.dxf");
    user.Key('A', UserInput::kControl);
    user.InDialog([&] { user.Key(VK_RETURN, UserInput::kAlt); },
                  [&](HWND sheet) {
                      for (const FieldCase& row : kFields) {
                          ASSERT_TRUE(ClickTab(user, sheet, row.page));
                          const HWND field = ::GetDlgItem(ActivePageOf(sheet), row.control);
                          EXPECT_EQ(IsEdit(field) ? AskOf(field).name : LabelOf(field), row.name);
                          EXPECT_EQ(AskOf(field).role == ROLE_SYSTEM_TEXT, IsEdit(field)) << row.name;
                      }
                      EXPECT_EQ(AskOf(sheet).name, "Properties");
                      user.Key(VK_ESCAPE);
                  });
}

TEST_F(ScreenReader, GetsThePartsOfTheViewer) {
    user.Key(VK_F4);
    EXPECT_EQ(AskOf(view()).name, "Drawing");
    EXPECT_EQ(AskOf(frame->Pane().m_hWnd).name, "Properties");
    EXPECT_EQ(AskOf(::FindWindowExA(frame->Pane().m_hWnd, nullptr, "STATIC", nullptr)).name, "Nothing is selected");
    user.InDialog([&] { user.Key('L', UserInput::kControl); },
                  [&](HWND dialog) {
                      EXPECT_EQ(AskOf(dialog).name, "Layers");
                      EXPECT_EQ(LabelOf(::GetDlgItem(dialog, IDC_LAYER_LIST)), "Layers of the drawing:");
                      EXPECT_EQ(AskOf(::GetDlgItem(dialog, IDC_LAYER_LOCKED)).name, "Locked");
                      user.Key(VK_ESCAPE);
                  });
}

} // namespace
