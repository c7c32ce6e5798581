// Shows the values of the selected graphics for a field of the sheet, even if it shows that they differ: in the status
// bar when the field gets the focus, and as a tooltip. For a field of a length, the status bar reports text that is not
// a length, which the page would reject.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

class Document;

class FieldHints {
public:
    // show is called with the text for each field that gets the focus, empty if there is none.
    explicit FieldHints(std::function<void(const std::string&)> show) : m_show(std::move(show)) {}
    ~FieldHints();
    FieldHints(const FieldHints&) = delete;
    FieldHints& operator=(const FieldHints&) = delete;

    // Must be called before use. The owner also owns the tooltips.
    bool Create(HWND owner);
    // Must be called for each message to a sheet. document has the selection that the sheet edits; null if none is
    // open.
    void Watch(const MSG& message, const Document* document);

    // Must be called after a keystroke has been handled by a field.
    void ShowFocused(const Document* document);
    // Updates the hints after graphics have changed.
    void Renew();

private:
    void ShowTip(const MSG& message, const Document& document);

    std::function<void(const std::string&)> m_show;
    HWND m_tip = nullptr;
    HWND m_hovered = nullptr; // the window with the tooltip
    HWND m_focused = nullptr;
    std::string m_fault; // shown instead of the hint
};
