// What is kept between frames changes no pixel: random graphs are painted by what an earlier frame
// left, once more by the same, from nothing, and straight to the window, where nothing is kept; and
// points are found on the screen by search, by scan, and one by one.

#include "NativeGraph.h"
#include "support/CountedMemory.h"
#include "support/GdiCount.h"
#include "support/ImportSlot.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

extern "C" {
extern decltype(&::CreateFontW) __imp_CreateFontW;
extern decltype(&::CreateFontIndirectW) __imp_CreateFontIndirectW;
extern decltype(&::DrawTextW) __imp_DrawTextW;
extern decltype(&::GetTextExtentPoint32W) __imp_GetTextExtentPoint32W;
extern decltype(&::SelectObject) __imp_SelectObject;
}

namespace
{

int s_measured = 0;
decltype(&::GetTextExtentPoint32W) s_measure = nullptr;

BOOL WINAPI CountedExtent(HDC hDC, LPCWSTR text, int nLength, LPSIZE size)
{
    ++s_measured;
    return s_measure(hDC, text, nLength, size);
}

int s_fontsMade = 0;

HFONT WINAPI CountedFont(int, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD,
                         LPCWSTR)
{
    ++s_fontsMade;
    return nullptr;
}

HFONT WINAPI CountedIndirectFont(const LOGFONTW*)
{
    ++s_fontsMade;
    return nullptr;
}

std::vector<HGDIOBJ> s_selectedFonts;
decltype(&::SelectObject) s_select = nullptr;

HGDIOBJ WINAPI NotedSelection(HDC hDC, HGDIOBJ hObject)
{
    if (::GetObjectType(hObject) == OBJ_FONT)
        s_selectedFonts.push_back(hObject);
    return s_select(hDC, hObject);
}

std::vector<std::wstring> s_texts;
decltype(&::DrawTextW) s_draw = nullptr;

int WINAPI NotedText(HDC hDC, LPCWSTR text, int nLength, LPRECT rect, UINT nFormat)
{
    s_texts.emplace_back(text, static_cast<std::size_t>(nLength));
    return s_draw(hDC, text, nLength, rect, nFormat);
}

class KeptFrame : public GraphTest
{
protected:
    KeptFrame()
    {
        for (int i = 0; i < 3000; ++i)
            m_points.push_back({0.01 + i * i * 1e-6, 5 + 4 * std::sin(i * 0.01)});
        for (int i = 0; i < 3; ++i)
            graph.SetData(m_points.data(), static_cast<long>(m_points.size()), i, i % 2, i % 2, i != 1);
        graph.m_Curves[2].m_bFillBeneath = true;
        graph.m_Curves[2].m_nFillCurve = CXGraphDataSerie::FillToBottom;
    }
    template <class Value> Value OneOf(std::initializer_list<Value> values)
    {
        return values.begin()[m_random() % values.size()];
    }
    double Share() { return (m_random() % 1001) / 1000.0; }
    // Rounding may move a bound by a bit in each frame, and that is another label then.
    void HoldRanges()
    {
        for (CXGraphAxis& axis : graph.m_XAxes)
            axis.m_bAutoScale = false;
        for (CXGraphAxis& axis : graph.m_YAxes)
            axis.m_bAutoScale = false;
    }
    bool Sometimes() { return m_random() % 4 == 0; }

    // A few settings of an axis, such as hosts and users change between two frames.
    void Change(CXGraphAxis& axis)
    {
        axis.m_cDisplayFmt = OneOf({L"%5.1f", L"%g", L"%.3e", L"%08.2f", L"x", L"%d.%m. %H:%M"});
        axis.m_bDateTime = Sometimes();
        axis.m_AxisType = Sometimes() ? atLog : atLinear;
        axis.m_cLabel = OneOf({L" ", L"", L"a title", L"two\nlines"});
        axis.m_bAutoScale = !Sometimes();
        axis.m_bShowGrid = !Sometimes();
        axis.m_bShowMarker = !Sometimes();
        axis.m_bVisible = !Sometimes();
        axis.m_nTickSize = OneOf({5, 0, 12});
        LOGFONTW look = {};
        axis.m_LabelFont.GetLogFont(&look);
        look.lfHeight = OneOf({13, 13, 9, 22});
        look.lfWeight = OneOf({400, 700});
        axis.SetLabelFont(look);
        look.lfHeight = OneOf({14, 20});
        axis.SetTitleFont(look);
        const double fLow = 0.001 + 3 * Share();
        axis.SetCurrentRange(fLow, fLow + 0.1 + 9 * Share(), Sometimes() ? 0.5 : 0.0);
    }
    void Change()
    {
        for (CXGraphAxis& axis : graph.m_XAxes)
            Change(axis);
        for (CXGraphAxis& axis : graph.m_YAxes)
            Change(axis);
        for (CXGraphDataSerie& curve : graph.m_Curves) {
            curve.m_bShowMarker = Sometimes();
            curve.m_nMarkerType = OneOf({0, 1, 2});
            curve.m_nType = Sometimes() ? gtScatter : gtLine;
            curve.m_nLineSize = OneOf({1, 1, 2, 5});
            curve.m_nLineStyle = Sometimes() ? PS_DOT : PS_SOLID;
        }
        graph.m_bShowLegend = !Sometimes();
    }
    // A frame of the axes as they were; painting rounds their ranges.
    Picture FrameOf(const CCheckedVector<CXGraphAxis>& xAxes, const CCheckedVector<CXGraphAxis>& yAxes)
    {
        for (std::size_t i = 0; i < xAxes.size(); ++i)
            graph.m_XAxes[i] = xAxes[i];
        for (std::size_t i = 0; i < yAxes.size(); ++i)
            graph.m_YAxes[i] = yAxes[i];
        return Shoot();
    }

    std::vector<TDataPoint> m_points;
    std::mt19937 m_random{2026};
};

} // namespace

TEST_F(KeptFrame, RandomGraphsShowNoDifference)
{
    for (int round = 0; round < 60; ++round) {
        Change();
        const CCheckedVector<CXGraphAxis> xAxes = graph.m_XAxes;
        const CCheckedVector<CXGraphAxis> yAxes = graph.m_YAxes;
        const Picture kept = FrameOf(xAxes, yAxes);
        EXPECT_EQ(FrameOf(xAxes, yAxes).CountDifferences(kept), 0) << "again, round " << round;

        graph.m_bDoubleBuffer = false;
        EXPECT_EQ(FrameOf(xAxes, yAxes).CountDifferences(kept), 0) << "unbuffered, round " << round;
        graph.m_bDoubleBuffer = true;

        graph.m_XAxes.clear();
        graph.m_YAxes.clear();
        graph.m_XAxes = xAxes;
        graph.m_YAxes = yAxes;
        EXPECT_EQ(Shoot().CountDifferences(kept), 0) << "from nothing, round " << round;
        if (HasFailure())
            return;
    }
}

TEST_F(KeptFrame, ACopyShowsWhatTheCallersArrayShows)
{
    for (int round = 0; round < 30; ++round) {
        Change();
        const CCheckedVector<CXGraphAxis> xAxes = graph.m_XAxes;
        const CCheckedVector<CXGraphAxis> yAxes = graph.m_YAxes;
        const Picture before = FrameOf(xAxes, yAxes);
        for (CXGraphDataSerie& curve : graph.m_Curves) {
            if (curve.IsAscending())
                curve.ReplaceData(m_points.data(), static_cast<int>(m_points.size()), false);
            else
                curve.CopyData(m_points.data(), static_cast<int>(m_points.size()));
        }
        EXPECT_EQ(FrameOf(xAxes, yAxes).CountDifferences(before), 0) << "round " << round;
        if (HasFailure())
            return;
    }
}

TEST_F(KeptFrame, ASecondFrameMeasuresNoLabelAgain)
{
    HoldRanges();
    graph.m_XAxes[0].m_cLabel = L"title";
    graph.m_Curves[0].m_cLabel = L"a row of the legend";
    Paint();
    const ImportSlot slot(__imp_GetTextExtentPoint32W, &CountedExtent);
    s_measure = slot.Original();
    s_measured = 0;
    Paint();
    Paint();
    EXPECT_EQ(s_measured, 0);
    graph.m_XAxes[0].m_cDisplayFmt = L"%.4f";
    Paint();
    EXPECT_GT(s_measured, 0);
}

TEST_F(KeptFrame, ALegendRowIsMeasuredAgainForAnotherTextAlone)
{
    HoldRanges();
    Paint();
    const ImportSlot slot(__imp_GetTextExtentPoint32W, &CountedExtent);
    s_measure = slot.Original();
    s_measured = 0;
    graph.m_Curves[1].m_cLabel = L"another label";
    Paint();
    EXPECT_EQ(s_measured, 1);
    graph.m_Curves[0].m_bVisible = false; // the second row moves up to the first
    Paint();
    EXPECT_EQ(s_measured, 3);
}

TEST_F(KeptFrame, AFrameLikeTheLastTakesNothingFromTheHeap)
{
    HoldRanges();
    graph.m_XAxes[0].m_cLabel = L"a title of some length";
    graph.m_XAxes[1].m_cDisplayFmt = L"%10.4f and more";
    graph.m_YAxes[1].m_AxisType = atLog;
    graph.m_Curves[0].m_cLabel = L"a row of the legend";
    graph.m_Curves[0].m_bShowMarker = true;
    graph.m_Curves[1].m_bShowMarker = true;
    graph.m_Curves[1].m_nMarkerType = 1;
    graph.m_Curves[1].m_nType = gtScatter;
    Paint();
    const CountedMemory memory;
    Paint();
    EXPECT_EQ(memory.Calls(), 0u);
}

TEST_F(KeptFrame, AFrameOfOtherPointsOfTheSameCountTakesNothingFromTheHeap)
{
    HoldRanges();
    graph.m_Curves[2].m_bFillBeneath = false; // many steep edges are weighed in a list of their own
    Paint();
    for (TDataPoint& point : m_points)
        point.fYVal = 10 - point.fYVal; // the graph reads these of the second curve in place
    const CountedMemory memory;
    Paint();
    EXPECT_EQ(memory.Calls(), 0u);
}

TEST_F(KeptFrame, ASecondFrameMakesNoFont)
{
    Paint();
    s_fontsMade = 0;
    {
        const ImportSlot made(__imp_CreateFontW, &CountedFont);
        const ImportSlot copied(__imp_CreateFontIndirectW, &CountedIndirectFont);
        Paint();
    }
    EXPECT_EQ(s_fontsMade, 0);
}

TEST_F(KeptFrame, AFontThatIsSelectedStaysUntilAnotherIsWanted)
{
    HoldRanges();
    Paint();
    s_selectedFonts.clear();
    {
        const ImportSlot slot(__imp_SelectObject, &NotedSelection);
        s_select = slot.Original();
        Paint();
    }
    constexpr std::size_t axes = 4; // each with keys, title and labels
    EXPECT_EQ(s_selectedFonts.size(), 1 + 3 * axes) << "and the legend";
    for (std::size_t i = 1; i < s_selectedFonts.size(); ++i)
        EXPECT_NE(s_selectedFonts[i], s_selectedFonts[i - 1]) << i;
}

TEST_F(KeptFrame, KeysOfManySizesAreDrawnAsEver)
{
    graph.m_bDoubleBuffer = false;
    const auto resize = [this](int nFirst) {
        for (CXGraphAxis* axis : {&graph.m_XAxes[0], &graph.m_XAxes[1], &graph.m_YAxes[0]})
            axis->m_nMarkerSize = nFirst++;
        for (CXGraphDataSerie& curve : graph.m_Curves) {
            curve.m_bShowMarker = true;
            curve.m_nMarkerSize = nFirst++;
        }
    };
    HoldRanges();
    for (int nFirst = 5; nFirst < 30; nFirst += 6) { // more fonts than a graph keeps
        resize(nFirst);
        graph.m_bDoubleBuffer = false;
        const Picture plain = Shoot();
        graph.m_bDoubleBuffer = true;
        EXPECT_EQ(Shoot().CountDifferences(plain), 0) << nFirst;
        EXPECT_EQ(Shoot().CountDifferences(plain), 0) << nFirst << ", again";
    }
}

TEST_F(KeptFrame, WhatIsKeptGoesWithTheWindow)
{
    const auto create = [this] {
        graph.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, Width, Height),
                     CWnd::FromHandle(host.m_hWnd), 7);
        Paint();
    };
    graph.DestroyWindow();
    create(); // the platform makes some objects for a first frame, and keeps them
    graph.DestroyWindow();
    const int nWithout = GdiCount::All();
    create();
    EXPECT_GT(GdiCount::All(), nWithout);
    graph.DestroyWindow();
    EXPECT_EQ(GdiCount::All(), nWithout);
}

TEST_F(KeptFrame, ALegendRowBelowTheWindowIsListedButNotDrawn)
{
    constexpr int curves = 60;
    for (int i = 3; i < curves; ++i)
        graph.SetData(m_points.data(), 2, i, 0, 0, false);
    const ImportSlot slot(__imp_DrawTextW, &NotedText);
    s_draw = slot.Original();
    s_texts.clear();
    Paint();
    EXPECT_EQ(graph.m_LegendEntries.size(), std::size_t{curves});
    const auto drawn = [](const wchar_t* start) {
        return std::count_if(s_texts.begin(), s_texts.end(),
                             [&](const std::wstring& text) { return text.starts_with(start); });
    };
    EXPECT_EQ(drawn(L"01 "), 1);
    EXPECT_EQ(drawn(L"60 "), 0);
}
