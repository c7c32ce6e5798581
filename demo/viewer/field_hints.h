// What the selected graphics have in a field of the sheet, also where it only shows that they differ: as text for the
// status bar when the field gets the focus, and as a tip beside the pointer. In a field of a length the status bar says
// so while the text is not a length, which the page refuses.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

class Document;

class FieldHints {
public:
    // show is called with the text of each field that gets the focus; empty if there is nothing to tell.
    explicit FieldHints(std::function<void(const std::string&)> show) : m_show(std::move(show)) {}
    ~FieldHints();
    FieldHints(const FieldHints&) = delete;
    FieldHints& operator=(const FieldHints&) = delete;

    // Before it is used; the tips are the owner's.
    bool Create(HWND owner);
    // For each message that a sheet is about to get. document: whose selection the sheet is over; null: none is open.
    void Watch(const MSG& message, const Document* document);

    // For the time after such a message, when a key has been typed into a field.
    void ShowFocused(const Document* document);
    // To be called when graphics have changed: hints are made anew.
    void Renew();

private:
    void ShowTip(const MSG& message, const Document& document);

    std::function<void(const std::string&)> m_show;
    HWND m_tip = nullptr;
    HWND m_hovered = nullptr; // the tip's window
    HWND m_focused = nullptr;
    std::string m_fault; // that is shown in place of the hint
};
