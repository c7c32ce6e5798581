// Draws the picture of a document summary into a device context, fitted into a rectangle: device-independent
// bitmaps and metafile pictures in memory.
//
//   DrawThumbnailValue(value, size, dc, &rect)   // 1: drawn in the middle of rect, proportions kept
//   DrawDIB(header, dc, &rect, 0)                // lines drawn: it fills rect
//   a picture whose header promises more than it has: 0, and dc is as it was
//
// Pictures are foreign data. Each is checked to its last record before the system sees any of it, and one
// that doesn't pass draws nothing. The length is part of that check only where it is given: prefer
// DrawThumbnailValue for what comes from a file. The other functions know no length; for them it is what can
// be read from the pointer on.
//
// A rectangle is in device pixels for metafile pictures, in units of the device context for bitmaps; with the
// default mapping mode these are the same. The device context is left as it was. Nothing here shows a
// message.
#pragma once

#include <windows.h>

#include "orlo/export.h"
#include "orlo/host/picture.h"

// A picture with its clipboard format.
struct ThumbnailClip {
    DWORD cbSize;                 // not 0; no more is asked of it
    DWORD dwTag;                  // 0xFFFFFFFF: the format is one of the system's
    const unsigned char* pFormat; // its first byte: 3 metafile picture, 8 device-independent bitmap
    const void* pData;            // the picture; the caller's
};

// Proportions kept. 0 for a record that doesn't pass or a format other than 3 and 8.
ORLO_API int DrawThumbnail(const ThumbnailClip* pClip, HDC hDC, const RECT* pRect);

// The value of a thumbnail property as it is stored after its length: format tag, format, picture; cb bytes
// in all. As DrawThumbnail otherwise.
ORLO_API int DrawThumbnailValue(const void* pValue, DWORD cb, HDC hDC, const RECT* pRect);

// The number of lines that StretchDIBits has drawn, or 0. Bitmaps stored from the top down are refused.
ORLO_API int DrawDIB(const BITMAPINFOHEADER* pDIB, HDC hDC, const RECT* pRect, int bKeepAspect);

// 1, or 0. Nothing is painted outside of the rectangle. Records that address a printer are skipped, and
// so are those that realize a palette or hold bitmaps in the format of a 16-bit device. A pattern of that format
// paints nothing. Also skipped are shapes and pens that reach more than 32,768 pixels from the origin of the
// picture, and text whose glyphs would cover more than 64 million pixels in one picture.
ORLO_API int DrawMetaFilePict(const void* pPict, HDC hDC, const RECT* pRect, int bKeepAspect);

// A bitmap of that size (pixels) with the picture on white, which the caller deletes; white alone if the
// picture can't be drawn. Null if there is no picture or no bitmap can be made.
ORLO_API HBITMAP CreateBitmapFromMetaFilePict(const void* pPict, const SIZE* pSize);
