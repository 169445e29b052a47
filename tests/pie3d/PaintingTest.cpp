// What the window shows: frame, title, the three styles, percents and labels.

#include "PieWindow.h"

using PiePainting = PieWindow;

namespace
{

constexpr COLORREF White = RGB(255, 255, 255);
constexpr RECT Title = {100, 25, 700, 90};

// The color under the veil of the selection, within rounding.
testing::AssertionResult IsVeiled(COLORREF color, COLORREF under)
{
    const int veil[] = {0x6B, 0xE6, 0xFF};
    for (int i = 0; i < 3; ++i) {
        const int from = static_cast<int>(under >> 8 * i & 0xFF);
        const int is = static_cast<int>(color >> 8 * i & 0xFF);
        const int expected = from + (veil[i] - from) * 0x64 / 255;
        if (is < expected - 2 || is > expected + 2)
            return testing::AssertionFailure() << std::hex << color << " over " << under;
    }
    return testing::AssertionSuccess();
}

bool Exists(const CString& file)
{
    return ::GetFileAttributesW(file) != INVALID_FILE_ATTRIBUTES;
}

CString TemporaryFile(const wchar_t* name)
{
    wchar_t folder[MAX_PATH] = L"";
    ::GetTempPathW(MAX_PATH, folder);
    const CString file = CString(folder) + name;
    ::DeleteFileW(file);
    return file;
}

} // namespace

TEST_F(PiePainting, WithoutElementsThereAreTheBackgroundTheFrameAndTheTitleInEveryStyle)
{
    pie.SetBackgrndColor(0xFFC0D0E0);
    const Picture tilted = Shoot();
    EXPECT_GT(tilted.Count(Title, 0), 50);
    for (const int style : {0, 1}) {
        pie.SetPieChartStyle(style);
        EXPECT_EQ(Shoot().CountDifferences(tilted), 0) << style;
    }
}

TEST_F(PiePainting, TheFrameIsRoundAndTheParentsColorStandsBehindIt)
{
    Plain();
    pie.SetParentWindowColor(RGB(255, 0, 0));
    const Picture picture = Shoot();
    for (const int x : {1, 798}) {
        for (const int y : {1, 598})
            EXPECT_EQ(picture.At(x, y), RGB(255, 0, 0)) << x << ' ' << y;
    }
    EXPECT_EQ(picture.At(15, 15), White);
    EXPECT_EQ(picture.At(400, 1), White);
    EXPECT_EQ(picture.At(1, 300), White);
    EXPECT_EQ(picture.At(785, 585), White);
}

TEST_F(PiePainting, UntilTheHostSaysSoTheColorsAreTheSystemsAndWhite)
{
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(1, 1), ::GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(picture.At(40, 10), White);
    EXPECT_EQ(picture.At(760, 590), White);
}

TEST_F(PiePainting, ASmallWindowShowsAPartOfTheFrame)
{
    Plain();
    pie.SetParentWindowColor(RGB(255, 0, 0));
    pie.MoveWindow(0, 0, 250, 120);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(1, 1), RGB(255, 0, 0));
    EXPECT_EQ(picture.At(248, 1), White);
    EXPECT_EQ(picture.At(1, 118), White);
}

TEST_F(PiePainting, TheBackgroundGoesFromLightToDarkAlongTheDiagonal)
{
    pie.SetBackgrndColor(0xFF808080);
    pie.SetBackGroundGradientLight(255);
    pie.SetBackGroundGradientDark(255);
    const Picture picture = Shoot();
    EXPECT_GT(GetRValue(picture.At(20, 20)), 240);
    EXPECT_LT(GetRValue(picture.At(780, 580)), 15);
    // Lines of one color are square to the diagonal: 600 * 800 + 75 * 600 = 250 * 800 + 542 * 600.
    EXPECT_NEAR(GetRValue(picture.At(600, 75)), GetRValue(picture.At(250, 542)), 3);
}

TEST_F(PiePainting, TheTitleStandsInTheMiddleInTheLabelColor)
{
    Plain();
    pie.SetLabelColor(Blue);
    pie.SetPieChartTitle(L"MMMMMMMM");
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count(Title, Ref(Blue)), 50);
    const int left = picture.Count({100, 25, 400, 90}, Ref(Blue));
    const int right = picture.Count({400, 25, 700, 90}, Ref(Blue));
    EXPECT_NEAR(left, right, (left + right) / 10);
    EXPECT_EQ(picture.Count({100, 0, 700, 29}, Ref(Blue)), 0);
}

TEST_F(PiePainting, AFontThatDoesNotExistIsTheGenericSansSerif)
{
    Fill({1, 3});
    const Picture generic = Shoot();
    pie.SetTitleFontName(L"No Such Face");
    pie.SetLabelFontName(L"No Such Face Either, With A Name Of More Than Thirty-Two Units");
    EXPECT_EQ(Shoot().CountDifferences(generic), 0);
    pie.SetTitleFontName(L"Courier New");
    EXPECT_GT(Shoot().CountDifferences(generic), 0);
}

TEST_F(PiePainting, SlicesRunClockwiseFromTheRightInEveryStyle)
{
    Fill({1, 3});
    Plain();
    for (const int style : {0, 1, 2}) {
        pie.SetPieChartStyle(style);
        const Picture picture = Shoot();
        EXPECT_EQ(picture.At(365, 435), Ref(Red)) << style;
        EXPECT_EQ(picture.At(165, 435), Ref(Green)) << style;
        EXPECT_EQ(picture.At(165, 235), Ref(Green)) << style;
        EXPECT_EQ(picture.At(365, 235), Ref(Green)) << style;
        EXPECT_EQ(picture.At(450, 540), White) << style;
    }
}

TEST_F(PiePainting, SlicesAreShadedFromTopToBottom)
{
    Fill({1});
    Plain();
    pie.SetPieElementGradientLight(&Element(0), 255);
    pie.SetPieElementGradientDark(&Element(0), 255);
    pie.SetPieChartStyle(2); // dark at the top, light at the bottom
    Picture picture = Shoot();
    EXPECT_LT(GetRValue(picture.At(265, 110)), 30);
    EXPECT_GT(GetGValue(picture.At(265, 560)), 225);
    pie.SetPieChartStyle(0); // light at the top of the rim, dark at the top within
    picture = Shoot();
    EXPECT_GT(GetGValue(picture.At(265, 110)), 225);
    EXPECT_LT(GetRValue(picture.At(265, 140)), 40);
    pie.SetPieChartStyle(1); // dark to the color on the rim, the color to light within
    picture = Shoot();
    EXPECT_LT(GetRValue(picture.At(265, 105)), 30);
    EXPECT_LT(GetGValue(picture.At(265, 565)), 30);
    EXPECT_GT(GetGValue(picture.At(265, 545)), 225);
}

TEST_F(PiePainting, TheDoughnutHasAHoleInTheBackgroundsColor)
{
    Fill({1, 3});
    Plain();
    pie.SetPieChartStyle(0);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(265, 335), White); // its radius is 470 / 15 * 3 = 94
    EXPECT_EQ(picture.At(265 - 90, 335), White);
    EXPECT_EQ(picture.At(265 - 98, 335), Ref(Green));
}

TEST_F(PiePainting, TheFlatStylesSlicesAreCutApart)
{
    Fill({1, 3});
    Plain();
    pie.SetPieChartStyle(1);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(265, 500), White); // 533 / 150 = 3 wide
    EXPECT_EQ(picture.At(400, 335), White);
    EXPECT_EQ(picture.At(269, 500), Ref(Red));
    EXPECT_EQ(picture.At(261, 500), Ref(Green));
}

TEST_F(PiePainting, ATiltedPieHasFacesAndAWallInFront)
{
    Fill({1, 3});
    Plain();
    pie.SetInclineAngle(60); // the faces are 156 high, 217 to 375 and 295 to 453
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(365, 320), Ref(Red));
    EXPECT_EQ(picture.At(165, 320), Ref(Green));
    EXPECT_EQ(picture.At(431, 390), Ref(Red));
    EXPECT_EQ(picture.At(99, 390), Ref(Green));
    EXPECT_EQ(picture.At(265, 214), White);
    EXPECT_EQ(picture.At(265, 456), White);
    EXPECT_EQ(picture.At(431, 440), White);
}

TEST_F(PiePainting, WallsAreShadedFromLightToDark)
{
    Fill({1});
    Plain();
    pie.SetPieElementGradientLight(&Element(0), 255);
    pie.SetPieElementGradientDark(&Element(0), 255);
    pie.SetInclineAngle(60);
    const Picture picture = Shoot(); // from the upper middle, 296, to the lower bottom, 453
    EXPECT_GT(GetRValue(picture.At(33, 300)), GetRValue(picture.At(265, 448)) + 100);
    EXPECT_GT(GetGValue(picture.At(33, 300)), GetGValue(picture.At(265, 380)));
}

TEST_F(PiePainting, TheSelectionIsAVeilInEveryStyle)
{
    Fill({1, 3});
    Plain();
    Element(0).bSelected = TRUE;
    for (const int style : {0, 1, 2}) {
        pie.SetPieChartStyle(style);
        const Picture picture = Shoot();
        EXPECT_TRUE(IsVeiled(picture.At(365, 435), Ref(Red))) << style;
        EXPECT_EQ(picture.At(165, 435), Ref(Green)) << style;
    }
    pie.SetInclineAngle(60);
    EXPECT_TRUE(IsVeiled(Shoot().At(431, 390), Ref(Red)));
}

TEST_F(PiePainting, PercentsStandOnTheirSlices)
{
    Fill({1, 3});
    Plain();
    pie.SetPieChartStyle(2);
    const RECT mine = {370, 455, 430, 482}; // radius 188 at 45 degrees: (398, 468)
    EXPECT_EQ(Shoot().Count(mine, 0), 0);
    pie.m_bShowPercent = TRUE;
    pie.Invalidate();
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count(mine, 0), 20);
    EXPECT_GT(picture.Count({102, 188, 162, 216}, 0), 20); // at 225 degrees: (132, 202)
    EXPECT_EQ(picture.Count({370, 188, 430, 216}, 0), 0);
}

TEST_F(PiePainting, LabelsStandBesideTheirMarks)
{
    Fill({1, 3});
    Plain();
    pie.SetLabelColor(Blue);
    const Picture picture = Shoot(); // two rows of 25 with a gap of 18 about 335
    EXPECT_EQ(picture.At(570, 304), Ref(Red));
    EXPECT_EQ(picture.At(570, 347), Ref(Green));
    EXPECT_EQ(picture.At(570, 325), White);
    EXPECT_EQ(picture.At(600, 304), White); // the mark is 46 wide
    EXPECT_GT(picture.Count({646, 290, 760, 318}, Ref(Blue)), 20);
    EXPECT_EQ(picture.Count({600, 290, 646, 318}, Ref(Blue)), 0);
}

TEST_F(PiePainting, ThePercentColumnHasItsBoxAndItsTexts)
{
    Fill({1, 3});
    Plain();
    pie.SetLabelBoxColor(Green);
    const RECT column = {690, 270, 760, 370};
    EXPECT_EQ(Shoot().Count(column, Ref(Green)), 0);
    pie.m_bLabelPercent = TRUE;
    pie.Invalidate();
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count(column, Ref(Green)), 500);
    EXPECT_GT(picture.Count(column, 0), 20);
}

TEST_F(PiePainting, AStyleOutOfRangePaintsNothing)
{
    Fill({1, 3});
    const Picture before = Shoot();
    for (const int style : {5, 3, -1, 2147483647}) {
        pie.SetPieChartStyle(style);
        EXPECT_EQ(Shoot().CountDifferences(before), 0) << style;
        EXPECT_FALSE(NeedsPaint());
    }
}

TEST_F(PiePainting, AWindowOfNoSizePaintsNothingAndGrowsAgain)
{
    Fill({1, 3});
    const Picture before = Shoot();
    const SIZE sizes[] = {{0, 0}, {1, 1}, {0, 300}, {300, 0}, {1, 600}};
    for (const SIZE& size : sizes) {
        pie.MoveWindow(0, 0, size.cx, size.cy);
        pie.UpdateWindow();
    }
    pie.MoveWindow(0, 0, 800, 600);
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(PiePainting, APictureIsSavedOnceWithTheEncoderOfItsExtension)
{
    Fill({1, 3});
    pie.m_strImageFile = TemporaryFile(L"VantoplexPie.png");
    pie.m_bSaveImage = TRUE;
    Shoot();
    EXPECT_FALSE(pie.m_bSaveImage);
    EXPECT_TRUE(Exists(pie.m_strImageFile));
    ::DeleteFileW(pie.m_strImageFile);
    pie.Invalidate();
    Shoot();
    EXPECT_FALSE(Exists(pie.m_strImageFile));
}

TEST_F(PiePainting, APictureWithoutAKnownExtensionIsTriedAndNotSaved)
{
    for (const wchar_t* name : {L"VantoplexPie", L"VantoplexPie.xyz"}) {
        pie.m_strImageFile = TemporaryFile(name);
        pie.m_bSaveImage = TRUE;
        pie.Invalidate();
        Shoot();
        EXPECT_FALSE(pie.m_bSaveImage);
        EXPECT_FALSE(Exists(pie.m_strImageFile));
    }
}
