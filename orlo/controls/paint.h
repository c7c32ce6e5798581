// Owners and guards for drawing with the system, and the few shapes that the owner-drawn controls share. No control.
//
//   SelectedObject pen(dc, ownedPen.get());   // what was selected before comes back at the end of the block
//
// A guard without an object (null) does nothing, so that a pen or font that could not be made leaves the default.
#pragma once

#include <memory>
#include <type_traits>
#include <windows.h>

struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};

// Owns a pen, brush or font.
template <class Handle>
using OwnedGdi = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteGdiObject>;
using OwnedPen = OwnedGdi<HPEN>;
using OwnedBrush = OwnedGdi<HBRUSH>;
using OwnedFont = OwnedGdi<HFONT>;

class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object)
        : dc_(dc), before_(object ? ::SelectObject(dc, object) : nullptr) {}
    ~SelectedObject() {
        if (before_) ::SelectObject(dc_, before_);
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC dc_;
    HGDIOBJ before_;
};

// The device context of a window's client area; null if the system has none to give.
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

// Fills the rectangle (device pixels), brush and background colour of dc untouched.
void FillSolid(HDC dc, const RECT& rect, COLORREF color);

// Outline of the rectangle, not filled; width in device pixels.
void FrameRectangle(HDC dc, const RECT& rect, COLORREF color, int width);

// One line of text at a point, clipped.
void DrawClippedText(HDC dc, int x, int y, const RECT& clip, const char* text, COLORREF color);

// Black where it can be read on the window's colour, else the colour of the window's text.
COLORREF InkOnWindow();

RECT Inflated(const RECT& rect, int by);
