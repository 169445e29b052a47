// The pens, fonts and texts of the pie, as GDI+ is asked for them: what pixels do not show.

#include "DrawingCalls.h"
#include "PieWindow.h"

#include <algorithm>
#include <cstdio>

using namespace PieColors;

class PiePens : public PieWindow
{
protected:
    using TLines = std::vector<std::string>;

    // The calls of that kind in one whole paint: behind another colour nothing that was kept fits.
    TLines Painted(const std::string& kind)
    {
        pie.m_crParentWindow ^= 1;
        pie.Invalidate();
        const DrawingCalls calls;
        pie.UpdateWindow();
        return calls.Of(kind);
    }
    static std::string Pen(const char* kind, Argb color, const char* width)
    {
        return std::string(kind) + " " + DrawingCalls::Color(color) + " " + width;
    }
};

TEST_F(PiePens, OfTheDoughnutAreLightAndOnePixelWide)
{
    Fill({1, 3});
    pie.SetPieChartStyle(0);
    EXPECT_EQ(Painted("pie"), (TLines{Pen("pie", LightenColor(Red, 160), "1"),
                                      Pen("pie", LightenColor(Green, 160), "1")}));
    EXPECT_EQ(Painted("ellipse"), TLines{"ellipse brush 1"}); // the hole, in the background's brush
}

TEST_F(PiePens, OfTheFlatStyleCutInTheBackgroundsBrush)
{
    Fill({1, 3});
    pie.SetPieChartStyle(1);
    EXPECT_TRUE(Painted("pie").empty());
    const TLines cuts = Painted("line"); // 533 / 150 wide, at 90 and 360 degrees
    ASSERT_EQ(cuts.size(), 2u);
    EXPECT_EQ(cuts[0].rfind("line brush 3: 265,335 265,570", 0), 0u) << cuts[0];
    EXPECT_EQ(cuts[1].rfind("line brush 3: 265,335 500,335", 0), 0u) << cuts[1];
}

TEST_F(PiePens, OfTheTiltedPieAreTheSlicesColour)
{
    Fill({1, 3});
    pie.SetInclineAngle(60);
    EXPECT_EQ(Painted("pie"), (TLines{Pen("pie", Red, "0.2"), Pen("pie", Green, "0.2")}));
    EXPECT_EQ(Painted("path"), (TLines{Pen("path", Red, "0.5"), Pen("path", Green, "0.5")}));
}

TEST_F(PiePens, OfTheSelectionFollowTheSlicesOwn)
{
    Fill({1, 3});
    pie.m_crSelected = 0xFF102030;
    Element(0).bSelected = TRUE;
    pie.SetPieChartStyle(0);
    EXPECT_EQ(Painted("pie"), (TLines{Pen("pie", LightenColor(Red, 160), "1"), "pie FF102030 1",
                                      Pen("pie", LightenColor(Green, 160), "1")}));
    pie.SetPieChartStyle(1);
    EXPECT_EQ(Painted("pie"), TLines{"pie FF102030 1"});
    pie.SetPieChartStyle(2);
    pie.SetInclineAngle(60);
    EXPECT_EQ(Painted("pie"),
              (TLines{Pen("pie", Red, "0.2"), "pie FF102030 1", Pen("pie", Green, "0.2")}));
    EXPECT_EQ(Painted("path"),
              (TLines{Pen("path", Red, "0.5"), "path FF102030 1", Pen("path", Green, "0.5")}));
}

TEST_F(PiePens, OfTheMarksAreLightAndTwoPixelsWide)
{
    Fill({1, 3}); // rows of 25 with a gap of 18, from 335 - 43
    EXPECT_EQ(Painted("box"), (TLines{Pen("box", LightenColor(Red, 200), "2: 550,292 46,25"),
                                      Pen("box", LightenColor(Green, 200), "2: 550,335 46,25")}));
}

TEST_F(PiePens, OfTheSeparatorsAreTheBoxesLightColour)
{
    Fill({1, 1, 1}); // rows from 271 on, 111 high with their gaps: no separator below the last
    pie.SetPieChartStyle(2);
    pie.SetLabelBoxColor(0xFF405060);
    pie.m_bLabelPercent = TRUE;
    const std::string pen = Pen("line", LightenColor(0xFF405060, 200), "1: ");
    const TLines lines = Painted("line");
    ASSERT_EQ(lines.size(), 2u);
    float left = 0;
    float right = 0;
    for (int row = 0; row < 2; ++row) {
        float from = 0;
        float to = 0;
        ASSERT_EQ(lines[row].rfind(pen, 0), 0u) << lines[row];
        ASSERT_EQ(std::sscanf(lines[row].c_str() + pen.size(), "%f,%f %f,%f", &left, &from, &right, &to),
                  4);
        EXPECT_EQ(from, 271 + 43 * row + 25 + 9);
        EXPECT_EQ(to, from);
        EXPECT_EQ(right, 760); // the column ends at the scroll bar's inset
        EXPECT_LT(left, right);
    }
    pie.MoveWindow(0, 0, 560, 600); // no room for the column
    EXPECT_TRUE(Painted("line").empty());
}

TEST_F(PiePens, OfASliceTooThinForAnOutlineDrawItsRadii)
{
    pie.InsertItem(L"thin", L"", 1, Red); // 0.036 degrees
    pie.InsertItem(L"rest", L"", 9999, Green);
    for (const auto& [style, pen] :
         {std::pair{0, Pen("line", LightenColor(Red, 160), "1")}, {2, Pen("line", Red, "0.2")}}) {
        pie.SetPieChartStyle(style);
        const TLines lines = Painted("line");
        ASSERT_EQ(lines.size(), 2u) << style;
        EXPECT_EQ(lines[0], pen + ": 500,335 265,335");
        EXPECT_EQ(lines[1].rfind(pen + ": 265,335 500,335.1", 0), 0u) << lines[1];
    }
}

TEST_F(PiePens, DrawNoSliceAgainThatThePaintBeforeHasDrawn)
{
    Fill({1, 3});
    const auto repainted = [&](const std::string& kind) {
        pie.Invalidate();
        const DrawingCalls calls;
        pie.UpdateWindow();
        return calls.Of(kind).size();
    };
    for (const int style : {0, 2}) {
        pie.SetPieChartStyle(style);
        EXPECT_EQ(repainted("pie"), 2u);
        EXPECT_EQ(repainted("pie"), 0u);
        EXPECT_EQ(repainted("text"), 4u); // labels and percents, not the title
        pie.UpdateItemValue(&Element(0), 2 + style);
        EXPECT_EQ(repainted("text 'Title'"), 0u);
        pie.SetPieChartTitle(Name(style));
        EXPECT_EQ(repainted("text 'e"), 1u);
    }
}

using PieTexts = PiePens;

TEST_F(PieTexts, TheTitleIsATenthOfTheHeightUpToTwentyPoints)
{
    pie.SetTitleFontName(L"Arial");
    EXPECT_EQ(Painted("font 20 0").size(), 1u);
    pie.MoveWindow(0, 0, 800, 170);
    EXPECT_EQ(Painted("font 17 0").size(), 1u);
    pie.MoveWindow(0, 0, 800, 120); // counts as 150
    EXPECT_EQ(Painted("font 15 0").size(), 1u);
}

TEST_F(PieTexts, TheTitleStandsThirtyBelowTheTopInItsMeasuredSize)
{
    const auto expected = [&](float middle, int points) {
        const GdiPlus::CBitmap bitmap = GdiPlus::NewBitmap({10, 10});
        const auto graphics = GdiPlus::CGraphics::Of(bitmap);
        const auto size = graphics.Measure(L"Title", GdiPlus::NewFont(L"", points, 0));
        char text[100];
        std::snprintf(text, sizeof text, "text 'Title' %g,30 %g,%g", middle - size.width * 0.5f,
                      size.width, size.height);
        return std::string(text);
    };
    EXPECT_EQ(Painted("text"), TLines{expected(400, 20)});
    pie.MoveWindow(0, 0, 240, 120); // counts as 300 wide
    EXPECT_EQ(Painted("text 'Title'"), TLines{expected(150, 15)});
}

TEST_F(PieTexts, PercentsComeAfterTheLabels)
{
    Fill({1, 3});
    for (const int style : {0, 1, 2}) {
        pie.SetPieChartStyle(style);
        const TLines texts = Painted("text");
        ASSERT_EQ(texts.size(), 5u);
        const char* const order[] = {"text 'Title'", "text 'label'", "text 'label'", "text '25.00%'",
                                     "text '75.00%'"};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(texts[i].rfind(order[i], 0), 0u) << texts[i];
    }
}

TEST_F(PieTexts, ThePercentsFontHasAtLeastSevenPointsAndTheLabelsItsStyle)
{
    LOGFONTW font = {};
    font.lfItalic = 1;
    pie.SetLabelFont(font);
    pie.MoveWindow(0, 0, 300, 280); // the pie is 150 high: 6 points for the labels
    Fill({1});
    const TLines fonts = Painted("font");
    EXPECT_NE(std::find(fonts.begin(), fonts.end(), "font 6 2"), fonts.end());
    EXPECT_NE(std::find(fonts.begin(), fonts.end(), "font 7 2"), fonts.end());
}
