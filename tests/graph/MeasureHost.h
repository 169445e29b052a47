#pragma once
// A graph with two curves to measure between, and what a frame says of its measures.

#include "FrameRecording.h"
#include "NativeGraph.h"

#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <string>
#include <vector>

// Two level curves, at 2 and at 8, of 101 points each in a plot from 0 to 10.
class GraphMeasure : public GraphTest
{
protected:
    GraphMeasure()
    {
        graph.m_bShowLegend = false;
        AddLevel(2);
        AddLevel(8);
        graph.GetYAxis(0)->SetRange(0, 10);
        graph.GetXAxis(0)->m_cDisplayFmt = L"x%.3f";
        graph.GetYAxis(0)->m_cDisplayFmt = L"y%.3f";
        graph.GetYAxis(0)->m_cLabel = L"unit";
        graph.Pan();
        graph.NoOp();
        Paint();
    }
    void AddLevel(double fLevel)
    {
        std::vector<TDataPoint> points;
        for (int i = 0; i <= 100; ++i)
            points.push_back({i / 10.0, fLevel});
        graph.SetData(points.data(), 101, static_cast<int>(graph.m_Curves.size()), 0, 0, true)
            ->m_bVisible = false; // only the measures are to be seen
    }
    void Store(int nCurve1, int nIndex1, int nCurve2, int nIndex2)
    {
        graph.m_Measures.push_back({nCurve1, nIndex1, nCurve2, nIndex2});
        graph.m_nCursorCurve = nCurve1;
        graph.m_MeasureTool.m_nMeasureCurve2 = nCurve2;
    }
    int Row(double fValue) { return graph.GetYAxis(0)->GetPointForValue({0, fValue}).y; }
    int Column(double fValue) { return graph.GetXAxis(0)->GetPointForValue({fValue, 0}).x; }
    void Press(int x, int y) { graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Drag(int x, int y) { graph.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Release(int x, int y) { graph.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }

    // The texts of a frame that begin with the formats' own letters.
    std::vector<std::wstring> Texts(const wchar_t letter)
    {
        std::vector<std::wstring> texts;
        for (const auto& text : FrameRecording(graph).Texts()) {
            if (text.text.starts_with(letter) && text.text != L"x0.000" && !IsTick(text))
                texts.push_back(text.text);
        }
        return texts;
    }
    // In the font of a measure's texts.
    static CSize TextSize(const CString& text)
    {
        CDCEx dc;
        dc.Attach(::CreateCompatibleDC(nullptr));
        CQuickFont font(L"Arial", -11, FW_BOLD);
        const CFontSelector select(&font, &dc, true);
        return dc.GetTextExtent(text);
    }
    bool IsTick(const FrameRecording::Text& text) { return !graph.m_rcInner.PtInRect(text.reference); }

    // The corners of the arrows, in their order.
    std::vector<std::vector<CPoint>> Arrows()
    {
        std::vector<std::vector<CPoint>> arrows;
        FrameRecording(graph).ForEach([&](const ENHMETARECORD& record) {
            if (record.iType != EMR_POLYGON16)
                return;
            const auto& polygon = reinterpret_cast<const EMRPOLYGON16&>(record);
            std::vector<CPoint> corners;
            for (DWORD i = 0; i < polygon.cpts; ++i)
                corners.emplace_back(polygon.apts[i].x, polygon.apts[i].y);
            arrows.push_back(corners);
        });
        // Those of the axes come first.
        if (arrows.size() > 2)
            arrows.erase(arrows.begin(), arrows.end() - 2);
        return arrows;
    }
};
