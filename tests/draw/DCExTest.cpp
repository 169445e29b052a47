#include "Canvas.h"
#include "Recording.h"
#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <gtest/gtest.h>

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
    Recording recording;
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
    Recording recording;
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
    Recording recording;
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

TEST(DCEx, FormatFlagsFromOutsideNeverWriteIntoTheText)
{
    Canvas canvas(100, 30);
    const CString text = L"A text that does not fit at all";
    CRect rect(0, 0, 40, 30);

    canvas.dc.DrawText(text, &rect, DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_SINGLELINE);

    EXPECT_EQ(text, L"A text that does not fit at all");
}

TEST(DCEx, PolygonWithoutPointsIsRefused)
{
    Canvas canvas(4, 4);
    const POINT point{};

    EXPECT_FALSE(canvas.dc.Polygon(nullptr, 3));
    EXPECT_FALSE(canvas.dc.Polygon(&point, -1));
}

TEST(DCEx, DirectOperationsUseTheDrawingHandleAlone)
{
    Canvas drawn(60, 30);
    Canvas asked(60, 30);
    ::IntersectClipRect(asked.dc, 50, 20, 60, 30); // would hide everything below
    drawn.dc.SetAttribDC(asked.dc);
    const CRect rect(0, 0, 10, 10);
    CRect room(0, 0, 60, 30);

    CDC& virtualDC = drawn.dc;
    EXPECT_TRUE(virtualDC.PtVisible(5, 5));
    EXPECT_TRUE(virtualDC.RectVisible(&rect));
    EXPECT_TRUE(virtualDC.TextOut(0, 0, L"x", 1));
    EXPECT_TRUE(virtualDC.ExtTextOut(10, 0, 0, nullptr, L"x", 1, nullptr));
    EXPECT_GT(virtualDC.TabbedTextOut(20, 0, L"a\tb", 3, 0, nullptr, 0).cx, 0);
    EXPECT_GT(virtualDC.DrawText(L"x", 1, &room, DT_CENTER), 0);
    WCHAR text[] = L"x";
    EXPECT_GT(virtualDC.DrawTextEx(text, 1, &room, DT_RIGHT, nullptr), 0);

    EXPECT_NE(drawn.Picture(), Canvas(60, 30).Picture());
    EXPECT_EQ(asked.Picture(), Canvas(60, 30).Picture());
    drawn.dc.SetAttribDC(drawn.dc);
}
