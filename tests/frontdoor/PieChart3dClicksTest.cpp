// Clicks on the 3D pie and the scrolling of its list, as a person's hand would do them.

#include "PieChart3dHost.h"
#include "support/GdiCount.h"

class PieChart3dClicks : public PieChart3dTest
{
protected:
    void SetUp() override
    {
        PieChart3dTest::SetUp();
        Create();
    }
    void Tilt(float start = 0)
    {
        pie->SetInclineAngle(60);
        pie->SetStartAngle(start);
        Shoot();
    }
};

TEST_F(PieChart3dClicks, AFaceAndAWallSelectAndTheBackgroundClears)
{
    Fill({1, 3});
    Tilt();
    EXPECT_EQ(Selected(), L"");
    EXPECT_EQ(Clicked(431, 390), L"e0"); // its wall
    EXPECT_EQ(Clicked(165, 320), L"e1"); // its face
    EXPECT_EQ(Clicked(99, 390), L"e1");
    EXPECT_EQ(Clicked(265, 480), L"");
}

TEST_F(PieChart3dClicks, TheHoleSelectsNothingAndTheSamePlaceOfTheFlatStyleItsSlice)
{
    Fill({1, 3});
    pie->SetPieChartStyle(Doughnut);
    EXPECT_EQ(Clicked(295, 365), L"");
    EXPECT_EQ(Clicked(365, 435), L"e0");
    pie->SetPieChartStyle(Flat);
    EXPECT_EQ(Clicked(295, 365), L"e0");
    EXPECT_EQ(Clicked(235, 365), L"e1");
}

TEST_F(PieChart3dClicks, WithoutTiltTheUpperFaceAloneAnswers)
{
    Fill({1, 3});
    Shoot();
    EXPECT_EQ(Clicked(365, 435), L"e0");
    EXPECT_EQ(Clicked(265, 573), L"");
}

TEST_F(PieChart3dClicks, ASliceFromNinetyToThreeHundredShowsItsWallToTheLeftAlone)
{
    Fill({7, 5});
    Plain();
    Tilt(90);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(99, 390), Red);
    EXPECT_EQ(picture.At(431, 390), Green);
    EXPECT_EQ(Clicked(99, 390), L"e0");
    EXPECT_EQ(Clicked(431, 390), L"e1");
}

TEST_F(PieChart3dClicks, ASliceAroundTheRightShowsItsWallFromThere)
{
    Fill({1, 2});
    Plain();
    Tilt(300);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(450, 380), Red);
    EXPECT_EQ(picture.At(360, 410), Green);
    EXPECT_EQ(Clicked(450, 380), L"e0");
    EXPECT_EQ(Clicked(360, 410), L"e1");
}

TEST_F(PieChart3dClicks, ALoneSliceAnswersOnItsWholeWall)
{
    Fill({1});
    for (const float start : {0.0f, 90.0f, 170.0f, 200.0f}) {
        Tilt(start);
        EXPECT_EQ(Clicked(32, 345), L"e0") << start;
        EXPECT_EQ(Clicked(99, 390), L"e0") << start;
        EXPECT_EQ(Clicked(431, 390), L"e0") << start;
        EXPECT_EQ(Clicked(265, 480), L"") << start;
    }
}

TEST_F(PieChart3dClicks, TheSelectionShowsAndStaysUntilTheNextClick)
{
    Fill({1, 2, 3});
    Plain();
    const Picture before = Shoot();
    EXPECT_EQ(Clicked(450, 400), L"e0");
    EXPECT_GT(Shoot().CountDifferences(before), 1000);
    pie->sortPiechartElements(1);
    pie->RemoveItem(Text(L"e1"));
    Shoot();
    EXPECT_EQ(Selected(), L"e0");
    EXPECT_EQ(Clicked(5, 5), L"");
}

TEST_F(PieChart3dClicks, LabelsAndAnEmptyChartSelectNothing)
{
    EXPECT_EQ(Clicked(265, 335), L"");
    Fill({1, 3});
    EXPECT_EQ(Clicked(570, 304), L"");
    EXPECT_EQ(Clicked(660, 304), L"");
    EXPECT_EQ(Clicked(-30000, 30000), L"");
}

TEST_F(PieChart3dClicks, FewRowsCentreOnThePieWithoutABar)
{
    Fill({1, 3});
    Plain();
    EXPECT_FALSE(::IsWindowVisible(Bar()));
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(570, 304), Red);
    EXPECT_EQ(picture.At(570, 347), Green);
}

TEST_F(PieChart3dClicks, ALongListScrollsToBothEnds)
{
    for (int i = 0; i < 20; ++i)
        Fill({1});
    Plain();
    EXPECT_TRUE(::IsWindowVisible(Bar()));
    EXPECT_EQ(Marks(), "rgbrgbrgbrg");
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(BarPosition(), 43);
    EXPECT_EQ(Marks(), "gbrgbrgbrgb");
    for (int i = 0; i < 30; ++i)
        Scroll(SB_LINEDOWN);
    EXPECT_EQ(BarPosition(), 373); // 842 - 470 + 1, and 20 - 445 / 43 - 1 = 9 is first
    EXPECT_EQ(Marks(), "rgbrgbrgbrg");
    Scroll(SB_PAGEUP);
    EXPECT_EQ(BarPosition(), 0);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(BarPosition(), 373);
    Scroll(SB_LINEUP);
    EXPECT_EQ(BarPosition(), 330);
    ::SetScrollPos(Bar(), SB_CTL, 90, FALSE);
    Scroll(SB_THUMBPOSITION);
    EXPECT_EQ(Marks(), "brgbrgbrgbr"); // from row 2
}

TEST_F(PieChart3dClicks, ANarrowWindowKeepsThePiesSmallestSize)
{
    Fill({1, 3});
    Plain();
    ::MoveWindow(Handle(), 0, 0, 269, 400, TRUE);
    EXPECT_EQ(Shoot().At(140, 210), Red); // (30, 100) to (180, 250)
    EXPECT_EQ(Shoot().At(190, 175), White);
    for (const int side : {0, 1, 2}) {
        ::MoveWindow(Handle(), 0, 0, side, side, TRUE);
        ::UpdateWindow(Handle());
        Clicked(0, 0);
    }
    ::MoveWindow(Handle(), 0, 0, 800, 600, TRUE);
    EXPECT_EQ(Shoot().At(365, 435), Red);
}

TEST_F(PieChart3dClicks, AFirstRowBeyondTheElementsShowsNoneUntilTheListMoves)
{
    for (int i = 0; i < 20; ++i)
        Fill({1});
    Scroll(SB_PAGEDOWN);
    pie->RemoveAllItem();
    inserted = 0;
    Fill({1, 2});
    Plain();
    EXPECT_EQ(Marks(), "");
    for (int i = 0; i < 8; ++i)
        Scroll(SB_LINEUP);
    EXPECT_EQ(Marks(), "rg");
}

class PieChart3dEndurance : public PieChart3dTest
{
protected:
    static void Cycle()
    {
        HostWindow host;
        const auto pie = Server::Shared().Make<PieChart3d, IPieChart3d>();
        RECT rect = {0, 0, 400, 300};
        pie->Create(Text(L"T"), &rect, WireHandle(host.m_hWnd), 1);
        for (const wchar_t* name : {L"a", L"b", L"c"})
            pie->InsertItem(Text(name), Text(name), 2, Red);
        pie->SetInclineAngle(50);
        wireHWND hWnd = nullptr;
        pie->GetHandle(&hWnd);
        ::UpdateWindow(reinterpret_cast<HWND>(hWnd));
        pie->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(100, 180));
        HostWindow::Pump();
    }
};

TEST_F(PieChart3dEndurance, CreatedAndReleasedPiesLeaveNoGdiObject)
{
    Cycle();
    const int objects = GdiCount::All();
    for (int i = 0; i < 6; ++i)
        Cycle();
    EXPECT_EQ(GdiCount::All(), objects);
}
