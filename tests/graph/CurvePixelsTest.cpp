// The fast painting draws the pixels of the plain one: line after line, dot after dot, every
// point of the fill.

#include "NativeGraph.h"
#include "draw/Canvas.h"
#include "draw/Selectors.h"
#include "objects/ColumnWalk.h"

#include <cmath>
#include <optional>
#include <random>

namespace
{

class CurvePixels : public GraphTest
{
protected:
    static constexpr COLORREF Fill = 0x30A0F0;

    CXGraphDataSerie& Add(std::vector<TDataPoint> points)
    {
        return *graph.SetData(points.data(), static_cast<long>(points.size()),
                              static_cast<int>(graph.m_Curves.size()), 0, 0, true);
    }
    void Show(double fMinX, double fMaxX, double fMinY, double fMaxY)
    {
        graph.GetXAxis(0)->m_bAutoScale = false;
        graph.GetYAxis(0)->m_bAutoScale = false;
        graph.GetXAxis(0)->SetCurrentRange(fMinX, fMaxX, (fMaxX - fMinX) / 5);
        graph.GetYAxis(0)->SetCurrentRange(fMinY, fMaxY, (fMaxY - fMinY) / 5);
        Paint();
    }
    void ClipToPlot(CDCEx& dc)
    {
        // As the frame does: of a rectangle inside out the region is its mirror image.
        const HRGN hRegion = ::CreateRectRgnIndirect(&graph.m_rcInner);
        ::SelectClipRgn(dc, hRegion);
        ::DeleteObject(hRegion);
    }

    // The rule, word for word.
    void DrawPlainly(CXGraphDataSerie& curve, CDCEx& dc)
    {
        const AxisMapping::CMapper x(graph.GetXAxis(0)->GetScale());
        const AxisMapping::CMapper y(graph.GetYAxis(0)->GetScale());
        const ColumnWalk::TCurve points{curve.Points(), x, y, false};
        const CPenSelector pen(curve.m_crColor, curve.m_nLineSize, &dc,
                               static_cast<int>(curve.m_nLineStyle));
        const int nSize = curve.m_nLineSize;
        const auto dot = [&](TPoint at) {
            dc.Ellipse(at.x - nSize, at.y - nSize, at.x + nSize, at.y + nSize);
        };
        std::vector<POINT> polygon{CPoint(points.PixelAt(0))};
        if (curve.m_nType == gtScatter)
            dot(points.PixelAt(0));
        else
            dc.MoveTo(CPoint(points.PixelAt(0)));
        const auto ends = WalkEverySegment(points, [&](TPoint, TPoint to) {
            if (curve.m_nType == gtScatter)
                dot(to);
            else
                dc.LineTo(CPoint(to));
            polygon.push_back(CPoint(to));
        });
        if (curve.m_bFillBeneath)
            FillPlainly(curve, dc, polygon, ends);
    }

    void FillPlainly(const CXGraphDataSerie& curve, CDCEx& dc, std::vector<POINT>& polygon,
                     const ColumnWalk::TEnds& ends)
    {
        if (curve.m_nFillCurve == 65535) {
            polygon.push_back(CPoint(ends.ptLast.x, graph.m_rcInner.bottom));
            polygon.push_back(CPoint(ends.ptFirst.x, graph.m_rcInner.bottom));
        } else {
            const CXGraphDataSerie& partner = graph.m_Curves[curve.m_nFillCurve];
            for (int i = partner.m_nCount - 1; i >= 0; --i)
                polygon.push_back(CPoint(graph.GetXAxis(0)->GetPointForValue(partner.m_pData[i]).x,
                                         graph.GetYAxis(0)->GetPointForValue(partner.m_pData[i]).y));
        }
        const CPenSelector none(0, 0, &dc, PS_NULL);
        std::optional<CBrushSelector> brush;
        if (curve.m_nFillStyle == 6)
            brush.emplace(Fill, &dc);
        else
            brush.emplace(curve.m_nFillStyle, Fill, &dc);
        dc.SetBkMode(curve.m_bFillTransparent ? TRANSPARENT : OPAQUE);
        if (curve.m_bFillTransparent)
            dc.SetROP2(R2_NOTXORPEN);
        dc.Polygon(polygon.data(), static_cast<int>(polygon.size()));
    }

    void ExpectSamePixels(CXGraphDataSerie& curve, const char* pszWhat)
    {
        curve.m_crFillColor = Fill;
        Canvas fast(Width, Height);
        Canvas plain(Width, Height);
        ClipToPlot(fast.dc);
        ClipToPlot(plain.dc);
        curve.Draw(&fast.dc);
        DrawPlainly(curve, plain.dc);
        int nDifferent = 0;
        for (int y = 0; y < Height; ++y) {
            for (int x = 0; x < Width; ++x)
                nDifferent += fast.At(x, y) != plain.At(x, y) ? 1 : 0;
        }
        EXPECT_EQ(nDifferent, 0) << pszWhat << " type " << curve.m_nType << " size " << curve.m_nLineSize
                                 << " style " << curve.m_nLineStyle << " fill " << curve.m_nFillStyle;
    }
};

std::vector<TDataPoint> Wave(int nCount, double fNoise)
{
    std::mt19937 random(17);
    std::vector<TDataPoint> points;
    for (int i = 0; i < nCount; ++i)
        points.push_back(
            {10.0 * i / nCount, std::sin(i * 80.0 / nCount) + fNoise * (random() % 1000 / 500.0 - 1)});
    return points;
}

constexpr double Views[][4] = {
    {0, 10, -1.3, 1.3}, {4, 6, -0.4, 0.5}, {4.9, 4.95, -2, 2}, {-5, 3, 0.2, 3}};

} // namespace

TEST_F(CurvePixels, SolidLinesOfAnyWidth)
{
    CXGraphDataSerie& curve = Add(Wave(3000, 0.2));
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const int nSize : {0, 1, 2, 3, 8, 25}) {
            curve.m_nLineSize = nSize;
            ExpectSamePixels(curve, "line");
        }
    }
}

TEST_F(CurvePixels, PatternedLines)
{
    CXGraphDataSerie& curve = Add(Wave(300, 0.05));
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const UINT nStyle : {PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME}) {
            curve.m_nLineStyle = nStyle;
            ExpectSamePixels(curve, "pattern");
        }
    }
}

TEST_F(CurvePixels, Dots)
{
    CXGraphDataSerie& curve = Add(Wave(400, 0.5));
    curve.m_nType = gtScatter;
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const int nSize : {1, 2, 5, 20}) {
            curve.m_nLineSize = nSize;
            ExpectSamePixels(curve, "dots");
        }
    }
}

TEST_F(CurvePixels, CurvesInNoOrder)
{
    std::mt19937 random(3);
    std::vector<TDataPoint> points;
    for (int i = 0; i < 500; ++i)
        points.push_back({random() % 4000 / 100.0 - 15, random() % 4000 / 1000.0 - 2});
    CXGraphDataSerie& curve = Add(points);
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const int nSize : {1, 6}) {
            curve.m_nLineSize = nSize;
            ExpectSamePixels(curve, "no order");
        }
    }
}

TEST_F(CurvePixels, FillsToTheBottom)
{
    CXGraphDataSerie& curve = Add(Wave(3000, 0.1));
    curve.SetFillBeneath(true, 65535);
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const bool bTransparent : {false, true}) {
            curve.m_bFillTransparent = bTransparent;
            for (const int nStyle : {0, 3, 5, 6}) {
                curve.m_nFillStyle = nStyle;
                ExpectSamePixels(curve, "fill");
            }
        }
    }
}

TEST_F(CurvePixels, FillsToAPartner)
{
    Add(Wave(3000, 0.1));
    auto shifted = Wave(700, 0.3);
    for (TDataPoint& point : shifted)
        point.fYVal -= 0.5;
    Add(shifted);
    CXGraphDataSerie& curve = graph.m_Curves[0];
    curve.SetFillBeneath(true, 1);
    for (const auto& view : Views) {
        Show(view[0], view[1], view[2], view[3]);
        for (const bool bTransparent : {false, true}) {
            curve.m_bFillTransparent = bTransparent;
            ExpectSamePixels(curve, "partner");
        }
    }
}

TEST_F(CurvePixels, APlotTurnedInsideOutShowsTheCurveButRecordsNothing)
{
    CXGraphDataSerie& curve = Add(Wave(3000, 0.1));
    Show(0, 10, -1.3, 1.3);
    for (const bool bNarrow : {true, false}) {
        graph.m_nLeftMargin = bNarrow ? Width / 2 + 40 : 20;
        graph.m_nRightMargin = bNarrow ? Width / 2 + 30 : 20;
        graph.m_nTopMargin = bNarrow ? 20 : Height / 2 + 40;
        graph.m_nBottomMargin = bNarrow ? 20 : Height / 2 + 30;
        Paint();
        EXPECT_LT(bNarrow ? graph.m_rcInner.Width() : graph.m_rcInner.Height(), -50);
        for (const EGraphType type : {gtLine, gtScatter}) {
            curve.m_nType = type;
            ExpectSamePixels(curve, "inside out");
            EXPECT_TRUE(curve.m_Segments.empty());
        }
        curve.m_nType = gtLine;
        Canvas canvas(Width, Height);
        ClipToPlot(canvas.dc);
        curve.m_crColor = 0x0000FF;
        curve.Draw(&canvas.dc);
        int nDrawn = 0;
        for (int y = 0; y < Height; ++y) {
            for (int x = 0; x < Width; ++x)
                nDrawn += canvas.At(x, y) == 0x0000FF ? 1 : 0;
        }
        EXPECT_GT(nDrawn, 20);
        for (const bool bTransparent : {false, true}) {
            curve.SetFillBeneath(true, 65535);
            curve.m_bFillTransparent = bTransparent;
            ExpectSamePixels(curve, "filled inside out");
        }
        curve.SetFillBeneath(false, 65535);
    }
}

TEST_F(CurvePixels, FurtherHatchesFillAndOthersDrawNothing)
{
    CXGraphDataSerie& curve = Add(Wave(300, 0.1));
    Show(0, 10, -1.3, 1.3);
    curve.SetFillBeneath(true, 65535);
    for (const bool bTransparent : {false, true}) {
        curve.m_bFillTransparent = bTransparent;
        for (int nStyle = 7; nStyle < 12; ++nStyle) {
            curve.m_nFillStyle = nStyle;
            ExpectSamePixels(curve, "further hatch");
        }
    }
    curve.m_bFillTransparent = false;
    curve.m_bFillBeneath = false;
    const Picture without = Shoot();
    curve.m_bFillBeneath = true;
    for (const int nStyle : {-1, 12, INT_MAX, INT_MIN}) {
        curve.m_nFillStyle = nStyle;
        EXPECT_EQ(Shoot().CountDifferences(without), 0) << nStyle;
    }
}

TEST_F(CurvePixels, AFillWithItselfIsNothing)
{
    CXGraphDataSerie& curve = Add(Wave(60, 0.1));
    Show(0, 10, -1.3, 1.3);
    curve.m_nLineStyle = PS_NULL;
    curve.m_crFillColor = Fill;
    curve.m_bFillTransparent = false;
    curve.SetFillBeneath(true, 0);
    Canvas canvas(Width, Height);
    curve.Draw(&canvas.dc);
    int nFilled = 0;
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x)
            nFilled += canvas.At(x, y) == Fill ? 1 : 0;
    }
    EXPECT_EQ(nFilled, 0);
}

TEST_F(CurvePixels, WithoutTheFlagNothingIsFilled)
{
    CXGraphDataSerie& curve = Add(Wave(60, 0.1));
    curve.m_nFillStyle = 6;
    curve.m_crFillColor = Fill;
    curve.m_bFillTransparent = false;
    EXPECT_EQ(Shoot().Count(Fill), 0);
    curve.SetFillBeneath(true, 65535);
    EXPECT_GT(Shoot().Count(Fill), 1000);
}

TEST_F(CurvePixels, TheContextIsLeftAsItWas)
{
    CXGraphDataSerie& curve = Add(Wave(60, 0.1));
    Show(0, 10, -1.3, 1.3);
    curve.SetFillBeneath(true, 65535);
    Canvas canvas(Width, Height);
    const HGDIOBJ hPen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    const HGDIOBJ hBrush = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);
    canvas.dc.SetBkMode(TRANSPARENT);
    curve.Draw(&canvas.dc);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), hPen);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_BRUSH), hBrush);
    EXPECT_EQ(canvas.dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(::GetROP2(canvas.dc), R2_COPYPEN);
}
