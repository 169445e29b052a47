// Data, angles, tilts, depths and sizes that nobody would choose.

#include "PieWindow.h"
#include "pie3d/GdiPlus.h"
#include "support/ImportSlot.h"

#include <cmath>
#include <random>

using PieHostile = PieWindow;

extern "C" decltype(&Gdiplus::DllExports::GdipCreatePath) __imp_GdipCreatePath;

namespace
{
Gdiplus::GpStatus WINGDIPAPI NoPath(Gdiplus::GpFillMode, Gdiplus::GpPath**)
{
    return Gdiplus::OutOfMemory;
}
} // namespace

TEST_F(PieHostile, QuartersAndHalvesOfEveryTiltAreDrawn)
{
    // Sweeps of a whole quarter, give or take a rounding.
    Fill({1, 1, 1, 1});
    for (const float incline : {0.0f, 7.0f, 30.0f, 60.0f, 85.0f, 89.5f, 90.0f, 90.5f, 120.0f, 179.0f}) {
        for (const float start : {0.0f, 45.0f, 33.3f}) {
            pie.SetInclineAngle(incline);
            pie.SetStartAngle(start);
            pie.UpdateWindow();
        }
    }
    pie.SetInclineAngle(0);
    pie.SetStartAngle(0);
    Plain();
    EXPECT_EQ(Shoot().At(365, 435), Ref(Red));
}

TEST_F(PieHostile, WhereThePlatformMakesNoPathsThePieIsDrawnWithoutItsWalls)
{
    Fill({1, 3});
    Plain();
    pie.SetInclineAngle(60);
    const int nRed = Shoot().Count(Ref(Red));
    Element(1).bSelected = true;
    pie.SetStartAngle(170); // the first element in front, where its wall would show
    const int nWithWall = Shoot().Count(Ref(Red));
    {
        const ImportSlot slot(__imp_GdipCreatePath, &NoPath);
        pie.m_crParentWindow ^= 1; // behind another colour nothing that was kept fits
        pie.Invalidate();
        const int nWithout = Shoot().Count(Ref(Red));
        EXPECT_GT(nWithout, 0);
        EXPECT_LT(nWithout, nWithWall);
    }
    Element(1).bSelected = false;
    pie.SetStartAngle(0);
    EXPECT_EQ(Shoot().Count(Ref(Red)), nRed);
}

TEST_F(PieHostile, SliversBesideAGiantLeaveThePieToTheGiant)
{
    pie.InsertItem(L"giant", L"", 1e12, Blue);
    for (int i = 0; i < 40; ++i)
        pie.InsertItem(Name(i), L"", i < 20 ? 1 : 1e6, Red);
    Plain();
    for (const float incline : {0.0f, 60.0f}) {
        for (const int style : {0, 1, 2}) {
            pie.SetPieChartStyle(style);
            pie.SetInclineAngle(style == 2 ? incline : 0);
            const Picture picture = Shoot();
            EXPECT_EQ(picture.At(165, 310), Ref(Blue)) << style << ' ' << incline;
            EXPECT_LT(picture.Count({30, 100, 501, 571}, Ref(Red)), 1000);
        }
    }
}

TEST_F(PieHostile, ValuesThatNearlyCancelOutAreDrawnWithoutHarm)
{
    Fill({1e300, 5, 1});
    pie.UpdateItemValue(&Element(1), -1e300);
    for (const int style : {0, 1, 2}) {
        pie.SetPieChartStyle(style);
        pie.SetInclineAngle(50);
        Shoot();
        Click(200, 320);
    }
    pie.RemoveItemByIndex(0);
    pie.RemoveItemByIndex(0);
    EXPECT_EQ(pie.m_dTotal, 0); // what cancelled out took the rest along
    pie.RemoveAllItem();
    Fill({1});
    Plain();
    pie.SetInclineAngle(0);
    EXPECT_EQ(Shoot().At(165, 435), Ref(Red));
}

TEST_F(PieHostile, HugeAnglesTiltsAndDepthsAreDrawnWithoutHarm)
{
    Fill({1, 2, 3});
    for (const float angle : {-720.0f, -3e38f}) {
        for (const float incline : {60.0f, 1e5f, 3e38f}) {
            for (const float depth : {0.0f, 1000.0f, 3e38f}) {
                pie.SetStartAngle(angle);
                pie.SetInclineAngle(incline);
                pie.SetDepth(depth);
                pie.UpdateWindow();
                Click(100, 300);
            }
        }
    }
    pie.SetStartAngle(0);
    pie.SetInclineAngle(0);
    Plain();
    EXPECT_EQ(Shoot().At(400, 400), Ref(Red));
}

TEST_F(PieHostile, TextsOfAnyLengthAreTaken)
{
    const CString longText(std::wstring(100000, L'W'));
    pie.InsertItem(longText, longText, 1, Red);
    pie.SetPieChartTitle(longText);
    pie.SetLabelFontName(longText);
    pie.SetTitleFontName(longText);
    Shoot();
    EXPECT_EQ(pie.GetElementID(longText), 0);
    EXPECT_EQ(pie.m_strLongestLabel.GetLength(), 100000);
    pie.SetPieChartTitle(L"%s%n%1$s {0} \x0001 \xD800 \n\t");
    pie.UpdateItemLabel(&Element(0), L"\xD800\xFFFF\n\n");
    Shoot();
    pie.SetInclineAngle(0);
    Plain();
    EXPECT_EQ(Shoot().At(400, 400), Ref(Red));
}

TEST_F(PieHostile, TenThousandElementsAreDrawnScrolledAndRemoved)
{
    for (int i = 0; i < 10000; ++i)
        ASSERT_NE(pie.InsertItem(Name(i), Name(i), 1 + i % 7, Red), nullptr);
    pie.Settle();
    EXPECT_EQ(pie.m_nElements, 10000);
    EXPECT_EQ(pie.m_nLabelsHeight, 429982); // 10000 * 43 - 18
    Plain();
    pie.SetInclineAngle(60);
    EXPECT_GT(Shoot().Count({200, 230, 330, 360}, Ref(Red)), 130 * 130 / 2);
    pie.m_wndScrollBar.SetScrollPos(pie.m_wndScrollBar.GetScrollLimit());
    Scroll(SB_THUMBTRACK);
    EXPECT_EQ(pie.m_nFirstLabel, 9989);
    pie.UpdateWindow();
    pie.sortPiechartElements(1);
    EXPECT_EQ(Element(0).strName, L"e9995");
    pie.RemoveItemByIndex(0);
    EXPECT_EQ(Element(9998).strName, L"e0");
}

TEST_F(PieHostile, AStepOfScrollingShowsWhatAFullPaintShows)
{
    for (int i = 0; i < 300; ++i) { // enough for the percents to be kept
        Fill({1.0 + i % 5});
    }
    pie.SetInclineAngle(50);
    pie.UpdateWindow();
    const auto fullPaint = [&] {
        pie.SetPieChartTitle(pie.m_strTitle);
        return Shoot();
    };
    const Picture atFirst = fullPaint();
    for (const int code : {SB_LINEDOWN, SB_PAGEDOWN, SB_LINEUP}) {
        Scroll(code);
        const Picture scrolled = Shoot();
        EXPECT_GT(scrolled.CountDifferences(atFirst), 0);
        EXPECT_EQ(fullPaint().CountDifferences(scrolled), 0) << code;
    }
    pie.SetParentWindowColor(RGB(1, 2, 3)); // asks for no paint, but shows in the next
    Scroll(SB_LINEUP);
    EXPECT_EQ(Shoot().At(1, 1), RGB(1, 2, 3));
    pie.MoveWindow(0, 0, 700, 600);
    EXPECT_EQ(Shoot().At(698, 1), RGB(1, 2, 3));
}

TEST_F(PieHostile, RandomChartsOfEverySizeAreDrawnAndClickedWithoutHarm)
{
    std::mt19937 random(2026);
    const auto between = [&](double from, double to) {
        return from + (to - from) * (random() / 4294967296.0);
    };
    for (int chart = 0; chart < 15; ++chart) {
        pie.RemoveAllItem();
        pie.MoveWindow(0, 0, static_cast<int>(between(0, 850)), static_cast<int>(between(0, 650)));
        const int kind = static_cast<int>(random() % 4);
        const int count = 1 + static_cast<int>(random() % 90);
        for (int i = 0; i < count; ++i) {
            const double value = kind == 0   ? 1
                                 : kind == 1 ? between(0, 1)
                                 : kind == 2 ? std::pow(10, between(-9, 9))
                                             : (i % 4 != 0 ? 1e-7 : 1);
            pie.InsertItem(Name(i), L"x", value, 0xFF000000 | random());
        }
        pie.UpdateItemValue(&Element(0), between(-2, 9));
        pie.SetStartAngle(static_cast<float>(between(-400, 800)));
        pie.SetInclineAngle(static_cast<float>(between(0, 130)));
        pie.SetDepth(static_cast<float>(between(0, 150)));
        for (const int style : {2, 1, 0}) {
            pie.SetPieChartStyle(style);
            pie.UpdateWindow();
            Click(static_cast<int>(between(0, 500)), static_cast<int>(between(0, 500)));
            pie.UpdateWindow();
        }
    }
    EXPECT_GT(pie.m_nElements, 0);
}
