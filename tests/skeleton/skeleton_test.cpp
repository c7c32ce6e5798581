// The real sheet with the skeleton's database: every page opens, and edits are stored in the graphics.

#include <gtest/gtest.h>

#include <afxwin.h>

#include <memory>

#include "hostcheck/faults.h"
#include "orlo/controls/combo_control.h"
#include "orlo/controls/control_fill.h"
#include "orlo/controls/control_kind.h"
#include "orlo/entry/entry.h"
#include "orlo/resources/resource.h"
#include "skeleton/skeleton.h"
#include "support/pixels.h"
#include "support/sheet_driver.h"

namespace {

class Module {
public:
    explicit Module(const char* file) : m_module(::LoadLibraryA(file)) {
        if (m_module == nullptr) throw std::runtime_error(file);
    }
    ~Module() { ::FreeLibrary(m_module); }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    template <class F>
    F* Function(const char* name) const {
        return reinterpret_cast<F*>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }

private:
    HMODULE m_module;
};

#define CALL(module, name) module.Function<decltype(::name)>(#name)

class Frame : public CFrameWnd {
public:
    explicit Frame(const Module& host) : m_host(host) {
        Create(nullptr, "host");
        AfxGetThread()->m_pMainWnd = this;
    }
    ~Frame() override {
        AfxGetThread()->m_pMainWnd = nullptr;
        DestroyWindow();
    }

private:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const char* table = TableOfControl(LOWORD(wParam));
        if (HIWORD(wParam) != kControlReady || table == nullptr) return CFrameWnd::OnCommand(wParam, lParam);
        DrawingStruct* drawing = CALL(m_host, AppGetCurrentApp)()->pCurrentDrawing;
        const ControlFillRecord fill = {CALL(m_host, DrawingGetTable)(drawing, table), 0, 0};
        ::SendMessageA(reinterpret_cast<HWND>(lParam), kFillMessage, 0, reinterpret_cast<LPARAM>(&fill));
        return TRUE;
    }
    void PostNcDestroy() override {}

    const Module& m_host;
};

class Skeleton : public ::testing::Test {
protected:
    explicit Skeleton(const char* database = "skeleton\\drawcore32.dll") : host(database) {}
    ~Skeleton() override { CALL(host, DrawingDispose)(&drawing); }

    int Run(SheetDriver::Script script) {
        CALL(library, PropPageInit)();
        // The class belongs to the library; this program only knows its base class in the framework.
        CGraphicPropertySheet* made =
            CALL(library, InitGraphicPropertySheet)(&frame, nullptr, drawing, root, kAllGraphics);
        const std::unique_ptr<CPropertySheet> sheet(reinterpret_cast<CPropertySheet*>(made));
        for (int i = 0; i < 3; ++i)
            CALL(library, AddGraphicPropertyPage)(nullptr, Member(i), made);
        return SheetDriver().Run(*sheet, std::move(script));
    }
    GraphicStruct* Member(int index) const {
        uint32_t place;
        GraphicStruct* member = CALL(host, GraphicFirst)(root, &place, 1, kAllGraphics);
        while (index-- > 0)
            member = CALL(host, GraphicNext)(root, &place, 1, kAllGraphics);
        return member;
    }
    template <class Value>
    Value Property(GraphicStruct* graphic, const char* name, int vt) const {
        const PropertyTable* table = CALL(host, GraphicGetVtbl)(graphic);
        int32_t number = 0;
        Value value{};
        EXPECT_TRUE(table->PropLookup(graphic, &name, 1, 0, &number));
        EXPECT_TRUE(table->PropGet(graphic, number, vt, &value));
        return value;
    }

    const Module host;
    const Module library{"orlo.dll"};
    DrawingStruct* drawing = CALL(host, DrawingNew)();
    GraphicStruct* root = CALL(host, DrawingGetRoot)(drawing);
    const int current = CALL(host, AppSetCurrentDrawing)(drawing);
    Frame frame{host};
};

enum { kPen = 1, kBrush, kText, kInsertion };

TEST_F(Skeleton, IsEditedOnEveryPageOfTheSheet) {
    EXPECT_EQ(Run([](SheetDriver& user) {
                  EXPECT_EQ(::SendMessageA(user.Control(IDC_LAYER), CB_GETCOUNT, 0, 0), 2);
                  user.SelectPage(kPen);
                  user.SelectItem(IDC_COLOR, 0);
                  user.Type(IDC_PEN_WIDTH, "0.5 mm");
                  user.SelectPage(kBrush);
                  user.SelectItem(IDC_BRUSH_STYLE_LIST, 1);
                  user.SelectPage(kText);
                  user.Type(IDC_FONT_SIZE, "7.5");
                  user.SelectPage(kInsertion);
                  ASSERT_EQ(user.ActivePage(), kInsertion);
                  user.Type(IDC_SCALE_X, "3");
                  user.Ok();
              }),
              IDOK);
    GraphicStruct* rectangle = Member(0);
    EXPECT_LT(Property<uint32_t>(rectangle, kPropPenColor, VT_UI4), 0x1000000u); // was by layer
    EXPECT_DOUBLE_EQ(0.5 * kInchesPerMillimeter, Property<double>(rectangle, kPropPenWidth, VT_R8));
    EXPECT_NE(Property<uint32_t>(rectangle, kPropBrushStyle, VT_UI4), 0u);
    EXPECT_DOUBLE_EQ(Property<double>(Member(1), kPropTextSize, VT_R8), 7.5);
    int cookie;
    CALL(host, GraphicVertexFirst)(Member(2), &cookie, 0, 0xFFFF);
    EXPECT_DOUBLE_EQ(CALL(host, GraphicVertexNext)(Member(2), &cookie, 0, 0xFFFF)->x, 3);
}

TEST_F(Skeleton, FitsExtentsOnlyAsRequested) {
    const RECT all = {0, 0, 60, 60};
    const Pixels picture(all.right, all.bottom);
    ViewportStruct* viewport = CALL(host, ViewportNewEx)();
    const ExtentsStruct* extents = CALL(host, GraphicGetExtentsSel)(Member(0), 0);
    CALL(host, ViewportSetRect)(viewport, &all);
    for (const int fit : {0, int{kFitWhole}}) {
        CALL(host, ViewportSetExtents)(viewport, extents, fit);
        CALL(host, ViewportSetGDIStuff)(viewport, nullptr, picture.DC(), MM_TEXT, 1);
        CALL(host, GraphicDrawEx2)(Member(0), nullptr, viewport, 0, 1);
        EXPECT_EQ(picture.CountWhere(all, [](COLORREF color) { return color != RGB(255, 255, 255); }) > 0,
                  fit == kFitWhole);
    }
    CALL(host, ViewportDispose)(&viewport);
}

TEST_F(Skeleton, DrawsThePreviewInTheSelectedColor) {
    Run([](SheetDriver& user) {
        user.SelectPage(1);
        user.SelectItem(IDC_COLOR, 0);
        const int row = user.Selection(IDC_COLOR);
        const std::string item = user.ItemText(IDC_COLOR, row);
        const auto chosen = static_cast<COLORREF>(std::stoul(item, nullptr, 16));
        constexpr int kPreview = 3999;
        const HWND pane = ::GetDlgItem(user.Sheet(), kPreview);
        RECT all;
        ::GetClientRect(pane, &all);
        const Pixels picture(all.right, all.bottom);
        const HDC screen = ::GetDC(pane);
        ::BitBlt(picture.DC(), 0, 0, all.right, all.bottom, screen, 0, 0, SRCCOPY);
        ::ReleaseDC(pane, screen);
        EXPECT_GT(picture.Count(all, chosen), 50) << item;
    });
}

class Variant : public Skeleton {
protected:
    explicit Variant(const char* name) : Skeleton((::_putenv_s(kFaultVariable, name), "faulty\\drawcore32.dll")) {}
    ~Variant() override { ::_putenv_s(kFaultVariable, ""); }
};

class SkeletonWithStubs : public Variant {
protected:
    SkeletonWithStubs() : Variant(kStubs) {}
};

TEST_F(SkeletonWithStubs, LosesOnlyPictures) {
    EXPECT_EQ(Run([](SheetDriver& user) {
                  user.SelectPage(kPen);
                  user.SelectItem(IDC_LINE_STYLE_LIST, 1);
                  user.SelectPage(kBrush);
                  user.SelectItem(IDC_BRUSH_STYLE_LIST, 1);
                  user.SelectPage(kInsertion);
                  user.Type(IDC_POSITION_X, "30");
                  user.Ok();
              }),
              IDOK);
    EXPECT_NE(Property<uint32_t>(Member(0), kPropBrushStyle, VT_UI4), 0u);
    int cookie;
    EXPECT_DOUBLE_EQ(CALL(host, GraphicVertexFirst)(Member(2), &cookie, 0, 0xFFFF)->x, 30);
}

class SkeletonWithoutStyles : public Variant {
protected:
    SkeletonWithoutStyles() : Variant(kNoStyles) {}
};

TEST_F(SkeletonWithoutStyles, HasListsOfMarkersOnly) {
    EXPECT_EQ(Run([](SheetDriver& user) {
                  user.SelectPage(kPen);
                  EXPECT_GE(user.Selection(IDC_LINE_STYLE_LIST), 0) << "by layer";
                  user.Type(IDC_PEN_WIDTH, "0.5");
                  user.SelectPage(kBrush);
                  EXPECT_EQ(user.Selection(IDC_BRUSH_STYLE_LIST), 0) << "no brush";
                  user.Ok();
              }),
              IDOK);
    EXPECT_DOUBLE_EQ(0.5 * kInchesPerMillimeter, Property<double>(Member(0), kPropPenWidth, VT_R8));
    EXPECT_EQ(Property<uint32_t>(Member(0), kPropPenStyle, VT_UI4), uint32_t{kLineStyleByLayer});
}

} // namespace
