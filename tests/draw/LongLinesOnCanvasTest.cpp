#include "Canvas.h"
#include "DrawnLines.h"
#include "draw/Selectors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <iterator>
#include <random>
#include <utility>

namespace
{
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);

// Zigzags across the canvas and far beyond it.
std::vector<POINT> Zigzag(int nCount, LONG nReach)
{
    std::mt19937 random(7);
    std::vector<POINT> points;
    for (int i = 0; i < nCount; ++i) {
        const LONG y = i % 2 == 0 ? -nReach : nReach;
        points.push_back({static_cast<LONG>(random() % 100), y + static_cast<LONG>(random() % 60)});
    }
    return points;
}

void PrepareFill(CDC& dc, HBRUSH brush)
{
    ::SelectObject(dc, ::GetStockObject(NULL_PEN));
    ::SelectObject(dc, brush);
    dc.SetBkMode(TRANSPARENT);
    dc.SetROP2(R2_NOTXORPEN);
    dc.SetViewportOrg(5, 3);
}
} // namespace

TEST(LongLinesOnCanvas, ALineToTheFarCornerKeepsItsSlope)
{
    Canvas canvas(100, 100);

    canvas.dc.MoveTo(10, 50);
    canvas.dc.LineTo(10 + 2000000000, 50 + 1000000000);

    EXPECT_EQ(canvas.At(10, 50), Black);
    EXPECT_EQ(canvas.At(50, 70), Black);
    EXPECT_EQ(canvas.At(90, 90), Black);
    EXPECT_EQ(canvas.At(50, 72), White);
    EXPECT_EQ(canvas.At(50, 68), White);
}

TEST(LongLinesOnCanvas, ALineBackFromFarAwayKeepsItsPlace)
{
    Canvas canvas(100, 100);

    canvas.dc.MoveTo(INT_MIN, INT_MIN);
    canvas.dc.LineTo(90, 90);

    EXPECT_EQ(canvas.At(10, 10), Black);
    EXPECT_EQ(canvas.At(89, 89), Black);
    EXPECT_EQ(canvas.At(90, 90), White) << "the end pixel is left out";
    EXPECT_EQ(canvas.At(50, 53), White);
}

TEST(LongLinesOnCanvas, ALineThroughWithBothEndsFarAwayIsSeen)
{
    Canvas canvas(100, 100);

    canvas.dc.MoveTo(-1000000000, 1000000030);
    canvas.dc.LineTo(1000000000, -999999970);

    EXPECT_EQ(canvas.At(10, 20), Black);
    EXPECT_EQ(canvas.At(10, 24), White);
}

TEST(LongLinesOnCanvas, ThePenGoesOnFromTheTrueEnd)
{
    Canvas canvas(100, 100);

    canvas.dc.MoveTo(0, 0);
    canvas.dc.LineTo(2000000000, 1000000000);

    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(2000000000, 1000000000));
}

TEST(LongLinesOnCanvas, ALineWhollyOutsideDrawsNothing)
{
    DrawnLines recording;

    recording.dc.MoveTo(INT_MAX, 0);
    recording.dc.LineTo(INT_MAX, 500);

    for (const std::string& line : recording.Lines())
        EXPECT_EQ(line.find("LineTo"), std::string::npos) << line;
}

TEST(LongLinesOnCanvas, TheDeviceSeesNothingBeyondTheLimit)
{
    DrawnLines recording;
    const POINT wedge[] = {{0, 0}, {2000000000, 1000000000}, {2000000000, -500000000}};

    recording.dc.MoveTo(5, 5);
    recording.dc.LineTo(INT_MIN, 5);
    recording.dc.Polygon(wedge, 3);

    const std::vector<std::string> lines = recording.Lines();
    EXPECT_EQ(lines[1], "MoveTo (5,5)");
    EXPECT_EQ(lines[2], "LineTo (-67108864,5)");
    EXPECT_EQ(lines[4], "Polygon (67108864,-16777216) (0,0) (67108864,33554432)");
}

TEST(LongLinesOnCanvas, AProductBeyondAnIntKeepsItsSlopeWhileScaling)
{
    Canvas canvas(100, 100);
    ScaleBy(canvas.dc, 6.25f, 6.25f);

    canvas.dc.MoveTo(0, 0);
    canvas.dc.LineTo(2000000000, 1000000000);
    EXPECT_EQ(canvas.At(60, 30), Black);
    EXPECT_EQ(canvas.At(60, 34), White);

    canvas.dc.LineTo(0, 8); // and back from there, to (0, 50): the way runs at slope 1/2 less a hair
    EXPECT_EQ(canvas.At(60, 80), Black);
}

TEST(LongLinesOnCanvas, APolylineRunsOnAndLeavesThePenWhereItWas)
{
    Canvas canvas(100, 100);
    const CPenSelector pen(Black, 3, &canvas.dc);
    canvas.dc.MoveTo(7, 8);
    const POINT points[] = {{10, 10}, {40, 10}, {2000000040, 1000000010}, {50, 1000000010}, {50, 90}};

    EXPECT_TRUE(canvas.dc.Polyline(points, 5));

    EXPECT_EQ(canvas.At(25, 10), Black);
    EXPECT_EQ(canvas.At(80, 30), Black);
    EXPECT_EQ(canvas.At(50, 95), Black);
    EXPECT_EQ(canvas.At(50, 80), White);
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(7, 8));
    EXPECT_FALSE(canvas.dc.Polyline(points, 1));
    EXPECT_FALSE(canvas.dc.Polyline(nullptr, 5));
}

TEST(LongLinesOnCanvas, ALongWedgeIsFilledWhereItIsSeen)
{
    Canvas canvas(100, 100);
    const POINT wedge[] = {{10, 50}, {2000000010, 1000000050}, {2000000010, -499999950}};
    ::SelectObject(canvas.dc, ::GetStockObject(BLACK_BRUSH));

    canvas.dc.Polygon(wedge, 3);

    EXPECT_EQ(canvas.At(50, 68), Black);
    EXPECT_EQ(canvas.At(50, 73), White);
    EXPECT_EQ(canvas.At(50, 42), Black);
    EXPECT_EQ(canvas.At(50, 37), White);
    EXPECT_EQ(canvas.At(5, 50), White);
}

TEST(LongLinesOnCanvas, AWidePenKeepsTheSlopeToo)
{
    Canvas canvas(100, 100);
    const CPenSelector pen(Black, 5, &canvas.dc);

    canvas.dc.MoveTo(-1000000, -2000000);
    canvas.dc.LineTo(1000040, 2000000); // through (20, 0), two down in one right
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(1000040, 2000000));

    for (int y = 0; y < 100; y += 10) {
        EXPECT_EQ(canvas.At(20 + y / 2, y), Black) << y;
        EXPECT_EQ(canvas.At(26 + y / 2, y), White) << y;
        EXPECT_EQ(canvas.At(14 + y / 2, y), White) << y;
    }
}

TEST(LongLinesOnCanvas, APolygonAroundEverythingFillsTheCanvas)
{
    Canvas canvas(30, 30);
    const POINT all[] = {{INT_MIN, INT_MIN}, {INT_MAX, INT_MIN}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX}};
    ::SelectObject(canvas.dc, ::GetStockObject(BLACK_BRUSH));

    canvas.dc.Polygon(all, 4);

    EXPECT_EQ(canvas.Picture(), std::vector<std::string>(30, std::string(30, '#')));
}

// A fill between curves with values beyond all bounds. The platform alone takes half an hour.
TEST(LongLinesOnCanvas, APolygonOfThousandsOfFarEdgesIsFilledAtOnce)
{
    Canvas canvas(640, 480);
    ::SelectObject(canvas.dc, ::GetStockObject(BLACK_BRUSH));
    ::SelectObject(canvas.dc, ::GetStockObject(NULL_PEN));
    const std::vector<POINT> points = Zigzag(5000, INT_MAX - 100);

    const ULONGLONG start = ::GetTickCount64();
    EXPECT_TRUE(canvas.dc.Polygon(points.data(), static_cast<int>(points.size())));

    EXPECT_LT(::GetTickCount64() - start, 10'000u);
    EXPECT_EQ(canvas.At(200, 240), White);
    EXPECT_NE(canvas.Picture(), Canvas(640, 480).Picture());
}

TEST(LongLinesOnCanvas, ManySteepEdgesAreFilledWithThePixelsOfThePlatform)
{
    const HBRUSH hatch = ::CreateHatchBrush(HS_DIAGCROSS, RGB(200, 100, 50));
    for (const LONG reach : {150L, 1000L}) {
        const std::vector<POINT> points = Zigzag(301, reach);
        Canvas platform(100, 80);
        Canvas canvas(100, 80);
        PrepareFill(platform.dc, hatch);
        PrepareFill(canvas.dc, hatch);

        platform.dc.CDC::Polygon(points.data(), 301);
        canvas.dc.Polygon(points.data(), 301);

        platform.dc.SetViewportOrg(0, 0);
        canvas.dc.SetViewportOrg(0, 0);
        EXPECT_EQ(canvas.Picture(), platform.Picture()) << reach;
        EXPECT_NE(canvas.Picture(), Canvas(100, 80).Picture());
    }
    ::DeleteObject(hatch);
}

// Far ends are moved by less than a pixel; few edges and many are moved alike (our decision).
TEST(LongLinesOnCanvas, ManyFarEdgesAreFilledAsThePlatformFillsTheirNearParts)
{
    constexpr int count = 21;
    const std::vector<POINT> points = Zigzag(count, INT_MAX - 100);
    Canvas platform(640, 480);
    Canvas canvas(640, 480);
    std::vector<TPoint> places;
    for (const POINT& point : points)
        places.push_back(CPoint(point));
    std::vector<POINT> cut;
    for (const TPoint& place :
         LongLines::CutPolygon(places, LongLines::AreaAround({0, 0, 640, 480}, 1 << 15)))
        cut.push_back(CPoint(place));
    for (Canvas* one : {&platform, &canvas}) {
        ::SelectObject(one->dc, ::GetStockObject(BLACK_BRUSH));
        ::SelectObject(one->dc, ::GetStockObject(NULL_PEN));
    }

    platform.dc.CDC::Polygon(cut.data(), static_cast<int>(cut.size()));
    canvas.dc.Polygon(points.data(), count);

    EXPECT_EQ(canvas.Picture(), platform.Picture());
    EXPECT_NE(canvas.Picture(), Canvas(640, 480).Picture());
}

TEST(LongLinesOnCanvas, TheClipRegionIsAsBeforeAfterAFillOfManyEdges)
{
    Canvas canvas(100, 80);
    ::SelectObject(canvas.dc, ::GetStockObject(NULL_PEN));
    ::SelectObject(canvas.dc, ::GetStockObject(BLACK_BRUSH));
    ::IntersectClipRect(canvas.dc, 10, 10, 90, 70);
    const std::vector<POINT> points = Zigzag(301, 1000);

    canvas.dc.Polygon(points.data(), 301);
    const auto picture = canvas.Picture();
    canvas.dc.PatBlt(0, 0, 100, 80, BLACKNESS);

    EXPECT_EQ(picture[9], std::string(100, '.'));
    EXPECT_NE(picture[10], std::string(100, '.'));
    EXPECT_EQ(canvas.At(10, 10), Black);
    EXPECT_EQ(canvas.At(89, 69), Black);
    EXPECT_EQ(canvas.At(9, 10), White);
}

// Dots of a curve whose size has no bound. The platform alone takes hours.
TEST(LongLinesOnCanvas, ThousandsOfDotsLargerThanTheCanvasAreDrawnAtOnce)
{
    Canvas canvas(640, 480);
    const CPenSelector pen(RGB(255, 0, 0), 32767, &canvas.dc);
    const ULONGLONG start = ::GetTickCount64();

    for (int i = 0; i < 2000; ++i)
        canvas.dc.Ellipse(i % 640 - 32767, -32767, i % 640 + 32767, 32767);
    EXPECT_EQ(canvas.At(320, 240), White) << "the brush's";
    for (int i = 0; i < 2000; ++i)
        canvas.dc.Ellipse(30000 - 32767, i % 480 - 32767, 30000 + 32767, i % 480 + 32767);
    EXPECT_EQ(canvas.At(320, 240), RGB(255, 0, 0)) << "the pen's";
    EXPECT_EQ(::GetBkColor(canvas.dc), White) << "as it was";
    canvas.dc.FillSolidRect(0, 0, 640, 480, RGB(0, 255, 0));
    for (int i = 0; i < 2000; ++i)
        canvas.dc.Ellipse(60000 - 32767, i % 480 - 32767, 60000 + 32767, i % 480 + 32767);
    EXPECT_EQ(canvas.At(320, 240), RGB(0, 255, 0)) << "nothing";

    EXPECT_LT(::GetTickCount64() - start, 10'000u);
}

TEST(LongLinesOnCanvas, ThousandsOfDotsWhoseRimCrossesTheCanvasAreDrawnAtOnce)
{
    const std::pair<int, int> dots[] = {
        {1'000'000, 1}, {1'000'000, 1'000'000}, {1000, 1000}, {200, 200}};
    for (const auto& [radius, nPen] : dots) {
        Canvas canvas(640, 480);
        ::SelectObject(canvas.dc, ::GetStockObject(WHITE_BRUSH));
        const CPenSelector pen(RGB(255, 0, 0), nPen, &canvas.dc);
        canvas.dc.FillSolidRect(0, 0, 640, 480, RGB(0, 255, 0));
        const ULONGLONG start = ::GetTickCount64();

        const int rim = nPen / 2; // beyond the radius
        for (int i = 0; i < 2000; ++i)
            canvas.dc.Ellipse(320 - rim - 2 * radius, 240 - radius, 320 - rim, 240 + radius);

        EXPECT_LT(::GetTickCount64() - start, 10'000u);
        EXPECT_EQ(canvas.At(318, 240), nPen == 1 ? White : RGB(255, 0, 0)) << radius;
        EXPECT_EQ(canvas.At(322, 240), RGB(0, 255, 0)) << nPen;
    }
}

TEST(LongLinesOnCanvas, AHugeOrWideEllipseLiesWithinAPixelOfThePlatforms_OurDecision)
{
    struct TEllipse {
        CRect rect;
        int nPen;
        int nStyle = PS_SOLID;
    };
    const TEllipse ellipses[] = {{{20, -17000, 34020, 17000}, 1},
                                 {{-17000, 30, 17000, 34030}, 1},
                                 {{-29000, -29000, 120, 110}, 3},
                                 {{430, -17000, 34430, 17000}, 800},
                                 {{250, -2100, 4500, 2100}, 800},
                                 {{100, -200, 500, 200}, 200},
                                 {{100, -200, 500, 200}, 200, PS_DASHDOTDOT},
                                 {{-170, -2000, 3830, 2000}, 400, PS_DASH}};
    for (const auto& [rect, nPen, nStyle] : ellipses) {
        Canvas platform(60, 50);
        Canvas canvas(60, 50);
        for (CDCEx* const dc : {&platform.dc, &canvas.dc}) {
            dc->FillSolidRect(0, 0, 60, 50, RGB(90, 90, 90));
            ::SelectObject(*dc, ::GetStockObject(WHITE_BRUSH));
        }
        const CPenSelector platformPen(Black, nPen, &platform.dc, nStyle);
        const CPenSelector pen(Black, nPen, &canvas.dc, nStyle);

        platform.dc.CDC::Ellipse(&rect);
        canvas.dc.Ellipse(rect.left, rect.top, rect.right, rect.bottom);

        for (int y = 1; y < 49; ++y) {
            for (int x = 1; x < 59; ++x) {
                const COLORREF around[] = {platform.At(x, y), platform.At(x - 1, y),
                                           platform.At(x + 1, y), platform.At(x, y - 1),
                                           platform.At(x, y + 1)};
                EXPECT_NE(std::find(std::begin(around), std::end(around), canvas.At(x, y)),
                          std::end(around))
                    << x << ", " << y << " of " << rect.left << ", pen of " << nPen;
            }
        }
    }
}

TEST(LongLinesOnCanvas, ARingOfAWidePenIsThePlatforms)
{
    Canvas platform(60, 50);
    Canvas canvas(60, 50);
    for (CDCEx* const dc : {&platform.dc, &canvas.dc}) {
        dc->FillSolidRect(0, 0, 60, 50, RGB(90, 90, 90));
        ::SelectObject(*dc, ::GetStockObject(NULL_BRUSH));
    }
    const CPenSelector platformPen(Black, 200, &platform.dc);
    const CPenSelector pen(Black, 200, &canvas.dc);

    platform.dc.CDC::Ellipse(-70, -200, 330, 200);
    canvas.dc.Ellipse(-70, -200, 330, 200);

    EXPECT_EQ(canvas.Picture(), platform.Picture());
    EXPECT_EQ(canvas.At(5, 25), Black);
    EXPECT_EQ(canvas.At(55, 25), RGB(90, 90, 90)) << "what was there";
}

TEST(LongLinesOnCanvas, ALargeEllipseHasThePixelsOfThePlatform)
{
    struct TEllipse {
        CRect rect;
        int nPen;
    };
    const TEllipse ellipses[] = {{{-3000, -3000, 3000, 3000}, 1},
                                 {{20, -5000, 12000, 5000}, 1},
                                 {{-9000, -9000, 40, 40}, 1},
                                 {{5000, -2100, 9200, 2100}, 1},
                                 {{30, -300, 630, 300}, 100}};
    for (const auto& [rect, nPen] : ellipses) {
        Canvas platform(60, 50);
        Canvas canvas(60, 50);
        for (CDCEx* const dc : {&platform.dc, &canvas.dc}) {
            dc->FillSolidRect(0, 0, 60, 50, RGB(90, 90, 90));
            ::SelectObject(*dc, ::GetStockObject(WHITE_BRUSH));
        }
        const CPenSelector platformPen(Black, nPen, &platform.dc);
        const CPenSelector pen(Black, nPen, &canvas.dc);

        platform.dc.CDC::Ellipse(&rect);
        canvas.dc.Ellipse(rect.left, rect.top, rect.right, rect.bottom);

        EXPECT_EQ(canvas.Picture(), platform.Picture()) << rect.left << ", pen of " << nPen;
    }
}
