// The legend beside the graph area.

#include "FrameRecording.h"
#include "NativeGraph.h"

namespace
{

class Legend : public GraphTest
{
protected:
    // As the legend measures: Arial 13, regular.
    static CSize Measure(const wchar_t* pszText)
    {
        const HDC hDC = ::GetDC(nullptr);
        const HFONT hFont =
            ::CreateFontW(13, 0, 0, 0, 400, FALSE, FALSE, FALSE, 1, 0, 0, 4, 0, L"Arial");
        const HGDIOBJ hOld = ::SelectObject(hDC, hFont);
        SIZE size = {};
        ::GetTextExtentPoint32W(hDC, pszText, static_cast<int>(wcslen(pszText)), &size);
        ::SelectObject(hDC, hOld);
        ::DeleteObject(hFont);
        ::ReleaseDC(nullptr, hDC);
        return size;
    }
    static std::vector<std::wstring> RowTexts(const FrameRecording& recording)
    {
        std::vector<std::wstring> rows;
        for (const auto& text : recording.Texts()) {
            if (text.text.find(L"curve") != std::wstring::npos)
                rows.push_back(text.text);
        }
        return rows;
    }
    void AddThree()
    {
        AddLine()->m_cLabel = L"curve one";
        AddLine()->m_cLabel = L"curve number two";
        AddLine()->m_cLabel = L"curve 3";
    }
};

} // namespace

TEST_F(Legend, WithNoVisibleCurveTheBoxIsSixteenByTwo)
{
    const Picture picture = Shoot();
    EXPECT_EQ(graph.m_rcInner.right, 395 - 36);
    // The box itself: a black frame 16 wide and 2 high, 10 below the graph rectangle's top.
    EXPECT_EQ(picture.Count({395 - 26, 15, 395 - 10, 17}, 0x000000), 32);
    EXPECT_EQ(picture.At(395 - 27, 15), 0x102030u);
    EXPECT_EQ(picture.At(395 - 10, 15), 0x102030u);
    EXPECT_TRUE(graph.m_LegendEntries.empty());
}

TEST_F(Legend, RowsAreNumberedByPositionSoHiddenCurvesLeaveGaps)
{
    AddThree();
    graph.GetCurve(0)->m_bVisible = false;
    const std::vector<std::wstring> expected{L"02 curve number two", L"03 curve 3"};
    EXPECT_EQ(RowTexts(FrameRecording(graph)), expected);
    ASSERT_EQ(graph.m_LegendEntries.size(), 2u);
    EXPECT_EQ(graph.m_LegendEntries[0].pCurve, graph.GetCurve(1));
    EXPECT_EQ(graph.m_LegendEntries[1].pCurve, graph.GetCurve(2));
}

TEST_F(Legend, TheBoxIsAsWideAsItsWidestRow)
{
    AddThree();
    Paint();
    const CSize widest = Measure(L"02 curve number two");
    EXPECT_EQ(graph.m_rcInner.right, 395 - (widest.cx + 16 + 20));
    const CRect rcInner(395 - widest.cx - 16 - 10 + 1, 16, 395 - 11, 16 + 3 * widest.cy);
    ASSERT_EQ(graph.m_LegendEntries.size(), 3u);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(graph.m_LegendEntries[i].rcRow,
                  CRect(rcInner.left, 16 + i * widest.cy, rcInner.right, 16 + (i + 1) * widest.cy));
    }
}

TEST_F(Legend, OnTheLeftItMovesTheGraphsLeftEdge)
{
    AddThree();
    for (CXGraphAxis& axis : graph.m_YAxes)
        axis.m_bVisible = false;
    graph.m_nLegendAlignment = EAlignment::left;
    Paint();
    const int nWidth = Measure(L"02 curve number two").cx + 16;
    EXPECT_EQ(graph.m_rcInner.left, 5 + nWidth + 20 + 1);
    EXPECT_EQ(graph.m_rcInner.right, 395);
    EXPECT_EQ(graph.m_LegendEntries[0].rcRow.left, 5 + 10 + 1);
}

TEST_F(Legend, AtTheTopOrBottomThereIsNoBoxAndNoRow)
{
    AddThree();
    Paint();
    ASSERT_EQ(graph.m_LegendEntries.size(), 3u);
    for (const EAlignment alignment :
         {EAlignment::top, EAlignment::bottom, static_cast<EAlignment>(99)}) {
        graph.m_nLegendAlignment = alignment;
        const FrameRecording recording(graph);
        EXPECT_EQ(graph.m_rcInner.right, 395);
        EXPECT_TRUE(graph.m_LegendEntries.empty());
        EXPECT_TRUE(RowTexts(recording).empty());
    }
}

TEST_F(Legend, SwitchedOffItKeepsItsRowsAndTakesNoRoom)
{
    AddThree();
    Paint();
    graph.m_bShowLegend = false;
    Paint();
    EXPECT_EQ(graph.m_rcInner.right, 395);
    EXPECT_EQ(graph.m_LegendEntries.size(), 3u);
}

TEST_F(Legend, TheKeyIsASquareOfTheCurvesColour)
{
    AddLine()->m_crColor = 0x1234AB;
    graph.GetCurve(0)->m_cLabel = L"curve";
    const Picture picture = Shoot();
    const CRect rcRow = graph.m_LegendEntries[0].rcRow;
    const CRect rcKey(rcRow.left + 2, rcRow.top + 1, rcRow.left + 10, rcRow.bottom - 2);
    EXPECT_EQ(picture.Count(rcKey, 0x1234AB), rcKey.Width() * rcKey.Height());
    EXPECT_EQ(picture.Count(rcRow, 0x1234AB), rcKey.Width() * rcKey.Height());
}

TEST_F(Legend, AMarkerTypeMakesTheKeyASymbol)
{
    AddLine()->m_crColor = 0x1234AB;
    graph.GetCurve(0)->m_nMarkerType = 2;
    graph.GetCurve(0)->m_nMarker = 0; // the square: filled inside a black outline
    const Picture picture = Shoot();
    const CRect rcRow = graph.m_LegendEntries[0].rcRow;
    const CPoint corner(rcRow.left + 1, rcRow.top + 2);
    EXPECT_EQ(picture.At(corner.x, corner.y), 0x000000u);
    EXPECT_EQ(picture.At(corner.x + 4, corner.y + 4), 0x1234ABu);
    EXPECT_EQ(picture.Count(rcRow, 0x1234AB), 36); // 8 less the outline, squared
}

TEST_F(Legend, ASelectedCurvesRowHasAFocusFrame)
{
    AddThree();
    const Picture plain = Shoot();
    graph.GetCurve(1)->m_bSelected = true;
    const Picture selected = Shoot();
    const CRect rcRow = graph.m_LegendEntries[1].rcRow;
    int nChanged = 0;
    for (int x = rcRow.left; x < rcRow.right; ++x)
        nChanged += plain.At(x, rcRow.top) != selected.At(x, rcRow.top) ? 1 : 0;
    EXPECT_GT(nChanged, rcRow.Width() / 3);
}

TEST_F(Legend, ItLiesOutsideTheGraphArea)
{
    AddThree();
    const Picture picture = Shoot();
    const CRect rcRow = graph.m_LegendEntries[0].rcRow;
    EXPECT_EQ(picture.At(rcRow.left - 3, rcRow.top), 0x102030u);
    EXPECT_EQ(picture.At(rcRow.left, Height - 20), 0x102030u);
}

TEST_F(Legend, LabelsAreTextAndNeverFormats)
{
    AddLine()->m_cLabel = L"curve %s %n %1000000f";
    const std::vector<std::wstring> expected{L"01 curve %s %n %1000000f"};
    EXPECT_EQ(RowTexts(FrameRecording(graph)), expected);
}

TEST_F(Legend, OnAMonochromeTargetBoxAndRowsAreWhiteAndKeysBlack)
{
    AddThree();
    graph.m_Curves[1].m_nMarkerType = 1; // a square for its key
    Paint();
    constexpr int side = 200;
    const HDC hDC = ::CreateCompatibleDC(nullptr);
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), side, -side, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pBits = nullptr;
    const HBITMAP hBitmap = ::CreateDIBSection(hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
    const HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
    ::PatBlt(hDC, 0, 0, side, side, BLACKNESS);
    {
        CDCEx dc;
        dc.Attach(hDC);
        dc.NeedScale(); // which finds out of itself
        dc.m_bMono = true;
        CRect rc(0, 0, side, side);
        graph.DrawLegend(&dc, rc);
        dc.Detach();
    }
    ::GdiFlush();
    std::vector<COLORREF> keys;
    for (const TLegendEntry& entry : graph.m_LegendEntries) {
        EXPECT_EQ(::GetPixel(hDC, entry.rcRow.right - 1, entry.rcRow.top), 0xFFFFFFu);
        keys.push_back(
            ::GetPixel(hDC, entry.rcRow.left + 6, (entry.rcRow.top + entry.rcRow.bottom) / 2));
    }
    EXPECT_EQ(keys, (std::vector<COLORREF>{0, 0, 0}));
    ::SelectObject(hDC, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hDC);
}
