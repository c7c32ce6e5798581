// Supplies screen readers with information about a window where the system's own would be unsuitable.
//
//   case WM_GETOBJECT:
//       return HandleGetObject(m_hWnd, wParam, lParam, kLayerList);
#pragma once

#include <optional>
#include <string>
#include <windows.h>

// Describes a kind of window and its items. The accessibility object may outlive the window, so a kind has no state and
// treats a window that no longer exists as one without items. Texts are in the system's code page.
class AccessibleKind {
public:
    virtual ~AccessibleKind() = default;

    virtual long Role() const = 0;
    // By default, the text of the label before the window, else of the group box around it.
    virtual std::string Name(HWND window) const;
    // By default, the system's value.
    virtual std::optional<std::string> Value(HWND window) const;

    // Items are numbered from 0. By default, the window has the parts that the system reports.
    virtual std::optional<int> ItemCount(HWND window) const;
    virtual long ItemRole() const;
    virtual std::string ItemName(HWND window, int index) const;
    virtual long ItemState(HWND window, int index) const;
    virtual RECT ItemRect(HWND window, int index) const; // in client coordinates
    virtual std::string ItemAction(HWND window, int index) const;
    virtual void DoItemAction(HWND window, int index) const;
    virtual void SelectItem(HWND window, int index) const;
    virtual int SelectedItem(HWND window) const; // -1 without a selection
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

// Handles WM_GETOBJECT. Returns 0 if the message requests something other than the window's client area, or if the
// system has no object for it.
LRESULT HandleGetObject(HWND window, WPARAM wParam, LPARAM lParam, const AccessibleKind& kind);

// Returns the text of the label before a control in window order, without the mnemonic prefix, else the text of the
// smallest group box around the control, else an empty string.
std::string LabelOf(HWND control);

// Notifies screen readers that the value of the window has changed.
void NotifyValueChange(HWND window);
