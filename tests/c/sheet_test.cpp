// The sheet through the C interface in a program that uses the framework, and invalid arguments.

#include <afxwin.h>
#include <orlo_c.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "drawcore/application.h"
#include "support/graphic_kit.h"
#include "support/host_frame.h"

namespace {

std::string ErrorText() {
    char text[256];
    OrloGetErrorText(text, sizeof text);
    return text;
}

OrloSheet SheetOver(const GraphicKit& kit) {
    OrloSheet sheet = {};
    sheet.size = sizeof sheet;
    sheet.filter = kAllGraphics;
    sheet.drawing = kit.Drawing();
    sheet.selection = kit.Selection();
    return sheet;
}

void CALLBACK CancelSheet(HWND, UINT, UINT_PTR timer, DWORD) {
    const HWND sheet = ::GetActiveWindow();
    if (::FindWindowA("#32770", "Properties") != sheet) return;
    ::KillTimer(nullptr, timer);
    ::PostMessageA(sheet, WM_COMMAND, IDCANCEL, 0);
}

TEST(CSheet, DoesNotChangeTheFrameworkOfTheProgram) {
    GraphicKit kit;
    kit.Add({{kPropPenColor, 255}});
    HostFrame frame(kit.Drawing());
    const CWinApp* const application = AfxGetApp();
    OrloSheet sheet = SheetOver(kit);
    sheet.owner = frame.m_hWnd;
    int32_t code = 0;
    ::SetTimer(nullptr, 0, 10, CancelSheet);
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloOk) << ErrorText();
    EXPECT_EQ(code, IDCANCEL);
    EXPECT_FALSE(frame.notifications.empty()); // sent to the program's own frame
    EXPECT_EQ(AfxGetApp(), application);
    EXPECT_EQ(AfxGetMainWnd(), &frame);
    EXPECT_EQ(CWnd::FromHandlePermanent(sheet.owner), &frame);
}

TEST(CSheet, RejectsInvalidArguments) {
    GraphicKit kit;
    int32_t code = 9;
    OrloSheet sheet = SheetOver(kit);
    sheet.size = 0;
    sheet.drawing = nullptr;
    EXPECT_EQ(OrloRunSheet(nullptr, &code), kOrloBadArgument);
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument); // invalid size
    sheet.size = sizeof sheet;
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument); // no drawing
    sheet.drawing = kit.Drawing();
    ::AppSetCurrentDrawing(nullptr);
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument);
    EXPECT_EQ(ErrorText(), "sheet->drawing is not the current drawing");
    ::AppSetCurrentDrawing(kit.Drawing());
    EXPECT_EQ(OrloRunSheet(&sheet, nullptr), kOrloBadArgument);
    sheet.owner = reinterpret_cast<HWND>(uintptr_t{0x1234});
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument);
    sheet.owner = ::GetDesktopWindow();
    EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadThread);
    sheet.owner = nullptr;
    OrloResult onOtherThread = kOrloOk;
    std::thread([&] { onOtherThread = OrloRunSheet(&sheet, &code); }).join();
    EXPECT_EQ(onOtherThread, kOrloBadThread);
    EXPECT_EQ(code, 0);
    char one[1] = {'x'};
    EXPECT_EQ(OrloGetErrorText(one, 1), ErrorText().size() + 1);
    EXPECT_EQ(one[0], '\0');
    EXPECT_NE(ErrorText(), "");
}

} // namespace
