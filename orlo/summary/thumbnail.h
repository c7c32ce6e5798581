// Draws the thumbnail of a document summary into a rectangle of a device context: device-independent bitmaps and
// metafile pictures in memory.
//
//   DrawThumbnailValue(value, size, dc, &rect)   // returns 1: centered in rect, with its aspect ratio
//   DrawDIB(header, dc, &rect, 0)                // returns the number of lines drawn: fills rect
//   // both return 0 and draw nothing if the picture's header declares more data than there is
//
// Pictures are untrusted data. Each is checked completely before it is passed to the system, and nothing is drawn if
// the check fails. The check covers the length only where it is known: prefer DrawThumbnailValue for data from files.
// The other functions have no length and use the readable memory at the pointer as the limit.
//
// The rectangle is in device pixels for metafile pictures and in units of the device context for bitmaps, which are
// equal in the default mapping mode. The state of the device context is preserved. No function shows a message.
#pragma once

#include <windows.h>

#include "orlo/export.h"
#include "orlo/host/picture.h"

// A picture with its clipboard format.
struct ThumbnailClip {
    DWORD cbSize;                 // must not be 0; otherwise ignored
    DWORD dwTag;                  // 0xFFFFFFFF: a format of the system
    const unsigned char* pFormat; // first byte: 3 for a metafile picture, 8 for a device-independent bitmap
    const void* pData;            // the picture, owned by the caller
};

// Draws with the picture's aspect ratio. Returns 0 if the record is invalid or the format is not 3 or 8.
ORLO_API int DrawThumbnail(const ThumbnailClip* pClip, HDC hDC, const RECT* pRect);

// Draws the value of a thumbnail property as stored after its length: format tag, format and picture; cb bytes in
// total. Otherwise like DrawThumbnail.
ORLO_API int DrawThumbnailValue(const void* pValue, DWORD cb, HDC hDC, const RECT* pRect);

// Returns the number of lines drawn by StretchDIBits, or 0. Rejects top-down bitmaps.
ORLO_API int DrawDIB(const BITMAPINFOHEADER* pDIB, HDC hDC, const RECT* pRect, int bKeepAspect);

// Returns 1 or 0. Paints nothing outside the rectangle. Skips records for printers, records that realize a palette, and
// bitmaps in the format of a 16-bit device; a pattern in that format paints nothing. Also skips shapes and pens that
// extend more than 32,768 pixels from the picture's origin, and text whose glyphs would cover more than 64 million
// pixels in total.
ORLO_API int DrawMetaFilePict(const void* pPict, HDC hDC, const RECT* pRect, int bKeepAspect);

// Creates a bitmap of that size in pixels with the picture on white, which the caller deletes. The bitmap is all white
// if the picture cannot be drawn. Returns null if there is no picture or no bitmap can be created.
ORLO_API HBITMAP CreateBitmapFromMetaFilePict(const void* pPict, const SIZE* pSize);
