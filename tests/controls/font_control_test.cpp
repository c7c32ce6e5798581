// The font controls: lists of faces, sizes and styles, heights as text, and Return in the edit field.

#include "control_dialog.h"

#include <drawcore/units.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <set>

#include "orlo/controls/font_face_control.h"
#include "orlo/controls/font_list.h"
#include "orlo/controls/font_size_control.h"

namespace {

std::vector<std::string> Texts(const CComboBox& combo) {
    std::vector<std::string> texts;
    for (int i = 0; i < combo.GetCount(); ++i) {
        CString text;
        combo.GetLBText(i, text);
        texts.emplace_back(text);
    }
    return texts;
}

class Fonts : public ControlDialog {
protected:
    Fonts() : m_faces(Get<CFontFaceControl>(IDC_FONT_FACE)), m_sizes(Get<CFontSizeControl>(IDC_FONT_SIZE)) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        m_ini = std::string(folder) + "font_sizes.ini";
        std::ofstream(m_ini) << "[FontSizes]\nmm=2.5,3.5,5,2.5\n";
        AppSetINIFileName(m_ini.c_str());
        TableSetStringVar(Units(), kUnitTextSize, "mm");
        TableSetStringVar(Units(), kUnitFontName, "DejaVu Sans");
    }
    ~Fonts() override {
        AppSetINIFileName(nullptr);
        ::DeleteFileA(m_ini.c_str());
    }
    TableStruct* Units() const { return m_drawing.Get()->pUnits; }
    void FillFrom(TableStruct* table, CWnd& control, UINT_PTR value = 0, unsigned selected = 0) {
        const ControlFillRecord record = {table, value, selected};
        control.SendMessage(kFillMessage, 0, reinterpret_cast<LPARAM>(&record));
    }
    void FillFaces(const char* face, unsigned selected) {
        FillFrom(Units(), m_faces, reinterpret_cast<UINT_PTR>(face), selected);
    }
    void FillSizes(float size, unsigned selected = 1) {
        uint32_t bits;
        std::memcpy(&bits, &size, sizeof bits);
        FillFrom(Units(), m_sizes, bits, selected);
    }
    // Returns the height that the control reads from the text; 77 if it leaves the value unchanged.
    double HeightOf(const char* text) {
        double value = 77.0;
        m_sizes.ReConvertFontSize(text, value);
        return value;
    }
    std::string Shown() const {
        char text[64] = "";
        ::GetWindowTextA(m_sizes.m_hWnd, text, sizeof text);
        return text;
    }
    int FillSizesOf(const char* face) {
        const FontListRequest request = {&m_sizes, face};
        return FillFontDropDown(m_sizes.m_hWnd, reinterpret_cast<LPARAM>(&request));
    }

    CFontFaceControl& m_faces;
    CFontSizeControl& m_sizes;
    std::string m_ini;
};

int CALLBACK CollectTrueType(const LOGFONTA* font, const TEXTMETRICA*, DWORD type, LPARAM names) {
    if (type & TRUETYPE_FONTTYPE) reinterpret_cast<std::set<std::string>*>(names)->insert(font->lfFaceName);
    return 1;
}

TEST_F(Fonts, ListsTrueTypeFacesSortedWithoutDuplicates) {
    FillFaces(nullptr, 0);
    const std::vector<std::string> texts = Texts(m_faces);
    std::set<std::string> installed;
    const HDC dc = ::GetDC(nullptr);
    ::EnumFontFamiliesA(dc, nullptr, CollectTrueType, reinterpret_cast<LPARAM>(&installed));
    ::ReleaseDC(nullptr, dc);
    EXPECT_LT(2u, texts.size());
    EXPECT_EQ(installed, std::set<std::string>(texts.begin(), texts.end()));
    EXPECT_EQ(installed.size(), texts.size()) << "each once";
    for (size_t i = 1; i < texts.size(); ++i)
        EXPECT_GE(0, ::lstrcmpiA(texts[i - 1].c_str(), texts[i].c_str()));
    EXPECT_EQ(installed.count("System"), 0u) << "bitmap fonts are not listed";
}

TEST_F(Fonts, MissingFaceIsAddedToTheList) {
    FillFaces(nullptr, 0);
    const int installed = m_faces.GetCount();
    CString shown;
    FillFaces("Nobody's Face", 1);
    EXPECT_EQ(installed + 1, m_faces.GetCount());
    m_faces.GetLBText(m_faces.GetCurSel(), shown);
    EXPECT_EQ(CString("Nobody's Face"), shown);
    FillFaces("dejavu sans", 1);
    EXPECT_EQ(installed, m_faces.GetCount()) << "a known one does not; case is ignored";
    EXPECT_LE(0, m_faces.GetCurSel());
    for (const unsigned none : {0u, 0xFFFFu}) {
        FillFaces("Nobody's Face", none);
        EXPECT_EQ(installed, m_faces.GetCount());
        EXPECT_EQ(m_faces.GetCurSel(), -1);
    }
    FillFrom(nullptr, m_faces);
    EXPECT_EQ(installed, m_faces.GetCount()) << "faces need no table";
}

TEST_F(Fonts, SizesInWorldSpaceAreInDrawingUnits) {
    TableSetStringVar(Units(), kUnitDrawing, "cm");
    FillSizes(5.0f);
    const double expected[] = {2.5, 3.5, 5};
    ASSERT_EQ(m_sizes.GetCount(), 3) << "a duplicate size is listed once, and 5 is listed";
    for (size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(expected[i], HeightOf(Texts(m_sizes)[i].c_str()), 1e-9);
    EXPECT_EQ(Texts(m_sizes)[2], Shown());
    EXPECT_EQ(m_sizes.GetCurSel(), -1) << "a closed combo shows the height without selecting an item";

    FillSizes(7.0f);
    ASSERT_EQ(m_sizes.GetCount(), 4);
    EXPECT_EQ(Texts(m_sizes)[3], Shown()) << "an unlisted height is added at the end";
    m_sizes.ShowDropDown(TRUE);
    FillSizes(7.0f);
    EXPECT_EQ(m_sizes.GetCurSel(), 3) << "in the open list it is selected";
    m_sizes.ShowDropDown(FALSE);
}

TEST_F(Fonts, WithoutASizeOrAFontNothingIsShown) {
    FillSizes(5.0f);
    const int listed = m_sizes.GetCount();
    const struct {
        float size;
        unsigned selected;
    } rows[] = {{0.0f, 1}, {5.0f, 0}, {5.0f, kEntryIndeterminate}};
    for (const auto& row : rows) {
        FillSizes(row.size, row.selected);
        EXPECT_EQ(m_sizes.GetCount(), 3);
        EXPECT_EQ(m_sizes.GetCurSel(), -1);
    }
    EXPECT_LE(3, listed);
    TableSetStringVar(Units(), kUnitFontName, "");
    FillSizes(5.0f);
    EXPECT_EQ(m_sizes.GetCount(), 0);
    EXPECT_EQ(m_drawing.Get(), m_sizes.m_pDrawing) << "heights can be converted nevertheless";
}

TEST_F(Fonts, TheListOfSizesFollowsTheFace) {
    FillSizes(0.0f);
    EXPECT_EQ(FillSizesOf("DejaVu Serif"), 1);
    EXPECT_EQ(m_sizes.GetCount(), 3);
    FillSizesOf("Nobody's Face");
    EXPECT_EQ(m_sizes.GetCount(), 0);
    for (const char* none : {"", static_cast<const char*>(nullptr)}) {
        FillSizesOf("DejaVu Serif");
        EXPECT_EQ(FillSizesOf(none), 1);
        EXPECT_EQ(m_sizes.GetCount(), 0);
    }
    FillSizesOf("System");
    ASSERT_LE(1, m_sizes.GetCount()) << "a bitmap font has fixed sizes";
    EXPECT_LT(0.0, HeightOf(Texts(m_sizes)[0].c_str()));
    TEXTMETRICA metrics = {};
    metrics.tmHeight = 20;
    metrics.tmInternalLeading = 2;
    CString text;
    m_sizes.RasterSizeText(metrics, text);
    EXPECT_NEAR(6.35, HeightOf(text), 1e-6) << "as high as its letters in points";
}

TEST_F(Fonts, TextThatIsNotAHeightDoesNotChangeTheValue) {
    FillSizes(0.0f);
    for (const char* text : {"", "high", "5 mm x", "1e999"})
        EXPECT_EQ(HeightOf(text), 77.0) << text;
    m_sizes.m_nCoordSpace = 2;
    EXPECT_EQ(HeightOf("5"), 77.0) << "a device has no lengths";
}

TEST_F(Fonts, HeightThatCannotBeFormattedIsNotShown) {
    ASSERT_TRUE(DrawingSetCoordSpace(m_drawing.Get(), 2)); // a device has no lengths
    FillSizes(5.0f);
    for (const std::string& text : Texts(m_sizes))
        EXPECT_NE(text, "");
    EXPECT_EQ(m_sizes.GetCurSel(), -1);
    EXPECT_EQ(Shown(), "");
}

TEST_F(Fonts, ReleaseTheDrawingOfAClosedTable) {
    FillSizes(5.0f);
    FillFrom(nullptr, m_sizes);
    m_drawing.Close();
    EXPECT_EQ(m_sizes.m_pDrawing, nullptr);
    EXPECT_EQ(HeightOf("5"), 77.0);
    CString text("before");
    m_sizes.FontSizeText(5.0, text);
    EXPECT_TRUE(text.IsEmpty());
    FillSizesOf("DejaVu Serif");
    EXPECT_EQ(m_sizes.GetCount(), 0);
}

TEST_F(Fonts, IdentifierDeterminesTheList) {
    CComboBox combo;
    const DWORD style = WS_CHILD | CBS_DROPDOWNLIST;
    ASSERT_TRUE(combo.CWnd::Create("ComboBox", "", style, CRect(0, 0, 100, 100), &m_host, IDC_FONT_STYLE));
    EXPECT_EQ(FillFontDropDown(combo.m_hWnd, 0), 0);
    EXPECT_EQ(Texts(combo), (std::vector<std::string>{"Regular", "Italic", "Bold", "Bold Italic"}));
    ::SetWindowLongPtrA(combo.m_hWnd, GWLP_ID, 77);
    EXPECT_EQ(FillFontDropDown(combo.m_hWnd, 0), 0);
    EXPECT_EQ(combo.GetCount(), 0) << "emptied";
    ::SetWindowLongPtrA(combo.m_hWnd, GWLP_ID, IDC_FONT_FACE_2);
    EXPECT_EQ(FillFontDropDown(combo.m_hWnd, reinterpret_cast<LPARAM>(&combo)), 1);
    EXPECT_LT(2, combo.GetCount());
    combo.DestroyWindow();
}

TEST_F(Fonts, RowsAreDrawnInTheSystemsColors) {
    FillFaces(nullptr, 0);
    FillSizes(5.0f);
    DrawnPixels pixels(120, 40);
    const RECT row = {0, 10, 100, 30};
    const int area = 100 * 20;
    const auto draw = [&](CComboControl& control, int item, UINT state) {
        pixels.Draw(control, item, row, ODA_DRAWENTIRE, state);
    };
    for (CComboControl* const control :
         {static_cast<CComboControl*>(&m_faces), static_cast<CComboControl*>(&m_sizes)}) {
        draw(*control, 0, 0);
        EXPECT_LT(area / 2, pixels.Count(row, ::GetSysColor(COLOR_WINDOW)));
        EXPECT_LT(5, pixels.Count(row, ::GetSysColor(COLOR_WINDOWTEXT)));
        draw(*control, 0, ODS_SELECTED);
        EXPECT_LT(area / 2, pixels.Count(row, ::GetSysColor(COLOR_HIGHLIGHT)));
        control->m_nSelected = 5;
        draw(*control, -1, ODS_FOCUS);
        EXPECT_EQ(area, pixels.Count(row, DrawnPixels::kUntouched)) << "no name is available";
        control->m_nSelected = 0;
    }
    draw(m_faces, -1, 0);
    EXPECT_EQ(area, pixels.Count(row, DrawnPixels::kUntouched));
    draw(m_sizes, -1, 0);
    EXPECT_EQ(area, pixels.Count(row, ::GetSysColor(COLOR_WINDOW)));
    const SchemeColors dark({{COLOR_WINDOW, RGB(0, 0, 0)}});
    draw(m_sizes, -1, 0);
    EXPECT_EQ(area, pixels.Count(row, RGB(0, 0, 0)));
}

TEST_F(Fonts, ListOpenedInTheEditFieldIsSizedAndEscapeRestoresTheText) {
    FillSizes(5.0f);
    m_dialog.ShowWindow(SW_SHOW);
    const HWND edit = ::GetDlgItem(m_sizes.m_hWnd, 1001);
    ::SetFocus(edit);
    ::SetWindowTextA(edit, "not in the list");
    m_sizes.m_nDropHeight = 0;
    ::SendMessageA(edit, WM_KEYDOWN, VK_F4, 1);
    ASSERT_TRUE(m_sizes.GetDroppedState());
    EXPECT_LT(0, m_sizes.m_nDropHeight) << "sized before it opens";
    ::SendMessageA(edit, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_NE(Shown(), "not in the list");
    for (const UINT message : {WM_KEYDOWN, WM_CHAR})
        ::SendMessageA(edit, message, VK_ESCAPE, 1);
    EXPECT_FALSE(m_sizes.GetDroppedState());
    EXPECT_EQ(Shown(), "not in the list");
}

TEST_F(Fonts, ReturnInTheEditFieldEndsTheEntry) {
    m_dialog.ShowWindow(SW_SHOW);
    m_host.ShowWindow(SW_SHOW);
    const HWND edit = ::GetDlgItem(m_sizes.m_hWnd, 1001);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(&m_sizes.m_editSize, CWnd::FromHandlePermanent(edit));
    ::SetFocus(edit);
    m_host.notifications.clear();
    ::SendMessageA(edit, WM_KEYUP, 'A', 1);
    EXPECT_TRUE(m_host.notifications.empty());
    EXPECT_EQ(edit, ::GetFocus());
    ::SendMessageA(edit, WM_KEYUP, VK_RETURN, 1);
    ASSERT_EQ(m_host.notifications.size(), 1u);
    EXPECT_EQ(m_host.notifications[0].kind, kControlFontSizes);
    EXPECT_EQ(m_host.notifications[0].code, static_cast<unsigned>(CBN_SELENDOK));
    EXPECT_EQ(m_sizes.m_hWnd, m_host.notifications[0].control);
    EXPECT_EQ(m_host.m_hWnd, ::GetFocus());

    AfxGetThread()->m_pMainWnd = nullptr;
    ::SendMessageA(edit, WM_KEYUP, VK_RETURN, 1); // without a main window to notify
    AfxGetThread()->m_pMainWnd = &m_host;
}

} // namespace
