// A common interface to the items of combo boxes and list boxes, so that code for both is written once.
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

    // Returns the index of the new item, negative on failure. Insert at -1 appends, even if the control sorts.
    int Add(const char* text) const;
    int Insert(int index, const char* text) const;

    // Returns the index of the item with that text, ignoring case, or -1.
    int FindExact(const char* text) const;
    // Returns the index of the item with that text, ignoring case. If there is none, adds it first, with add(text) if
    // given.
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
    // Selects the next item after `from` (-1: from the start) with that prefix, wrapping around. Returns false,
    // changing nothing, if there is none.
    bool SelectPrefix(int from, const char* prefix) const;

    // Return whether the message adds or removes items, adds one with a text, or removes all.
    bool IsChange(UINT message) const;
    bool IsAddition(UINT message) const;
    bool IsReset(UINT message) const;
    // Returns whether the message selects an item.
    bool IsSelection(UINT message) const;

    // Sets the height of a row in device pixels; -1 is the closed field of a combo box. If all rows have the same
    // height, any index sets them all.
    void SetRowHeight(int index, int height) const;

    // Retrieves the item's text. Returns false, with the text emptied, if the item does not exist.
    bool GetText(int index, CString& text) const;
    // Does the same with a buffer, truncating longer texts.
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
