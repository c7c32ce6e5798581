// Points, sizes and rectangles; device contexts and drawing objects. Coordinates are logical coordinates of the device
// context.
//
// FromHandle returns a temporary object for a handle, which is valid until the current message has been handled and
// does not free the handle.
#pragma once

#include <afx.h>

class CWnd;
class CRect;

class CSize : public tagSIZE {
public:
    CSize() : CSize(0, 0) {}
    CSize(int initCX, int initCY) {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) : CSize(initSize.cx, initSize.cy) {}
    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const { return !(*this == size); }
};

class CPoint : public tagPOINT {
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(int initX, int initY) {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) : CPoint(initPt.x, initPt.y) {}
    void Offset(int xOffset, int yOffset) {
        x += xOffset;
        y += yOffset;
    }
    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const { return !(*this == point); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
};

class CRect : public tagRECT {
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& srcRect) : CRect(srcRect.left, srcRect.top, srcRect.right, srcRect.bottom) {}
    CRect(POINT point, SIZE size) : CRect(point.x, point.y, point.x + size.cx, point.y + size.cy) {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void SetRect(int l, int t, int r, int b) {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) { return ::IntersectRect(this, lpRect1, lpRect2); }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) { return ::UnionRect(this, lpRect1, lpRect2); }
    // Swaps coordinates so that left <= right and top <= bottom.
    void NormalizeRect() {
        if (left > right) std::swap(left, right);
        if (top > bottom) std::swap(top, bottom);
    }
    bool operator==(const RECT& rect) const { return ::EqualRect(this, &rect) != 0; }
    bool operator!=(const RECT& rect) const { return !(*this == rect); }
};

// ---- Drawing objects

// Base class of drawing objects. Owns its handle: the destructor deletes the object.
class AFX_API CGdiObject : public CObject {
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject();
    ~CGdiObject() override;

    HGDIOBJ m_hObject;
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
};

class AFX_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen();
    // Throws a CResourceException if the pen cannot be created.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    ~CPen() override;
    static CPen* FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
};

class AFX_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush();
    // Throws a CResourceException if the brush cannot be created.
    explicit CBrush(COLORREF crColor);
    ~CBrush() override;
    static CBrush* FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF crColor);
};

class AFX_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont();
    ~CFont() override;
    static CFont* FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONTA* lpLogFont) { return Attach(::CreateFontIndirectA(lpLogFont)); }
};

class AFX_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap();
    ~CBitmap() override;
    static CBitmap* FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    BOOL CreateCompatibleBitmap(class CDC* pDC, int nWidth, int nHeight);
};

// ---- Device contexts

// Owns its handle: the destructor deletes the device context. m_hAttribDC, from which attributes are read, is always
// the same as m_hDC.
class AFX_API CDC : public CObject {
    DECLARE_DYNAMIC(CDC)
public:
    CDC();
    ~CDC() override;

    HDC m_hDC;
    HDC m_hAttribDC;
    static CDC* FromHandle(HDC hDC);
    BOOL Attach(HDC hDC);
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();

    // Select an object and return the previous one as a temporary object.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);

    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    // Fill a rectangle. The background color is not changed.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
};

// The device context of a WM_PAINT handler.
class AFX_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;
    PAINTSTRUCT m_ps;

private:
    HWND m_hWnd;
};

// The device context of a window's client area or, if pWnd is null, of the screen. Throws a CResourceException if there
// is none.
class AFX_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

private:
    HWND m_hWnd;
};
