// Measures: how their ends are found, where they are drawn, and what they say.

#include "MeasureHost.h"

#include <climits>

namespace
{

constexpr int InvalidParameter = static_cast<int>(0xC0000417);
constexpr COLORREF Red = 0x0000FF;
constexpr COLORREF Guide = 0xC8C8C8;

using GraphMeasureDeathTest = GraphMeasure;
using Corners = std::vector<CPoint>;

} // namespace

TEST_F(GraphMeasure, TheNearestPointInYIsTakenWhateverItsDistance)
{
    graph.m_ptLButtonDown = CPoint(Column(3) + 1, Row(9.9));
    CPoint point = graph.m_ptLButtonDown;
    graph.m_MeasureTool.FindNearestPoint(point);
    EXPECT_EQ(point, CPoint(Column(3) + 1, Row(8)));
    EXPECT_EQ(graph.m_nCursorCurve, 1);
    EXPECT_EQ(graph.m_MeasureTool.m_LiveMeasure.nCurve1, 1);
    EXPECT_NEAR(graph.m_MeasureTool.m_LiveMeasure.nIndex1, 31, 1);
    point = CPoint(Column(7) + 1, Row(0.1));
    graph.m_MeasureTool.FindNearestPoint(point);
    EXPECT_EQ(point, CPoint(Column(7) + 1, Row(2)));
    EXPECT_EQ(graph.m_nCursorCurve, 1);
    EXPECT_EQ(graph.m_MeasureTool.m_nMeasureCurve2, 0);
    EXPECT_EQ(graph.m_MeasureTool.m_LiveMeasure.nCurve2, 0);
    EXPECT_NEAR(graph.m_MeasureTool.m_LiveMeasure.nIndex2, 71, 1);
}

TEST_F(GraphMeasure, TheEarlierOfTwoCurvesAtOnePixelWins)
{
    AddLevel(8);
    graph.GetYAxis(0)->SetRange(0, 10);
    CPoint point = graph.m_ptLButtonDown = CPoint(Column(5), Row(9));
    graph.m_MeasureTool.FindNearestPoint(point);
    EXPECT_EQ(graph.m_MeasureTool.m_LiveMeasure.nCurve1, 1);
}

TEST_F(GraphMeasure, WithoutCurvesAPointStaysWhereItIs)
{
    graph.ResetAll();
    CPoint point(50, 60);
    graph.m_MeasureTool.FindNearestPoint(point);
    EXPECT_EQ(point, CPoint(50, 60));
}

TEST_F(GraphMeasure, ADragStoresASpanFromPointToPoint)
{
    graph.Measure();
    Press(Column(2) + 1, Row(8) + 30);
    EXPECT_EQ(graph.m_ptLButtonDown, CPoint(Column(2) + 1, Row(8)));
    Drag(Column(6) + 1, Row(2) - 20);
    EXPECT_EQ(graph.m_ptCurrent.y, Row(2));
    Release(Column(6) + 1, Row(2) - 20);
    ASSERT_EQ(graph.m_Measures.size(), 1u);
    const TMeasureSpan span = graph.m_Measures[0];
    EXPECT_EQ(span.nCurve1, 1);
    EXPECT_EQ(span.nCurve2, 0);
    EXPECT_EQ(span.nIndex2, graph.m_MeasureTool.m_LiveMeasure.nIndex2);
    EXPECT_LT(span.nIndex1, span.nIndex2);
    EXPECT_FALSE(graph.m_bLButtonDown);
}

TEST_F(GraphMeasure, APlainClickStoresASpanToo)
{
    graph.Measure();
    Press(Column(2) + 1, Row(8) + 5);
    Release(Column(2) + 1, Row(8) + 5);
    ASSERT_EQ(graph.m_Measures.size(), 1u);
    EXPECT_EQ(graph.m_Measures[0].nIndex1, graph.m_Measures[0].nIndex2);
    // Right on the curve the release is the press again, and the second end that of the last span.
    graph.m_MeasureTool.m_LiveMeasure.nIndex2 = 77;
    Press(Column(4) + 1, Row(8));
    Release(Column(4) + 1, Row(8));
    ASSERT_EQ(graph.m_Measures.size(), 2u);
    EXPECT_EQ(graph.m_Measures[1].nIndex2, 77);
}

TEST_F(GraphMeasure, TheTextsAreTheDifferences)
{
    Store(1, 20, 0, 70);
    const CXGraphAxis& axis = *graph.GetXAxis(0);
    CString expected;
    expected.Format(L"x%.3f", graph.GetXAxis(0)->GetValueForPos(Column(7)) -
                                  graph.GetXAxis(0)->GetValueForPos(Column(2)));
    EXPECT_EQ(Texts(L'x'), std::vector<std::wstring>{expected.GetString()});
    EXPECT_EQ(Texts(L'y'), std::vector<std::wstring>{L"y6.000 unit"});
    EXPECT_EQ(axis.m_fCurMax, 10);
}

TEST_F(GraphMeasure, XHasItsSignAndYHasNone)
{
    Store(0, 70, 1, 20);
    const std::vector<std::wstring> texts = Texts(L'x');
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_TRUE(texts[0].starts_with(L"x-"));
    EXPECT_EQ(Texts(L'y'), std::vector<std::wstring>{L"y6.000 unit"});
}

TEST_F(GraphMeasure, ASpanOfDaysPrintsAsADateNearTheEpoch)
{
    graph.GetXAxis(0)->m_bDateTime = true;
    graph.GetXAxis(0)->m_cDisplayFmt = L"x%Y";
    Store(1, 20, 0, 70); // five days
    EXPECT_EQ(Texts(L'x'), std::vector<std::wstring>{L"x1900"});
}

TEST_F(GraphMeasure, StoredSpansAreLabelledByThePairOfTheLatestDrag)
{
    Store(0, 20, 0, 70);
    EXPECT_TRUE(Texts(L'y').empty()); // the span has no height
    graph.m_Measures[0] = {0, 20, 1, 70};
    EXPECT_EQ(Texts(L'y'), std::vector<std::wstring>{L"y0.000 unit"});
    graph.m_MeasureTool.m_nMeasureCurve2 = 1;
    EXPECT_EQ(Texts(L'y'), std::vector<std::wstring>{L"y6.000 unit"});
}

TEST_F(GraphMeasure, ASpanNarrowerThanItsTextShowsTheLinesAlone)
{
    graph.GetXAxis(0)->m_cDisplayFmt = L"xxxxxxxxxxxxxxxxxxxxxxxxxx%.3f";
    Store(1, 48, 0, 52);
    EXPECT_TRUE(Texts(L'x').empty());
    const Picture picture = Shoot();
    const CRect plot = graph.m_rcInner;
    const int nTop = Row(8);
    EXPECT_GT(picture.Count({plot.left, nTop, plot.right, nTop + 1}, Guide), plot.Width() / 4);
    EXPECT_GT(picture.Count({Column(5.2), nTop, Column(5.2) + 1, Row(2)}, Red), 10);
    EXPECT_EQ(Texts(L'y').size(), 1u);
}

TEST_F(GraphMeasure, BelowSevenPixelsTheFirstArrowPointsUp)
{
    // Spans of six and of seven pixels, by the points' own columns.
    graph.GetXAxis(0)->SetCurrentRange(0, 10, 0.0);
    int nNarrow = -1;
    int nWide = -1;
    for (int i = 1; i <= 30; ++i) {
        const int nWidth = Column(i / 10.0) - Column(0);
        nNarrow = nWidth < 7 ? i : nNarrow;
        nWide = nWidth >= 7 && nWide == -1 ? i : nWide;
    }
    ASSERT_GT(nNarrow, 0);
    Store(1, 0, 0, nNarrow);
    int x = Column(nNarrow / 10.0);
    std::vector<Corners> arrows = Arrows();
    ASSERT_EQ(arrows.size(), 2u);
    EXPECT_EQ(arrows[0], (Corners{{x, Row(8) + 3}, {x + 3, Row(8) + 9}, {x - 3, Row(8) + 9}}));
    EXPECT_EQ(arrows[1], (Corners{{x - 3, Row(2) - 6}, {x + 3, Row(2) - 6}, {x, Row(2)}}));
    graph.m_Measures[0].nIndex2 = nWide;
    x = Column(0);
    arrows = Arrows();
    EXPECT_EQ(arrows[0], (Corners{{x + 5, Row(8) - 3}, {x, Row(8)}, {x + 5, Row(8) + 3}}));
}

TEST_F(GraphMeasure, BelowSevenPixelsOfHeightTheSecondArrowPointsRight)
{
    Store(0, 20, 0, 70);
    const int x = Column(7);
    const std::vector<Corners> arrows = Arrows();
    ASSERT_EQ(arrows.size(), 2u);
    EXPECT_EQ(arrows[1], (Corners{{x - 6, Row(2) - 6}, {x, Row(2) - 3}, {x - 6, Row(2)}}));
}

TEST_F(GraphMeasure, TheLiveSpanIsDrawnWhileTheButtonIsHeld)
{
    graph.Measure();
    Paint();
    Press(Column(2) + 1, Row(8));
    Drag(Column(6), Row(2));
    const Picture live = Shoot();
    EXPECT_GT(live.Count(Red), 100);
    EXPECT_EQ(graph.m_MeasureTool.m_rcMeasure, CRect(Column(2) + 1, Row(8), Column(6), Row(2)));
    EXPECT_EQ(Texts(L'y'), std::vector<std::wstring>{L"y6.000 unit"});
    Drag(graph.m_rcInner.right + 50, Row(2));
    Paint();
    EXPECT_EQ(graph.m_MeasureTool.m_rcMeasure.right, graph.m_rcInner.right);
}

TEST_F(GraphMeasure, WithoutABufferTheLiveSpanIsDrawnAtOnce)
{
    graph.m_bDoubleBuffer = false;
    graph.Measure();
    Paint();
    Press(Column(2) + 1, Row(8));
    ::ValidateRect(graph.m_hWnd, nullptr);
    const int nBefore = Picture(graph.m_hWnd).Count(Red);
    Drag(Column(6), Row(2));
    EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    EXPECT_GT(Picture(graph.m_hWnd).Count(Red), nBefore + 100);
}

TEST_F(GraphMeasure, ASpanOfAShortenedCurveEndsAtItsLastPoint)
{
    Store(1, 20, 0, 70);
    TDataPoint points[] = {{0, 2}, {4, 2}};
    graph.SetData(points, 2, 0, 0, 0, false);
    graph.m_Measures[0].nIndex1 = INT_MIN;
    const int x = Column(4);
    const std::vector<Corners> arrows = Arrows();
    ASSERT_EQ(arrows.size(), 2u);
    EXPECT_EQ(arrows[1][2].x, x);
}

TEST_F(GraphMeasure, PointsWithoutAPixelLeaveThePlotClean)
{
    const Picture without = Shoot();
    graph.m_Curves[0].m_pData[70] = {1e300, -1e300};
    graph.m_Curves[1].m_pData[20] = {-1e300, 1e300};
    Store(1, 20, 0, 70);
    EXPECT_EQ(Shoot().CountDifferences(without), 0);
}

TEST_F(GraphMeasure, HostileFormatsAndLongTextsAreDrawnOrClipped)
{
    Store(1, 20, 0, 70);
    for (const wchar_t* pszFormat : {L"%s%n%d", L"%5000.5000f", L"%\n%f\n%%", L"", L"%"}) {
        graph.GetXAxis(0)->m_cDisplayFmt = pszFormat;
        graph.GetYAxis(0)->m_cDisplayFmt = pszFormat;
        Paint();
    }
    graph.GetYAxis(0)->m_cDisplayFmt = L"y%.3f";
    graph.GetYAxis(0)->m_cLabel = CString(std::wstring(100000, L'W').c_str());
    Paint(); // the axis's title leaves no plot
    graph.GetYAxis(0)->m_bVisible = false;
    EXPECT_GT(Shoot().Count(Red), 20); // the arrows show beside it
}

TEST_F(GraphMeasureDeathTest, SpansThatNameNoCurveEndTheProcess)
{
    Store(1, 20, 0, 70);
    graph.m_nCursorCurve = -1; // as the cursor's mode leaves it
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
    graph.m_nCursorCurve = 0;
    graph.DeleteCurve(1);
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(InvalidParameter), "");
}
