// Answers the message boxes of this thread as they come up, and keeps what they said. Other dialogs are left alone.
//
//   MessageBoxWatcher boxes;                       // answers OK
//   EXPECT_TRUE(Refused([&] { DDX_Text(1, &save, kEdit, number); }));
//   EXPECT_EQ("Please enter an integer.", boxes.OnlyText());
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class MessageBoxWatcher {
public:
    struct Box {
        std::string text;
        std::string caption;
        bool exclamation; // shows the exclamation mark
    };

    // answer: the button that is pressed, IDOK, IDYES, ...
    explicit MessageBoxWatcher(int answer = IDOK);
    ~MessageBoxWatcher();
    MessageBoxWatcher(const MessageBoxWatcher&) = delete;
    MessageBoxWatcher& operator=(const MessageBoxWatcher&) = delete;

    // In the order of their coming.
    const std::vector<Box>& Boxes() const { return m_boxes; }
    // The text of the one box that came; says so if it was none or several.
    std::string OnlyText() const;
    void Clear() { m_boxes.clear(); }

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    void OnActivate(HWND window);

    static MessageBoxWatcher* s_current; // one at a time
    HHOOK m_hook;
    int m_answer;
    HWND m_answered = nullptr;
    std::vector<Box> m_boxes;
};
