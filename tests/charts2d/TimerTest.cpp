// What a tick of the animation does to the frame, before any paint.

#include "automation/Interfaces.h"
#include "charts2d/GraphObject.h"
#include "support/HostWindow.h"
#include "support/ImportSlot.h"

#include <gtest/gtest.h>

#include <vector>

extern "C" {
extern decltype(&::FillRect) __imp_FillRect;
}

namespace
{

struct TFill {
    TRect rect;
    COLORREF color;
    bool operator==(const TFill&) const = default;
};

std::vector<TFill> s_fills;

int WINAPI Recorded(HDC, const RECT* rect, HBRUSH hBrush)
{
    LOGBRUSH brush{};
    ::GetObjectW(hBrush, sizeof brush, &brush);
    s_fills.push_back({{rect->left, rect->top, rect->right, rect->bottom}, brush.lbColor});
    return 1;
}

class ChartTimer : public testing::Test
{
protected:
    static constexpr COLORREF Background = 0xE0F0C0;
    static constexpr TFill Cleared{{32, 140, 352, 340}, Background}; // of 640 x 400

    ChartTimer() { s_fills.clear(); }
    ~ChartTimer() override { m_Chart.DestroyWindow(); }

    void Create(int kind)
    {
        m_Chart.Create(nullptr, nullptr, 0, CRect(0, 0, 640, 400), CWnd::FromHandle(m_Host.m_hWnd), 1);
        m_Chart.CreateGraph(kind);
        m_Chart.SetGraphBackgroundColor(Background);
    }
    // The fills of that many ticks.
    std::vector<TFill> Ticks(int count)
    {
        s_fills.clear();
        const ImportSlot slot(__imp_FillRect, &Recorded);
        while (count-- > 0)
            m_Chart.SendMessage(WM_TIMER, 50000);
        return s_fills;
    }

    HostWindow m_Host;
    CGraphObject m_Chart;
};

} // namespace

TEST_F(ChartTimer, TickAtAHundredPercentClearsThePiesRectangleForBarsToo)
{
    Create(WindowLayout::bar);
    m_Chart.Add2DBarGraphSegment(L"one");
    m_Chart.Add2DBarGraphSeries(L"row", 0);
    m_Chart.SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW); // the first percent
    EXPECT_TRUE(Ticks(98).empty());
    EXPECT_EQ(Ticks(1), (std::vector<TFill>{Cleared}));
    EXPECT_EQ(Ticks(1), (std::vector<TFill>{Cleared})); // held at a hundred
}

TEST_F(ChartTimer, TickAtAHundredPercentClearsForLinesAlso)
{
    Create(WindowLayout::line);
    for (int segment = 0; segment < 100; ++segment)
        m_Chart.Add2DLineGraphSegment(L"segment");
    m_Chart.Add2DLineGraphSeries(L"row", 0);
    m_Chart.SetGraphAnimation(
        VPX_ANIMATE_ON, VPX_ANIMATION_LINE_SERIES_DRAW); // a line is one percent, the run ends at 99
    EXPECT_TRUE(Ticks(48).empty());
    EXPECT_EQ(Ticks(1), (std::vector<TFill>{Cleared}));
}

TEST_F(ChartTimer, TickAtAHundredPercentClearsForThePie)
{
    Create(WindowLayout::flatPie);
    m_Chart.Add2DPieGraphSegment(50, 0, L"slice");
    m_Chart.SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_PIE_FADE); // by two percent
    EXPECT_TRUE(Ticks(48).empty());
    EXPECT_EQ(Ticks(1), (std::vector<TFill>{Cleared}));
    EXPECT_TRUE(Ticks(1).empty()); // the next slice
}
