// Fits pictures, draws bitmaps and plays metafiles.

#include "orlo/summary/thumbnail.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "orlo/propset/bytes.h"
#include "orlo/summary/dib_layout.h"
#include "orlo/summary/fitting.h"
#include "orlo/summary/metafile_check.h"
#include "orlo/summary/metafile_player.h"
#include "orlo/summary/readable_bytes.h"
#include "orlo/win/gdi.h"

using orlo::LittleEndian;
using orlo::Place;
using orlo::Readable;
using orlo::ReadableFrom;

namespace {

constexpr DWORD kSystemFormat = 0xFFFFFFFF;

bool IsEmpty(const RECT* rect) {
    return !rect || rect->right <= rect->left || rect->bottom <= rect->top;
}

Place PlaceIn(const RECT& rect, double sourceWidth, double sourceHeight, bool keepAspect) {
    const Place target = {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    return keepAspect ? orlo::Fitted(target, sourceWidth, sourceHeight) : target;
}

int DrawBitmap(const Readable& dib, HDC dc, const RECT* rect, bool keepAspect) {
    if (!dc || IsEmpty(rect)) return 0;
    const auto layout = orlo::ReadDibLayout(dib.data, dib.size, orlo::DibColors::Rgb);
    if (!layout || layout->topDown || layout->headerSize < sizeof(BITMAPINFOHEADER)) return 0;
    // The host determines where the pixels begin.
    const size_t pixels = layout->headerSize + ::PaletteSize(dib.data);
    if (pixels > dib.size || layout->pixelBytes > dib.size - pixels) return 0;
    const Place to = PlaceIn(*rect, layout->width, layout->height, keepAspect);
    return ::StretchDIBits(dc, to.left, to.top, to.width, to.height, 0, 0, layout->width, layout->height,
                           dib.data + pixels, reinterpret_cast<const BITMAPINFO*>(dib.data), DIB_RGB_COLORS, SRCCOPY);
}

struct DeleteHandleOfMetaFile {
    void operator()(HMETAFILE metafile) const { ::DeleteMetaFile(metafile); }
};
using OwnedMetaFile = std::unique_ptr<std::remove_pointer_t<HMETAFILE>, DeleteHandleOfMetaFile>;

// Creates a metafile from the checked records, an end-of-file record and trailing zeros. Drawing always reads the full
// size of a font record's name, even beyond the end of a shorter record.
OwnedMetaFile MakeMetaFile(const orlo::MetaFilePicture& picture) {
    constexpr uint32_t kEnd[] = {3, 0};
    constexpr size_t kEndBytes = 6, kZeros = 64, kSizeField = 6;
    std::vector<uint8_t> bits(picture.end + kEndBytes + kZeros);
    std::copy_n(picture.bits, picture.end, bits.begin());
    std::memcpy(bits.data() + picture.end, kEnd, kEndBytes);
    const auto words = static_cast<uint32_t>(bits.size() / 2);
    std::memcpy(bits.data() + kSizeField, &words, sizeof words);
    return OwnedMetaFile(::SetMetaFileBitsEx(static_cast<UINT>(bits.size()), bits.data()));
}

// Limits painting in a way that the metafile cannot undo by selecting its own clip region.
void LimitPaintingTo(HDC dc, const RECT& rect) {
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
    ::IntersectClipRect(dc, rect.left, rect.top, rect.right, rect.bottom);
    ::SetMetaRgn(dc);
}

int DrawPicture(const Readable& memory, HDC dc, const RECT* rect, bool keepAspect) {
    if (!dc || IsEmpty(rect)) return 0;
    const auto picture = orlo::ReadMetaFilePicture(memory.data, memory.size);
    if (!picture) return 0;
    const OwnedMetaFile metafile = MakeMetaFile(*picture);
    if (!metafile) return 0;
    const Place to = PlaceIn(*rect, picture->xExtent, picture->yExtent, keepAspect);
    const orlo::SavedDC saved(dc);
    LimitPaintingTo(dc, *rect);
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetWindowExtEx(dc, picture->xExtent, picture->yExtent, nullptr);
    ::SetViewportOrgEx(dc, to.left, to.top, nullptr);
    ::SetViewportExtEx(dc, to.width, to.height, nullptr);
    orlo::PlayPicture(dc, metafile.get());
    return 1;
}

int DrawByFormat(unsigned format, const Readable& picture, HDC dc, const RECT* rect) {
    if (format == CF_METAFILEPICT) return DrawPicture(picture, dc, rect, true);
    if (format == CF_DIB) return DrawBitmap(picture, dc, rect, true);
    return 0;
}

} // namespace

int DrawDIB(const BITMAPINFOHEADER* pDIB, HDC hDC, const RECT* pRect, int bKeepAspect) {
    return pDIB ? DrawBitmap(ReadableFrom(pDIB), hDC, pRect, bKeepAspect != 0) : 0;
}

int DrawMetaFilePict(const void* pPict, HDC hDC, const RECT* pRect, int bKeepAspect) {
    return pPict ? DrawPicture(ReadableFrom(pPict), hDC, pRect, bKeepAspect != 0) : 0;
}

int DrawThumbnail(const ThumbnailClip* pClip, HDC hDC, const RECT* pRect) {
    if (!pClip || pClip->cbSize == 0 || !pClip->pData || !pClip->pFormat || pClip->dwTag != kSystemFormat) return 0;
    return DrawByFormat(*pClip->pFormat, ReadableFrom(pClip->pData), hDC, pRect);
}

int DrawThumbnailValue(const void* pValue, DWORD cb, HDC hDC, const RECT* pRect) {
    constexpr DWORD kHead = 8;
    const auto value = static_cast<const uint8_t*>(pValue);
    if (!value || cb < kHead || LittleEndian<uint32_t>(value) != kSystemFormat) return 0;
    return DrawByFormat(LittleEndian<uint32_t>(value + 4), {value + kHead, cb - kHead}, hDC, pRect);
}

HBITMAP CreateBitmapFromMetaFilePict(const void* pPict, const SIZE* pSize) {
    if (!pPict || !pSize) return nullptr;
    orlo::OwnedDC memory;
    orlo::OwnedBitmap bitmap;
    {
        const orlo::WindowDC screen(nullptr);
        memory.reset(::CreateCompatibleDC(screen.get()));
        bitmap.reset(::CreateCompatibleBitmap(screen.get(), pSize->cx, pSize->cy));
    }
    if (!memory || !bitmap) return nullptr;
    {
        const orlo::SelectedObject selected(memory.get(), bitmap.get());
        if (!selected) return nullptr;
        const RECT whole = {0, 0, pSize->cx, pSize->cy};
        ::PatBlt(memory.get(), 0, 0, pSize->cx, pSize->cy, WHITENESS);
        DrawMetaFilePict(pPict, memory.get(), &whole, 1);
    }
    return bitmap.release();
}
