#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"
#include "support/GdiCount.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{
constexpr COLORREF Red = RGB(255, 0, 0);

// A memory context with a picture of 32 bits a pixel.
class MemoryPicture
{
public:
    MemoryPicture(int width, int height)
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* memory = nullptr;
        m_Bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0));
        dc.CreateCompatibleDC(nullptr);
        m_Old = dc.SelectObject(&m_Bitmap);
        dc.PatBlt(0, 0, width, height, WHITENESS);
    }
    ~MemoryPicture() { dc.SelectObject(m_Old); }

    CDC dc;

private:
    CBitmap m_Bitmap;
    CBitmap* m_Old;
};

// A shown window without a frame, 100 by 80.
class ShownWindow : public CWnd
{
public:
    ShownWindow()
    {
        const LPCTSTR name = AfxRegisterWndClass(CS_OWNDC, nullptr, nullptr, nullptr);
        CreateEx(0, name, L"", WS_POPUP | WS_VISIBLE, 10, 10, 100, 80, nullptr, nullptr);
    }
    ~ShownWindow() override { DestroyWindow(); }
};

template <class TContext> bool RaisesFor(CWnd* window)
{
    try {
        const TContext context(window);
    } catch (CResourceException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}
} // namespace

TEST(GdiDeviceContexts, AttachSetsBothHandlesAndDetachClearsBoth)
{
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC dc;

    EXPECT_TRUE(dc.Attach(handle));
    EXPECT_EQ(dc.m_hDC, handle);
    EXPECT_EQ(dc.m_hAttribDC, handle);
    EXPECT_FALSE(dc.IsPrinting());
    EXPECT_FALSE(dc.Attach(nullptr));
    EXPECT_EQ(dc.GetSafeHdc(), handle);

    EXPECT_EQ(dc.Detach(), handle);
    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    ::DeleteDC(handle);
}

TEST(GdiDeviceContexts, AnOwnedHandleIsDeletedAtTheEnd)
{
    HDC handle = nullptr;
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        handle = dc;
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(GdiDeviceContexts, AHandleLeadsBackToItsContextElseToATemporaryOne)
{
    CDC owner;
    owner.CreateCompatibleDC(nullptr);
    EXPECT_EQ(CDC::FromHandle(owner), &owner);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);

    const HDC foreign = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(foreign);
    EXPECT_EQ(temporary->m_hDC, foreign);
    EXPECT_EQ(temporary->m_hAttribDC, foreign);
    CDC* other = nullptr;
    std::thread([&] {
        other = CDC::FromHandle(foreign);
        AfxFreeTemporaryDCs(::GetCurrentThreadId());
    }).join();
    EXPECT_NE(other, temporary);
    EXPECT_EQ(CDC::FromHandle(foreign), temporary);

    AfxFreeTemporaryDCs(::GetCurrentThreadId());
    EXPECT_EQ(::GetObjectType(foreign), static_cast<DWORD>(OBJ_MEMDC)) << "it owned nothing";
    EXPECT_EQ(CDC::FromHandle(owner), &owner) << "owners stay";
    ::DeleteDC(foreign);
}

TEST(GdiDeviceContexts, SelectingGivesTheOldObjectBack)
{
    MemoryPicture picture(10, 10);
    CPen first(PS_SOLID, 1, Red);
    CPen second(PS_SOLID, 2, Red);

    CPen* stock = picture.dc.SelectObject(&first);
    EXPECT_EQ(picture.dc.SelectObject(&second), &first);
    EXPECT_EQ(picture.dc.SelectObject(stock), &second);
    EXPECT_EQ(picture.dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    EXPECT_EQ(stock->GetSafeHandle(), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(picture.dc.SelectStockObject(NULL_BRUSH)->GetSafeHandle(), ::GetStockObject(WHITE_BRUSH));
}

TEST(GdiDeviceContexts, StateGoesToBothHandlesAndQuestionsToTheAttributeHandle)
{
    MemoryPicture drawn(20, 20);
    MemoryPicture asked(20, 20);
    CDC& dc = drawn.dc;
    dc.SetAttribDC(asked.dc);

    dc.SetBkColor(Red);
    dc.SetTextColor(RGB(1, 2, 3));
    dc.SetROP2(R2_NOTXORPEN);
    dc.MoveTo(3, 4);

    for (const HDC handle : {drawn.dc.m_hDC, asked.dc.m_hDC}) {
        CPoint position;
        ::GetCurrentPositionEx(handle, &position);
        EXPECT_EQ(::GetBkColor(handle), Red);
        EXPECT_EQ(::GetTextColor(handle), static_cast<COLORREF>(RGB(1, 2, 3)));
        EXPECT_EQ(::GetROP2(handle), R2_NOTXORPEN);
        EXPECT_EQ(position, CPoint(3, 4));
    }
    ::SetBkColor(asked.dc.m_hDC, RGB(7, 7, 7));
    EXPECT_EQ(dc.GetBkColor(), static_cast<COLORREF>(RGB(7, 7, 7)));
    dc.SetAttribDC(dc.m_hDC);
}

TEST(GdiDeviceContexts, SavedStateReturns)
{
    MemoryPicture picture(10, 10);
    const int saved = picture.dc.SaveDC();
    EXPECT_NE(saved, 0);
    picture.dc.SetBkColor(Red);
    picture.dc.SetWindowOrg(5, 6);

    EXPECT_TRUE(picture.dc.RestoreDC(saved));

    EXPECT_EQ(picture.dc.GetBkColor(), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(picture.dc.SetWindowOrg(0, 0), CPoint(0, 0));
}

TEST(GdiDeviceContexts, SolidFillLeavesItsColourAsBackground)
{
    MemoryPicture picture(10, 10);

    picture.dc.FillSolidRect(2, 3, 4, 5, Red);

    EXPECT_EQ(::GetPixel(picture.dc, 2, 3), Red);
    EXPECT_EQ(::GetPixel(picture.dc, 5, 7), Red);
    EXPECT_EQ(::GetPixel(picture.dc, 6, 7), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(picture.dc.GetBkColor(), Red);
}

TEST(GdiDeviceContexts, LineLeavesOutItsEndPixel)
{
    MemoryPicture picture(10, 10);

    EXPECT_EQ(picture.dc.MoveTo(1, 1), CPoint(0, 0));
    picture.dc.LineTo(CPoint(5, 1));

    EXPECT_EQ(::GetPixel(picture.dc, 4, 1), 0u);
    EXPECT_NE(::GetPixel(picture.dc, 5, 1), 0u);
    EXPECT_EQ(picture.dc.GetCurrentPosition(), CPoint(5, 1));
}

TEST(GdiDeviceContexts, ClipRegionHidesWhatLiesOutside)
{
    MemoryPicture picture(20, 20);
    CRgn region;
    region.CreateRectRgnIndirect(CRect(5, 5, 10, 10));

    EXPECT_EQ(picture.dc.SelectClipRgn(&region), SIMPLEREGION);

    CRect box;
    picture.dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(5, 5, 10, 10));
    EXPECT_TRUE(picture.dc.PtVisible(CPoint(5, 5)));
    EXPECT_FALSE(picture.dc.PtVisible(10, 10));
    EXPECT_FALSE(picture.dc.RectVisible(CRect(10, 10, 15, 15)));
    picture.dc.SelectClipRgn(nullptr);
    EXPECT_TRUE(picture.dc.PtVisible(10, 10));
}

TEST(GdiDeviceContexts, PicturesAreCopiedAndStretched)
{
    MemoryPicture from(4, 4);
    MemoryPicture to(20, 20);
    from.dc.FillSolidRect(0, 0, 2, 4, Red);

    EXPECT_TRUE(to.dc.BitBlt(1, 1, 4, 4, &from.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(::GetPixel(to.dc, 2, 4), Red);
    EXPECT_NE(::GetPixel(to.dc, 3, 4), Red);
    EXPECT_TRUE(to.dc.StretchBlt(10, 10, 8, 8, &from.dc, 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(::GetPixel(to.dc, 13, 17), Red);
    EXPECT_NE(::GetPixel(to.dc, 14, 17), Red);
}

TEST(GdiDeviceContexts, PaintContextValidatesTheWindow)
{
    ShownWindow window;
    window.Invalidate(FALSE);
    ASSERT_TRUE(::GetUpdateRect(window, nullptr, FALSE));
    {
        CPaintDC paint(&window);
        EXPECT_EQ(paint.m_ps.hdc, paint.m_hDC);
        paint.FillSolidRect(0, 0, 100, 80, Red);
    }
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    CClientDC client(&window);
    EXPECT_EQ(::GetPixel(client, 50, 40), Red);
    CWindowDC whole(&window);
    EXPECT_EQ(::GetPixel(whole, 50, 40), Red);
}

TEST(GdiDeviceContexts, AWindowThatIsNoneRaisesTheResourceException)
{
    CWnd none;

    EXPECT_TRUE(RaisesFor<CPaintDC>(&none));
    EXPECT_TRUE(RaisesFor<CPaintDC>(nullptr));
    EXPECT_TRUE(RaisesFor<CClientDC>(&none));
    EXPECT_TRUE(RaisesFor<CWindowDC>(&none));
    EXPECT_FALSE(RaisesFor<CClientDC>(nullptr)) << "the screen";
}

TEST(GdiDeviceContexts, CountsReturnToTheStart)
{
    ShownWindow window;
    const auto cycle = [&window] {
        const CPaintDC paint(&window);
        const CClientDC client(&window);
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
    };
    cycle();
    const int before = GdiCount::All();

    for (int round = 0; round < 50; ++round)
        cycle();

    EXPECT_EQ(GdiCount::All(), before);
}
