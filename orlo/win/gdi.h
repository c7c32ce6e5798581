// Owners of what drawing takes from the system, and guards that put back what was set before. Every room with windows uses
// these: nothing is released by hand.
//
//   const orlo::OwnedPen pen(::CreatePen(PS_SOLID, 1, color));
//   const orlo::SelectedObject selected(dc, pen.get());   // what was selected before comes back at the end of the block
//
// A guard without an object (null) does nothing, so that a pen or font that could not be made leaves the default.
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
// Of CreateCompatibleDC.
using OwnedDC = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteMemoryDC>;

class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object)
        : dc_(dc), before_(object ? ::SelectObject(dc, object) : nullptr) {}
    ~SelectedObject() {
        if (before_) ::SelectObject(dc_, before_);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

    // Whether the object is selected: a bitmap may be refused.
    explicit operator bool() const { return before_ != nullptr; }

private:
    HDC dc_;
    HGDIOBJ before_;
};

// The device context of a window's client area, or with null of the screen; get() is null if the system has none left.
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

// Text in that colour on whatever is below it.
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

// Everything that foreign drawing code may leave behind in a device context: objects, clipping, mapping.
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
