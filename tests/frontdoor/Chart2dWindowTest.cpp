// The window of the business chart: geometry, background, repainting and the timer.

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
        chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BAR_SERIES_FADE);
        Tick(3);
        chart->SetGraphAnimation(VPX_ANIMATE_OFF, VPX_ANIMATION_BAR_SERIES_FADE);
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
    chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW);
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
    chart->SetGraphAnimation(VPX_ANIMATE_ON, VPX_ANIMATION_BARS_GROW);
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
