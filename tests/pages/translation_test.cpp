// The German translation: the same controls and texts as the library's own resources, found by the language of the
// user, which is Austrian German here. CMakeLists.txt sets it.

#include <gtest/gtest.h>

#include <afxres.h>
#include <afxwin.h>

#include <commctrl.h>
#include <orlo_c.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "demo/automation/sheet_pages.h"
#include "demo/automation/user_input.h"
#include "orlo/frame/sheet_pane.h"
#include "orlo/pages/field_page.h"
#include "orlo/resources/resource.h"
#include "orlo/wizard/wizard_sheet.h"
#include "pages/every_kind.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/sheet_driver.h"

namespace {

// A module whose resources are read without running it.
class Resources {
public:
    explicit Resources(const wchar_t* file) : m_module(::LoadLibraryExW(file, nullptr, LOAD_LIBRARY_AS_DATAFILE)) {
        if (m_module == nullptr) throw std::runtime_error("a module is missing");
    }
    ~Resources() { ::FreeLibrary(m_module); }
    Resources(const Resources&) = delete;
    Resources& operator=(const Resources&) = delete;

    std::map<UINT, std::wstring> Texts() const {
        std::map<UINT, std::wstring> texts;
        for (UINT id = 0; id <= 0xFFFF; ++id) {
            wchar_t text[256];
            if (::LoadStringW(m_module, id, text, 256) > 0) texts[id] = text;
        }
        return texts;
    }
    std::vector<BYTE> Dialog(UINT id) const {
        const HRSRC found = ::FindResourceA(m_module, MAKEINTRESOURCEA(id), reinterpret_cast<LPCSTR>(RT_DIALOG));
        if (found == nullptr) return {};
        const auto* data = static_cast<const BYTE*>(::LockResource(::LoadResource(m_module, found)));
        return {data, data + ::SizeofResource(m_module, found)};
    }

private:
    HMODULE m_module;
};

// Returns the inserts of a message and what follows a line feed, sorted: "%1", "%d", the width of a button.
std::multiset<std::wstring> FormatOf(const std::wstring& text) {
    std::multiset<std::wstring> format;
    for (size_t i = 0; i + 1 < text.size(); ++i)
        if (text[i] == L'%') format.insert(text.substr(i, 2));
    if (const size_t feed = text.find(L'\n'); feed != std::wstring::npos) format.insert(text.substr(feed));
    return format;
}

// The part of a control that the code depends on: its identifier, style, and class.
struct Control {
    WORD id;
    DWORD style;
    std::wstring windowClass;

    bool operator==(const Control& other) const {
        return id == other.id && style == other.style && windowClass == other.windowClass;
    }
};

// Reads a template in the standard format. Classes are stored as a name, or as 0xFFFF and a number.
std::vector<Control> ControlsOf(const std::vector<BYTE>& dialog) {
    size_t at = 0;
    const auto word = [&] {
        WORD value = 0;
        if (at + sizeof value <= dialog.size()) std::memcpy(&value, &dialog[at], sizeof value);
        at += sizeof value;
        return value;
    };
    const auto text = [&] {
        std::wstring whole(1, static_cast<wchar_t>(word()));
        if (whole[0] == 0xFFFF) return std::to_wstring(word());
        while (whole.back() != 0)
            whole += static_cast<wchar_t>(word());
        return whole;
    };
    at = 2 * sizeof(DWORD);
    const WORD count = word();
    at += 4 * sizeof(WORD); // the place
    for (int i = 0; i < 3; ++i)
        text(); // menu, class, caption
    word();     // the size of the font
    text();
    std::vector<Control> controls;
    for (WORD i = 0; i < count; ++i) {
        at = (at + 3) / 4 * 4;
        Control control;
        std::memcpy(&control.style, &dialog.at(at), sizeof control.style);
        at += 2 * sizeof(DWORD) + 4 * sizeof(WORD);
        control.id = word();
        control.windowClass = text();
        text();
        at += word();
        controls.push_back(control);
    }
    return controls;
}

TEST(Translation, HasTheTextsOfTheLibrary) {
    const auto own = Resources(L"orlo.dll").Texts(), german = Resources(L"orlo.de.dll").Texts();
    EXPECT_GT(own.size(), 30u);
    for (const auto& [id, text] : own) {
        ASSERT_EQ(german.count(id), 1u) << id;
        EXPECT_EQ(FormatOf(german.at(id)), FormatOf(text)) << id;
    }
    for (const UINT id : {AFX_IDS_SHEET_OK, AFX_IDS_SHEET_CANCEL, AFX_IDS_SHEET_HELP, AFX_IDS_SHEET_APPLY})
        EXPECT_EQ(german.count(id), 1u) << id << ": a string of the framework in sheets";
}

TEST(Translation, HasTheControlsOfTheLibrary) {
    const Resources own(L"orlo.dll"), german(L"orlo.de.dll");
    for (UINT page = IDD_GENERAL_PAGE; page <= IDD_INSERT_PAGE; ++page) {
        const auto expected = ControlsOf(own.Dialog(page));
        EXPECT_GT(expected.size(), 5u);
        EXPECT_EQ(ControlsOf(german.Dialog(page)), expected) << page;
    }
}

std::wstring TextOf(HWND window) {
    wchar_t text[256];
    return {text, text + ::GetWindowTextW(window, text, 256)};
}

SIZE SizeOf(HWND window) {
    RECT client;
    ::GetClientRect(window, &client);
    return {client.right, client.bottom};
}

// Returns the size that the text of a label or button needs within its width.
SIZE NeededBy(HWND control) {
    char windowClass[16];
    ::GetClassNameA(control, windowClass, sizeof windowClass);
    const LONG type = ::GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK;
    const bool isButton = ::_stricmp(windowClass, "BUTTON") == 0;
    const bool hasBox = isButton && type != BS_GROUPBOX && type != BS_PUSHBUTTON && type != BS_DEFPUSHBUTTON;
    const HDC dc = ::GetDC(control);
    const LONG box = hasBox ? ::MulDiv(17, ::GetDeviceCaps(dc, LOGPIXELSX), 96) : 0; // with the gap to its text
    const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0));
    const HGDIOBJ before = ::SelectObject(dc, font);
    RECT room = {0, 0, SizeOf(control).cx - box, 0};
    const std::wstring text = TextOf(control);
    ::DrawTextW(dc, text.c_str(), -1, &room, DT_CALCRECT | DT_EXPANDTABS | (isButton ? DT_SINGLELINE : DT_WORDBREAK));
    ::SelectObject(dc, before);
    ::ReleaseDC(control, dc);
    return {room.right + box, room.bottom};
}

class GermanSheet : public ::testing::Test {
protected:
    GermanSheet() : frame(kinds.Drawing()) { kinds.Select(kEverything); }
    void SetUp() override {
        ASSERT_EQ(PRIMARYLANGID(::GetUserDefaultUILanguage()), LANG_GERMAN) << "the environment has another language";
    }

    EveryKind kinds;
    HostFrame frame;
};

TEST_F(GermanSheet, HasGermanTexts) {
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        EXPECT_EQ(TextOf(user.Sheet()), L"Eigenschaften");
        EXPECT_EQ(TextOf(::GetDlgItem(user.Sheet(), IDCANCEL)), L"Abbrechen");
        const wchar_t* const tabs[] = {L"Allgemein", L"Stift", L"F\u00FCllung", L"Text", L"Blockeinf\u00FCgung"};
        for (int i = 0; i < 5; ++i) {
            wchar_t title[64] = L"";
            TCITEMW item = {};
            item.mask = TCIF_TEXT;
            item.pszText = title;
            item.cchTextMax = 64;
            sheet->GetTabControl()->SendMessage(TCM_GETITEMW, i, reinterpret_cast<LPARAM>(&item));
            EXPECT_STREQ(title, tabs[i]);
        }
        user.SelectPage(1);
        const MessageBoxWatcher boxes;
        user.Type(IDC_PEN_SCALE, "abc");
        user.Ok();
        EXPECT_EQ(boxes.OnlyText(), "Bitte eine Zahl eingeben.");
    });
}

// A host in C rejects a value without a message.
TEST_F(GermanSheet, HasAGermanMessageForARejectedValue) {
    OrloField field = ORLO_INIT(OrloField);
    field.kind = kOrloFieldInteger;
    field.label = "Rating:";
    field.flags = kOrloFieldByCallback;
    OrloPage page = ORLO_INIT(OrloPage);
    page.number = 1;
    page.caption = "Room";
    page.fields = &field;
    page.fieldCount = 1;
    page.get = [](void*, GraphicStruct*, uint32_t, OrloValue*) -> int32_t { return 1; };
    page.set = [](void*, GraphicStruct*, uint32_t, const OrloValue*) -> int32_t { return 1; };
    page.check = [](void*, uint32_t, const OrloValue*, char*, size_t) -> int32_t { return 0; };
    OrloSheet sheet = ORLO_INIT(OrloSheet);
    sheet.filter = kOrloAllGraphics;
    sheet.drawing = kinds.Drawing();
    sheet.selection = kinds.Selection();
    sheet.pages = &page;
    sheet.pageCount = 1;
    int32_t code = 0;
    UserInput user(0);
    user.InDialog([&] { EXPECT_EQ(::OrloRunSheet(&sheet, &code), kOrloOk); },
                  [&](HWND window) {
                      ASSERT_TRUE(ClickTab(user, window, 5));
                      user.Replace(::GetDlgItem(ActivePageOf(window), CFieldPage::FieldID(0)), "2");
                      const MessageBoxWatcher boxes;
                      user.Click(::GetDlgItem(window, IDOK));
                      EXPECT_EQ(boxes.OnlyText(), "Bitte einen g\xFCltigen Wert eingeben.");
                      user.Click(::GetDlgItem(window, IDCANCEL));
                  });
}

void ExpectWholeTexts(HWND parent) {
    for (HWND control = ::GetWindow(parent, GW_CHILD); control != nullptr;
         control = ::GetWindow(control, GW_HWNDNEXT)) {
        char windowClass[16];
        ::GetClassNameA(control, windowClass, sizeof windowClass);
        if (::_stricmp(windowClass, "STATIC") != 0 && ::_stricmp(windowClass, "BUTTON") != 0) continue;
        const SIZE needed = NeededBy(control), room = SizeOf(control);
        EXPECT_LE(needed.cx, room.cx) << TextOf(control);
        EXPECT_LE(needed.cy, room.cy + 1) << TextOf(control);
    }
}

TEST_F(GermanSheet, ShowsCompleteTexts) {
    const auto sheet = kinds.NewSheet();
    SheetDriver().Run(*sheet, [&](SheetDriver& user) {
        ExpectWholeTexts(user.Sheet());
        for (int page = 0; page < sheet->GetPageCount(); ++page) {
            user.SelectPage(page);
            ExpectWholeTexts(user.Page());
        }
    });
}

class Pane : public CSheetPane {
public:
    explicit Pane(const EveryKind& kinds) : m_kinds(kinds) {}
    HWND SheetWindow() const { return Sheet()->m_hWnd; }

private:
    CGraphicPropertySheet* NewSheet() override { return (m_sheet = m_kinds.NewSheet()).get(); }
    void DeleteSheet() override { m_sheet.reset(); }
    bool HasGraphics() const override { return true; }

    const EveryKind& m_kinds;
    std::unique_ptr<CGraphicPropertySheet> m_sheet;
};

TEST_F(GermanSheet, ShowsCompleteButtonsOfThePane) {
    Pane pane(kinds);
    ASSERT_TRUE(pane.CreatePane(WS_POPUP, &frame, 0));
    pane.Open();
    EXPECT_EQ(TextOf(::GetDlgItem(pane.SheetWindow(), IDOK)), L"\u00DC&bernehmen");
    ExpectWholeTexts(pane.SheetWindow());
    pane.Close();
}

class AnyPage : public CPropertyPage {
public:
    AnyPage() : CPropertyPage(500, 0) {} // a template of the tests
};

TEST_F(GermanSheet, HasGermanButtonsInTheWizard) {
    AnyPage first, last;
    CWizardSheet wizard("wizard", &frame, 0);
    wizard.AddPage(&first);
    wizard.AddPage(&last);
    SheetDriver().Run(wizard, [&](SheetDriver& user) {
        EXPECT_EQ(TextOf(::GetDlgItem(user.Sheet(), 100)), L"< &Zur\u00FCck");
        EXPECT_EQ(TextOf(::GetDlgItem(user.Sheet(), 101)), L"&Weiter >");
    });
}

} // namespace
