// Tests of the preview pane: the background of the host, the graphic of the active page, scaled to fit, and the
// calls of the host's drawing functions.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <list>
#include <string>
#include <type_traits>
#include <vector>

#include "drawcore/graphic.h"
#include "drawcore/regen.h"
#include "drawcore/table.h"
#include "orlo/entry/entry.h"
#include "orlo/host/host.h"
#include "orlo/host/owners.h"
#include "orlo/host/walk.h"
#include "orlo/win/gdi.h"
#include "support/replaced_import.h"
#include "support/test_sheet.h"

namespace {

constexpr int kPreviewId = 3999;
constexpr uint16_t kMethod = 7;
constexpr COLORREF kBackground = RGB(0, 0, 160), kPen = RGB(255, 0, 0);

std::vector<std::string> g_calls; // of the host by the library, with the arguments that are numbers

template <class T>
std::string NumberText(const T& value) {
    if constexpr (std::is_integral_v<T>)
        return " " + std::to_string(value);
    else
        return "";
}

// Returns a function that records the call and calls the original. Unique is a different type for each function.
template <class Unique, class Result, class... Arguments>
auto Recorded(const char* name, Result (*original)(Arguments...), Unique) {
    static const char* recordedName;
    static Result (*recorded)(Arguments...);
    recordedName = name;
    recorded = original;
    return +[](Arguments... arguments) -> Result {
        g_calls.push_back((std::string(recordedName) + ... + NumberText(arguments)));
        return recorded(arguments...);
    };
}
#define RECORD(name) imports.emplace_back("orlo.dll", #name, Recorded(#name, &::name, [] {}))

GraphicStruct* NewSquare() {
    GraphicStruct* square = ::GraphicNewEx(kGraphicVertices, 0, 1);
    constexpr struct { double x, y; } corners[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}};
    for (const auto& corner : corners)
        ::GraphicVertexAdd(square, orlo::host::OwnedVertex(::VertexNewEx(corner.x, corner.y, 0)).get());
    ::GraphicSetPenColor(square, kPen);
    return square;
}

class SquarePage : public CGraphicPropertyPage {
public:
    SquarePage() : CGraphicPropertyPage(kTestPage, 0) {}
    void* CreatePreviewGraphic() override {
        GraphicStruct* square = NewSquare();
        square->wRegenMethod = kMethod;
        return square;
    }
};

// Moves the corners to a square of twice the size.
void Grow(void* count, GraphicStruct* square) {
    ++*static_cast<int*>(count);
    for (VertexStruct* vertex : orlo::host::Vertices(square))
        ::VertexSet(vertex, 2 * vertex->x, 2 * vertex->y, 0);
}

class PreviewDrawing : public ::testing::Test {
protected:
    PreviewDrawing() {
        ::PropPageInit();
        const RegenMethod method = {&m_rebuilt, Grow, nullptr};
        ::RegenMethodRegister(m_methods, kMethod, &method);
        TableStruct* variables = ::AppGetCurrentApp()->pVariables;
        ::TableGetIntVar(variables, kVarPreviewBackground, &m_before);
        ::TableSetIntVar(variables, kVarPreviewBackground, static_cast<long>(kBackground));
        kit.Add({});
        m_sheet.reset(::InitGraphicPropertySheet(nullptr, m_methods, kit.Drawing(), kit.Selection(), kAllGraphics));
        m_sheet->AddPage(new SquarePage);
    }
    ~PreviewDrawing() override {
        m_sheet.reset();
        ::RegenMethodsDispose(&m_methods);
        ::TableSetIntVar(::AppGetCurrentApp()->pVariables, kVarPreviewBackground, m_before);
    }

    void Run(SheetDriver::Script script) { SheetDriver().Run(*m_sheet, std::move(script)); }
    HWND Pane() const { return ::GetDlgItem(m_sheet->m_hWnd, kPreviewId); }
    CRect PaneArea() const {
        CRect client;
        ::GetClientRect(Pane(), client);
        return client;
    }
    // Returns the smallest rectangle with all pixels of that color.
    CRect Drawn(COLORREF color) const {
        const orlo::WindowDC dc(Pane());
        const CRect client = PaneArea();
        CRect drawn;
        for (int y = 0; y < client.bottom; ++y)
            for (int x = 0; x < client.right; ++x)
                if (::GetPixel(dc.get(), x, y) == color) drawn.UnionRect(CRect(drawn), CRect(x, y, x + 1, y + 1));
        return drawn;
    }
    int Rebuilt() const { return m_rebuilt; }

    GraphicKit kit;
    std::unique_ptr<CGraphicPropertySheet> m_sheet;

private:
    void* m_methods = ::RegenMethodsNew();
    int m_rebuilt = 0;
    long m_before = 0;
};

TEST_F(PreviewDrawing, FillsThePaneUpToItsMarginHoweverLargeTheGraphicIs) {
    Run([&](SheetDriver& user) {
        EXPECT_EQ(Drawn(kBackground), PaneArea());
        EXPECT_EQ(Drawn(kPen), CRect()) << "the General page has no preview";
        user.SelectPage(1);
        CRect inner = PaneArea();
        inner.InflateRect(-4, -4);
        for (int paint = 0; paint < 3; ++paint) {
            const int before = Rebuilt();
            m_sheet->UpdatePreview(1);
            EXPECT_EQ(Rebuilt(), before + 1) << "twice as large as before";
            EXPECT_EQ(Drawn(kPen), inner);
            EXPECT_EQ(Drawn(kBackground), PaneArea());
        }
    });
}

TEST_F(PreviewDrawing, IsRepaintedAtOnceOnlyIfTheCallerWishesIt) {
    Run([&](SheetDriver& user) {
        user.SelectPage(1);
        const int before = Rebuilt();
        for (int i = 0; i < 3; ++i)
            m_sheet->UpdatePreview(0);
        EXPECT_EQ(Rebuilt(), before);
        user.Pump();
        EXPECT_EQ(Rebuilt(), before + 1);
        m_sheet->UpdatePreview(1);
        EXPECT_EQ(Rebuilt(), before + 2);
    });
}

// A database may compute its graphics and extents only on request.
TEST_F(PreviewDrawing, CallsTheHostInOrder) {
    Run([&](SheetDriver& user) {
        user.SelectPage(1);
        std::list<ReplacedImport> imports;
        RECORD(GraphicSetDirty);
        RECORD(GraphicSetExtentsDirty);
        RECORD(ViewportSetRect);
        RECORD(RegenMethodRegen);
        RECORD(GraphicGetExtentsSel);
        RECORD(ViewportSetExtents);
        RECORD(ViewportSetGDIStuff);
        RECORD(ViewportSetDrawing);
        RECORD(GraphicDrawEx2);
        g_calls.clear();
        m_sheet->UpdatePreview(1);
        EXPECT_EQ(g_calls,
                  (std::vector<std::string>{"GraphicSetDirty 1", "GraphicSetExtentsDirty 1", "ViewportSetRect",
                                            "RegenMethodRegen 7", "GraphicGetExtentsSel 0", "ViewportSetExtents 3",
                                            "ViewportSetGDIStuff 1 1", "ViewportSetDrawing", "GraphicDrawEx2 1 1"}));
    });
}

TEST_F(PreviewDrawing, StaysWhiteWithoutAViewport) {
    const ReplacedImport none(
        "orlo.dll", "ViewportNewEx", +[]() -> ViewportStruct* { return nullptr; });
    m_sheet.reset(::InitGraphicPropertySheet(nullptr, nullptr, kit.Drawing(), kit.Selection(), kAllGraphics));
    m_sheet->AddPage(new SquarePage);
    Run([&](SheetDriver& user) {
        user.SelectPage(1);
        EXPECT_EQ(Drawn(RGB(255, 255, 255)), PaneArea());
        EXPECT_EQ(Drawn(kBackground), CRect());
    });
}

// A page that is opened later shows the values set on the open pages.
TEST(PreviewFeeding, EveryOpenPageSetsItsValuesOnANewGraphic) {
    GraphicKit kit;
    TestSheet sheet(kit);
    ExchangePage* const pages[] = {&sheet.Add([](CDataExchange*) {}), &sheet.Add([](CDataExchange*) {}),
                                   &sheet.Add([](CDataExchange*) {})};
    for (ExchangePage* page : pages)
        page->hasPreview = true;
    sheet.Run([&](SheetDriver& user) {
        user.SelectPage(2);
        EXPECT_EQ(pages[0]->previewCalls, (std::vector<int>{1, 1}));
        EXPECT_EQ(pages[1]->previewCalls, std::vector<int>{1});
        EXPECT_TRUE(pages[2]->previewCalls.empty()) << "a page that is not open";
        for (const int i : {0, 1}) {
            EXPECT_TRUE(pages[i]->GetPreviewGraphic()->dwFlags & kFlagPreview);
            EXPECT_EQ(::GraphicGetDrawing(pages[i]->GetPreviewGraphic()), kit.Drawing());
        }
        user.SelectPage(1);
        EXPECT_EQ(pages[0]->previewCalls.size(), 2u) << "its graphic is not new";
    });
}

} // namespace
