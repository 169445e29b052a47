// What of a curve becomes pixels, and what of it the mouse can hit.

#include "NativeGraph.h"
#include "WatchedCanvas.h"
#include "draw/Canvas.h"
#include "draw/Selectors.h"
#include "objects/ColumnWalk.h"

#include <cmath>
#include <functional>
#include <numbers>

namespace
{

constexpr int InvalidParameter = static_cast<int>(0xC0000417);

class CurveDrawing : public GraphTest
{
protected:
    CurveDrawing() { graph.m_bShowLegend = false; }

    CXGraphDataSerie& Add(std::vector<TDataPoint> points)
    {
        CXGraphDataSerie* pCurve = graph.SetData(points.data(), static_cast<long>(points.size()),
                                                 static_cast<int>(graph.m_Curves.size()), 0, 0, true);
        return *pCurve;
    }
    void Show(double fMinX, double fMaxX, double fMinY, double fMaxY)
    {
        graph.GetXAxis(0)->m_bAutoScale = false;
        graph.GetYAxis(0)->m_bAutoScale = false;
        graph.GetXAxis(0)->SetCurrentRange(fMinX, fMaxX, (fMaxX - fMinX) / 5);
        graph.GetYAxis(0)->SetCurrentRange(fMinY, fMaxY, (fMaxY - fMinY) / 5);
    }
    TPoint At(double fX, double fY)
    {
        return {static_cast<int>(graph.GetXAxis(0)->GetPointForValue({fX, fY}).x),
                static_cast<int>(graph.GetYAxis(0)->GetPointForValue({fX, fY}).y)};
    }
    // The segments by the plain rule, of a curve that was just painted.
    std::vector<TSegment> PlainSegments(const CXGraphDataSerie& curve)
    {
        const AxisMapping::CMapper x(graph.GetXAxis(0)->GetScale());
        const AxisMapping::CMapper y(graph.GetYAxis(0)->GetScale());
        std::vector<TSegment> segments;
        ColumnWalk::WalkEverySegment({curve.Points(), x, y, false}, [&](TPoint from, TPoint to) {
            if (graph.m_rcInner.PtInRect(CPoint(from)) || graph.m_rcInner.PtInRect(CPoint(to)))
                segments.push_back({from, to});
        });
        return segments;
    }
};

using CurveBoundsDeathTest = CurveDrawing;

std::vector<TDataPoint> Sine(int nCount)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < nCount; ++i)
        points.push_back({i * 1.0, std::sin(2 * std::numbers::pi * i / (nCount / 8.0))});
    return points;
}

} // namespace

TEST_F(CurveDrawing, ASelectedCurveHasTheInverseOfItsColour)
{
    Add(Line()).m_crColor = 0x103050;
    EXPECT_GT(Shoot().Count(0x103050), 100);
    graph.SelectCurve(0);
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count(0xEFCFAF), 100);
}

TEST_F(CurveDrawing, OfPointsOnOneColumnOnlyTheFirstCounts)
{
    Add({{0, 0}, {5, 2}, {5, 9}, {5, 4}, {10, 10}});
    Show(0, 10, 0, 10);
    Paint();
    const std::vector<TSegment> expected{{At(0, 0), At(5, 2)}, {At(5, 2), At(10, 10)}};
    EXPECT_EQ(graph.GetCurve(0)->m_Segments, expected);
}

TEST_F(CurveDrawing, ACurveOutsideThePlotCantBeHit)
{
    Add({{100, 100}, {120, 110}, {140, 90}}).m_crColor = 0x0000FF;
    graph.GetXAxis(0)->m_bShowMarker = false;
    graph.GetYAxis(0)->m_bShowMarker = false;
    Show(0, 10, 0, 10);
    EXPECT_EQ(Shoot().Count(0x0000FF), 0);
    EXPECT_TRUE(graph.GetCurve(0)->m_Segments.empty());
    EXPECT_FALSE(graph.GetCurve(0)->HitTestCurve(CPoint(200, 100), 4));
}

TEST_F(CurveDrawing, AnEnteringSegmentIsRecorded)
{
    Add({{-10, 5}, {5, 5}, {20, 5}});
    Show(0, 10, 0, 10);
    Paint();
    const std::vector<TSegment> expected{{At(-10, 5), At(5, 5)}, {At(5, 5), At(20, 5)}};
    EXPECT_EQ(graph.GetCurve(0)->m_Segments, expected);
    EXPECT_TRUE(graph.GetCurve(0)->HitTestCurve(CPoint(At(2, 5)), 4));
}

TEST_F(CurveDrawing, ASegmentAcrossThePlotIsDrawnButNotRecorded)
{
    Add({{-10, 5}, {20, 5}}).m_crColor = 0x0000FF;
    Show(0, 10, 0, 10);
    EXPECT_GT(Shoot().Count(0x0000FF), 200);
    EXPECT_TRUE(graph.GetCurve(0)->m_Segments.empty());
}

TEST_F(CurveDrawing, SegmentsAreThoseOfThePlainRule)
{
    for (const int nCount : {50, 5000, 100000}) {
        graph.ResetAll();
        Add(Sine(nCount));
        for (const auto& [fFrom, fTo] : {std::pair{0.0, 1.0}, std::pair{0.45, 0.55}, std::pair{0.9, 1.4},
                                         std::pair{0.5, 0.5004}, std::pair{-3.0, -2.0}}) {
            Show(fFrom * nCount, fTo * nCount, -0.7, 1.2);
            Paint();
            EXPECT_EQ(graph.GetCurve(0)->m_Segments, PlainSegments(*graph.GetCurve(0)))
                << nCount << ' ' << fFrom;
        }
    }
}

TEST_F(CurveDrawing, TheCallersArrayShowsAsAPrivateCopyDoes)
{
    auto points = Sine(20000);
    Add(points);
    Show(7000, 9000, -1, 1);
    const Picture owned = Shoot();
    const auto segments = graph.GetCurve(0)->m_Segments;
    graph.GetCurve(0)->ReplaceData(points.data(), 20000, false);
    EXPECT_EQ(Shoot().CountDifferences(owned), 0);
    EXPECT_EQ(graph.GetCurve(0)->m_Segments, segments);
}

TEST_F(CurveDrawing, AHiddenCurveKeepsItsLastSegmentsUntilDrawn)
{
    CXGraphDataSerie& curve = Add(Line());
    Paint();
    EXPECT_FALSE(curve.m_Segments.empty());
    curve.m_nCount = 0;
    Canvas canvas(10, 10);
    curve.Draw(&canvas.dc);
    EXPECT_TRUE(curve.m_Segments.empty());
    curve.m_nCount = 11;
}

TEST_F(CurveDrawing, AScatterCurveDrawsDotsOfItsLineSize)
{
    CXGraphDataSerie& curve = Add({{2, 2}, {5, 5}, {8, 2}});
    curve.m_nType = gtScatter;
    curve.m_nLineSize = 4;
    curve.m_crColor = 0x0000FF;
    Show(0, 10, 0, 10);
    const Picture picture = Shoot();
    const TPoint dot = At(5, 5);
    EXPECT_EQ(picture.At(dot.x, dot.y - 3), 0x0000FFu);
    EXPECT_NE(picture.At((dot.x + At(2, 2).x) / 2, (dot.y + At(2, 2).y) / 2), 0x0000FFu);
    EXPECT_EQ(curve.m_Segments.size(), 2u);
}

TEST_F(CurveDrawing, AnUnknownTypeDrawsNothingButKeepsItsSegments)
{
    CXGraphDataSerie& curve = Add({{2, 2}, {5, 5}, {8, 2}});
    curve.m_nType = static_cast<EGraphType>(7);
    curve.m_crColor = 0x0000FF;
    graph.GetXAxis(0)->m_bShowMarker = false;
    graph.GetYAxis(0)->m_bShowMarker = false;
    Show(0, 10, 0, 10);
    EXPECT_EQ(Shoot().Count(0x0000FF), 0);
    EXPECT_EQ(curve.m_Segments.size(), 2u);
}

TEST_F(CurveDrawing, MarkersThinOutToAQuarterOfTheRoom)
{
    CXGraphDataSerie& curve = Add(Sine(1000));
    curve.m_bShowMarker = true;
    curve.m_nMarkerType = 1;
    curve.m_nMarker = 0;
    curve.m_nMarkerSize = 7;
    curve.m_crColor = 0x0000FF;
    Show(0, 1000, -1.5, 1.5);
    const Picture picture = Shoot();
    const CRect plot = graph.m_rcInner;
    const int nStep = 1000 / (plot.Width() / 7 / 4);
    // Every step-th point is the middle of a marker; the points between are none.
    for (int i = nStep; i < 1000 - nStep; i += nStep) {
        const TPoint middle = At(i, curve.m_pData[i].fYVal);
        EXPECT_EQ(picture.At(middle.x + 1, middle.y + 1), 0x0000FFu) << i;
        EXPECT_EQ(picture.At(middle.x - 2, middle.y - 2), 0x0000FFu) << i;
    }
}

TEST_F(CurveDrawing, AllMarkersShowWhilePointsAreEdited)
{
    CXGraphDataSerie& curve = Add({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}});
    curve.m_bShowMarker = true;
    curve.m_nMarkerSize = 8;
    curve.m_crColor = 0x0000FF;
    Show(0, 10, 0, 10);
    graph.m_opOperation = opEditCurve;
    const Picture picture = Shoot();
    for (int i = 1; i <= 5; ++i) {
        const TPoint middle = At(i, i);
        EXPECT_EQ(picture.At(middle.x - 4, middle.y - 4), 0x0000FFu) << i;
    }
}

TEST_F(CurveDrawing, MarkersOfNoSizeStepByTwo)
{
    CXGraphDataSerie& curve = Add(Line());
    curve.m_bShowMarker = true;
    for (const int nSize : {0, -1, INT_MIN, INT_MAX}) {
        curve.m_nMarkerSize = nSize;
        for (int nMarker = -1; nMarker < 8; ++nMarker) {
            curve.m_nMarkerType = nMarker < 0 ? 0 : 1;
            curve.m_nMarker = nMarker;
            Paint();
            EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
        }
    }
}

TEST_F(CurveDrawing, TheSmallestWidthOverASizeOfMinusOneHasMarkersToo)
{
    CXGraphDataSerie& curve = Add(Line());
    curve.m_nMarkerSize = -1;
    Paint();
    Canvas canvas(Width, Height);
    graph.m_rcInner = CRect(1 << 30, 0, -(1 << 30), 100);
    ASSERT_EQ(graph.m_rcInner.Width(), INT_MIN);
    curve.DrawMarkers(&canvas.dc);
    EXPECT_EQ(graph.m_rcInner.Width(), INT_MIN);
}

TEST_F(CurveDrawing, AFillPartnerIsMappedByItsOwnAxes)
{
    Add({{0, 9}, {10, 9}});
    std::vector<TDataPoint> points{{0, 500}, {1, 500}};
    CXGraphDataSerie& partner = *graph.SetData(points.data(), 2, 1, 1, 1, true); // on axes of its own
    Show(0, 10, 0, 10);
    for (CXGraphAxis* pAxis : {graph.GetXAxis(1), graph.GetYAxis(1)})
        pAxis->m_bAutoScale = false;
    graph.GetXAxis(1)->SetCurrentRange(0, 1, 0.2);
    graph.GetYAxis(1)->SetCurrentRange(0, 1000, 200);
    partner.m_bVisible = false;
    CXGraphDataSerie& filled = graph.m_Curves[0];
    filled.SetFillBeneath(true, 1);
    filled.m_bFillTransparent = false;
    filled.m_crFillColor = 0x0000FF;
    const Picture picture = Shoot();
    const int nColumn = At(5, 0).x;
    const int nMiddle = graph.GetYAxis(1)->GetPointForValue({0, 500}).y;
    EXPECT_EQ(picture.At(nColumn, At(0, 9).y + 3), 0x0000FFu);
    EXPECT_EQ(picture.At(nColumn, nMiddle - 3), 0x0000FFu);
    EXPECT_NE(picture.At(nColumn, nMiddle + 3), 0x0000FFu);
}

TEST_F(CurveDrawing, NumberedMarkersShowTheCurvesPositionOrTheMarker)
{
    Add(Line());
    for (const int nType : {0, 2, 1}) {
        CXGraphDataSerie& curve = Add(Line());
        curve.m_nMarkerType = nType;
        curve.m_nMarker = 5;
        curve.m_nMarkerSize = 9;
    }
    Paint();
    const std::vector<std::wstring> numbers{L"2", L"6"};
    for (int i = 0; i < 2; ++i) {
        const CXGraphDataSerie& curve = graph.m_Curves[i == 0 ? 1 : 2];
        WatchedCanvas canvas(Width, Height);
        graph.m_Curves[i == 0 ? 1 : 2].DrawMarkers(&canvas.dc);
        ASSERT_FALSE(canvas.dc.texts.empty());
        const TPoint first = At(curve.m_pData[0].fXVal, curve.m_pData[0].fYVal);
        EXPECT_EQ(canvas.dc.texts[0].rect, CRect(CPoint(first.x - 4, first.y - 4), CSize(9, 9)));
        for (const WatchedDC::Text& text : canvas.dc.texts)
            EXPECT_EQ(text.text, numbers[i]);
    }
    WatchedCanvas canvas(Width, Height);
    graph.m_Curves[3].DrawMarkers(&canvas.dc);
    EXPECT_TRUE(canvas.dc.texts.empty());
}

TEST_F(CurveDrawing, HostileSettingsPaint)
{
    CXGraphDataSerie& curve = Add(Line());
    curve.m_bFillBeneath = true;
    curve.m_nFillCurve = 65535;
    for (const int nValue : {-1, 0, 7, 100000, INT_MAX, INT_MIN}) {
        curve.m_nLineSize = nValue;
        curve.m_nFillStyle = nValue;
        curve.m_nLineStyle = static_cast<UINT>(nValue);
        for (const EGraphType type : {gtLine, gtScatter}) {
            curve.m_nType = type;
            Paint();
            EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
        }
    }
}

TEST_F(CurveDrawing, AMonoTargetIsBlack)
{
    CXGraphDataSerie& curve = Add(Line());
    curve.m_crColor = 0x0000FF;
    Paint();
    Canvas canvas(Width, Height);
    canvas.dc.m_bMono = true;
    curve.Draw(&canvas.dc);
    const TPoint middle = At(5, 5);
    EXPECT_EQ(canvas.At(middle.x, middle.y), 0u);
}

TEST_F(CurveBoundsDeathTest, AnAxisThatIsGoneEndsTheProcess)
{
    Add(Line()).m_nYAxis = 5;
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
}

TEST_F(CurveBoundsDeathTest, AFillPartnerThatIsNoneEndsTheProcess)
{
    CXGraphDataSerie& curve = Add(Line());
    curve.m_nFillCurve = 1;
    Paint();
    curve.m_bFillBeneath = true;
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
    curve.m_nFillCurve = 40000; // negative as the signed number that it is read as
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
}
