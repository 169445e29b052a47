// Who owns the points of a curve.

#include "objects/XGraphDataSerie.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

namespace
{

std::vector<TDataPoint> Points()
{
    return {{0, 5}, {1, 6}, {2, 7}};
}

} // namespace

TEST(CurveData, DefaultsAreThoseOfAPlainLine)
{
    const CXGraphDataSerie curve;
    EXPECT_EQ(curve.m_pData, nullptr);
    EXPECT_EQ(curve.m_nLineSize, 1);
    EXPECT_EQ(curve.m_nFillStyle, 6);
    EXPECT_EQ(curve.m_nMarkerSize, 10);
    EXPECT_EQ(curve.m_nFillCurve, 1);
    EXPECT_EQ(curve.m_crFillColor, 0xFFFFFFu);
    EXPECT_TRUE(curve.m_bFillTransparent);
    EXPECT_TRUE(curve.m_bVisible);
    EXPECT_TRUE(curve.m_cLabel == L" ");
    EXPECT_EQ(curve.m_nType, gtLine);
}

TEST(CurveData, ACopiedArrayIsTheCurvesOwn)
{
    auto points = Points();
    CXGraphDataSerie curve;
    curve.CopyData(points.data(), 3);
    points[1].fYVal = -1;
    EXPECT_EQ(curve.m_pData[1].fYVal, 6);
    EXPECT_TRUE(curve.m_bAutoDelete);
    EXPECT_EQ(curve.m_nCount, 3);
}

TEST(CurveData, ACopyOfAnOwnerHasAnArrayOfItsOwn)
{
    const auto points = Points();
    CXGraphDataSerie curve;
    curve.CopyData(points.data(), 3);
    curve.m_Segments.push_back({{1, 2}, {3, 4}});
    curve.m_Solver.m_nDegree = 3;
    curve.m_Solver.m_fCoeffs[20] = 1.5;
    const CXGraphDataSerie copy(curve);
    EXPECT_NE(copy.m_pData, curve.m_pData);
    EXPECT_EQ(copy.m_pData[2].fYVal, 7);
    EXPECT_EQ(copy.m_Segments, curve.m_Segments);
    EXPECT_EQ(copy.m_Solver.m_nDegree, 3);
    EXPECT_EQ(copy.m_Solver.m_fCoeffs[20], 1.5);
}

TEST(CurveData, ACopyOfABorrowerSharesThePointer)
{
    auto points = Points();
    CXGraphDataSerie curve;
    curve.ReplaceData(points.data(), 3, false);
    CXGraphDataSerie copy;
    copy = curve;
    EXPECT_EQ(copy.m_pData, points.data());
    EXPECT_FALSE(copy.m_bAutoDelete);
}

TEST(CurveData, MovingTakesTheArrayAlong)
{
    const auto points = Points();
    CXGraphDataSerie curve;
    curve.CopyData(points.data(), 3);
    const TDataPoint* const pData = curve.m_pData;
    CXGraphDataSerie moved(std::move(curve));
    EXPECT_EQ(moved.m_pData, pData);
    EXPECT_TRUE(moved.IsAscending());
    CXGraphDataSerie assigned;
    assigned.CopyData(points.data(), 2);
    assigned = std::move(moved);
    EXPECT_EQ(assigned.m_pData, pData);
    EXPECT_EQ(assigned.m_nCount, 3);
}

TEST(CurveData, OrderIsKnownOfPrivateCopiesAlone)
{
    auto points = Points();
    CXGraphDataSerie curve;
    curve.ReplaceData(points.data(), 3, false);
    EXPECT_FALSE(curve.IsAscending());
    curve.CopyData(points.data(), 3);
    EXPECT_TRUE(curve.IsAscending());
    EXPECT_TRUE(CXGraphDataSerie(curve).IsAscending());
    curve.ReplaceData(points.data(), 3, false);
    EXPECT_FALSE(curve.IsAscending());
    points[1].fXVal = std::numeric_limits<double>::quiet_NaN();
    curve.CopyData(points.data(), 3);
    EXPECT_FALSE(curve.IsAscending());
    points[1].fXVal = 9;
    curve.CopyData(points.data(), 3);
    EXPECT_FALSE(curve.IsAscending());
}

TEST(CurveData, ReplacingWithItsOwnArrayKeepsIt)
{
    const auto points = Points();
    CXGraphDataSerie curve;
    curve.CopyData(points.data(), 3);
    curve.ReplaceData(curve.m_pData, 2, true);
    EXPECT_EQ(curve.m_pData[1].fYVal, 6);
    EXPECT_EQ(curve.m_nCount, 2);
    EXPECT_TRUE(curve.m_bAutoDelete);
}

TEST(CurveData, TwelveColoursGoRound)
{
    EXPECT_EQ(CXGraphDataSerie::CreationColor(0), 0x000080u);
    EXPECT_EQ(CXGraphDataSerie::CreationColor(11), 0xFF00FFu);
    EXPECT_EQ(CXGraphDataSerie::CreationColor(12), 0x000080u);
}

TEST(CurveData, FillSettingsComeTogether)
{
    CXGraphDataSerie curve;
    curve.SetFillBeneath(true, 65535);
    EXPECT_TRUE(curve.m_bFillBeneath);
    EXPECT_EQ(curve.m_nFillCurve, CXGraphDataSerie::FillToBottom);
    curve.SetFillBeneath(false, 2);
    EXPECT_FALSE(curve.m_bFillBeneath);
    EXPECT_EQ(curve.m_nFillCurve, 2);
}

TEST(GraphObject, SizingTakesTheObjectsRectangle)
{
    CXGraphObject object;
    object.m_rcObject = CRect(1, 2, 30, 40);
    object.BeginSize();
    EXPECT_TRUE(object.m_bSizing);
    EXPECT_EQ(object.m_Tracker.m_rect, object.m_rcObject);
    EXPECT_EQ(object.m_Tracker.m_nStyle, 20u);
    object.EndSize();
    EXPECT_FALSE(object.m_bSizing);
}
