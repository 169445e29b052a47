// Notes pinned to data points.

#include "FrameRecording.h"
#include "NativeGraph.h"
#include "WatchedCanvas.h"
#include "objects/XGraphDataNotation.h"

namespace
{

class Notation : public GraphTest
{
protected:
    Notation()
    {
        graph.m_bShowLegend = false;
        AddLine()->m_bVisible = false;
        graph.GetXAxis(0)->m_bShowGrid = graph.GetYAxis(0)->m_bShowGrid = false;
        graph.Pan();
        graph.NoOp();
        Paint();
    }
    CXGraphDataNotation& Insert(int nIndex)
    {
        graph.InsertDataNotation(0, nIndex);
        return *LastObject<CXGraphDataNotation>(graph);
    }
    CPoint PixelOf(double fX, double fY)
    {
        return {graph.GetXAxis(0)->GetPointForValue({fX, 0}).x,
                graph.GetYAxis(0)->GetPointForValue({0, fY}).y};
    }
};

} // namespace

TEST_F(Notation, ItIsAFramedBoxADotAndAStem)
{
    CXGraphDataNotation& note = Insert(5);
    note.m_cText = L"";
    note.m_bPositioned = true;
    note.m_rcObject = CRect(0, 0, 30, 12);
    const Picture without = [&] {
        note.m_bVisible = false;
        const Picture picture = Shoot();
        note.m_bVisible = true;
        return picture;
    }();
    const Picture picture = Shoot();
    const CPoint point = PixelOf(5, 5);
    const CRect box(point.x, point.y - 20, point.x + 30, point.y - 8);
    EXPECT_EQ(note.m_rcObject, box);
    EXPECT_EQ(picture.Count(box, 0xFFFFFF), 30 * 12);
    CRect frame = box;
    frame.InflateRect(1, 1);
    EXPECT_EQ(picture.Count(frame, 0x000000), 32 * 14 - 30 * 12);
    EXPECT_EQ(picture.Count({point.x - 1, point.y - 1, point.x + 2, point.y + 2}, 0x000000), 9);
    for (int y = box.bottom; y < point.y; ++y)
        EXPECT_EQ(picture.At(point.x, y), 0x000000u) << y;
    // Nothing else: frame with its inside, dot, and what of the stem lies between them.
    EXPECT_EQ(picture.CountDifferences(without), 32 * 14 + 9 + (point.y - 1) - (box.bottom + 1));
}

TEST_F(Notation, ItsTextIsCentredInTwelvePixelArial)
{
    CXGraphDataNotation& note = Insert(5);
    note.m_cText = L"!note";
    WatchedCanvas canvas(Width, Height);
    note.Draw(&canvas.dc);
    ASSERT_EQ(canvas.dc.texts.size(), 1u);
    const WatchedDC::Text& text = canvas.dc.texts[0];
    EXPECT_EQ(text.rect, note.m_rcObject);
    EXPECT_EQ(text.format, static_cast<UINT>(DT_CENTER));
    EXPECT_STREQ(text.font.lfFaceName, L"Arial");
    EXPECT_EQ(text.font.lfHeight, 12);
    EXPECT_EQ(text.font.lfWeight, 400);
    EXPECT_EQ(text.font.lfClipPrecision, 1);
    EXPECT_EQ(text.font.lfQuality, 4);
}

TEST_F(Notation, TheBoxIsMeasuredOnceAndFollowsItsPoint)
{
    CXGraphDataNotation& note = Insert(5);
    Paint();
    EXPECT_TRUE(note.m_bPositioned);
    const CSize size = note.m_rcObject.Size();
    EXPECT_GT(size.cx, 20);
    EXPECT_EQ(note.m_rcObject.TopLeft(), PixelOf(5, 5) - CSize(0, 20));
    note.m_cText = L"x";
    graph.GetXAxis(0)->SetCurrentRange(4, 8, 0.0);
    Paint();
    EXPECT_EQ(note.m_rcObject.TopLeft(), PixelOf(5, 5) - CSize(0, 20));
    EXPECT_EQ(note.m_rcObject.Size(), size);
}

TEST_F(Notation, ItsTextHasPlaceValuesAndTitles)
{
    graph.GetXAxis(0)->m_cDisplayFmt = L"%.2f%%";
    graph.GetXAxis(0)->m_cLabel = L" s";
    graph.GetYAxis(0)->m_cDisplayFmt = L"%s%.1e";
    graph.GetYAxis(0)->m_cLabel = L"%n";
    const CXGraphDataNotation& note = Insert(3);
    EXPECT_EQ(note.m_cText, L"[4] : 3.00% s,%s3.0e+00%n");
    EXPECT_EQ(note.m_fXVal, 3);
    EXPECT_EQ(note.m_fYVal, 3);
    EXPECT_EQ(note.m_nCurve, 0);
    EXPECT_EQ(note.m_nIndex, 3);
    EXPECT_EQ(note.m_pGraph, &graph);
    EXPECT_FALSE(note.m_bCanEdit || note.m_bCanMove || note.m_bCanResize);
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    Paint();
}

TEST_F(Notation, DatesStandOnBothAxes)
{
    graph.GetXAxis(0)->m_bDateTime = graph.GetYAxis(0)->m_bDateTime = true;
    graph.GetXAxis(0)->m_cDisplayFmt = L"%Y-%m-%d";
    graph.GetYAxis(0)->m_cDisplayFmt = L"%d%%d";
    graph.GetXAxis(0)->m_cLabel = graph.GetYAxis(0)->m_cLabel = L"";
    EXPECT_EQ(Insert(2).m_cText, L"[3] : 1900-01-01,01%d");
}

TEST_F(Notation, ThereIsNoneForAPointThatIsNotThere)
{
    graph.InsertDataNotation(0, 11);
    graph.InsertDataNotation(0, -1);
    EXPECT_EQ(graph.m_Objects.GetCount(), 1);
}

TEST_F(Notation, ABoxAboveThePlotIsClipped)
{
    CXGraphDataNotation& note = Insert(10);
    const Picture without = Picture(graph.m_hWnd);
    // The point is so near the top that its box reaches over it.
    double fTop = 10;
    while (PixelOf(10, 10).y > graph.m_rcInner.top + 15 && fTop > 8)
        graph.GetYAxis(0)->SetCurrentRange(0, fTop -= 0.05, 0.0);
    const Picture picture = Shoot();
    ASSERT_LT(note.m_rcObject.top, graph.m_rcInner.top - 2);
    ASSERT_GT(note.m_rcObject.bottom, graph.m_rcInner.top);
    for (int y = note.m_rcObject.top - 1; y < graph.m_rcInner.top; ++y)
        EXPECT_EQ(picture.At(PixelOf(10, 10).x, std::max(y, 0)),
                  without.At(PixelOf(10, 10).x, std::max(y, 0)));
    EXPECT_EQ(picture.At(note.m_rcObject.left - 1, graph.m_rcInner.top), 0x000000u); // its frame
}

TEST_F(Notation, ADoubleClickDoesNothing)
{
    const CXGraphDataNotation& note = Insert(5);
    Paint();
    const CPoint at = note.m_rcObject.CenterPoint();
    graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
    graph.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    EXPECT_FALSE(note.m_bEditing);
    EXPECT_EQ(::GetWindow(graph.m_hWnd, GW_CHILD), nullptr);
}

TEST_F(Notation, AClickWithTheCursorPinsOneToThePointUnderIt)
{
    graph.Cursor();
    Paint();
    const CPoint at = PixelOf(5.5, 6);
    graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
    ASSERT_EQ(graph.m_nCursorCurve, 0);
    graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
    ASSERT_EQ(graph.m_Objects.GetCount(), 2);
    const auto& note = *LastObject<CXGraphDataNotation>(graph);
    EXPECT_EQ(note.m_nIndex, 6); // the first point past the cursor
    EXPECT_EQ(note.m_fXVal, 6);
}

TEST_F(Notation, OneWithoutAPixelLeavesThePlotClean)
{
    const Picture without = Shoot();
    CXGraphDataNotation& note = Insert(5);
    const double inf = std::numeric_limits<double>::infinity();
    for (const TDataPoint& value : {TDataPoint{1e300, 1e300},
                                    {-1e300, 5},
                                    {5, -1e300},
                                    {5, 1e300},
                                    {std::nan(""), 5},
                                    {5, -inf},
                                    {3e9, -3e9}}) {
        note.m_fXVal = value.fXVal;
        note.m_fYVal = value.fYVal;
        note.m_bPositioned = false;
        EXPECT_EQ(Shoot().CountDifferences(without), 0) << value.fXVal << ", " << value.fYVal;
    }
}

TEST_F(Notation, LongTextsWithLinesPaint)
{
    CXGraphDataNotation& note = Insert(5);
    note.m_cText = CString(std::wstring(100000, L'%').c_str());
    Paint();
    EXPECT_GT(note.m_rcObject.Width(), 1000);
    note.m_bPositioned = false;
    note.m_cText = L"two\nlines";
    Paint();
    EXPECT_LT(note.m_rcObject.Width(), 100);
    EXPECT_GT(note.m_rcObject.Height(), 20);
}

TEST_F(Notation, OneOnACurveThatIsGoneEndsTheProcess)
{
    Insert(5);
    graph.DeleteCurve(0);
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(static_cast<int>(0xC0000417)), "");
}

TEST_F(Notation, ItsTextIsArialTwelve)
{
    LOGFONTW font = {};
    ASSERT_NE(Insert(3).m_Font.GetLogFont(&font), 0);
    EXPECT_STREQ(font.lfFaceName, L"Arial");
    EXPECT_EQ(font.lfHeight, 12);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfItalic, 0);
    EXPECT_EQ(font.lfClipPrecision, 1);
    EXPECT_EQ(font.lfQuality, 4);
}
