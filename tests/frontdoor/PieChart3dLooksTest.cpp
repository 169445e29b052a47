// How the 3D pie looks: colors, fonts, styles, angles.

#include "PieChart3dHost.h"

#include <cmath>
#include <cwchar>

class PieChart3dLooks : public PieChart3dTest
{
protected:
    void SetUp() override
    {
        PieChart3dTest::SetUp();
        Create();
        Fill({1, 3});
    }
    static LOGFONTW Font(const wchar_t* face, LONG weight, BYTE italic = 0)
    {
        LOGFONTW font = {};
        font.lfWeight = weight;
        font.lfItalic = italic;
        std::wcsncpy(font.lfFaceName, face, LF_FACESIZE - 1);
        return font;
    }
    void SetLabelFont(LOGFONTW font)
    {
        EXPECT_EQ(pie->SetLabelFont(reinterpret_cast<VARIANT*>(&font)), S_OK);
    }
    void SetTitleFont(LOGFONTW font)
    {
        EXPECT_EQ(pie->SetTitleFont(reinterpret_cast<VARIANT*>(&font)), S_OK);
    }
};

TEST_F(PieChart3dLooks, TheBackgroundIsTurnedFromAColorRef)
{
    EXPECT_EQ(pie->SetBackgrndColor(0x000000FF), S_OK);
    pie->SetBackGroundGradientLight(0);
    pie->SetBackGroundGradientDark(0);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(700, 90), RGB(255, 0, 0));
    EXPECT_EQ(picture.At(50, 580), RGB(255, 0, 0));
}

TEST_F(PieChart3dLooks, TheParentsColorIsTakenAsItIs)
{
    const COLORREF before = Shoot().At(1, 1);
    EXPECT_EQ(before, ::GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(pie->SetParentWindowColor(0x000000FF), S_OK);
    EXPECT_FALSE(NeedsPaint());
    EXPECT_EQ(Shoot().At(1, 1), before);
    const Picture picture = Redrawn();
    EXPECT_EQ(picture.At(1, 1), RGB(255, 0, 0));
    EXPECT_EQ(picture.At(798, 598), RGB(255, 0, 0));
    pie->SetParentWindowColor(RGB(1, 2, 3));
    EXPECT_EQ(Redrawn().At(1, 1), RGB(1, 2, 3));
}

TEST_F(PieChart3dLooks, BackgroundAmountsAreKeptAndToldAndNotNumbersAreRefused)
{
    float amount = 0;
    EXPECT_EQ(pie->GetBackGroungGrLight(&amount), S_OK);
    EXPECT_EQ(amount, 200.0f);
    EXPECT_EQ(pie->GetBackgroundGrDark(&amount), S_OK);
    EXPECT_EQ(amount, 10.0f);
    for (const float given : {0.0f, -1e30f, 3e38f}) {
        EXPECT_EQ(pie->SetBackGroundGradientLight(given), S_OK);
        EXPECT_EQ(pie->SetBackGroundGradientDark(given), S_OK);
        pie->GetBackGroungGrLight(&amount);
        EXPECT_EQ(amount, given);
        pie->GetBackgroundGrDark(&amount);
        EXPECT_EQ(amount, given);
        Shoot();
    }
    EXPECT_EQ(pie->SetBackGroundGradientLight(NAN), S_OK);
    EXPECT_EQ(pie->SetBackGroundGradientDark(INFINITY), S_OK);
    pie->GetBackGroungGrLight(&amount);
    EXPECT_EQ(amount, 3e38f);
}

TEST_F(PieChart3dLooks, TitleLabelsAndPercentsTakeTheLabelColor)
{
    Plain();
    pie->SetPieChartTitle(Text(L"MMMM"));
    EXPECT_EQ(pie->SetLabelColor(Blue), S_OK);
    const Picture picture = Shoot();
    EXPECT_GT(picture.Count({300, 25, 500, 80}, Blue), 20);
    EXPECT_GT(picture.Count({646, 290, 760, 318}, Blue), 10);
    EXPECT_GT(picture.Count({370, 455, 430, 482}, Blue), 10); // 25.00% at (398, 468)
    EXPECT_EQ(picture.Count(0), 0);
}

TEST_F(PieChart3dLooks, TheCaptionIsTheTitleUntilAnotherIsSet)
{
    const Picture captioned = Shoot();
    pie->SetPieChartTitle(Text(L"Other"));
    EXPECT_GT(Shoot().CountDifferences(captioned), 0);
    EXPECT_EQ(pie->SetPieChartTitle(Text(L"Title")), S_OK);
    EXPECT_EQ(Shoot().CountDifferences(captioned), 0);
}

TEST_F(PieChart3dLooks, TheStylesOfTheInterfaceAreDoughnutFlatAndAllElseTilted)
{
    Plain();
    pie->SetInclineAngle(60);
    const Picture tilted = Shoot();
    EXPECT_EQ(pie->SetPieChartStyle(1), S_OK);
    const Picture doughnut = Shoot();
    EXPECT_EQ(pie->SetPieChartStyle(2), S_OK);
    const Picture flat = Shoot();
    EXPECT_EQ(doughnut.At(265, 335), White);
    EXPECT_EQ(flat.At(285, 355), Red);
    EXPECT_EQ(flat.At(265, 500), White); // the cut between the slices
    EXPECT_EQ(doughnut.At(269, 500), Red);
    EXPECT_EQ(tilted.At(431, 390), Red);
    for (const int style : {0, 3, 5, -1, 2147483647}) {
        pie->SetPieChartStyle(style);
        EXPECT_EQ(Shoot().CountDifferences(tilted), 0) << style;
    }
}

TEST_F(PieChart3dLooks, TheStartAngleTurnsThePieClockwise)
{
    Plain();
    EXPECT_EQ(pie->SetStartAngle(90), S_OK);
    Picture picture = Shoot();
    EXPECT_EQ(picture.At(165, 435), Red);
    EXPECT_EQ(picture.At(365, 435), Green);
    pie->SetStartAngle(5);
    picture = Shoot();
    pie->SetStartAngle(725);
    EXPECT_EQ(Shoot().CountDifferences(picture), 0);
    for (const float angle : {NAN, INFINITY, -INFINITY}) {
        EXPECT_EQ(pie->SetStartAngle(angle), S_OK);
        EXPECT_EQ(Redrawn().CountDifferences(picture), 0);
    }
}

TEST_F(PieChart3dLooks, ANegativeInclineIsNone)
{
    Plain();
    const Picture untilted = Shoot();
    EXPECT_EQ(pie->SetInclineAngle(60), S_OK);
    EXPECT_GT(Shoot().CountDifferences(untilted), 10000);
    EXPECT_EQ(pie->SetInclineAngle(-5), S_OK);
    EXPECT_EQ(Shoot().CountDifferences(untilted), 0);
}

TEST_F(PieChart3dLooks, AnInclineHasNoUpperLimit)
{
    Plain();
    pie->SetInclineAngle(85);
    const Picture limited = Shoot();
    pie->SetInclineAngle(120);
    EXPECT_GT(Shoot().CountDifferences(limited), 1000);
}

TEST_F(PieChart3dLooks, DepthIsTheHeightOfTheWall)
{
    Plain();
    pie->SetInclineAngle(85);
    EXPECT_EQ(pie->SetDepth(100), S_OK); // half of it above and half below the middle at 335
    Picture picture = Shoot();
    EXPECT_EQ(picture.At(265 + 10, 335 + 60), Red);
    const Picture before = picture;
    for (const float depth : {-1.0f, NAN, INFINITY}) {
        EXPECT_EQ(pie->SetDepth(depth), S_OK);
        EXPECT_EQ(Redrawn().CountDifferences(before), 0);
    }
    EXPECT_EQ(pie->SetDepth(0), S_OK);
    EXPECT_EQ(Shoot().At(265 + 10, 335 + 60), White);
}

TEST_F(PieChart3dLooks, FontsAreTakenByTheirFirstNinetyTwoBytes)
{
    const Picture plain = Shoot();
    SetLabelFont(Font(L"Courier New", 0));
    const Picture other = Shoot();
    EXPECT_GT(other.CountDifferences(plain), 0);
    EXPECT_EQ(pie->SetLabelFontName(Text(L"")), S_OK);
    EXPECT_EQ(Shoot().CountDifferences(plain), 0);
    SetLabelFont(Font(L"Courier New", 1)); // any weight at all is bold
    EXPECT_GT(Shoot().CountDifferences(other), 0);
    SetLabelFont(Font(L"Courier New", 0));
    EXPECT_EQ(Shoot().CountDifferences(other), 0);
}

TEST_F(PieChart3dLooks, ATitlesStyleOnceOnStaysOn)
{
    SetTitleFont(Font(L"Courier New", 0));
    const Picture plain = Shoot();
    SetTitleFont(Font(L"Courier New", 700));
    const Picture bold = Shoot();
    EXPECT_GT(bold.CountDifferences(plain), 0);
    SetTitleFont(Font(L"Courier New", 0));
    EXPECT_EQ(Shoot().CountDifferences(bold), 0);
    SetTitleFont(Font(L"Courier New", 0, 1));
    EXPECT_GT(Shoot().CountDifferences(bold), 0);
}

TEST_F(PieChart3dLooks, FontsThatDoNotExistAreTheGenericSansSerif)
{
    const Picture generic = Shoot();
    pie->SetTitleFontName(Text(L"No Such Face"));
    pie->SetLabelFontName(Text(L"A Face Whose Name Is Longer Than Any Face's Name May Be"));
    EXPECT_EQ(Shoot().CountDifferences(generic), 0);
}

TEST_F(PieChart3dLooks, TheLabelBoxColorIsStoredAndShownNowhere)
{
    const Picture before = Shoot();
    EXPECT_EQ(pie->SetLabelBoxColor(Red), S_OK);
    EXPECT_TRUE(NeedsPaint());
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(PieChart3dLooks, TextsOfAnyLengthAreShownAsFarAsTheyGo)
{
    const std::wstring longText(50000, L'W');
    EXPECT_EQ(pie->SetPieChartTitle(Text(longText.c_str())), S_OK);
    EXPECT_EQ(pie->UpdateItemLabel(Item(L"e0"), Text(longText.c_str())), S_OK);
    EXPECT_EQ(pie->InsertItem(Text(longText.c_str()), Text(L"%s%n%d"), 1, Blue), S_OK);
    Shoot();
    EXPECT_EQ(Id(longText.c_str()), 2);
    EXPECT_EQ(NameOf(Item(longText.c_str())).size(), 50000u);
}
