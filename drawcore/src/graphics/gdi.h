// RAII owners of GDI objects, and guards that restore the previous state.
#pragma once

#include <memory>
#include <type_traits>

#include <windows.h>

namespace drawcore {

struct DeleteGdiObject {
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
struct DeleteGdiDC {
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};

using OwnedPen = std::unique_ptr<std::remove_pointer_t<HPEN>, DeleteGdiObject>;
using OwnedBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteGdiObject>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;
using OwnedDC = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteGdiDC>;

class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), before_(::SelectObject(dc, object)) {}
    ~SelectedObject() { ::SelectObject(dc_, before_); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC dc_;
    HGDIOBJ before_;
};

// Saves the state of a device context and restores it.
class SavedDC {
public:
    explicit SavedDC(HDC dc) : dc_(dc), mark_(::SaveDC(dc)) {}
    ~SavedDC() { ::RestoreDC(dc_, mark_); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC dc_;
    int mark_;
};

} // namespace drawcore
