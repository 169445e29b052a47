#include "Canvas.h"
#include "DirectOperations.h"
#include "DrawnLines.h"
#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

using Lines = std::vector<std::string>;

TEST(DCEx, FieldsStartUnscaled)
{
    const CDCEx dc;

    EXPECT_FALSE(dc.m_bScaleReady || dc.m_bMono || dc.m_bScaling || dc.m_bClipScaled);
    EXPECT_EQ(dc.m_fScaleX, 1.0f);
    EXPECT_EQ(dc.m_fScaleY, 1.0f);
}

TEST(DCEx, TargetOfTheScreensResolutionGivesFactorOne)
{
    Canvas canvas(4, 4);

    canvas.dc.InitScale(canvas.dc);

    EXPECT_TRUE(canvas.dc.m_bScaleReady);
    EXPECT_EQ(canvas.dc.m_fScaleX, 1.0f);
    EXPECT_EQ(canvas.dc.m_fScaleY, 1.0f);
    EXPECT_FALSE(canvas.dc.m_bMono);
}

TEST(DCEx, ATargetThatKnowsNoColoursAndNoResolutionIsMonoAndUnscaled)
{
    // A metafile of the old kind answers 0 to both questions.
    CDCEx target;
    target.Attach(::CreateMetaFile(nullptr));
    ASSERT_EQ(::GetDeviceCaps(target, NUMCOLORS), 0);
    ASSERT_EQ(::GetDeviceCaps(target, LOGPIXELSX), 0);

    target.InitScale(target);

    EXPECT_TRUE(target.m_bMono);
    EXPECT_EQ(target.m_fScaleX, 1.0f);
    EXPECT_EQ(target.m_fScaleY, 1.0f);
    ::DeleteMetaFile(::CloseMetaFile(target.Detach()));
}

TEST(DCEx, ScalePointInitialisesTheScaleOnce)
{
    Canvas canvas(4, 4);
    int x = 3;
    int y = 5;

    canvas.dc.ScalePoint(x, y);

    EXPECT_TRUE(canvas.dc.m_bScaleReady);
    EXPECT_EQ(CPoint(x, y), CPoint(3, 5));

    canvas.dc.m_fScaleX = 2.0f; // kept: the scale is ready
    CRect rect(1, 2, 3, 4);
    canvas.dc.ScaleRect(rect);
    EXPECT_EQ(rect, CRect(2, 2, 6, 4));
}

TEST(DCEx, NothingIsMultipliedWithoutScaling)
{
    DrawnLines recording;
    CDCEx& dc = recording.dc;
    dc.m_bScaleReady = true;
    dc.m_fScaleX = dc.m_fScaleY = 6.25f;

    dc.MoveTo(1, 2);
    dc.LineTo(CPoint(3, 4));
    dc.Rectangle(1, 2, 30, 40);

    EXPECT_EQ(recording.Lines(), (Lines{"MoveTo (1,2)", "LineTo (3,4)", "Rectangle (1,2) (29,39)"}));
}

TEST(DCEx, EveryWrappedOperationMultipliesItsCoordinates)
{
    DrawnLines recording;
    CDCEx& dc = recording.dc;
    ScaleBy(dc, 2.0f, 3.0f);
    const POINT points[] = {{1, 1}, {2, 1}, {2, 2}};
    const CRect box(1, 2, 30, 40);
    CBrush brush(RGB(1, 2, 3));

    dc.MoveTo(CPoint(1, 2));
    dc.LineTo(3, 4);
    dc.Rectangle(1, 2, 30, 40);
    dc.Rectangle(&box);
    dc.Ellipse(1, 2, 30, 40);
    dc.Polygon(points, 3);
    dc.FillRect(&box, &brush);
    dc.FillSolidRect(&box, RGB(1, 2, 3));
    dc.FillSolidRect(1, 2, 3, 4, RGB(1, 2, 3));

    EXPECT_EQ(recording.Lines(),
              (Lines{"MoveTo (2,6)", "LineTo (6,12)", "Rectangle (2,6) (59,119)",
                     "Rectangle (2,6) (59,119)", "Ellipse (2,6) (59,119)", "Polygon (2,3) (4,3) (4,6)",
                     "BitBlt (2,6) (58,114)", "Fill (2,6) (60,120)", "Fill (2,6) (8,18)"}));
}

TEST(DCEx, PolylineIsScaledLikeItsLines)
{
    DrawnLines recording;
    ScaleBy(recording.dc, 2.0f, 3.0f);
    const POINT points[] = {{1, 1}, {2, 1}, {2, 2}};

    recording.dc.Polyline(points, 3);

    const Lines lines = recording.Lines();
    ASSERT_GE(lines.size(), 3u);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
              (Lines{"MoveTo (2,3)", "LineTo (4,3)", "LineTo (4,6)"}));
}

TEST(DCEx, CallersRectanglesStayUnscaled)
{
    Canvas canvas(40, 40);
    ScaleBy(canvas.dc, 2.0f, 2.0f);
    CRect rect(1, 2, 3, 4);

    canvas.dc.FillSolidRect(&rect, 0);
    canvas.dc.DrawFocusRect(&rect);
    canvas.dc.DrawText(L"x", &rect, DT_LEFT);

    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
}

TEST(DCEx, FocusRectangleIsScaled)
{
    Canvas canvas(20, 20);
    ScaleBy(canvas.dc, 3.0f, 2.0f);
    const CRect rect(2, 2, 5, 8);

    canvas.dc.DrawFocusRect(&rect);

    Canvas expected(20, 20);
    const CRect scaled(6, 4, 15, 16);
    ::DrawFocusRect(expected.dc, &scaled);
    EXPECT_EQ(canvas.Picture(), expected.Picture());
}

TEST(DCEx, MeasuringTextWhileScalingScalesTheRectangleInPlace)
{
    Canvas canvas(200, 200);
    CDCEx& dc = canvas.dc;
    CRect plain(10, 20, 11, 21);
    const int height = dc.DrawText(L"Wide text", &plain, DT_CALCRECT);

    ScaleBy(dc, 2.0f, 3.0f);
    CRect rect(10, 20, 11, 21);
    const int scaledHeight = dc.DrawText(L"Wide text", &rect, DT_CALCRECT);

    EXPECT_EQ(rect.TopLeft(), CPoint(20, 60));
    EXPECT_EQ(rect.Size(), plain.Size()) << "the font is the same";
    EXPECT_EQ(scaledHeight, height);
}

TEST(DCEx, TextIsDrawnIntoTheScaledRectangle)
{
    Canvas canvas(200, 100);
    ScaleBy(canvas.dc, 2.0f, 2.0f);
    CRect rect(20, 10, 90, 40);
    const int height = canvas.dc.DrawText(L"Text", &rect, DT_LEFT);

    Canvas expected(200, 100);
    CRect scaled(40, 20, 180, 80);
    EXPECT_EQ(height, ::DrawText(expected.dc, L"Text", 4, &scaled, DT_LEFT));
    EXPECT_EQ(canvas.Picture(), expected.Picture());
    EXPECT_NE(canvas.Picture(), Canvas(200, 100).Picture());
}

TEST(DCEx, ExtentOfATwoLineTextMeasuresBothLines)
{
    Canvas canvas(4, 4);
    CDCEx& dc = canvas.dc;
    const CSize first = dc.GetTextExtent(L"short");
    const CSize second = dc.GetTextExtent(L"a longer line");

    const CSize both = dc.GetTextExtent(L"short\na longer line");

    EXPECT_EQ(both.cx, second.cx);
    EXPECT_EQ(both.cy, first.cy + second.cy);
}

TEST(DCEx, ExtentOfAnEmptyTextHasNoWidth)
{
    Canvas canvas(4, 4);

    const CSize extent = canvas.dc.GetTextExtent(L"");

    EXPECT_EQ(extent.cx, 0);
}

TEST(DCEx, MeasuringSaysWhetherThePlatformMeasured)
{
    Canvas canvas(4, 4);
    EXPECT_EQ(canvas.dc.MeasureText(L"wide"), canvas.dc.GetTextExtent(L"wide"));
    EXPECT_EQ(canvas.dc.MeasureText(L"two\nlines"), canvas.dc.GetTextExtent(L"two\nlines"));
    EXPECT_TRUE(canvas.dc.MeasureText(L"")) << "nothing has a size too";

    CDCEx none;
    EXPECT_FALSE(none.MeasureText(L"wide"));
    EXPECT_FALSE(none.MeasureText(L"two\nlines"));
    EXPECT_EQ(none.GetTextExtent(L"wide"), CSize());
}

TEST(DCEx, FormatFlagsFromOutsideNeverWriteIntoTheText)
{
    Canvas canvas(100, 30);
    const CString text = L"A text that does not fit at all";
    CRect rect(0, 0, 40, 30);

    canvas.dc.DrawText(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE);

    EXPECT_EQ(text, L"A text that does not fit at all");
}

// Wine's DrawText ends the process where a text that doesn't fit is to have two kinds of ellipsis.
TEST(DCEx, AnEllipsisWithinAPathExcludesOneAtTheEnd_OurDecision)
{
    for (const UINT second : {DT_END_ELLIPSIS, DT_WORD_ELLIPSIS}) {
        Canvas both(100, 30);
        Canvas within(100, 30);
        CRect rect(0, 0, 40, 30);

        both.dc.DrawText(L"folder\\another\\file", &rect, DT_PATH_ELLIPSIS | second);
        within.dc.DrawText(L"folder\\another\\file", &rect, DT_PATH_ELLIPSIS);

        EXPECT_EQ(both.Picture(), within.Picture());
        both.dc.CDC::DrawText(L"folder\\another\\file", &rect, DT_PATH_ELLIPSIS | second);
    }
}

TEST(DCEx, PolygonWithoutPointsIsRefused)
{
    Canvas canvas(4, 4);
    const POINT point{};

    EXPECT_FALSE(canvas.dc.Polygon(nullptr, 3));
    EXPECT_FALSE(canvas.dc.Polygon(&point, -1));
}

TEST(DCEx, TheNineDirectOperationsUseTheDrawingHandleAlone)
{
    Canvas drawn(60, 30);
    Canvas asked(60, 30);
    ::IntersectClipRect(asked.dc, 50, 20, 60, 30); // would hide everything below
    drawn.dc.SetAttribDC(asked.dc);
    ExpectDirectOperations(drawn.dc, drawn, asked);
    drawn.dc.SetAttribDC(drawn.dc);
}

TEST(DCEx, TextFarOutsideTheClipBoxIsMeasuredButNotDrawn)
{
    Canvas canvas(60, 30);
    LOGFONT look{};
    look.lfHeight = 13;
    look.lfEscapement = look.lfOrientation = 450;
    look.lfUnderline = TRUE;
    CFont turned;
    turned.CreateFontIndirect(&look);
    const CFontSelector font(&turned, &canvas.dc, false);
    CRect close(5, 5, 55, 25);
    // The best of three runs.
    const auto time = [](int rounds, const auto& draw) {
        auto best = std::chrono::steady_clock::duration::max();
        for (int run = 0; run < 3; ++run) {
            const auto start = std::chrono::steady_clock::now();
            for (int round = 0; round < rounds; ++round)
                draw();
            best = std::min(best, std::chrono::steady_clock::now() - start);
        }
        return best;
    };
    const auto seen = time(2000, [&] { canvas.dc.DrawText(L"underlined", &close, 0); });
    CRect room(close);
    const int height = canvas.dc.DrawText(L"underlined", &room, DT_CALCRECT);
    for (const int distant : {INT_MIN, INT_MIN + 1000, INT_MAX - 1000, -(1 << 26), 1 << 20}) {
        for (const UINT format : {0u, static_cast<UINT>(DT_NOCLIP), static_cast<UINT>(DT_CENTER)}) {
            CRect rect(5, distant, 55, distant + 20);
            int result = 0;
            EXPECT_LT(time(1, [&] { result = canvas.dc.DrawText(L"underlined", &rect, format); }), seen)
                << distant;
            EXPECT_EQ(result, height);
            EXPECT_EQ(rect, CRect(5, distant, 55, distant + 20));
        }
        EXPECT_LT(time(1, [&] { canvas.dc.TextOut(5, distant, L"underlined"); }), seen) << distant;
        EXPECT_LT(time(1, [&] { canvas.dc.TextOut(distant, 5, L"underlined"); }), seen) << distant;
    }
}

TEST(DCEx, TextOfARectangleThatBeginsFarOutsideIsDrawnWhereItShows)
{
    const auto drawn = [](CRect rect, UINT format) {
        Canvas canvas(60, 30);
        canvas.dc.DrawText(L"text", &rect, format);
        return canvas.Picture();
    };
    const auto blank = Canvas(60, 30).Picture();
    EXPECT_NE(drawn({-100000, 5, 40, 25}, DT_RIGHT), blank);
    EXPECT_EQ(drawn({-100000, 5, 40, 25}, DT_RIGHT), drawn({-1000, 5, 40, 25}, DT_RIGHT));
    EXPECT_EQ(drawn({-100000, 5, 100060, 25}, DT_CENTER), drawn({-1000, 5, 1060, 25}, DT_CENTER));
    EXPECT_EQ(drawn({5, -100000, 55, 25}, DT_BOTTOM | DT_SINGLELINE),
              drawn({5, -1000, 55, 25}, DT_BOTTOM | DT_SINGLELINE));
    EXPECT_EQ(drawn({5, -100000, 55, 100030}, DT_VCENTER | DT_SINGLELINE),
              drawn({5, -1000, 55, 1030}, DT_VCENTER | DT_SINGLELINE));
    EXPECT_EQ(drawn({5, -100000, 55, 25}, 0), blank);
}

TEST(DCEx, ARecordingKeepsTextWhereverItIs)
{
    DrawnLines recording;
    CRect remote(5, 1 << 20, 55, (1 << 20) + 20);
    recording.dc.DrawText(L"text", &remote, 0);
    EXPECT_EQ(recording.Lines().size(), 1u);
}

TEST(DCEx, WhatCanBeSeenIsInTheCallersUnits)
{
    Canvas canvas(60, 30);
    EXPECT_EQ(canvas.dc.Visible().right, 60);
    ScaleBy(canvas.dc, 2.0f, 3.0f);
    EXPECT_EQ(canvas.dc.Visible().right, 30);
    EXPECT_EQ(canvas.dc.Visible().bottom, 10);
    EXPECT_TRUE(canvas.dc.Visible().Meets(TRect{29, 9, 500, 500}, 0));
    EXPECT_TRUE(canvas.dc.Visible().Meets(TRect{500, 500, 29, 9}, 0)) << "inside out";
    EXPECT_FALSE(canvas.dc.Visible().Meets(TRect{35, 0, 40, 5}, 4));
    EXPECT_TRUE(canvas.dc.Visible().Meets(TRect{35, 0, 40, 5}, 5));
    EXPECT_TRUE(DrawnLines().dc.Visible().Meets(TRect{1 << 30, 1 << 30, 1 << 30, 1 << 30}, 0));
}
