// Answers the message boxes of this thread when they appear, and records their texts. Other dialogs are not affected.
//
//   MessageBoxWatcher boxes;                       // presses OK
//   EXPECT_TRUE(Fails([&] { DDX_Text(1, &save, kEdit, number); }));
//   EXPECT_EQ("Please enter a whole number.", boxes.OnlyText());
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class MessageBoxWatcher {
public:
    struct Box {
        std::string text;
        std::string caption;
        bool exclamation; // has the exclamation mark
    };

    // answer: the button to press: IDOK, IDYES, ...
    explicit MessageBoxWatcher(int reply = IDOK);
    ~MessageBoxWatcher();
    MessageBoxWatcher(const MessageBoxWatcher&) = delete;
    MessageBoxWatcher& operator=(const MessageBoxWatcher&) = delete;

    // In order of appearance.
    const std::vector<Box>& Boxes() const { return m_boxes; }
    // Returns the text of the only box, or a description if there was none or more than one.
    std::string OnlyText() const;
    void Clear() { m_boxes.clear(); }

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    void OnActivate(HWND window);

    static MessageBoxWatcher* s_current; // only one at a time
    HHOOK m_hook;
    int m_reply;
    HWND m_answered = nullptr;
    std::vector<Box> m_boxes;
};
