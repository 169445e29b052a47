#include "draw/Selectors.h"
#include "Canvas.h"
#include "DrawnLines.h"
#include "draw/QuickFont.h"
#include "framework/windowing/Exceptions.h"
#include "support/GdiCount.h"

#include <gtest/gtest.h>

namespace
{
LOGPEN CurrentPen(HDC dc)
{
    LOGPEN pen{};
    ::GetObject(::GetCurrentObject(dc, OBJ_PEN), sizeof pen, &pen);
    return pen;
}

LOGBRUSH CurrentBrush(HDC dc)
{
    LOGBRUSH brush{};
    ::GetObject(::GetCurrentObject(dc, OBJ_BRUSH), sizeof brush, &brush);
    return brush;
}

LOGFONT CurrentFont(HDC dc)
{
    LOGFONT font{};
    ::GetObject(::GetCurrentObject(dc, OBJ_FONT), sizeof font, &font);
    return font;
}
} // namespace

TEST(PenSelector, SelectsAPenAndRestoresTheOld)
{
    Canvas canvas(4, 4);
    const HGDIOBJ old = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    {
        const CPenSelector selector(RGB(1, 2, 3), 5, &canvas.dc);
        const LOGPEN pen = CurrentPen(canvas.dc);
        EXPECT_EQ(pen.lopnStyle, static_cast<UINT>(PS_SOLID));
        EXPECT_EQ(pen.lopnWidth.x, 5);
        EXPECT_EQ(pen.lopnColor, static_cast<COLORREF>(RGB(1, 2, 3)));
        EXPECT_TRUE(canvas.dc.m_bScaleReady);
    }
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), old);
}

TEST(PenSelector, SolidPenWidensWhileScaling)
{
    Canvas canvas(4, 4);
    ScaleBy(canvas.dc, 6.25f, 1.0f);

    const CPenSelector selector(0, 3, &canvas.dc, PS_SOLID);

    EXPECT_EQ(CurrentPen(canvas.dc).lopnWidth.x, 18);
}

TEST(PenSelector, PatternedPenStaysOneWideWhileScaling)
{
    Canvas canvas(4, 4);
    ScaleBy(canvas.dc, 6.25f, 6.25f);

    const CPenSelector selector(0, 1, &canvas.dc, PS_DOT);

    EXPECT_EQ(CurrentPen(canvas.dc).lopnWidth.x, 1);
    EXPECT_EQ(CurrentPen(canvas.dc).lopnStyle, static_cast<UINT>(PS_DOT));
}

TEST(PenSelector, NestedPensReturnInReverseOrder)
{
    Canvas canvas(4, 4);
    const CPenSelector outer(RGB(1, 1, 1), 1, &canvas.dc);
    const HGDIOBJ outerPen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    {
        const CPenSelector inner(RGB(2, 2, 2), 1, &canvas.dc);
        EXPECT_NE(::GetCurrentObject(canvas.dc, OBJ_PEN), outerPen);
    }
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), outerPen);
}

TEST(BrushSelector, SelectsASolidBrushAndRestoresTheOld)
{
    Canvas canvas(4, 4);
    const HGDIOBJ old = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);
    {
        const CBrushSelector selector(RGB(9, 8, 7), &canvas.dc);
        EXPECT_EQ(CurrentBrush(canvas.dc).lbStyle, static_cast<UINT>(BS_SOLID));
        EXPECT_EQ(CurrentBrush(canvas.dc).lbColor, static_cast<COLORREF>(RGB(9, 8, 7)));
    }
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_BRUSH), old);
}

TEST(BrushSelector, SelectsEachOfTheSixHatches)
{
    Canvas canvas(4, 4);
    for (int hatch = 0; hatch < 6; ++hatch) {
        const CBrushSelector selector(hatch, RGB(9, 8, 7), &canvas.dc);
        EXPECT_EQ(CurrentBrush(canvas.dc).lbStyle, static_cast<UINT>(BS_HATCHED));
        EXPECT_EQ(CurrentBrush(canvas.dc).lbHatch, static_cast<ULONG_PTR>(hatch));
    }
}

TEST(BrushSelector, OfWhatThePlatformMakesNoBrushIsNoHatch)
{
    const int before = GdiCount::All();
    for (int hatch = 0; hatch < 12; ++hatch)
        EXPECT_TRUE(CBrushSelector::IsHatch(hatch)) << hatch;
    for (const int hatch : {-1, 12, 1000, INT_MAX, INT_MIN})
        EXPECT_FALSE(CBrushSelector::IsHatch(hatch)) << hatch;
    EXPECT_EQ(GdiCount::All(), before);
}

TEST(BrushSelector, AHatchThatIsNoneRaisesTheResourceException)
{
    Canvas canvas(4, 4);
    bool raised = false;
    try {
        const CBrushSelector selector(1000, 0, &canvas.dc);
    } catch (CResourceException* exception) {
        raised = true;
        exception->Delete();
    }
    EXPECT_TRUE(raised);
}

TEST(FontSelector, FontOfHeight13At600DpiBecomes75High)
{
    Canvas canvas(4, 4);
    ScaleBy(canvas.dc, 6.25f, 6.25f);
    CQuickFont font(L"Arial", 13, 400);
    const HGDIOBJ old = ::GetCurrentObject(canvas.dc, OBJ_FONT);
    {
        const CFontSelector selector(&font, &canvas.dc, true);
        EXPECT_EQ(CurrentFont(canvas.dc).lfHeight, 75);
        EXPECT_EQ(CString(CurrentFont(canvas.dc).lfFaceName), L"Arial");
    }
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_FONT), old);
}

TEST(FontSelector, WidthScalesByTheHorizontalFactor)
{
    Canvas canvas(4, 4);
    ScaleBy(canvas.dc, 2.0f, 3.0f);
    LOGFONT record{};
    record.lfHeight = 11;
    record.lfWidth = 5;
    CFont font;
    font.CreateFontIndirect(&record);

    const CFontSelector selector(&font, &canvas.dc, true);

    EXPECT_EQ(CurrentFont(canvas.dc).lfWidth, 10);
    EXPECT_EQ(CurrentFont(canvas.dc).lfHeight, 30);
}

TEST(FontSelector, MeasuringTakesTheGivenFont)
{
    Canvas canvas(4, 4);
    CQuickFont font(L"Arial", 13, 400);
    {
        const CFontSelector selector(&font, &canvas.dc, true); // no scaling: bScale doesn't matter
        EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_FONT), font.GetSafeHandle());
    }
    ScaleBy(canvas.dc, 6.25f, 6.25f);
    const CFontSelector selector(&font, &canvas.dc, false);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_FONT), font.GetSafeHandle());
}

TEST(QuickFont, TakesFaceHeightWeightAndUnderline)
{
    const CQuickFont plain(L"Arial", -11, 700);
    const CQuickFont underlined(L"Arial", 14, 400, true);

    LOGFONT record{};
    ASSERT_NE(plain.GetLogFont(&record), 0);
    EXPECT_EQ(record.lfHeight, -11);
    EXPECT_EQ(record.lfWeight, 700);
    EXPECT_EQ(record.lfWidth, 0);
    EXPECT_EQ(record.lfUnderline, 0);
    EXPECT_EQ(record.lfItalic, 0);
    EXPECT_EQ(record.lfCharSet, DEFAULT_CHARSET);
    EXPECT_EQ(record.lfOutPrecision, OUT_DEFAULT_PRECIS);
    EXPECT_EQ(record.lfClipPrecision, CLIP_DEFAULT_PRECIS);
    EXPECT_EQ(record.lfQuality, ANTIALIASED_QUALITY);
    EXPECT_EQ(CString(record.lfFaceName), L"Arial");
    ASSERT_NE(underlined.GetLogFont(&record), 0);
    EXPECT_NE(record.lfUnderline, 0);
}

TEST(Selectors, GdiObjectsReturnToTheStart)
{
    Canvas canvas(40, 40);
    ScaleBy(canvas.dc, 2.0f, 2.0f);
    const auto cycle = [&canvas] {
        CQuickFont font(L"Arial", 13, 400);
        const CPenSelector pen(RGB(1, 2, 3), 1, &canvas.dc);
        const CBrushSelector brush(RGB(1, 2, 3), &canvas.dc);
        const CBrushSelector hatch(3, RGB(1, 2, 3), &canvas.dc);
        const CFontSelector scaled(&font, &canvas.dc, true);
        canvas.dc.TextOut(0, 0, L"x");
    };
    cycle();
    const int before = GdiCount::All();

    for (int round = 0; round < 50; ++round)
        cycle();

    EXPECT_EQ(GdiCount::All(), before);
}
