// A host that defines UNICODE: macros of windows.h rename members of the framework, which must exist under these names.

#include <afxext.h>
#include <orlo.h>

#include <gtest/gtest.h>

#include "drawcore/drawing.h"

namespace {

static_assert(sizeof(TCHAR) == sizeof(wchar_t), "this file is to be compiled as a UNICODE host");

constexpr UINT kTest = WM_APP;

class CUnicodeFrame : public CFrameWnd {
public:
    int created = 0, forwarded = 0;

protected:
    BOOL PreCreateWindow(CREATESTRUCTA& cs) override {
        cs.cx = 321;
        return CFrameWnd::PreCreateWindow(cs);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kTest) ++forwarded;
        return CFrameWnd::DefWindowProc(message, wParam, lParam);
    }
    afx_msg int OnCreate(LPCREATESTRUCTA lpCreateStruct) {
        ++created;
        return CFrameWnd::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(CUnicodeFrame, CFrameWnd)
ON_WM_CREATE()
END_MESSAGE_MAP()

class CUnicodePage : public CGraphicPropertyPage {
public:
    CUnicodePage() : CGraphicPropertyPage(500, 0) {}
    int Tell() { return MessageBox("text", nullptr, MB_OK); }
};

TEST(UnicodeHost, UsesTheFrameworkAndTheSheet) {
    auto* frame = new CUnicodeFrame;
    ASSERT_TRUE(frame->Create(nullptr, "a host"));
    EXPECT_EQ(frame->created, 1);
    CRect window;
    frame->GetWindowRect(window);
    EXPECT_EQ(window.Width(), 321);
    CString text;
    frame->GetWindowText(text);
    EXPECT_STREQ(text, "a host");
    frame->SetWindowText("another");
    EXPECT_EQ(frame->GetWindowTextLength(), 7);
    frame->SendMessage(kTest);
    EXPECT_EQ(frame->forwarded, 1);
    ::SetWindowText(frame->m_hWnd, L"wide"); // the system's functions remain the wide ones
    EXPECT_EQ(::DefWindowProc(frame->m_hWnd, kTest, 0, 0), 0);
    EXPECT_FALSE(text.LoadString(1));
    CFont font;
    const LOGFONTA shape = {};
    EXPECT_TRUE(font.CreateFontIndirect(&shape));

    DrawingStruct* drawing = DrawingNew();
    CGraphicPropertySheet* sheet = InitGraphicPropertySheet(frame, nullptr, drawing, nullptr, kAllGraphics);
    sheet->AddPage(new CUnicodePage);
    EXPECT_EQ(sheet->GetPageCount(), 2);
    delete sheet;
    DrawingDispose(&drawing);
    frame->DestroyWindow();
}

} // namespace
