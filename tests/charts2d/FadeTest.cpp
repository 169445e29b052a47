// The fade of the charts against the plain one: whole-window copies, and for each blend an alpha
// blend and a transparent copy of the whole graph area by the platform's own means.

#include "charts2d/ChartPainter.h"
#include "charts2d/FadeStep.h"
#include "charts2d/FlatPieGeometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace
{

constexpr TSize Window{300, 200};
constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 150};

class Memory
{
public:
    Memory() : m_hDC(::CreateCompatibleDC(nullptr))
    {
        const HDC hScreen = ::GetDC(nullptr);
        m_hBitmap = ::CreateCompatibleBitmap(hScreen, Window.cx, Window.cy);
        ::ReleaseDC(nullptr, hScreen);
        m_hOld = ::SelectObject(m_hDC, m_hBitmap);
    }
    explicit Memory(HDC hSource) : Memory()
    {
        ::BitBlt(m_hDC, 0, 0, Window.cx, Window.cy, hSource, 0, 0, SRCCOPY);
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;
    ~Memory()
    {
        ::SelectObject(m_hDC, m_hOld);
        ::DeleteObject(m_hBitmap);
        ::DeleteDC(m_hDC);
    }

    void Gradient(COLORREF from, COLORREF to) const
    {
        TRIVERTEX vertices[] = {Vertex(0, 0, from), Vertex(Window.cx, Window.cy, to)};
        GRADIENT_RECT mesh{0, 1};
        ::GdiGradientFill(m_hDC, vertices, 2, &mesh, 1, GRADIENT_FILL_RECT_V);
    }
    [[nodiscard]] std::vector<COLORREF> Pixels() const
    {
        std::vector<COLORREF> pixels;
        for (int y = 0; y < Window.cy; ++y) {
            for (int x = 0; x < Window.cx; ++x)
                pixels.push_back(::GetPixel(m_hDC, x, y));
        }
        return pixels;
    }

    HDC m_hDC;

private:
    static TRIVERTEX Vertex(LONG x, LONG y, COLORREF color)
    {
        return {x,
                y,
                static_cast<COLOR16>(GetRValue(color) << 8),
                static_cast<COLOR16>(GetGValue(color) << 8),
                static_cast<COLOR16>(GetBValue(color) << 8),
                0};
    }
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

struct TBar {
    TRect rect;
    COLORREF color;
};

void PlainFade(HDC target, const std::vector<TBar>& bars, double percent)
{
    const Memory first(target);
    const Memory second(target);
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, CFadeStep::Alpha(percent), 0};
    for (const TBar& bar : bars) {
        ChartPainter::DrawRectangle(first.m_hDC, bar.rect, bar.color);
        ::GdiAlphaBlend(second.m_hDC, Position.x, Position.y, Size.cx, Size.cy, first.m_hDC, Position.x,
                        Position.y, Size.cx, Size.cy, blend);
        const COLORREF key = ::GetPixel(second.m_hDC, Position.x, Position.y);
        ::GdiTransparentBlt(target, Position.x, Position.y, Size.cx, Size.cy, second.m_hDC, Position.x,
                            Position.y, Size.cx, Size.cy, key);
    }
}

void Fade(HDC target, const std::vector<TBar>& bars, double percent)
{
    TRect around = bars[0].rect;
    for (const TBar& bar : bars)
        around = {std::min({around.left, bar.rect.left, bar.rect.right}),
                  std::min({around.top, bar.rect.top, bar.rect.bottom}),
                  std::max({around.right, bar.rect.left, bar.rect.right}),
                  std::max({around.bottom, bar.rect.top, bar.rect.bottom})};
    CFadeStep fade(target, Window, Position, Size, around);
    for (const TBar& bar : bars) {
        ChartPainter::DrawRectangle(fade.Canvas(), bar.rect, bar.color);
        fade.Touch(bar.rect);
        fade.Blend(percent);
    }
    fade.Finish();
}

int Differences(const Memory& background, const std::vector<TBar>& bars, double percent)
{
    const Memory plain(background.m_hDC);
    const Memory fast(background.m_hDC);
    PlainFade(plain.m_hDC, bars, percent);
    Fade(fast.m_hDC, bars, percent);
    const auto expected = plain.Pixels();
    const auto is = fast.Pixels();
    EXPECT_NE(expected, background.Pixels()) << "nothing was drawn";
    int differences = 0;
    for (std::size_t i = 0; i < is.size(); ++i)
        differences += is[i] != expected[i] ? 1 : 0;
    return differences;
}

} // namespace

TEST(Fade, EqualsThePlainOneBarByBar)
{
    const Memory background;
    background.Gradient(0x204060, 0xF0C080);
    std::vector<TBar> bars;
    for (int i = 0; i < 10; ++i)
        bars.push_back({{40 + 15 * i, 150 - 12 * i, 50 + 15 * i, 160}, RGB(20 * i, 255 - 20 * i, 90)});
    for (const double percent : {2.0, 26.0, 50.0, 98.0, 100.0})
        EXPECT_EQ(Differences(background, bars, percent), 0) << percent;
}

TEST(Fade, EqualsThePlainOneOnOneColour)
{
    const Memory background;
    background.Gradient(0xFFFFFF, 0xFFFFFF);
    const std::vector<TBar> bars{
        {{40, 60, 60, 160}, 0xFFFFFF}, {{50, 80, 90, 150}, 0x0000FF}, {{70, 10, 95, 190}, 0xFFFFFF}};
    for (const double percent : {2.0, 50.0, 100.0})
        EXPECT_EQ(Differences(background, bars, percent), 0) << percent;
}

TEST(Fade, EqualsThePlainOneWhereShapesOverlapOrLeaveTheArea)
{
    std::mt19937 random(7);
    const auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 20; ++round) {
        const Memory background;
        background.Gradient(random() & 0xFFFFFF, random() & 0xFFFFFF);
        std::vector<TBar> bars;
        for (int i = 0; i < 40; ++i) // more than are kept apart
            bars.push_back({{below(320) - 10, below(220) - 10, below(320) - 10, below(220) - 10},
                            random() & 0xFFFFFF});
        EXPECT_EQ(Differences(background, bars, below(101)), 0) << round;
    }
}

TEST(Fade, KeyColourIsTakenAfterTheBlendWhereAShapeCoversTheCorner)
{
    const Memory background;
    background.Gradient(0xFFFFFF, 0xFFFFFF);
    const std::vector<TBar> bars{{{5, 15, 60, 60}, 0x0000FF}, {{100, 30, 150, 90}, 0x0000FF}};
    for (const double percent : {10.0, 50.0, 100.0})
        EXPECT_EQ(Differences(background, bars, percent), 0) << percent;
}

TEST(Fade, BoundsOfASliceHoldAllOfIt)
{
    using namespace FlatPieGeometry;
    const RECT all{0, 0, Window.cx, Window.cy};
    for (int start = 0; start < 100; start += 7) {
        for (int percent = 1; percent < 100; percent += 6) {
            const Memory picture;
            ::FillRect(picture.m_hDC, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
            const TPoint from = ByHalves(Position, Size, Angle(start));
            const TPoint to = ByHalves(Position, Size, Angle(start + percent));
            if (OnOneRadial(Position, Size, from, to))
                continue;
            ::Pie(picture.m_hDC, Position.x, Position.y, Position.x + Size.cx, Position.y + Size.cy,
                  from.x, from.y, to.x, to.y);
            const TRect bounds = Bounds(Position, Size, from, to);
            int outside = 0;
            for (int y = 0; y < Window.cy; y += 1) {
                for (int x = 0; x < Window.cx; x += 1) {
                    const bool inside =
                        x >= bounds.left && x < bounds.right && y >= bounds.top && y < bounds.bottom;
                    outside += !inside && ::GetPixel(picture.m_hDC, x, y) != 0xFFFFFF ? 1 : 0;
                }
            }
            EXPECT_EQ(outside, 0) << start << " " << percent;
        }
    }
}
