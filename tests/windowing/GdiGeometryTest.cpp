#include "framework/windowing/Geometry.h"

#include <gtest/gtest.h>

#include <climits>

TEST(GdiGeometry, TheClassesHaveThePlatformsLayout)
{
    static_assert(sizeof(CPoint) == sizeof(POINT));
    static_assert(sizeof(CSize) == sizeof(SIZE));
    static_assert(sizeof(CRect) == sizeof(RECT));
    CRect rect(1, 2, 3, 4);

    ::OffsetRect(rect, 10, 20); // as the platform's own pointer

    EXPECT_EQ(rect, CRect(11, 22, 13, 24));
}

TEST(GdiGeometry, PlainStructsConvertBothWays)
{
    const TRect plain = CRect(1, 2, 3, 4);
    EXPECT_EQ(plain, (TRect{1, 2, 3, 4}));
    EXPECT_EQ(CRect(plain), CRect(1, 2, 3, 4));

    const TPoint point = CPoint(5, 6);
    EXPECT_EQ(point, (TPoint{5, 6}));
    EXPECT_EQ(CPoint(point), CPoint(5, 6));

    const TSize size = CSize(7, 8);
    EXPECT_EQ(size, (TSize{7, 8}));
    EXPECT_EQ(CSize(size), CSize(7, 8));
}

TEST(GdiGeometry, AMouseParameterHoldsTwoSignedHalves)
{
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(-3, 7))), CPoint(-3, 7));
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(0x7FFF, 0x8000))), CPoint(32767, -32768));
}

TEST(GdiGeometry, PointsAndSizesAddAndSubtract)
{
    EXPECT_EQ(CPoint(1, 2) + CSize(3, 4), CPoint(4, 6));
    EXPECT_EQ(CPoint(1, 2) - CSize(3, 4), CPoint(-2, -2));
    EXPECT_EQ(CPoint(1, 2) - CPoint(3, 5), CSize(-2, -3));
    EXPECT_EQ(-CSize(3, 4), CSize(-3, -4));
}

TEST(GdiGeometry, SumsWrapInsteadOfOverflowing)
{
    EXPECT_EQ(CPoint(INT_MAX, INT_MIN) + CSize(1, -1), CPoint(INT_MIN, INT_MAX));
    EXPECT_EQ(CRect(INT_MIN, 0, INT_MAX, 1).Width(), -1);
}

TEST(GdiGeometry, RightAndBottomEdgesLieOutside)
{
    const CRect rect(10, 10, 20, 20);

    EXPECT_TRUE(rect.PtInRect(CPoint(10, 10)));
    EXPECT_TRUE(rect.PtInRect(CPoint(19, 19)));
    EXPECT_FALSE(rect.PtInRect(CPoint(20, 19)));
    EXPECT_FALSE(rect.PtInRect(CPoint(19, 20)));
}

TEST(GdiGeometry, WithoutWidthOrHeightItIsEmpty)
{
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect(9, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
}

TEST(GdiGeometry, NormalizingSwapsInvertedEdges)
{
    CRect rect(20, 40, 10, 30);

    rect.NormalizeRect();

    EXPECT_EQ(rect, CRect(10, 30, 20, 40));
}

TEST(GdiGeometry, GrowingShrinkingAndMoving)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(10, 10, 18, 18));
    rect.OffsetRect(5, -5);
    EXPECT_EQ(rect, CRect(15, 5, 23, 13));
    EXPECT_EQ(rect.CenterPoint(), CPoint(19, 9));
    EXPECT_EQ(rect.Size(), CSize(8, 8));
}

TEST(GdiGeometry, IntersectionOfStrangersIsEmpty)
{
    CRect common(1, 2, 3, 4);

    EXPECT_FALSE(common.IntersectRect(CRect(0, 0, 5, 5), CRect(5, 0, 9, 5)));

    EXPECT_EQ(common, CRect());
    EXPECT_EQ(CRect(0, 0, 10, 10) & CRect(5, 5, 20, 20), CRect(5, 5, 10, 10));
    EXPECT_EQ(CRect(0, 0, 1, 1) | CRect(5, 5, 20, 20), CRect(0, 0, 20, 20));
}
