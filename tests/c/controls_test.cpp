// The controls of the library in a dialog of a program that does not use the framework.

#include <afxwin.h>
#include <orlo_c.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "drawcore/drawing.h"
#include "drawcore/layer.h"
#include "orlo/resources/control_ids.h"
#include "support/graphic_kit.h"

namespace {

// The bytes of a dialog template.
class Template {
public:
    void Add(std::initializer_list<unsigned> words) {
        for (const unsigned word : words)
            m_words.push_back(static_cast<WORD>(word));
    }
    void Add(const char* text) {
        for (; *text != '\0'; ++text)
            m_words.push_back(static_cast<WORD>(*text));
        m_words.push_back(0);
    }
    void AddControl(const char* windowClass, DWORD style, unsigned top, unsigned id) {
        if (m_words.size() % 2 != 0) Add({0}); // aligned
        style |= WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        Add({LOWORD(style), HIWORD(style), 0, 0, 10, top, 100, 80, id});
        Add(windowClass);
        Add({0, 0}); // no title, no data
    }
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    std::vector<WORD> m_words;
};

class CControls : public ::testing::Test {
protected:
    CControls() {
        constexpr DWORD kStyle = WS_POPUP | WS_VISIBLE | WS_CAPTION;
        Template dialog;
        dialog.Add({LOWORD(kStyle), HIWORD(kStyle), 0, 0, 4, 0, 0, 130, 180, 0, 0});
        dialog.Add("Host");
        constexpr DWORD kCombo = CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_OWNERDRAWVARIABLE | WS_VSCROLL;
        dialog.AddControl("QXComboBox", kCombo, 10, IDC_COLOR);
        dialog.AddControl("QXComboBox", kCombo, 30, IDC_LAYER);
        dialog.AddControl("QXListBox", LBS_HASSTRINGS | LBS_OWNERDRAWVARIABLE | LBS_NOTIFY, 50, IDC_LINE_STYLE_LIST);
        dialog.AddControl("QXComboBox", kCombo, 140, IDC_FONT_FACE);
        window = ::CreateDialogIndirectParamA(nullptr, dialog.Get(), nullptr, Procedure, 0);
    }
    ~CControls() override { ::DestroyWindow(window); }
    // Records what reaches the host's procedure.
    static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM wParam, LPARAM) {
        if (message == WM_COMMAND && HIWORD(wParam) == CBN_SELCHANGE) ++commands;
        return FALSE;
    }
    HWND Control(int id) const { return ::GetDlgItem(window, id); }
    uint32_t Selected(int id) const {
        uint32_t value = 0;
        EXPECT_EQ(OrloGetSelected(Control(id), &value), kOrloOk);
        return value;
    }

    static int commands;
    GraphicKit kit;
    HWND window;
};
int CControls::commands = 0;

TEST_F(CControls, ShowTheTablesOfTheDrawing) {
    const auto selectRed = [](void* context, OrloFill* fill) {
        ++*static_cast<int*>(context);
        EXPECT_EQ(fill->selected, fill->kind == kOrloControlColors ? kColorNone : 0) << "nothing; 0 is black";
        if (fill->kind == kOrloControlColors) fill->selected = RGB(255, 0, 0);
    };
    int filled = 0;
    uint32_t value = 0;
    EXPECT_EQ(OrloGetSelected(Control(IDC_COLOR), &value), kOrloNotFound) << "not filled yet";
    ASSERT_EQ(OrloFillControls(window, kit.Drawing(), selectRed, &filled), kOrloOk);
    EXPECT_EQ(filled, 4);
    EXPECT_EQ(Selected(IDC_COLOR), static_cast<uint32_t>(RGB(255, 0, 0)));
    EXPECT_GT(::SendMessageA(Control(IDC_LINE_STYLE_LIST), LB_GETCOUNT, 0, 0), 0);

    EXPECT_EQ(OrloSetSelected(Control(IDC_LAYER), 1), kOrloOk);
    EXPECT_EQ(Selected(IDC_LAYER), 1u);
    EXPECT_EQ(OrloSetSelected(Control(IDC_LAYER), 0xFFF0), kOrloNotFound);
    EXPECT_EQ(Selected(IDC_LAYER), 1u);
    EXPECT_EQ(OrloGetSelected(Control(IDC_FONT_FACE), &value), kOrloWrongType);
    EXPECT_EQ(OrloGetSelected(window, &value), kOrloBadArgument);
    EXPECT_EQ(OrloGetSelected(nullptr, &value), kOrloBadArgument);
}

TEST_F(CControls, AreDrawnAndNotifyTheirDialog) {
    ASSERT_EQ(OrloFillControls(window, kit.Drawing(), nullptr, nullptr), kOrloOk);
    ASSERT_EQ(OrloFillControls(window, kit.Drawing(), nullptr, nullptr), kOrloOk); // again
    ASSERT_EQ(OrloSetSelected(Control(IDC_COLOR), RGB(255, 0, 0)), kOrloOk);
    ::UpdateWindow(window);
    // The swatch of the closed field.
    RECT field;
    ::GetClientRect(Control(IDC_COLOR), &field);
    const HDC dc = ::GetDC(Control(IDC_COLOR));
    int red = 0;
    for (int x = 0; x < field.right; ++x)
        red += ::GetPixel(dc, x, field.bottom / 2) == RGB(255, 0, 0);
    ::ReleaseDC(Control(IDC_COLOR), dc);
    EXPECT_GT(red, 5);

    commands = 0;
    ::SendMessageA(Control(IDC_COLOR), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(commands, 1);
    EXPECT_NE(Selected(IDC_COLOR), static_cast<uint32_t>(RGB(255, 0, 0)));
}

TEST_F(CControls, RejectWrongArguments) {
    EXPECT_EQ(OrloFillControls(nullptr, kit.Drawing(), nullptr, nullptr), kOrloBadArgument);
    EXPECT_EQ(OrloFillControls(reinterpret_cast<HWND>(uintptr_t{0x1234}), kit.Drawing(), nullptr, nullptr),
              kOrloBadArgument);
    EXPECT_EQ(OrloFillControls(::GetDesktopWindow(), kit.Drawing(), nullptr, nullptr), kOrloBadThread);
    EXPECT_EQ(OrloFillControls(window, nullptr, nullptr, nullptr), kOrloBadArgument);
    EXPECT_EQ(OrloSetSelected(Control(IDC_COLOR), 0), kOrloNotFound) << "still empty";
}

} // namespace
