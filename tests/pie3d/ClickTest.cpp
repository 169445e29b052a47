// Selection by clicks, and the walls' paths behind it.

#include "PieWindow.h"

class PieClicks : public PieWindow
{
protected:
    // Tilted by 60 the faces are (30, 217, 500, 375) and (30, 295, 500, 453).
    void Tilt(float start = 0)
    {
        pie.SetInclineAngle(60);
        pie.SetStartAngle(start);
        pie.UpdateWindow();
    }
    bool IsOnWall(int key, float x, float y) { return GdiPlus::Contains(Element(key).pPath, {x, y}); }
    int WallPoints(int key)
    {
        INT points = 0;
        GdiPlus::Flat::GdipGetPointCount(Element(key).pPath.Get(), &points);
        return points;
    }
};

TEST_F(PieClicks, AFaceAndAWallSelectTheirSliceAndTheBackgroundNone)
{
    Fill({1, 3});
    Tilt();
    EXPECT_EQ(ClickedName(365, 320), L"e0");
    EXPECT_EQ(ClickedName(165, 320), L"e1");
    EXPECT_EQ(ClickedName(431, 390), L"e0");
    EXPECT_EQ(ClickedName(99, 390), L"e1");
    EXPECT_EQ(ClickedName(431, 460), L"");
    EXPECT_EQ(ClickedName(265, 200), L"");
}

TEST_F(PieClicks, OneClickSelectsOneElement)
{
    Fill({1, 1, 1});
    Element(1).bSelected = TRUE;
    Element(2).bSelected = TRUE;
    EXPECT_EQ(ClickedName(450, 400), L"e0");
    EXPECT_FALSE(Element(1).bSelected);
    EXPECT_FALSE(Element(2).bSelected);
}

TEST_F(PieClicks, TheHoleOfTheDoughnutSelectsNothingAndTheFlatStyleWhatIsThere)
{
    Fill({1, 3});
    pie.SetPieChartStyle(0);
    EXPECT_EQ(ClickedName(265 + 30, 335 + 30), L"");
    EXPECT_EQ(ClickedName(265 + 100, 335 + 100), L"e0");
    EXPECT_EQ(ClickedName(265 - 100, 335 - 100), L"e1");
    EXPECT_EQ(ClickedName(40, 110), L"");
    pie.SetPieChartStyle(1);
    EXPECT_EQ(ClickedName(265 + 30, 335 + 30), L"e0");
    EXPECT_EQ(ClickedName(265 - 30, 335 + 30), L"e1");
}

TEST_F(PieClicks, WithoutTiltTheFaceAloneAnswers)
{
    Fill({1, 3});
    pie.UpdateWindow();
    EXPECT_EQ(ClickedName(365, 435), L"e0");
    EXPECT_EQ(ClickedName(265, 575), L"");
    EXPECT_FALSE(IsOnWall(0, 431, 500));
}

TEST_F(PieClicks, ALabelSelectsNothing)
{
    Fill({1, 3});
    EXPECT_EQ(ClickedName(570, 304), L"");
    EXPECT_EQ(ClickedName(660, 304), L"");
}

TEST_F(PieClicks, AnEmptyChartOnlyRepaints)
{
    pie.UpdateWindow();
    Click(300, 300);
    EXPECT_TRUE(NeedsPaint());
    EXPECT_EQ(pie.GetSelectedElement(), nullptr);
}

TEST_F(PieClicks, TheSelectionStaysThroughSortsRepaintsAndOtherRemovals)
{
    Fill({1, 2, 3});
    EXPECT_EQ(ClickedName(450, 400), L"e0");
    pie.sortPiechartElements(1);
    pie.UpdateWindow();
    pie.RemoveItem(L"e1");
    EXPECT_EQ(pie.GetElementName(pie.GetSelectedElement()), L"e0");
}

TEST_F(PieClicks, ASliceThatGoesAroundTheLeftHasItsWallUpToThere)
{
    Fill({7, 5}); // from 90 to 300, and on to 90
    Tilt(90);
    EXPECT_TRUE(IsOnWall(0, 99, 390));
    EXPECT_FALSE(IsOnWall(0, 431, 390));
    EXPECT_TRUE(IsOnWall(1, 431, 390));
    EXPECT_FALSE(IsOnWall(1, 99, 390));
}

TEST_F(PieClicks, ASliceThatComesAroundTheRightHasItsWallFromThere)
{
    Fill({1, 2}); // from 300 to 60: x = 265 + 117
    Tilt(300);
    EXPECT_TRUE(IsOnWall(0, 450, 390));
    EXPECT_FALSE(IsOnWall(0, 370, 410));
    EXPECT_TRUE(IsOnWall(1, 370, 410));
}

TEST_F(PieClicks, ALoneElementHasItsWholeWallFromAnyStart)
{
    Fill({1});
    for (const float start : {0.0f, 90.0f, 170.0f, 180.0f, 250.0f}) {
        Tilt(start);
        EXPECT_EQ(Element(0).fDrawSweep, 360.0f) << start;
        for (const float x : {32.0f, 99.0f, 265.0f, 431.0f, 497.0f}) {
            const float y = x == 265 ? 420.0f : x > 40 && x < 490 ? 390.0f : 345.0f;
            EXPECT_TRUE(IsOnWall(0, x, y)) << start << ' ' << x;
        }
    }
}

TEST_F(PieClicks, ASliceAtTheBackHasNoWall)
{
    Fill({1, 1});
    Tilt();
    EXPECT_GT(WallPoints(0), 0);
    EXPECT_EQ(WallPoints(1), 0);
    Tilt(180); // now the other one
    EXPECT_EQ(WallPoints(0), 0);
    EXPECT_GT(WallPoints(1), 0);
}

TEST_F(PieClicks, AWallOfNoWidthAddsNothing)
{
    Fill({1e9, 1});
    Tilt(90);
    EXPECT_EQ(WallPoints(1), 0);
    EXPECT_EQ(ClickedName(99, 390), L"e0");
}

TEST_F(PieClicks, PaintingAgainDoesNotPileUpWalls)
{
    Fill({1, 3});
    Tilt(170);
    const int points = WallPoints(1);
    for (int i = 0; i < 5; ++i) {
        pie.Invalidate();
        pie.UpdateWindow();
    }
    EXPECT_EQ(WallPoints(1), points);
}

TEST_F(PieClicks, DrawnAnglesAreTheProjectedOnes)
{
    Fill({1, 1, 2});
    pie.SetInclineAngle(45); // 470 * 45 / 180 = 117: half axes 235 and 118
    pie.UpdateWindow();
    EXPECT_EQ(pie.m_fDrawStartAngle, 0.0f);
    EXPECT_NEAR(Element(0).fDrawSweep, 90.0f, 0.01f);
    EXPECT_NEAR(Element(1).fDrawSweep, 90.0f, 0.01f);
    EXPECT_NEAR(Element(2).fDrawSweep, 180.0f, 0.01f);
    pie.SetStartAngle(45);
    pie.UpdateWindow();
    EXPECT_NEAR(pie.m_fDrawStartAngle, 26.66f, 0.05f); // atan(118 / 235)
}
