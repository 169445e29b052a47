// Titles and legend in the window of the business chart.

#include "Chart2dHost.h"

using Chart2dTexts = Chart2dTest;

TEST_F(Chart2dTexts, LegendTextColourWaitsForARedrawOnASolidBackground)
{
    Create(Bar);
    FillBars({{100, 50}});
    Redrawn();
    chart->SetGraphLegendTextColor(Blue);
    EXPECT_EQ(Shoot().Count(Blue), 0);
    EXPECT_GT(Redrawn(true).Count(Blue), 0); // an erase asks for it
}

TEST_F(Chart2dTexts, LegendTextColourShowsAtOnceOnAGradient)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphGradientColors(White, White);
    chart->SetGraphFillType(11);
    Redrawn(false);
    chart->SetGraphLegendTextColor(Blue);
    EXPECT_GT(Shoot().Count(Blue), 0);
}

TEST_F(Chart2dTexts, NewTitleBringsThePendingLegendAlong)
{
    Create(Bar);
    FillBars({{100, 50}});
    Redrawn();
    chart->SetGraphLegendTextColor(Blue);
    Shoot();
    chart->SetGraphTitle(Text(L""));
    EXPECT_GT(Shoot().Count(Blue), 0);
}

TEST_F(Chart2dTexts, HiddenLegendStaysOnTheFrameUntilAnErase)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphLegendBackgroundColor(Green);
    EXPECT_GT(Redrawn().Count(Green), 500);
    chart->ShowGraphLegend(0);
    EXPECT_GT(Redrawn(false).Count(Green), 500);
    EXPECT_EQ(Redrawn(true).Count(Green), 0);
}

TEST_F(Chart2dTexts, LegendIsDrawnForOneAlone)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphLegendBackgroundColor(Green);
    chart->ShowGraphLegend(2);
    EXPECT_EQ(Redrawn().Count(Green), 0);
    chart->ShowGraphLegend(1);
    EXPECT_GT(Redrawn().Count(Green), 500);
}

TEST_F(Chart2dTexts, TitlesStandInTheirColoursAboveTheGraphArea)
{
    Create(Bar);
    chart->SetGraphTitle(Text(L"Title"));
    chart->SetGraphSubtitle(Text(L"Subtitle"));
    chart->SetGraphTitleColor(Red);
    chart->SetGraphSubtitleColor(Blue);
    const Picture picture = Redrawn();
    EXPECT_GT(picture.Count({32, 10, 600, 90}, Red), 100);
    EXPECT_GT(picture.Count({32, 80, 600, 108}, Blue), 100);
    EXPECT_EQ(picture.Count({0, 0, 32, 398}, Red), 0);
    EXPECT_EQ(picture.Count({0, 0, 638, 80}, Blue), 0);
}

TEST_F(Chart2dTexts, ShadowsAreGreyAndForOneAlone)
{
    constexpr COLORREF shadow = 0x808080;
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphTitle(Text(L"Title"));
    chart->SetGraphSubtitle(Text(L"Subtitle"));
    chart->SetGraphTitleColor(Red);
    chart->SetGraphSubtitleColor(Red);
    chart->SetGraphTitleShadow(2);
    chart->SetGraphSubtitleShadow(2);
    EXPECT_EQ(Redrawn().Count(shadow), 0);
    chart->SetGraphTitleShadow(1);
    EXPECT_GT(Redrawn().Count({32, 10, 638, 90}, shadow), 50);
    EXPECT_EQ(Redrawn().Count({32, 95, 638, 398}, shadow), 0);
    chart->SetGraphSubtitleShadow(1);
    EXPECT_GT(Redrawn().Count({32, 83, 638, 120}, shadow), 20);
}

TEST_F(Chart2dTexts, TitlesAreThereFromTheStart)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    chart->CreateGraph(Bar);
    chart->ShowGraphLegend(0);
    EXPECT_GT(Redrawn().Count({32, 10, 638, 135}, 0), 500);
}

// Of 640 x 400: heights 80 and 28, widths 25 and 19.
TEST_F(Chart2dTexts, TextsHaveTheirFontsAndPlaces)
{
    const TFont titleFont{80, 25, 400};
    const TFont subtitleFont{28, 19, 700};
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphTitle(Text(L"Title"));
    EXPECT_EQ(TextDifferences(Redrawn(), {32, 10}, L"Title", titleFont), 0);
    chart->SetGraphTitle(Text(L""));
    chart->SetGraphSubtitle(Text(L"Subtitle"));
    EXPECT_EQ(TextDifferences(Redrawn(), {32, 80}, L"Subtitle", subtitleFont), 0);

    chart->SetGraphSubtitleColor(White); // shadows alone are left
    chart->SetGraphTitleColor(White);
    chart->SetGraphSubtitle(Text(L""));
    chart->SetGraphTitleShadow(1);
    chart->SetGraphTitle(Text(L"|"));
    EXPECT_GT(Redrawn().Count({41, 14, 80, 100}, 0x808080), 50);
    EXPECT_EQ(Redrawn().Count({0, 0, 41, 398}, 0x808080), 0);
}

TEST_F(Chart2dTexts, ShadowsStandBesideTheirTexts)
{
    constexpr COLORREF shadow = 0x808080;
    const TFont subtitleFont{28, 19, 700};
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphSubtitleShadow(1);
    chart->SetGraphSubtitle(Text(L"I"));
    chart->SetGraphSubtitleColor(shadow);
    const Picture picture = Redrawn(); // the shadow at (38, 83), the text at (32, 80)
    chart->SetGraphSubtitleShadow(0);
    const Picture alone = Redrawn();
    int moved = 0;
    for (int y = 80; y < 110; ++y) {
        for (int x = 32; x < 60; ++x)
            moved += alone.At(x, y) == shadow && picture.At(x + 6, y + 3) != shadow ? 1 : 0;
    }
    EXPECT_EQ(TextDifferences(alone, {32, 80}, L"I", subtitleFont, TA_LEFT, shadow), 0);
    EXPECT_EQ(moved, 0);
    EXPECT_GT(picture.Count(shadow), alone.Count(shadow));
}

TEST_F(Chart2dTexts, NewSizeMakesTheTextsFontsAgain)
{
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphSize(600, 300); // 24 wide, 60 high, at (30, 7)
    chart->SetGraphTitle(Text(L"Title"));
    EXPECT_EQ(TextDifferences(Redrawn(), {30, 7}, L"Title", {60, 24, 400}), 0);
}
