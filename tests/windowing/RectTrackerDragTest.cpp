#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/RectTracker.h"
#include "framework/windowing/Window.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
constexpr UINT SizingFrame = CRectTracker::hatchedBorder | CRectTracker::resizeOutside;
const CRect Start(20, 30, 80, 70);

// A shown window without a frame, 200 by 150, white.
class ShownWindow : public CWnd
{
public:
    ShownWindow()
    {
        const LPCTSTR name =
            AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        CreateEx(0, name, L"", WS_POPUP | WS_VISIBLE, 10, 10, 200, 150, nullptr, nullptr);
        UpdateWindow();
    }
    ~ShownWindow() override { DestroyWindow(); }

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        translated += pMsg->message == WM_KEYDOWN ? 1 : 0;
        return FALSE;
    }
    int translated = 0;

    std::vector<COLORREF> Pixels()
    {
        CClientDC dc(this);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < 150; ++y)
            for (int x = 0; x < 200; ++x)
                pixels.push_back(::GetPixel(dc, x, y));
        return pixels;
    }
};

// Keeps what it was asked to draw and how its rectangle changed.
class WatchedTracker : public CRectTracker
{
public:
    WatchedTracker() : CRectTracker(&Start, SizingFrame)
    {
        m_nHandleSize = 4;
        m_sizeMin = CSize(8, 8);
    }

    void DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd) override
    {
        outlines.push_back(*lpRect);
        finalErase = m_bFinalErase != FALSE;
        CRectTracker::DrawTrackerRect(lpRect, pWndClipTo, pDC, pWnd);
        CClientDC dc(pWnd);
        seen.push_back(::GetPixel(dc, lpRect->left + 1, lpRect->top) !=
                       ::GetPixel(dc, lpRect->left, lpRect->top));
    }
    void OnChangedRect(const CRect& rectOld) override { changedFrom.push_back(rectOld); }

    std::vector<CRect> outlines;
    std::vector<CRect> changedFrom;
    std::vector<bool> seen;
    bool finalErase = false;
};

class RectTrackerDrag : public testing::Test
{
protected:
    void Move(int x, int y) { window.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Release(int x, int y) { window.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
    void Key(WPARAM key) { window.PostMessage(WM_KEYDOWN, key, 1); }

    void TearDown() override { EXPECT_EQ(::GetCapture(), nullptr); }

    ShownWindow window;
    WatchedTracker tracker;
};
} // namespace

TEST_F(RectTrackerDrag, DraggingTheMiddleMovesTheRectangle)
{
    Move(55, 60);
    Release(60, 45);

    EXPECT_TRUE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, CRect(30, 25, 90, 65));
}

TEST_F(RectTrackerDrag, DraggingACornerMovesItsTwoEdges)
{
    Move(90, 80);
    Release(92, 86);

    EXPECT_TRUE(tracker.Track(&window, CPoint(81, 71))); // bottom right

    EXPECT_EQ(tracker.m_rect, CRect(20, 30, 91, 85)) << "the grip inside the handle is kept";
}

TEST_F(RectTrackerDrag, DraggingASideMovesItAlone)
{
    Release(10, 140);

    EXPECT_TRUE(tracker.Track(&window, CPoint(18, 50))); // left

    EXPECT_EQ(tracker.m_rect, CRect(12, 30, 80, 70));
}

TEST_F(RectTrackerDrag, TheSmallestSizeHoldsAndNothingInverts)
{
    Move(0, 0);
    Release(0, 0);

    EXPECT_TRUE(tracker.Track(&window, CPoint(81, 71), FALSE));

    EXPECT_EQ(tracker.m_rect, CRect(20, 30, 28, 38));
}

TEST_F(RectTrackerDrag, WithInversionAllowedTheCornerPassesTheOpposite)
{
    Move(10, 10);
    Release(5, 5);

    EXPECT_TRUE(tracker.Track(&window, CPoint(81, 71), TRUE));

    EXPECT_EQ(tracker.m_rect, CRect(20, 30, 4, 4));
}

TEST_F(RectTrackerDrag, NegativePositionsAreSigned)
{
    Release(-40, -30);

    EXPECT_TRUE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, CRect(-70, -50, -10, -10));
}

TEST_F(RectTrackerDrag, APressOutsideTracksNothing)
{
    EXPECT_FALSE(tracker.Track(&window, CPoint(150, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
}

TEST_F(RectTrackerDrag, AClickWithoutMovementChangesNothing)
{
    Release(50, 50);

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
    EXPECT_TRUE(tracker.outlines.empty());
}

TEST_F(RectTrackerDrag, EscapeBringsTheRectangleBack)
{
    Move(70, 70);
    Key(VK_ESCAPE);

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
    EXPECT_TRUE(tracker.finalErase);
    EXPECT_EQ(tracker.outlines.size() % 2, 0u) << "what was drawn was removed";
}

TEST_F(RectTrackerDrag, TheRightButtonCancels)
{
    Move(70, 70);
    window.PostMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(70, 70));

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
}

TEST_F(RectTrackerDrag, OtherKeysDoNothing)
{
    Key(VK_DELETE);
    Key(VK_LEFT);
    Release(52, 50);

    EXPECT_TRUE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, CRect(22, 30, 82, 70));
}

TEST_F(RectTrackerDrag, WindowsDoNotTranslateTheDragsMessages)
{
    Key(VK_DELETE);
    Release(52, 50);

    EXPECT_TRUE(tracker.Track(&window, CPoint(50, 50)));
    EXPECT_EQ(window.translated, 0);

    Key(VK_DELETE); // to see that they do in any other loop
    MSG message;
    while (::PeekMessage(&message, window, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE)) {
    }
    EXPECT_EQ(window.translated, 1);
}

TEST_F(RectTrackerDrag, SomebodyElsesCaptureIsRespected)
{
    ShownWindow other;
    ::SetCapture(other);

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(::GetCapture(), other.m_hWnd);
    ::ReleaseCapture();
}

TEST_F(RectTrackerDrag, LosingTheCaptureCancels)
{
    Move(70, 70);
    window.PostMessage(WM_CANCELMODE, 0, 0); // default handling releases the capture
    Move(75, 75);

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
}

TEST_F(RectTrackerDrag, QuitCancelsAndReachesTheOuterLoop)
{
    Move(70, 70);
    ::PostQuitMessage(7);

    EXPECT_FALSE(tracker.Track(&window, CPoint(50, 50)));

    EXPECT_EQ(tracker.m_rect, Start);
    MSG message{};
    bool quit = false;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        quit = quit || (message.message == WM_QUIT && message.wParam == 7);
    EXPECT_TRUE(quit);
}

TEST_F(RectTrackerDrag, TheOutlineIsDrawnAndRemovedInPairs)
{
    Move(55, 50);
    Move(60, 50);
    Release(60, 50);
    const std::vector<COLORREF> before = window.Pixels();

    EXPECT_TRUE(tracker.Track(&window, CPoint(50, 50)));

    const CRect first(25, 30, 85, 70);
    const CRect second(30, 30, 90, 70);
    EXPECT_EQ(tracker.outlines, (std::vector<CRect>{first, first, second, second}));
    EXPECT_EQ(tracker.seen, (std::vector<bool>{true, false, true, false}));
    EXPECT_EQ(tracker.changedFrom, (std::vector<CRect>{Start, first}));
    EXPECT_TRUE(tracker.finalErase);
    EXPECT_EQ(window.Pixels(), before) << "no trace is left";
}

TEST_F(RectTrackerDrag, APaintDuringTheDragLeavesNoTrace)
{
    const std::vector<COLORREF> before = window.Pixels();
    Move(55, 50);
    window.PostMessage(WM_TIMER, 77, 0);
    tracker.m_nStyle = SizingFrame;
    struct PaintingTracker : WatchedTracker {
        void OnChangedRect(const CRect& rectOld) override
        {
            WatchedTracker::OnChangedRect(rectOld);
            if (changedFrom.size() == 1)
                target->Invalidate(); // the paint comes when no other message waits
        }
        CWnd* target = nullptr;
    } painting;
    painting.target = &window;
    ::SetTimer(window, 1, 20, [](HWND hWnd, UINT, UINT_PTR, DWORD) {
        if (!::GetUpdateRect(hWnd, nullptr, FALSE))
            ::PostMessage(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(55, 50));
    });

    EXPECT_TRUE(painting.Track(&window, CPoint(50, 50)));

    ::KillTimer(window, 1);
    EXPECT_GE(painting.outlines.size(), 4u) << "drawn, removed for the paint, drawn again, removed";
    EXPECT_EQ(painting.outlines.size() % 2, 0u) << "a slow display may ask for more paints";
    EXPECT_EQ(window.Pixels(), before);
}

TEST_F(RectTrackerDrag, ThePointerTellsWhatAPressWouldDo)
{
    struct TCase {
        CPoint point;
        LPCTSTR pointer;
    };
    const TCase cases[] = {{{18, 28}, IDC_SIZENWSE}, {{81, 28}, IDC_SIZENESW}, {{81, 71}, IDC_SIZENWSE},
                           {{18, 71}, IDC_SIZENESW}, {{50, 28}, IDC_SIZENS},   {{81, 50}, IDC_SIZEWE},
                           {{50, 71}, IDC_SIZENS},   {{18, 50}, IDC_SIZEWE},   {{50, 50}, IDC_SIZEALL}};
    for (const TCase& one : cases) {
        CPoint screen = one.point;
        ::ClientToScreen(window, &screen);
        ::SetCursorPos(screen.x, screen.y);
        ::SetCursor(nullptr);

        EXPECT_TRUE(tracker.SetCursor(&window, HTCLIENT)) << one.point.x << "," << one.point.y;

        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, one.pointer))
            << one.point.x << "," << one.point.y;
    }
    EXPECT_FALSE(tracker.SetCursor(&window, HTCAPTION)) << "not in the client area";
    CPoint beside(150, 100);
    ::ClientToScreen(window, &beside);
    ::SetCursorPos(beside.x, beside.y);
    EXPECT_FALSE(tracker.SetCursor(&window, HTCLIENT));
}
