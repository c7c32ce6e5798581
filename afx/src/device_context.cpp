// CDC and the device contexts of windows.

#include "thread_state.h"

#include <afxgdi.h>
#include <afxwnd.h>

#include <utility>

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)

CDC::CDC() : m_hDC(nullptr), m_hAttribDC(nullptr) {}

CDC::~CDC() {
    DeleteDC();
}

CDC* CDC::FromHandle(HDC hDC) {
    if (hDC == nullptr) return nullptr;
    return AfxThreadState::Get().temps.Get<CDC>(hDC, [hDC](CDC& dc) { dc.m_hDC = dc.m_hAttribDC = hDC; });
}

BOOL CDC::Attach(HDC hDC) {
    m_hDC = m_hAttribDC = hDC;
    return hDC != nullptr;
}

HDC CDC::Detach() {
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, pPen->m_hObject)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, pBrush->m_hObject)));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, pFont->m_hObject)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->m_hObject)));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    // An empty opaque text fills the rectangle without creating a brush.
    const COLORREF before = ::SetBkColor(m_hDC, clr);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, before);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const CRect rect(x, y, x + cx, y + cy);
    FillSolidRect(&rect, clr);
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->m_hWnd) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps))) AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    if (!Attach(::GetDC(m_hWnd))) AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}
