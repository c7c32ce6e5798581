// Pens, brushes, fonts and bitmaps.

#include "thread_state.h"

#include <afxgdi.h>

#include <utility>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

namespace {

template <class T>
T* TempOver(HGDIOBJ handle) {
    if (handle == nullptr) return nullptr;
    return AfxThreadState::Get().temps.Get<T>(handle, [handle](T& object) { object.m_hObject = handle; });
}

} // namespace

CGdiObject::CGdiObject() : m_hObject(nullptr) {}
CGdiObject::~CGdiObject() {
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    m_hObject = hObject;
    return hObject != nullptr;
}

HGDIOBJ CGdiObject::Detach() {
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

CPen::CPen() = default;
CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor)) AfxThrowResourceException();
}
CPen::~CPen() = default;
CPen* CPen::FromHandle(HPEN hPen) {
    return TempOver<CPen>(hPen);
}
BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

CBrush::CBrush() = default;
CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor)) AfxThrowResourceException();
}
CBrush::~CBrush() = default;
CBrush* CBrush::FromHandle(HBRUSH hBrush) {
    return TempOver<CBrush>(hBrush);
}
BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

CFont::CFont() = default;
CFont::~CFont() = default;
CFont* CFont::FromHandle(HFONT hFont) {
    return TempOver<CFont>(hFont);
}

CBitmap::CBitmap() = default;
CBitmap::~CBitmap() = default;
CBitmap* CBitmap::FromHandle(HBITMAP hBitmap) {
    return TempOver<CBitmap>(hBitmap);
}
BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}
