// Help of a sheet: the page and anchor of the guide that are opened in the browser.

#include <fstream>
#include <iterator>

#include "demo/automation/sheet_pages.h"
#include "demo/viewer.h"
#include "demo/viewer/resource.h"
#include "orlo/resources/resource.h"
#include "support/message_box_watcher.h"

namespace {

constexpr const char* kExtension = ".html";
constexpr const char* kProgram = "Orlo.TestBrowser";

std::string GetDefault(const std::string& key) {
    char text[256] = "";
    DWORD size = sizeof text;
    ::RegGetValueA(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
}

void SetDefault(const std::string& key, const std::string& text) {
    ASSERT_EQ(::RegSetKeyValueA(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text.c_str(),
                                static_cast<DWORD>(text.size() + 1)),
              ERROR_SUCCESS);
}

std::string ProgramFolder() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program(path);
    return program.substr(0, program.find_last_of('\\') + 1);
}

// The drawing, with a browser program of the test.
class Help : public Viewer {
protected:
    Help() : before(GetDefault(kExtension)), log("") {
        SetDefault(kExtension, kProgram);
        SetDefault(std::string(kProgram) + "\\shell\\open\\command",
                   '"' + ProgramFolder() + "test_browser.exe\" \"%1\"");
        ::SetEnvironmentVariableA("BROWSER_LOG", log.Path().c_str());
        ::DeleteFileA(log.Path().c_str());
        user.Key('A', UserInput::kControl);
    }
    ~Help() override {
        SetDefault(kExtension, before);
        ::RegDeleteTreeA(HKEY_CLASSES_ROOT, kProgram);
        EXPECT_TRUE(boxes.Boxes().empty()) << boxes.OnlyText();
    }

    // Returns the anchor that an action opens, and checks that the guide contains it.
    std::string RequestedPage(const std::function<void()>& action) {
        action();
        std::string command; // also empty while the file is being renamed
        for (int i = 0; i < 500 && (command = log.Read()).empty(); ++i)
            user.Wait(10);
        ::DeleteFileA(log.Path().c_str());
        const size_t url = command.find("\"file:///"), anchor = command.find("/help/user-guide.html#");
        if (url == std::string::npos || anchor == std::string::npos || command.back() != '"') return command;
        const std::string topic = command.substr(command.find('#') + 1);
        std::ifstream guide(ProgramFolder() + "help\\user-guide.html", std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(guide), {}};
        EXPECT_NE(text.find("id=\"" + topic), std::string::npos) << topic;
        return topic.substr(0, topic.size() - 1);
    }

    const std::string before; // previously registered
    DrawingFile log;
    MessageBoxWatcher boxes;
};

TEST_F(Help, IsForTheActivePageByKeyAndByButton) {
    user.InDialog(
        [&] { user.Key(VK_RETURN, UserInput::kAlt); },
        [&](HWND sheet) {
            EXPECT_EQ(RequestedPage([&] { user.Key(VK_F1); }), "general");
            for (const auto& [page, topic] : {std::pair(1, "pen"), std::pair(2, "brush"), std::pair(3, "text")}) {
                ASSERT_TRUE(ClickTab(user, sheet, page));
                EXPECT_EQ(RequestedPage([&] { user.Click(::GetDlgItem(sheet, ID_HELP)); }), topic);
            }
            user.Key(VK_ESCAPE);
        });
}

TEST_F(Help, IsForThePageOfThePaneOrTheViewer) {
    user.Key(VK_F6);
    user.Key(VK_TAB, UserInput::kControl);
    EXPECT_EQ(RequestedPage([&] { user.Key(VK_F1); }), "pen");
    user.Key(VK_F6);
    EXPECT_EQ(RequestedPage([&] { ::SendMessageA(frame->m_hWnd, WM_COMMAND, ID_HELP_GUIDE, 0); }), "the-viewer");
    user.InDialog([&] { user.Key('L', UserInput::kControl); },
                  [&](HWND) {
                      EXPECT_EQ(RequestedPage([&] { user.Key(VK_F1); }), "the-viewer");
                      user.Key(VK_ESCAPE);
                  });
}

} // namespace
