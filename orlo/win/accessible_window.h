// What a screen reader learns of a window, where the system would read out something else.
//
//   case WM_GETOBJECT:
//       return AnswerGetObject(m_hWnd, wParam, lParam, kLayerList);
#pragma once

#include <optional>
#include <string>
#include <windows.h>

// Describes a kind of window and the items in it. The object that a screen reader gets may outlive the window: a kind
// has no state, and answers for a window that is gone as for one without items. Texts are in the system's code page.
class AccessibleKind {
public:
    virtual ~AccessibleKind() = default;

    virtual long Role() const = 0;
    // Default: that of the label before the window, else of the group box around it.
    virtual std::string Name(HWND window) const;
    // Default: the system's.
    virtual std::optional<std::string> Value(HWND window) const;

    // The items, from 0. Default: the window has the parts that the system gives it.
    virtual std::optional<int> ItemCount(HWND window) const;
    virtual long ItemRole() const;
    virtual std::string ItemName(HWND window, int index) const;
    virtual long ItemState(HWND window, int index) const;
    virtual RECT ItemRect(HWND window, int index) const; // client coordinates
    virtual std::string ItemAction(HWND window, int index) const;
    virtual void DoItemAction(HWND window, int index) const;
    virtual void SelectItem(HWND window, int index) const;
    virtual int SelectedItem(HWND window) const; // -1: none
};

// The items of a list box.
class AccessibleListBox : public AccessibleKind {
public:
    long Role() const override;
    std::optional<int> ItemCount(HWND window) const override;
    long ItemState(HWND window, int index) const override;
    RECT ItemRect(HWND window, int index) const override;
    void SelectItem(HWND window, int index) const override;
    int SelectedItem(HWND window) const override;
};

// Handles WM_GETOBJECT. Returns 0 if the message asks for something else than the window's client area, or if the
// system has no object for it.
LRESULT AnswerGetObject(HWND window, WPARAM wParam, LPARAM lParam, const AccessibleKind& kind);

// The text of the label before a control in the order of the windows, without the mark of its mnemonic; else of the
// smallest group box around the control; empty without either.
std::string LabelOf(HWND control);

// Notifies screen readers that the value of the window has changed.
void NotifyValueChange(HWND window);
