#include "viewer-program/ViewerRun.h"

#include <gtest/gtest.h>

// Bar, line and pie charts as pictures.

using ViewerRun::Pixels;
using ViewerRun::Result;
using ViewerRun::RunViewer;
using ViewerRun::TemporaryFile;

namespace
{

constexpr COLORREF First = RGB(0x1F, 0x5F, 0xB4);
constexpr COLORREF Second = RGB(0xD6, 0x27, 0x28);

// The first year is the largest, so that nothing rises above the scale.
constexpr std::string_view Power = "year,source,made\n"
                                   "2001-01-01,Coal,40\n2001-01-01,Wind,20\n"
                                   "2002-01-01,Coal,30\n2002-01-01,Wind,25\n";

class ViewerChart : public testing::Test
{
protected:
    Pixels Draw(const std::wstring& options, const wchar_t* size = L"600x400")
    {
        const TemporaryFile data(L"power.csv", Power);
        const TemporaryFile picture(L"power.png");
        const Result result =
            RunViewer(L"\"" + data.Path() + L"\" --group source --no-legend --title T --png \"" +
                      picture.Path() + L"\" --size " + size + L" " + options);
        EXPECT_EQ(0u, result.exitCode) << result.output;
        return Pixels(picture.Path());
    }

    static int Count(const Pixels& pixels, COLORREF color)
    {
        int count = 0;
        for (int y = 0; y < pixels.Height(); ++y) {
            for (int x = 0; x < pixels.Width(); ++x)
                count += pixels.At(x, y) == color;
        }
        return count;
    }
};

TEST_F(ViewerChart, BarsHaveHeightsInProportionToTheirValues)
{
    const Pixels pixels = Draw(L"--chart bar");

    EXPECT_EQ(600, pixels.Width());
    EXPECT_EQ(400, pixels.Height());
    const double ratio = double(Count(pixels, First)) / Count(pixels, Second);
    EXPECT_NEAR(70.0 / 45, ratio, 0.1);
}

TEST_F(ViewerChart, ATickOfTheAnimationShowsThatMomentOnAnyMachine)
{
    const int whole = Count(Draw(L"--chart bar"), First);

    const Pixels half = Draw(L"--chart bar --animation grow --tick 49");
    const Pixels again = Draw(L"--chart bar --animation grow --tick 49");

    EXPECT_NEAR(0.5, double(Count(half, First)) / whole, 0.05);
    EXPECT_EQ(Count(half, First), Count(again, First));
}

TEST_F(ViewerChart, LinesReachAsFarAsTheirTick)
{
    const Pixels::Columns whole = Draw(L"--chart line").ColumnsWith(First);

    const Pixels::Columns part = Draw(L"--chart line --animation draw --tick 24").ColumnsWith(First);

    EXPECT_GT(whole.count, 50);
    EXPECT_NEAR(0.5, double(part.count) / whole.count, 0.1);
}

TEST_F(ViewerChart, SlicesShareTheFlatPieByTheirPercents)
{
    const Pixels pixels = Draw(L"--chart pie --pick 2001");

    EXPECT_NEAR(2, double(Count(pixels, First)) / Count(pixels, Second), 0.1);
    EXPECT_LT(Count(Draw(L"--chart pie --pick 2001 --animation sweep --tick 30"), Second), 10);
}

TEST_F(ViewerChart, ThePieHasItsThreeStyles)
{
    const Pixels solid = Draw(L"--chart pie3d --pick 2001 --tilt 60 --style 3d");
    const Pixels flat = Draw(L"--chart pie3d --pick 2001 --style flat");
    const Pixels doughnut = Draw(L"--chart pie3d --pick 2001 --style doughnut");

    // Left of the middle of the window lies the middle of the pie: a hole in the doughnut alone.
    const auto middle = [](const Pixels& pixels) {
        return pixels.At(pixels.Width() * 10 / 45, pixels.Height() * 115 / 200);
    };
    EXPECT_EQ(RGB(255, 255, 255), middle(doughnut));
    EXPECT_NE(RGB(255, 255, 255), middle(flat));
    EXPECT_NE(RGB(255, 255, 255), middle(solid));
}

TEST_F(ViewerChart, AGradientFadesFromTopToBottom)
{
    const Pixels pixels = Draw(L"--chart bar --gradient");

    EXPECT_GT(GetRValue(pixels.At(590, 5)), GetRValue(pixels.At(590, 395)) + 40);
}

TEST_F(ViewerChart, RefusesAPickThatIsNotThere)
{
    const TemporaryFile data(L"power.csv", Power);

    const Result result = RunViewer(L"\"" + data.Path() + L"\" --chart pie --pick 1999 --png x.png");

    EXPECT_EQ(1u, result.exitCode);
    EXPECT_NE(std::string::npos, result.output.find("1999")) << result.output;
}

} // namespace
