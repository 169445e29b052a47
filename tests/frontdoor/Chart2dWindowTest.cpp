// The window of the business chart: geometry, background, texts, repainting and the timer.

#include "Chart2dHost.h"

using Chart2dWindow = Chart2dTest;

TEST_F(Chart2dWindow, SmallRectangleIsRaisedToTwoHundred)
{
    Create(Bar, {10, 20, 110, 120});
    EXPECT_EQ(WindowSize().cx, 200);
    EXPECT_EQ(WindowSize().cy, 200);
}

TEST_F(Chart2dWindow, StyleAndIdentifierAreItsOwn)
{
    Create(Bar);
    EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(Handle(), GWL_STYLE)), 0x54800000u);
    EXPECT_EQ(::GetDlgCtrlID(Handle()), 7);
    EXPECT_EQ(::GetParent(Handle()), host.m_hWnd);
    RECT rect = {};
    ::GetWindowRect(Handle(), &rect);
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(WindowSize().cx, 640);
}

TEST_F(Chart2dWindow, SmallSizesAreRaisedSideBySide)
{
    Create(Bar);
    EXPECT_EQ(chart->SetGraphSize(10, 500), S_OK);
    EXPECT_EQ(WindowSize().cx, 200);
    EXPECT_EQ(WindowSize().cy, 500);
    chart->SetGraphSize(-5, (-2147483647 - 1));
    EXPECT_EQ(WindowSize().cx, 200);
    EXPECT_EQ(WindowSize().cy, 200);
}

TEST_F(Chart2dWindow, SizeThatNoPictureHoldsShowsTheBackgroundAndIsLeftAgain)
{
    Create(Bar);
    FillBars({{100, 100}});
    Redrawn();
    for (const int side : {2147483647, 100000, 30000}) {
        EXPECT_EQ(chart->SetGraphSize(side, side), S_OK);
        chart->Invalidate(1);
        chart->SetGraphAnimation(1, 26);
        Tick(3);
        chart->SetGraphAnimation(0, 26);
        const HDC hWindow = ::GetDC(Handle());
        EXPECT_EQ(::GetPixel(hWindow, 150, 300), White) << side;
        ::ReleaseDC(Handle(), hWindow);
    }
    chart->SetGraphSize(640, 400);
    EXPECT_EQ(Redrawn().At(150, 300), Red);
    EXPECT_EQ(WindowSize().cx, 640);
}

TEST_F(Chart2dWindow, PositionMovesTheWindowAndKeepsItsSize)
{
    Create(Line);
    EXPECT_EQ(chart->SetGraphPosition(-30, 40), S_OK);
    RECT rect = {};
    ::GetWindowRect(Handle(), &rect);
    EXPECT_EQ(rect.left, -30);
    EXPECT_EQ(rect.top, 40);
    EXPECT_EQ(WindowSize().cx, 640);
    EXPECT_EQ(WindowSize().cy, 400);
}

TEST_F(Chart2dWindow, GradientTypeIsToldAsTheStoredMode)
{
    Create(Bar);
    int nType = -1;
    chart->GetGradientFillType(&nType);
    EXPECT_EQ(nType, 1);
    for (const auto& [set, told] : {std::pair{21, 1}, {20, 0}, {21, 1}, {1, 0}, {99, 0}}) {
        EXPECT_EQ(chart->SetGradientFillType(set), S_OK);
        EXPECT_EQ(chart->GetGradientFillType(&nType), S_OK);
        EXPECT_EQ(nType, told) << set;
    }
}

TEST_F(Chart2dWindow, UnknownFillTypeIsSolid)
{
    Create(Bar);
    int nType = -1;
    for (const auto& [set, told] : {std::pair{11, 11}, {99, 10}, {11, 11}, {10, 10}}) {
        EXPECT_EQ(chart->SetGraphFillType(set), S_OK);
        EXPECT_EQ(chart->GetGraphFillType(&nType), S_OK);
        EXPECT_EQ(nType, told) << set;
    }
}

TEST_F(Chart2dWindow, GradientRunsFromCornerToCornerInEitherDirection)
{
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphFillType(11);
    chart->SetGraphGradientColors(0x000000, 0xC08040);
    Picture picture = Redrawn(false);
    EXPECT_EQ(picture.At(5, 0), picture.At(600, 0)); // top to bottom
    EXPECT_TRUE(IsBlend(picture.At(5, 200), 0, 0xC08040, 127));
    EXPECT_TRUE(IsBlend(picture.At(5, 397), 0, 0xC08040, 254));

    chart->SetGradientFillType(20);
    picture = Redrawn(false);
    EXPECT_EQ(picture.At(5, 0), picture.At(5, 390)); // left to right
    EXPECT_TRUE(IsBlend(picture.At(320, 20), 0, 0xC08040, 127));
    EXPECT_TRUE(IsBlend(picture.At(637, 20), 0, 0xC08040, 254));
}

TEST_F(Chart2dWindow, SettersOfLooksDontRepaintAndThoseOfTextsDo)
{
    Create(Bar);
    const auto repaints = [&](auto call) {
        ::UpdateWindow(Handle());
        call();
        return ::GetUpdateRect(Handle(), nullptr, FALSE) != FALSE;
    };
    EXPECT_FALSE(repaints([&] { chart->ShowGraphLegend(0); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphTitleColor(1); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphSubtitleColor(1); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphTitleShadow(1); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphSubtitleShadow(1); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphFillType(11); }));
    EXPECT_FALSE(repaints([&] { chart->SetGradientFillType(20); }));
    EXPECT_FALSE(repaints([&] { chart->SetGraphGradientColors(1, 2); }));
    EXPECT_FALSE(repaints([&] { chart->Add2DBarGraphSegment(Text(L"s")); }));
    EXPECT_FALSE(repaints([&] { chart->Add2DBarGraphSeries(Text(L"s"), 0); }));
    EXPECT_FALSE(repaints([&] { chart->Set2DBarGraphValue(1, 1, 5); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphLegendTextColor(1); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphLegendBackgroundColor(1); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphLabelsColor(1); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphTitle(Text(L"t")); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphSubtitle(Text(L"t")); }));
    EXPECT_TRUE(repaints([&] { chart->SetGraphBackgroundColor(1); }));
    EXPECT_TRUE(repaints([&] { chart->Invalidate(0); }));
}

TEST_F(Chart2dWindow, LegendTextColourWaitsForARedrawOnASolidBackground)
{
    Create(Bar);
    FillBars({{100, 50}});
    Redrawn();
    chart->SetGraphLegendTextColor(Blue);
    EXPECT_EQ(Shoot().Count(Blue), 0);
    EXPECT_GT(Redrawn(true).Count(Blue), 0); // an erase asks for it
}

TEST_F(Chart2dWindow, LegendTextColourShowsAtOnceOnAGradient)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphGradientColors(White, White);
    chart->SetGraphFillType(11);
    Redrawn(false);
    chart->SetGraphLegendTextColor(Blue);
    EXPECT_GT(Shoot().Count(Blue), 0);
}

TEST_F(Chart2dWindow, NewTitleBringsThePendingLegendAlong)
{
    Create(Bar);
    FillBars({{100, 50}});
    Redrawn();
    chart->SetGraphLegendTextColor(Blue);
    Shoot();
    chart->SetGraphTitle(Text(L""));
    EXPECT_GT(Shoot().Count(Blue), 0);
}

TEST_F(Chart2dWindow, HiddenLegendStaysOnTheFrameUntilAnErase)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphLegendBackgroundColor(Green);
    EXPECT_GT(Redrawn().Count(Green), 500);
    chart->ShowGraphLegend(0);
    EXPECT_GT(Redrawn(false).Count(Green), 500);
    EXPECT_EQ(Redrawn(true).Count(Green), 0);
}

TEST_F(Chart2dWindow, LegendIsDrawnForOneAlone)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->SetGraphLegendBackgroundColor(Green);
    chart->ShowGraphLegend(2);
    EXPECT_EQ(Redrawn().Count(Green), 0);
    chart->ShowGraphLegend(1);
    EXPECT_GT(Redrawn().Count(Green), 500);
}

TEST_F(Chart2dWindow, TitlesStandInTheirColoursAboveTheGraphArea)
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

TEST_F(Chart2dWindow, ShadowsAreGreyAndForOneAlone)
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

TEST_F(Chart2dWindow, TitlesAreThereFromTheStart)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    chart->CreateGraph(Bar);
    chart->ShowGraphLegend(0);
    EXPECT_GT(Redrawn().Count({32, 10, 638, 135}, 0), 500);
}

TEST_F(Chart2dWindow, BackgroundAloneIsShownWithoutAChart)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    chart->SetGraphBackgroundColor(Green);
    EXPECT_EQ(Redrawn().Count(Green), 638 * 398);
    EXPECT_FALSE(::GetUpdateRect(Handle(), nullptr, FALSE));
    chart->CreateGraph(5);
    EXPECT_EQ(Redrawn().Count(Green), 638 * 398);
    EXPECT_EQ(Redrawn(false).Count(Green), 638 * 398);
}

TEST_F(Chart2dWindow, PaintsWithoutAnEraseShowNoBlackFrame)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    ::UpdateWindow(Handle());
    chart->CreateGraph(Bar);
    chart->ShowGraphLegend(0);
    EXPECT_EQ(Redrawn(false).At(5, 5), White);
    chart->SetGraphSize(640, 400);
    EXPECT_EQ(Shoot().At(5, 5), White);
}

TEST_F(Chart2dWindow, BackgroundOutsideTheClearedPartWaitsForAnErase)
{
    Create(Bar);
    Redrawn();
    chart->SetGraphBackgroundColor(Green);
    ULONG color = 0;
    chart->GetGraphBackgroundColor(&color);
    EXPECT_EQ(color, static_cast<ULONG>(Green));
    const Picture cleared = Shoot(); // (32, 140) to (416, 380)
    EXPECT_EQ(cleared.At(415, 379), Green);
    EXPECT_EQ(cleared.At(416, 379), White);
    EXPECT_EQ(cleared.At(415, 380), White);
    EXPECT_EQ(cleared.At(31, 200), White);
    EXPECT_EQ(Redrawn(true).At(416, 379), Green);
}

TEST_F(Chart2dWindow, PieClearsLessThanBarsAndLines)
{
    Create(Pie);
    Redrawn();
    chart->SetGraphBackgroundColor(Green);
    const Picture cleared = Shoot(); // (32, 140) to (352, 340)
    EXPECT_EQ(cleared.At(351, 339), Green);
    EXPECT_EQ(cleared.At(352, 339), White);
    EXPECT_EQ(cleared.At(351, 340), White);
}

TEST_F(Chart2dWindow, AnimationRunsATimerUntilItIsTurnedOff)
{
    Create(Bar);
    FillBars({{100, 50}});
    long bAnimation = -1;
    chart->GetGraphAnimation(&bAnimation);
    EXPECT_EQ(bAnimation, 0);
    EXPECT_FALSE(HasTimer());
    chart->SetGraphAnimation(1, 20);
    EXPECT_TRUE(HasTimer());
    chart->SetGraphPosition(0, 0);
    EXPECT_TRUE(HasTimer());
    chart->SetGraphAnimation(2, 20);
    EXPECT_FALSE(HasTimer());
    chart->GetGraphAnimation(&bAnimation);
    EXPECT_EQ(bAnimation, 2);
    chart->SetGraphSize(400, 400);
    EXPECT_FALSE(HasTimer());
}

TEST_F(Chart2dWindow, OtherAnimationValuesLeaveTheAxesAlone)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->ShowGraphLegend(0);
    EXPECT_GT(Redrawn().Count(Red), 1000);
    chart->SetGraphAnimation(2, 20);
    const Picture axes = Redrawn();
    EXPECT_EQ(axes.Count(Red), 0);
    EXPECT_EQ(axes.At(99, 250), 0u); // the vertical axis
}

TEST_F(Chart2dWindow, TimerComesThroughTheHostsLoop)
{
    Create(Bar);
    FillBars({{100, 50}});
    chart->ShowGraphLegend(0);
    chart->SetGraphAnimation(1, 20);
    Redrawn();
    EXPECT_TRUE(host.PumpUntil([&] { return Picture(Handle()).Count(Red) > 500; }));
}

TEST_F(Chart2dWindow, NewSizeLeavesTheAnimationWhereItWas)
{
    Create(Bar);
    FillBars({{100, 100}});
    chart->ShowGraphLegend(0);
    AtTick(20, 50);
    chart->SetGraphSize(640, 600);
    EXPECT_TRUE(HasTimer());
    // H = 300: base 210 + 285 - 3 = 492; half of trunc(240) above it
    EXPECT_EQ(Column(Shoot(), 150, Red, 598), (POINT{373, 490}));
}

TEST_F(Chart2dWindow, TickMovesTheAnimationOnWhateverTheTimersIdentifier)
{
    Create(Bar);
    FillBars({{100, 100}});
    chart->ShowGraphLegend(0);
    AtTick(20, 49);
    ::SendMessageW(Handle(), WM_TIMER, 1, 0);
    EXPECT_EQ(Column(Shoot(), 150, Red), (POINT{249, 326}));
}

TEST_F(Chart2dWindow, TickRepaintsWithoutAnEraseAndForgetsWhatWasPending)
{
    Create(Bar);
    FillBars({{100, 100}});
    AtTick(20, 5);
    chart->SetGraphTitleColor(Blue);
    chart->SetGraphTitle(Text(L"Title"));
    chart->SetGraphLegendTextColor(Blue);
    Tick();
    EXPECT_EQ(Picture(Handle()).Count(Blue), 0);
    EXPECT_EQ(Redrawn(false).Count(Blue), 0);
    EXPECT_GT(Redrawn(true).Count(Blue), 100);
}

// Of 640 x 400: heights 80 and 28, widths 25 and 19.
TEST_F(Chart2dWindow, TextsHaveTheirFontsAndPlaces)
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

TEST_F(Chart2dWindow, ShadowsStandBesideTheirTexts)
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

TEST_F(Chart2dWindow, NewSizeMakesTheTextsFontsAgain)
{
    Create(Bar);
    chart->ShowGraphLegend(0);
    chart->SetGraphSize(600, 300); // 24 wide, 60 high, at (30, 7)
    chart->SetGraphTitle(Text(L"Title"));
    EXPECT_EQ(TextDifferences(Redrawn(), {30, 7}, L"Title", {60, 24, 400}), 0);
}

TEST_F(Chart2dWindow, CreatingTheGraphShowsAHiddenWindow)
{
    RECT rect = {0, 0, 640, 400};
    chart->Create(&rect, WireHandle(host.m_hWnd), 7);
    ::ShowWindow(Handle(), SW_HIDE);
    chart->CreateGraph(Bar);
    EXPECT_TRUE(::IsWindowVisible(Handle()));
    ::ShowWindow(Handle(), SW_HIDE);
    chart->CreateGraph(5); // whatever the kind
    EXPECT_TRUE(::IsWindowVisible(Handle()));
}
