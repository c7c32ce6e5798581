// Loading and unloading the library at run time, twice, together with host resources of the same numbers. This program
// is not linked with the library.

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <utility>

#include "orlo/entry/entry.h"
#include "orlo/resources/resource.h"
#include "support/graphic_kit.h"
#include "support/host_frame.h"
#include "support/message_box_watcher.h"
#include "support/pixels.h"
#include "support/sheet_driver.h"

namespace {

// A loaded copy of the library.
class Copy {
public:
    explicit Copy(const std::string& file) : m_module(::LoadLibraryA(file.c_str())) {
        if (m_module == nullptr) throw std::runtime_error(file + " cannot be loaded");
        Function<decltype(::PropPageInit)>("PropPageInit")();
    }
    ~Copy() { ::FreeLibrary(m_module); }
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;

    HMODULE Module() const { return m_module; }

    // Opens a sheet for the kit's graphics and runs the script.
    int Run(GraphicKit& kit, SheetDriver::Script script) const {
        // The class belongs to the library; this program only knows its base class in the framework.
        void* made = Function<decltype(::InitGraphicPropertySheet)>("InitGraphicPropertySheet")(
            nullptr, nullptr, kit.Drawing(), kit.Selection(), kAllGraphics);
        const std::unique_ptr<CPropertySheet> sheet(static_cast<CPropertySheet*>(made));
        for (size_t i = 0; i < kit.Size(); ++i)
            Function<decltype(::AddGraphicPropertyPage)>("AddGraphicPropertyPage")(
                nullptr, kit[i].graphic, static_cast<CGraphicPropertySheet*>(made));
        return SheetDriver().Run(*sheet, std::move(script));
    }

private:
    template <class F>
    F* Function(const char* name) const {
        return reinterpret_cast<F*>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }

    HMODULE m_module;
};

class LibraryLife : public ::testing::Test {
protected:
    LibraryLife() {
        kit.Add({{kPropPenWidth, 1.0}, {kPropPenScale, 1.0}});
        kit.Add({{kPropTextSize, 1.0}}, kGraphicText);
    }

    // Checks that General, Pen, Brush and Text are complete, and that a pen is written.
    void ExpectWorking(const Copy& copy, double scale) {
        EXPECT_EQ(copy.Run(kit,
                           [&](SheetDriver& user) {
                               ASSERT_GT(::SendMessageA(user.Control(IDC_LAYER), CB_GETCOUNT, 0, 0), 0);
                               user.SelectPage(1);
                               ASSERT_GT(::SendMessageA(user.Control(IDC_LINE_STYLE_LIST), LB_GETCOUNT, 0, 0), 0);
                               user.Type(IDC_PEN_SCALE, std::to_string(scale));
                               user.Ok();
                           }),
                  IDOK);
        EXPECT_EQ(scale, kit[0].Number(kPropPenScale));
    }

    GraphicKit kit;
    HostFrame frame{kit.Drawing()};
};

TEST_F(LibraryLife, CanBeLoadedAHundredTimesAtDifferentAddresses) {
    void* taken = nullptr; // every second time the address of the previous copy
    for (int i = 1; i <= 100 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        HMODULE place;
        {
            const Copy copy("orlo.dll");
            place = copy.Module();
            EXPECT_NE(taken, place);
            ExpectWorking(copy, i);
        }
        EXPECT_EQ(::GetModuleHandleA("orlo.dll"), nullptr);
        WNDCLASSA left;
        EXPECT_FALSE(::GetClassInfoA(::GetModuleHandleA(nullptr), "QXComboBox", &left));
        EXPECT_FALSE(::GetClassInfoA(::GetModuleHandleA(nullptr), "QXListBox", &left));
        if (taken != nullptr) ::VirtualFree(taken, 0, MEM_RELEASE);
        taken = i % 2 ? ::VirtualAlloc(place, 1, MEM_RESERVE, PAGE_NOACCESS) : nullptr;
        EXPECT_EQ(i % 2 ? place : nullptr, taken);
    }
    if (taken != nullptr) ::VirtualFree(taken, 0, MEM_RELEASE);
    // A copy that is not registered with the framework yet must not be found through the previous one.
    const HMODULE reloaded = ::LoadLibraryA("orlo.dll");
    EXPECT_NE(reloaded, AfxFindResourceHandle(MAKEINTRESOURCEA(IDD_PEN_PAGE), reinterpret_cast<LPCSTR>(RT_DIALOG)));
    ::FreeLibrary(reloaded);
}

TEST_F(LibraryLife, TwoCopiesWorkIndependently) {
    char own[MAX_PATH];
    ::GetModuleFileNameA(nullptr, own, MAX_PATH);
    const std::string path = own, folder = path.substr(0, path.rfind('\\') + 1);
    const std::string second = folder + "orlo_second_copy.dll";
    ASSERT_TRUE(::CopyFileA((folder + "orlo.dll").c_str(), second.c_str(), FALSE));
    {
        auto first = std::make_unique<Copy>("orlo.dll");
        const Copy other(second);
        ASSERT_NE(first->Module(), other.Module());
        ExpectWorking(*first, 2);
        ExpectWorking(other, 3);
        first.reset();
        ExpectWorking(other, 4);
        first = std::make_unique<Copy>("orlo.dll");
        ExpectWorking(*first, 5);
        ExpectWorking(other, 6);
    }
    ::DeleteFileA(second.c_str());
}

// Returns the numbers of the strings, dialogs and icons of a module.
std::set<std::string> NumbersOf(HMODULE module) {
    std::set<std::string> numbers;
    for (UINT id = 0; id <= UINT16_MAX; ++id) {
        char text[16];
        if (::LoadStringA(module, id, text, sizeof text) > 0) numbers.insert("string " + std::to_string(id));
        for (const auto& [type, name] : {std::pair(RT_DIALOG, "dialog "), std::pair(RT_GROUP_ICON, "icon ")})
            if (::FindResourceA(module, MAKEINTRESOURCEA(id), reinterpret_cast<LPCSTR>(type)) != nullptr)
                numbers.insert(name + std::to_string(id));
    }
    return numbers;
}

// The resources in colliding_host.rc with all of the library's numbers belong to the host.
TEST_F(LibraryLife, FindsItsOwnResources) {
    const Copy copy("orlo.dll");
    const auto hosts = NumbersOf(::GetModuleHandleA(nullptr));
    for (const std::string& number : NumbersOf(copy.Module()))
        EXPECT_EQ(hosts.count(number), 1u) << "colliding_host.rc has no " << number;
    copy.Run(kit, [&](SheetDriver& user) {
        char caption[64];
        ::GetWindowTextA(user.Sheet(), caption, sizeof caption);
        EXPECT_STREQ(caption, "Properties");
        const HWND layers = user.Control(IDC_LAYER);
        ASSERT_NE(layers, nullptr);
        Pixels pixels(60, 20);
        pixels.Clear(RGB(1, 2, 3));
        const RECT eye = {0, 0, 16, 20};
        DRAWITEMSTRUCT draw = {ODT_COMBOBOX, IDC_LAYER, 0, ODA_DRAWENTIRE, 0, layers, pixels.DC(), {0, 0, 60, 20}, 0};
        ::SendMessageA(user.Page(), WM_DRAWITEM, IDC_LAYER, reinterpret_cast<LPARAM>(&draw));
        EXPECT_GT(pixels.CountWhere(eye, [](COLORREF c) { return c != ::GetSysColor(COLOR_WINDOW); }), 0);
        user.SelectPage(3);
        EXPECT_EQ(user.ItemText(IDC_FONT_STYLE, 0), "Regular");
        EXPECT_EQ(user.ItemText(IDC_FONT_STYLE, 1), "Italic");
        {
            const MessageBoxWatcher boxes;
            user.Type(IDC_FONT_SIZE, "0");
            user.Ok();
            EXPECT_EQ(boxes.OnlyText(), "Please enter a valid font size.");
        }
        user.Type(IDC_FONT_SIZE, "1");
        user.SelectPage(1);
        const MessageBoxWatcher boxes; // a message with a number of the framework
        user.Type(IDC_PEN_SCALE, "abc");
        user.Ok();
        EXPECT_EQ(boxes.OnlyText(), "Please enter a number.");
    });
}

} // namespace
