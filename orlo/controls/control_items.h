// The items of a combo box or a list box under one set of names, so that what treats both alike is written once.
//
//   ControlItems items = ControlItems::OfCombo(hWnd);
//   items.Select(items.FindExact("ByLayer"));   // not found is -1, and selecting -1 clears the selection
//
// A window that no longer exists, or is another kind of control, has no items and accepts none.
#pragma once

#include <afxwin.h>

class ControlItems {
public:
    static ControlItems OfCombo(HWND window);
    static ControlItems OfList(HWND window);

    int Count() const;
    int Selected() const;
    void Select(int index) const;
    void Clear() const;

    // Index of the new item, negative on failure. Insert at -1 appends, whatever the control's sort style.
    int Add(const char* text) const;
    int Insert(int index, const char* text) const;

    // Without regard to case; -1 if not found.
    int FindExact(const char* text) const;
    int FindPrefix(const char* prefix) const;
    // The item with exactly that text, without regard to case. A text that is not in the list is added first, with
    // add(text) if given.
    int FindOrAdd(const char* text) const {
        return FindOrAdd(text, [this](const char* item) { Add(item); });
    }
    template <class AddItem>
    int FindOrAdd(const char* text, AddItem add) const {
        const int index = FindExact(text);
        if (index >= 0) return index;
        add(text);
        return FindExact(text);
    }
    // Selects the first item after `from` (-1: of all) with that prefix, wrapping around; false, with nothing changed,
    // if there isn't one.
    bool SelectPrefix(int from, const char* prefix) const;

    // Whether the message adds or removes items.
    bool IsChange(UINT message) const;
    // Whether the message selects one.
    bool IsSelection(UINT message) const;

    // Height of a row in device pixels; -1 is the closed field of a combo. Where all rows are alike, any row sets them
    // all.
    void SetRowHeight(int index, int height) const;

    // The item's text; false, with text emptied, without such an item.
    bool GetText(int index, CString& text) const;
    // The same into a buffer; what does not fit is cut off.
    bool GetText(int index, char* buffer, int size) const;

private:
    struct Messages;
    static const Messages kCombo, kList;

    ControlItems(HWND window, const Messages& messages) : window_(window), messages_(&messages) {}
    int Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int SendText(UINT message, int index, const char* text) const;

    HWND window_;
    const Messages* messages_;
};
