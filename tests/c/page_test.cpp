// Pages of a host in C, and the modeless sheet.

#include <afxwin.h>
#include <orlo_c.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "demo/automation/control_text.h"
#include "demo/automation/sheet_pages.h"
#include "demo/automation/user_input.h"
#include "drawcore/selection.h"
#include "orlo/frame/sheet_pane.h"
#include "orlo/pages/field_page.h"
#include "orlo/resources/resource.h"
#include "orlo/win/child_windows.h"
#include "support/graphic_kit.h"
#include "support/message_box_watcher.h"
#include "support/object_counts.h"

namespace {

constexpr int kRating = CFieldPage::FieldID(0), kPrice = CFieldPage::FieldID(1), kPick = CFieldPage::FieldID(2);

std::string ErrorText() {
    char text[256];
    OrloGetErrorText(text, sizeof text);
    return text;
}

// A host with a fire rating in its property table and a price in its own table.
class CPages : public ::testing::Test {
protected:
    CPages() {
        for (const int rating : {1, 1})
            kit.Add({{"Rating", rating}, {kPropLayer, 1}, {kPropInfo, "wall"}});
        prices = {{kit[0].graphic, 10.0}, {kit[1].graphic, 20.0}};
        fields[0].kind = kOrloFieldInteger;
        fields[0].label = "Fire &rating:";
        fields[0].property = "Rating";
        fields[0].help = "In hours, f\xC3\xBCr alle";
        fields[0].max = 9;
        fields[1].kind = kOrloFieldNumber;
        fields[1].label = "&Price:";
        fields[1].flags = kOrloFieldByCallback;
        fields[2].kind = kOrloFieldButton;
        fields[2].label = "...";
        for (OrloField& field : fields)
            field.size = sizeof field;
        page.size = sizeof page;
        page.number = 7;
        page.caption = "Room";
        page.fields = fields;
        page.fieldCount = 3;
        page.get = Get;
        page.set = Set;
        page.check = Check;
        page.press = Press;
        page.status = Status;
        page.context = this;
        sheet.size = sizeof sheet;
        sheet.filter = kAllGraphics;
        sheet.drawing = kit.Drawing();
        sheet.selection = kit.Selection();
        sheet.context = this;
        sheet.pages = &page;
        sheet.pageCount = 1;
        sheet.written = [](void* self, uint32_t changed, uint32_t rejected) {
            Self(self).written.push_back({changed, rejected});
            Self(self).CallBack();
        };
        sheet.closed = [](void* self) {
            ++Self(self).closed;
            Self(self).CallBack();
        };
        sheet.reset = [](void* self) { ++Self(self).resets; };
    }

    static CPages& Self(void* context) { return *static_cast<CPages*>(context); }
    static int32_t ORLO_CALL Get(void* context, GraphicStruct* graphic, uint32_t field, OrloValue* value) {
        EXPECT_EQ(field, 1u);
        const auto found = Self(context).prices.find(graphic);
        if (found == Self(context).prices.end()) return 0;
        value->number = found->second;
        return 1;
    }
    static int32_t ORLO_CALL Set(void* context, GraphicStruct* graphic, uint32_t, const OrloValue* value) {
        Self(context).prices.at(graphic) = value->number;
        return 1;
    }
    static int32_t ORLO_CALL Check(void*, uint32_t field, const OrloValue* value, char* message, size_t size) {
        if (field != 1 || value->number >= 0) return 1;
        strncpy(message, "Nothing costs less than nothing.", size);
        return 0;
    }
    static int32_t ORLO_CALL Press(void* context, uint32_t field) {
        EXPECT_EQ(field, 2u);
        for (auto& [graphic, price] : Self(context).prices)
            price = 42;
        Self(context).CallBack();
        return 1;
    }
    static void ORLO_CALL Status(void* context, const char* help) { Self(context).help = help; }

    void CallBack() {
        if (!callback) return;
        ++callbacks;
        callback();
    }

    // Opens the sheet on the host's page and closes it by OK.
    void RunOk(const std::function<void(HWND sheet)>& script) {
        int32_t code = 0;
        user.InDialog([&] { EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloOk) << ErrorText(); },
                      [&](HWND window) {
                          ShowRoom(window);
                          script(window);
                          user.Click(::GetDlgItem(window, IDOK));
                      });
        EXPECT_EQ(code, IDOK);
    }
    // The host's page is the last one.
    void ShowRoom(HWND window) { ASSERT_TRUE(ClickTab(user, window, static_cast<int>(PageTitles(window).size()) - 1)); }
    void Type(HWND window, int id, const char* text) { user.Replace(::GetDlgItem(ActivePageOf(window), id), text); }
    std::string Shown(HWND window, int id) { return WindowText(::GetDlgItem(ActivePageOf(window), id)); }

    struct Counts {
        uint32_t changed, rejected;
        bool operator==(const Counts& other) const { return changed == other.changed && rejected == other.rejected; }
    };
    GraphicKit kit;
    std::map<GraphicStruct*, double> prices;
    OrloField fields[3] = {};
    OrloPage page = {};
    OrloSheet sheet = {};
    std::vector<Counts> written;
    int closed = 0, resets = 0;
    std::function<void()> callback; // called by press, written and closed
    int callbacks = 0;
    std::string help;
    UserInput user{0};
};

TEST_F(CPages, EditPropertiesAndTheHostsOwnData) {
    kit[1].rejected = "Rating";
    MessageBoxWatcher boxes;
    RunOk([&](HWND window) {
        EXPECT_EQ(Shown(window, kRating), "1");
        EXPECT_EQ(Shown(window, kPrice), "*****");
        Type(window, kRating, "3");
        EXPECT_EQ(help, fields[0].help);
        Type(window, kPrice, "-1");
        user.Click(::GetDlgItem(window, IDOK));
        EXPECT_EQ(boxes.OnlyText(), "Nothing costs less than nothing.");
        EXPECT_EQ(kit.Writes(), 0);
        Type(window, kPrice, "12.5");
    });
    EXPECT_EQ(kit[0].Number("Rating"), 3);
    EXPECT_EQ(kit[1].Number("Rating"), 1);
    for (const auto& [graphic, price] : prices)
        EXPECT_EQ(price, 12.5);
    EXPECT_EQ(written, (std::vector<Counts>{{2, 1}})) << "both accepted a price, one no rating";
}

TEST_F(CPages, ValueRejectedWithoutAMessageGetsTheLibrarys) {
    page.check = [](void*, uint32_t, const OrloValue* value, char*, size_t) -> int32_t { return value->number != 5; };
    char text[64] = "";
    EXPECT_LT(0, ::LoadStringA(::GetModuleHandleA("orlo.dll"), IDS_ENTER_VALUE, text, sizeof text));
    MessageBoxWatcher boxes;
    RunOk([&](HWND window) {
        Type(window, kRating, "5");
        user.Click(::GetDlgItem(window, IDOK));
        EXPECT_EQ(boxes.OnlyText(), text);
        Type(window, kRating, "3");
    });
    EXPECT_EQ(kit[0].Number("Rating"), 3);
}

// A dialog can show "\xCE\xA9" (a Greek omega) only as another letter, which an edit would then store.
TEST_F(CPages, TextsOutsideTheCodePageAreKept) {
    static std::map<GraphicStruct*, std::string> rooms;
    rooms = {{kit[0].graphic, "Saal \xCE\xA9"},
             {kit[1].graphic, "K\xC3\xBC"
                              "che"}};
    fields[1].kind = kOrloFieldText;
    page.check = nullptr;
    page.get = [](void*, GraphicStruct* graphic, uint32_t, OrloValue* value) -> int32_t {
        value->text = rooms.at(graphic).c_str();
        return 1;
    };
    page.set = [](void*, GraphicStruct* graphic, uint32_t, const OrloValue* value) -> int32_t {
        rooms.at(graphic) = value->text;
        return 1;
    };
    RunOk([&](HWND window) {
        EXPECT_EQ(Shown(window, kPrice), "K\xFC"
                                         "che");
        Type(window, kPrice, "B\xFCro");
    });
    EXPECT_EQ(rooms[kit[0].graphic], "Saal \xCE\xA9");
    EXPECT_EQ(rooms[kit[1].graphic], "B\xC3\xBCro");
}

TEST_F(CPages, HostButtonReloadsTheFields) {
    RunOk([&](HWND window) {
        user.Click(::GetDlgItem(ActivePageOf(window), kPick));
        EXPECT_EQ(Shown(window, kPrice), "42");
    });
    EXPECT_TRUE(written.empty());
}

TEST_F(CPages, AreAddedOnlyForTheirGraphics) {
    const uint8_t types[] = {kGraphicText, kGraphicInsert};
    page.types = types;
    page.typeCount = 2;
    int32_t code = 0;
    user.InDialog([&] { OrloRunSheet(&sheet, &code); },
                  [&](HWND window) {
                      EXPECT_EQ(PageTitles(window), (std::vector<std::string>{"General", "Pen", "Brush"}));
                      user.Click(::GetDlgItem(window, IDCANCEL));
                  });
}

// The record of the first version ends before the pages. Memory after the record is not read.
TEST_F(CPages, RecordOfTheFirstVersionIsAccepted) {
    std::memset(&sheet.pages, 0xAB, sizeof sheet - offsetof(OrloSheet, pages));
    sheet.size = offsetof(OrloSheet, pages);
    int32_t code = 0;
    user.InDialog([&] { EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloOk) << ErrorText(); },
                  [&](HWND window) { user.Click(::GetDlgItem(window, IDOK)); });
    EXPECT_EQ(code, IDOK);
    for (const size_t size : {size_t{0}, offsetof(OrloSheet, pages) - 1, sizeof sheet + 1}) {
        sheet.size = static_cast<uint32_t>(size);
        EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument);
    }
}

TEST_F(CPages, InvalidPageIsRejectedWithItsField) {
    int32_t code = 0;
    const auto expect = [&](const char* message) {
        EXPECT_EQ(OrloRunSheet(&sheet, &code), kOrloBadArgument);
        EXPECT_EQ(ErrorText(), message);
        OrloSheetHandle handle = nullptr;
        EXPECT_EQ(OrloOpenSheet(&sheet, &handle), kOrloBadArgument);
        EXPECT_EQ(handle, nullptr);
    };
    fields[1].label = nullptr;
    expect("page 0: row 1 (\"\"): the label is empty");
    fields[1].label = "&Pr\xC3\xBC"
                      "fung:";
    fields[1].kind = 99;
    expect("page 0: row 1 (\"&Pr\xC3\xBC"
           "fung:\"): the kind is unknown");
    fields[1].kind = kOrloFieldChoice;
    fields[1].choiceCount = 2;
    expect("page 0: row 1 (\"&Pr\xC3\xBC"
           "fung:\"): the array of choices is null");
    const char* const choices[] = {"Low", nullptr};
    fields[1].choices = choices;
    expect("page 0: row 1 (\"&Pr\xC3\xBC"
           "fung:\"): the text of a choice is empty");
    fields[1].kind = kOrloFieldNumber;
    fields[1].choiceCount = 0;
    page.get = nullptr;
    expect("page 0: row 1 (\"&Pr\xC3\xBC"
           "fung:\"): it is read by a callback, but the page has none");
    page.get = Get;
    page.fieldCount = 1000000;
    fields[0].size = sizeof(OrloField) + 4;
    expect("page 0: field 0 has a size that this version does not support");
    fields[0].size = sizeof(OrloField);
    page.fieldCount = 0;
    expect("page 0: the table does not have 1 to 1000 rows");
    page.fieldCount = 3;
    page.number = 29000;
    expect("page 0: the page number is not from 1 to 28999");
    page.number = 7;
    const OrloPage pages[] = {page, page};
    sheet.pages = pages;
    sheet.pageCount = 2;
    expect("page 1: another page has the number 7");
    sheet.pages = &page;
    sheet.pageCount = 1;
    page.caption = nullptr;
    expect("page 0: the caption is null");
    page.size = 8;
    expect("page 0: the record has a size that this version does not support");
    sheet.pages = nullptr;
    expect("sheet->pages is null");
}

// ---- Modeless

class CSheetWindow : public CPages {
protected:
    CSheetWindow() {
        owner = ::CreateWindowA("STATIC", "Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr,
                                nullptr, nullptr);
        sheet.owner = owner;
        EXPECT_EQ(OrloOpenSheet(&sheet, &handle), kOrloOk) << ErrorText();
        EXPECT_EQ(OrloSheetGetWindow(handle, &window), kOrloOk);
    }
    ~CSheetWindow() override {
        if (handle != nullptr) {
            EXPECT_EQ(OrloSheetClose(handle), kOrloOk);
        }
        ::DestroyWindow(owner);
    }

    HWND Sheet() const { return ::FindWindowExA(window, nullptr, "#32770", nullptr); }
    HWND Field(int id) const { return ::GetDlgItem(ActivePageOf(Sheet()), id); }
    void ShowRoom() { CPages::ShowRoom(Sheet()); }
    // Posts a key to the message loop, and handles it there as a host does.
    void Post(HWND field, UINT message, WPARAM wParam) {
        ::PostMessageA(field, message, wParam, 1);
        Pump();
    }
    void Pump() {
        MSG message;
        while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (OrloSheetTakesMessage(&message)) continue;
            ::TranslateMessage(&message);
            ::DispatchMessageA(&message);
        }
    }
    void Edit(int id, char digit) {
        ::SetFocus(Field(id));
        ::SendMessageA(Field(id), EM_SETSEL, 0, -1);
        Post(Field(id), WM_CHAR, static_cast<WPARAM>(digit));
    }

    HWND owner, window = nullptr;
    OrloSheetHandle handle = nullptr;
};

TEST_F(CSheetWindow, FollowsTheSelectionAndAppliesFirst) {
    ShowRoom();
    EXPECT_TRUE(::IsWindowEnabled(owner));
    Edit(kRating, '5');
    const auto other = orlo::host::OwnedGraphic(::SelectionNew());
    ::SelectionAdd(other.get(), kit[1].graphic);
    EXPECT_EQ(OrloSheetFollow(handle, other.get()), kOrloOk) << ErrorText();
    EXPECT_EQ(kit[0].Number("Rating"), 5);
    EXPECT_EQ(written, (std::vector<Counts>{{2, 0}}));
    EXPECT_EQ(Shown(Sheet(), kPrice), "20") << "on the same page";
    EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloOk);
    EXPECT_FALSE(::IsWindowVisible(Sheet()));
    EXPECT_EQ(OrloSheetFollow(handle, kit.Selection()), kOrloOk);
    EXPECT_EQ(Shown(Sheet(), kPrice), "*****");
}

TEST_F(CSheetWindow, RejectsInvalidInput) {
    ShowRoom();
    Edit(kRating, 'x');
    MessageBoxWatcher boxes;
    EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloInvalidInput);
    EXPECT_EQ(OrloSheetApply(handle), kOrloInvalidInput);
    EXPECT_EQ(boxes.Boxes().size(), 2u);
    EXPECT_EQ(::GetFocus(), Field(kRating));
    EXPECT_EQ(OrloSheetReset(handle), kOrloOk);
    EXPECT_EQ(resets, 1);
    Pump();
    EXPECT_EQ(Shown(Sheet(), kRating), "1") << "on the same page";
    EXPECT_EQ(kit.Writes(), 0);
}

TEST_F(CSheetWindow, HandlesTheKeysOfItsFields) {
    ShowRoom();
    Edit(kRating, '4');
    Post(Field(kRating), WM_KEYDOWN, VK_TAB);
    EXPECT_EQ(::GetFocus(), Field(kPrice));
    Post(Field(kPrice), WM_KEYDOWN, VK_RETURN); // Apply
    EXPECT_EQ(kit[1].Number("Rating"), 4);
    MSG foreign = {owner, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(OrloSheetTakesMessage(&foreign), 0);
    EXPECT_EQ(OrloSheetTakesMessage(nullptr), 0);
}

TEST_F(CSheetWindow, CanBeClosedByTheUserAndShownAgain) {
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(::IsWindowVisible(window));
    EXPECT_EQ(OrloSheetApply(handle), kOrloOk);
    EXPECT_EQ(OrloSheetFollow(handle, kit.Selection()), kOrloOk);
    EXPECT_TRUE(::IsWindowVisible(window));
    user.Click(::GetDlgItem(Sheet(), kPaneClose));
    Pump();
    EXPECT_EQ(closed, 2);
}

int asked;

LRESULT CALLBACK CountHelp(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kOrloHelpMessage) return ::DefWindowProcA(window, message, wParam, lParam);
    return ++asked;
}

TEST_F(CSheetWindow, TheOwnerIsAskedForHelp) {
    asked = 0;
    ::SetWindowLongPtrA(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountHelp));
    user.Click(::GetDlgItem(Sheet(), ID_HELP));
    EXPECT_EQ(asked, 1) << "the modeless sheet";
    int32_t code = 0;
    user.InDialog([&] { OrloRunSheet(&sheet, &code); },
                  [&](HWND modal) {
                      user.Click(::GetDlgItem(modal, ID_HELP));
                      user.Click(::GetDlgItem(modal, IDCANCEL));
                  });
    EXPECT_EQ(asked, 2) << "the modal sheet";
}

TEST_F(CSheetWindow, CloseInvalidatesTheHandle) {
    EXPECT_EQ(OrloSheetClose(handle), kOrloOk);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(OrloSheetApply(handle), kOrloBadHandle);
    EXPECT_EQ(OrloSheetClose(handle), kOrloBadHandle);
    handle = nullptr;
}

// A callback runs within a page, which the sheet must not delete then.
TEST_F(CSheetWindow, StaysAsItIsWhileACallbackRuns) {
    callback = [this] {
        EXPECT_EQ(OrloSheetClose(handle), kOrloBusy);
        EXPECT_EQ(ErrorText(), "a callback or a message box of a sheet has not returned yet");
        EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloBusy);
        EXPECT_EQ(OrloSheetApply(handle), kOrloBusy);
        EXPECT_EQ(OrloSheetReset(handle), kOrloBusy);
        ::SendMessageA(window, WM_CLOSE, 0, 0); // as from a message loop of the callback
        user.Click(::GetDlgItem(Sheet(), kPaneReset));
        EXPECT_TRUE(::IsWindowVisible(window));
    };
    ShowRoom();
    user.Click(Field(kPick));
    EXPECT_EQ(std::exchange(callbacks, 0), 1) << "press";
    Edit(kRating, '5');
    EXPECT_EQ(OrloSheetApply(handle), kOrloOk);
    EXPECT_EQ(std::exchange(callbacks, 0), 1) << "written";
    EXPECT_EQ(kit[1].Number("Rating"), 5);
    EXPECT_EQ(closed + resets, 0);
    callback = [this] { EXPECT_EQ(OrloSheetClose(handle), kOrloBusy); };
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(callbacks, 1) << "closed";
    EXPECT_EQ(closed, 1);
}

// The message box belongs to the active window, so it leaves the sheet enabled.
TEST_F(CSheetWindow, StaysOpenWhileItReportsInvalidInput) {
    ShowRoom();
    Edit(kRating, 'x');
    ::SetActiveWindow(owner);
    user.InDialog([&] { EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloInvalidInput); },
                  [&](HWND box) {
                      EXPECT_TRUE(::IsWindowEnabled(window));
                      user.Click(::GetDlgItem(Sheet(), kPaneReset));
                      user.Click(::GetDlgItem(Sheet(), kPaneClose));
                      user.Click(::GetDlgItem(box, IDOK));
                  });
    EXPECT_TRUE(::IsWindowVisible(window));
    EXPECT_EQ(::GetFocus(), Field(kRating));
    EXPECT_EQ(closed + resets, 0);
}

// As when a timer of the host calls the sheet meanwhile.
TEST_F(CSheetWindow, StaysAsItIsWhileAPageRejectsToBeLeft) {
    ShowRoom();
    Edit(kRating, 'x');
    const HWND left = ActivePageOf(Sheet());
    user.InDialog([&] { EXPECT_FALSE(ClickTab(user, Sheet(), 0)); },
                  [&](HWND box) {
                      EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloBusy);
                      EXPECT_EQ(OrloSheetClose(handle), kOrloBusy);
                      EXPECT_EQ(ActivePageOf(Sheet()), left);
                      user.Click(::GetDlgItem(box, IDOK));
                  });
    EXPECT_EQ(ActivePageOf(Sheet()), left);
    Edit(kRating, '4');
    EXPECT_EQ(OrloSheetFollow(handle, nullptr), kOrloOk);
    EXPECT_EQ(kit[1].Number("Rating"), 4);
}

TEST_F(CSheetWindow, TwoWindowsAndAModalSheetCoexist) {
    OrloSheetHandle second = nullptr;
    ASSERT_EQ(OrloOpenSheet(&sheet, &second), kOrloOk);
    EXPECT_NE(second, handle);
    int32_t code = 0;
    user.InDialog([&] { OrloRunSheet(&sheet, &code); }, [&](HWND modal) { user.Click(::GetDlgItem(modal, IDCANCEL)); });
    EXPECT_EQ(code, IDCANCEL);
    EXPECT_EQ(OrloSheetClose(handle), kOrloOk); // the first one, which brought the framework
    handle = second;
    OrloSheetGetWindow(handle, &window);
    ShowRoom();
    EXPECT_EQ(Shown(Sheet(), kRating), "1");
}

TEST_F(CPages, OpeningAndClosingLeaksNothing) {
    const auto once = [&] {
        OrloSheetHandle handle = nullptr;
        EXPECT_EQ(OrloOpenSheet(&sheet, &handle), kOrloOk);
        EXPECT_EQ(OrloSheetClose(handle), kOrloOk);
    };
    once();
    const int gdi = GdiObjectCount(), windows = UserObjectCount();
    for (int i = 0; i < 5; ++i)
        once();
    EXPECT_EQ(GdiObjectCount(), gdi);
    EXPECT_EQ(UserObjectCount(), windows);
}

} // namespace
