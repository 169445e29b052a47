#include "draw/MemDC.h"
#include "Canvas.h"
#include "DirectOperations.h"
#include "support/GdiCount.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Green = RGB(0, 255, 0);
constexpr COLORREF White = RGB(255, 255, 255);
} // namespace

TEST(MemDC, BuffersTheClipBoxAndCopiesItInTheTargetsCoordinates)
{
    Canvas canvas(60, 60);
    ::IntersectClipRect(canvas.dc, 10, 20, 30, 40);
    ::SetBkColor(canvas.dc, Green);
    {
        CMemDC memory(&canvas.dc);
        EXPECT_TRUE(memory.m_bMemDC);
        EXPECT_EQ(memory.m_rcArea, CRect(10, 20, 30, 40));
        EXPECT_TRUE(memory.m_rcBlit.IsRectEmpty());
        ::SetPixel(memory, 15, 25, Red);
        EXPECT_EQ(canvas.At(15, 25), White) << "nothing is seen before the end";
    }
    EXPECT_EQ(canvas.At(15, 25), Red);
    EXPECT_EQ(canvas.At(10, 20), Green) << "filled with the target's background colour";
    EXPECT_EQ(canvas.At(29, 39), Green);
    EXPECT_EQ(canvas.At(30, 39), White);
    EXPECT_EQ(canvas.At(9, 20), White);
}

TEST(MemDC, ACanvasAttachedToItsHandleDrawsInTheTargetsCoordinates)
{
    Canvas canvas(60, 60);
    ::IntersectClipRect(canvas.dc, 10, 20, 30, 40);
    {
        CMemDC memory(&canvas.dc);
        CDCEx painter;
        painter.Attach(memory);
        painter.FillSolidRect(12, 22, 2, 2, Red);
        painter.Detach();
    }
    EXPECT_EQ(canvas.At(12, 22), Red);
    EXPECT_EQ(canvas.At(13, 23), Red);
    EXPECT_EQ(canvas.At(14, 22), White);
}

TEST(MemDC, WhoCoversAllOfItNeedsNoFirstFill)
{
    Canvas canvas(60, 60);
    ::SetBkColor(canvas.dc, Green);
    {
        CMemDC memory(&canvas.dc, 0, false);
        EXPECT_NE(::GetPixel(memory, 5, 5), Green);
        memory.FillSolidRect(0, 0, 60, 60, Red);
    }
    EXPECT_EQ(canvas.At(0, 0), Red);
    EXPECT_EQ(canvas.At(59, 59), Red);
    canvas.dc.m_bPrinting = TRUE;
    {
        const CMemDC page(&canvas.dc, 0, false);
    }
    EXPECT_EQ(canvas.At(5, 5), Green) << "a page is filled all the same";
}

TEST(MemDC, TheFinalCopyCanBeNarrowed)
{
    Canvas canvas(60, 60);
    {
        CMemDC memory(&canvas.dc);
        memory.FillSolidRect(0, 0, 60, 60, Red);
        memory.m_rcBlit = CRect(5, 6, 7, 8);
    }
    EXPECT_EQ(canvas.At(5, 6), Red);
    EXPECT_EQ(canvas.At(6, 7), Red);
    EXPECT_EQ(canvas.At(4, 6), White);
    EXPECT_EQ(canvas.At(7, 8), White);
}

TEST(MemDC, TheBitmapCanBeTrimmed)
{
    Canvas canvas(60, 50);

    CMemDC memory(&canvas.dc, 8);

    BITMAP bitmap{};
    memory.m_Bitmap.GetBitmap(&bitmap);
    EXPECT_EQ(bitmap.bmWidth, 52);
    EXPECT_EQ(bitmap.bmHeight, 50);
    EXPECT_EQ(memory.m_rcArea, CRect(0, 0, 60, 50));
}

TEST(MemDC, OverAPrintingContextItDrawsStraightWithNoBitmap)
{
    Canvas page(30, 30);
    page.dc.m_bPrinting = TRUE;
    ::SetBkColor(page.dc, Green);
    {
        CMemDC memory(&page.dc);
        EXPECT_FALSE(memory.m_bMemDC);
        EXPECT_TRUE(memory.IsPrinting());
        EXPECT_EQ(memory.m_hDC, page.dc.m_hDC);
        EXPECT_EQ(memory.m_hAttribDC, page.dc.m_hAttribDC);
        EXPECT_EQ(memory.m_Bitmap.GetSafeHandle(), nullptr);
        EXPECT_EQ(memory.m_rcArea, CRect(0, 0, 30, 30));
        ::SetPixel(memory, 3, 4, Red);
        EXPECT_EQ(page.At(3, 4), Red) << "at once";
    }
    EXPECT_EQ(page.At(0, 0), Green);
    EXPECT_EQ(::GetObjectType(page.dc), static_cast<DWORD>(OBJ_MEMDC))
        << "the handle is still the target's";
}

TEST(MemDC, OverTwoHandlesItTakesBothAndGivesThemBack)
{
    Canvas page(30, 30);
    Canvas asked(30, 30);
    ::IntersectClipRect(asked.dc, 2, 3, 20, 21);
    page.dc.m_bPrinting = TRUE;
    page.dc.SetAttribDC(asked.dc);
    ::SetBkColor(asked.dc, Green);
    {
        CMemDC memory(&page.dc);
        EXPECT_EQ(memory.m_hDC, page.dc.m_hDC);
        EXPECT_EQ(memory.m_hAttribDC, asked.dc.m_hDC);
        EXPECT_EQ(memory.m_rcArea, CRect(2, 3, 20, 21)) << "asked of the attributes' handle";
    }
    EXPECT_EQ(page.At(2, 3), Green) << "drawn on the other";
    EXPECT_EQ(page.At(1, 3), White);
    EXPECT_EQ(::GetObjectType(page.dc.m_hDC), static_cast<DWORD>(OBJ_MEMDC));
    EXPECT_EQ(::GetObjectType(asked.dc.m_hDC), static_cast<DWORD>(OBJ_MEMDC));
    page.dc.SetAttribDC(page.dc.m_hDC);
}

TEST(MemDC, TheNineDirectOperationsUseTheDrawingHandleAlone)
{
    Canvas drawn(60, 30);
    Canvas asked(60, 30);
    ::IntersectClipRect(asked.dc, 50, 20, 60, 30); // would hide everything below
    drawn.dc.m_bPrinting = TRUE;
    ::SetBkColor(drawn.dc, White);
    CMemDC memory(&drawn.dc);
    memory.SetAttribDC(asked.dc);
    ExpectDirectOperations(memory, drawn, asked);
}

TEST(MemDC, AnEmptyClipBoxIsHarmless)
{
    Canvas canvas(20, 20);
    ::IntersectClipRect(canvas.dc, 5, 5, 5, 5);
    {
        CMemDC memory(&canvas.dc, 3);
        memory.FillSolidRect(0, 0, 20, 20, Red);
    }
    ::SelectClipRgn(canvas.dc, nullptr);
    EXPECT_EQ(canvas.Picture(), Canvas(20, 20).Picture());
}

TEST(MemDC, GdiObjectsReturnToTheStart)
{
    Canvas canvas(20, 20);
    const auto cycle = [&canvas] {
        CMemDC memory(&canvas.dc);
        memory.FillSolidRect(0, 0, 20, 20, Red);
    };
    cycle();
    const int before = GdiCount::All();

    for (int round = 0; round < 50; ++round)
        cycle();

    EXPECT_EQ(GdiCount::All(), before);
}
