// Device contexts and drawing objects: ownership, and state that must not change.

#include "support/object_counts.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

TEST(Gdi, ObjectsDeleteOnlyHandlesThatTheyOwn) {
    const auto draw = [] {
        CDC memory;
        ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
        CClientDC screen(nullptr);
        CBitmap bitmap;
        ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 20, 20));
        CBitmap* bitmapBefore = memory.SelectObject(&bitmap);
        CPen pen(PS_SOLID, 1, RGB(255, 0, 0));
        CBrush brush(RGB(0, 0, 255));
        CPen* penBefore = memory.SelectObject(&pen);
        CBrush* brushBefore = memory.SelectObject(&brush);
        ::Rectangle(memory.m_hDC, 0, 0, 20, 20);
        EXPECT_EQ(::GetPixel(memory.m_hDC, 0, 0), RGB(255, 0, 0));
        EXPECT_EQ(::GetPixel(memory.m_hDC, 10, 10), RGB(0, 0, 255));
        EXPECT_EQ(pen.m_hObject, memory.SelectObject(penBefore)->m_hObject);
        memory.SelectObject(brushBefore);
        memory.SelectObject(bitmapBefore);
    };
    draw();
    const int before = GdiObjectCount();
    for (int i = 0; i < 20; ++i)
        draw();
    EXPECT_EQ(before, GdiObjectCount());
}

TEST(Gdi, ATemporaryContextDoesNotDeleteItsHandle) {
    HDC handle = ::CreateCompatibleDC(nullptr);
    EXPECT_EQ(handle, CDC::FromHandle(handle)->m_hAttribDC);
    EXPECT_EQ(CDC::FromHandle(handle), CDC::FromHandle(handle));
    EXPECT_TRUE(::DeleteDC(handle));
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(Gdi, FillingLeavesTheBackgroundColor) {
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    CClientDC screen(nullptr);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 20, 20));
    CBitmap* before = memory.SelectObject(&bitmap);
    ::SetBkColor(memory.m_hDC, RGB(1, 2, 3));
    memory.FillSolidRect(5, 5, 10, 10, RGB(0, 255, 0));
    EXPECT_EQ(::GetBkColor(memory.m_hDC), RGB(1, 2, 3));
    EXPECT_EQ(::GetPixel(memory.m_hDC, 14, 14), RGB(0, 255, 0));
    EXPECT_NE(::GetPixel(memory.m_hDC, 15, 15), RGB(0, 255, 0));
    memory.SelectObject(before);
}

TEST(Rect, IsNormalizedAndCompared) {
    CRect rect(30, 40, 10, 20);
    rect.NormalizeRect();
    EXPECT_EQ(CRect(10, 20, 30, 40), rect);
    EXPECT_EQ(CPoint(20, 30), rect.CenterPoint());
    EXPECT_EQ(CRect(CPoint(10, 20), CSize(20, 20)), rect);
    EXPECT_TRUE(rect.PtInRect(CPoint(29, 39)));
    EXPECT_FALSE(rect.PtInRect(CPoint(30, 40)));
    CRect common;
    EXPECT_TRUE(common.IntersectRect(rect, CRect(20, 0, 90, 30)));
    EXPECT_EQ(CRect(20, 20, 30, 30), common);
}

} // namespace
