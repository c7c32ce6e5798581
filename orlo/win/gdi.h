// RAII owners of GDI objects, and guards that restore the previous state of a device context. All modules with windows
// use them, so that no code releases objects itself.
//
//   const orlo::OwnedPen pen(::CreatePen(PS_SOLID, 1, color));
//   const orlo::SelectedObject selected(dc, pen.get());   // the previous pen is selected again at the end of the block
//
// A guard for a null object does nothing: if a pen or font cannot be created, the default is used.
#pragma once

#include <memory>
#include <type_traits>
#include <windows.h>

namespace orlo {

struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};

struct DeleteMemoryDC {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};

// Owns a pen, brush, font or bitmap.
template <class Handle>
using OwnedGdi = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteGdiObject>;
using OwnedPen = OwnedGdi<HPEN>;
using OwnedBrush = OwnedGdi<HBRUSH>;
using OwnedFont = OwnedGdi<HFONT>;
using OwnedBitmap = OwnedGdi<HBITMAP>;
// Owns a device context created with CreateCompatibleDC.
using OwnedDC = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDC>;

// Selects an object into a device context; the destructor selects the previous one again.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), previous_(object ? ::SelectObject(dc, object) : nullptr) {}
    ~SelectedObject() {
        if (previous_) ::SelectObject(dc_, previous_);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

    // Returns true if the object was selected. Selection can fail: a bitmap, for example, cannot be selected twice.
    explicit operator bool() const { return previous_ != nullptr; }

private:
    HDC dc_;
    HGDIOBJ previous_;
};

// Owns the device context of a window's client area or, if the window is null, of the screen. get() returns null if
// none is available.
class WindowDC {
public:
    explicit WindowDC(HWND window) : window_(window), dc_(::GetDC(window)) {}
    ~WindowDC() {
        if (dc_) ::ReleaseDC(window_, dc_);
    }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;

    HDC get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

// Sets the text color and a transparent background; the destructor restores both.
class TextColor {
public:
    TextColor(HDC dc, COLORREF color)
        : dc_(dc), color_(::SetTextColor(dc, color)), mode_(::SetBkMode(dc, TRANSPARENT)) {}
    ~TextColor() {
        ::SetBkMode(dc_, mode_);
        ::SetTextColor(dc_, color_);
    }
    TextColor(const TextColor&) = delete;
    TextColor& operator=(const TextColor&) = delete;

private:
    HDC dc_;
    COLORREF color_;
    int mode_;
};

// Saves the state of a device context and restores it after a call of host code: selected objects, clipping, mapping.
class SavedDC {
public:
    explicit SavedDC(HDC dc) : dc_(dc), level_(::SaveDC(dc)) {}
    ~SavedDC() {
        if (level_) ::RestoreDC(dc_, level_);
    }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC dc_;
    int level_;
};

} // namespace orlo
