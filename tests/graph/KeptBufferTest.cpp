// The buffer that a graph keeps while its frames follow one another.

#include "NativeGraph.h"
#include "support/GdiCount.h"
#include "support/ImportSlot.h"

#include <functional>

extern "C" {
extern decltype(&::CreateCompatibleBitmap) __imp_CreateCompatibleBitmap;
extern decltype(&::GetTickCount64) __imp_GetTickCount64;
}

namespace
{

int s_buffersMade = 0;
decltype(&::CreateCompatibleBitmap) s_makeBuffer = nullptr;

HBITMAP WINAPI CountedBuffer(HDC hDC, int nWidth, int nHeight)
{
    ++s_buffersMade;
    return s_makeBuffer(hDC, nWidth, nHeight);
}

ULONGLONG s_now = 1'000'000;

ULONGLONG WINAPI SetClock()
{
    return s_now;
}

// The graph's frames by a clock that the test sets, with an account of the buffers that are made.
class KeptBuffer : public GraphTest
{
protected:
    KeptBuffer() { AddLine(); }
    int MadeFor(const std::function<void()>& paint)
    {
        const ImportSlot clock(__imp_GetTickCount64, &SetClock);
        const ImportSlot maker(__imp_CreateCompatibleBitmap, &CountedBuffer);
        s_makeBuffer = maker.Original();
        s_buffersMade = 0;
        paint();
        return s_buffersMade;
    }
    int MadeFor(ULONGLONG nLater)
    {
        s_now += nLater;
        return MadeFor([this] { Paint(); });
    }
};

} // namespace

TEST_F(KeptBuffer, FramesShareOneUntilAPause)
{
    EXPECT_EQ(MadeFor(100'000), 1);
    EXPECT_EQ(MadeFor(1000), 0);
    EXPECT_EQ(MadeFor(1999), 0);
    EXPECT_EQ(MadeFor(2000), 1);
}

TEST_F(KeptBuffer, AFrameOfAnotherSizeMakesAnother)
{
    MadeFor(100'000);
    MadeFor(0);
    EXPECT_EQ(MadeFor([this] {
                  graph.SetWindowPos(nullptr, 0, 0, Width - 50, Height - 20, SWP_NOMOVE | SWP_NOZORDER);
                  Paint();
              }),
              1);
    EXPECT_EQ(MadeFor(0), 0);
    const Picture kept(graph.m_hWnd);
    graph.m_bDoubleBuffer = false;
    EXPECT_EQ(Shoot().CountDifferences(kept), 0);
}

TEST_F(KeptBuffer, APartOfTheWindowHasABufferOfItsOwn)
{
    MadeFor(100'000);
    MadeFor(0);
    const Picture before(graph.m_hWnd);
    EXPECT_EQ(MadeFor([this] {
                  const CRect part(30, 40, 130, 90);
                  graph.InvalidateRect(&part);
                  graph.UpdateWindow();
              }),
              1);
    EXPECT_EQ(Picture(graph.m_hWnd).CountDifferences(before), 0);
    EXPECT_EQ(MadeFor(0), 0); // the whole window's is still there
}

TEST_F(KeptBuffer, IsFreedWhenTheWindowHides)
{
    MadeFor(100'000);
    const int nWith = GdiCount::OfType(OBJ_BITMAP);
    MadeFor([this] { graph.ShowWindow(SW_HIDE); });
    EXPECT_EQ(GdiCount::OfType(OBJ_BITMAP), nWith - 1);
    MadeFor([this] { graph.ShowWindow(SW_SHOW); });
    MadeFor(0);
    EXPECT_EQ(GdiCount::OfType(OBJ_BITMAP), nWith);
}

TEST_F(KeptBuffer, IsFreedByAnyMessageAfterAPause)
{
    const auto send = [this] { MadeFor([this] { graph.SendMessage(WM_GETTEXTLENGTH); }); };
    MadeFor(100'000);
    const int nWith = GdiCount::OfType(OBJ_BITMAP);
    s_now += 1999;
    send();
    EXPECT_EQ(GdiCount::OfType(OBJ_BITMAP), nWith);
    s_now += 1;
    send();
    EXPECT_EQ(GdiCount::OfType(OBJ_BITMAP), nWith - 1);
}
