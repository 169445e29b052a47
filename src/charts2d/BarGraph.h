#pragma once
// The bar chart: one group of bars for each segment, in it one bar for each series, over a
// value axis that is labelled with the maximum of the first segment, its half, and 0.
//
//   max -|        _
//        |   _   | |  _
//    0  -+--|1|2-|1|-|2|--->   [mark] series 1
//           first   second     [mark] series 2
//
// Draws on device contexts that it is handed. Positions of segments and series count from 1;
// a refused operation changes nothing and shows a message box.

#include <memory>

#include "base/Geometry.h"
#include "charts2d/BarAnimation.h"
#include "charts2d/BarData.h"
#include "charts2d/BarPicture.h"
#include "charts2d/RefusalMessages.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"

class C2DBarGraph
{
public:
    // The graph area inside the window, in pixels.
    C2DBarGraph(TPoint position, TSize size);
    C2DBarGraph(const C2DBarGraph&) = delete;
    C2DBarGraph& operator=(const C2DBarGraph&) = delete;
    virtual ~C2DBarGraph();

    void AddSegment(const CString& text) { m_Data.AddSegment(text.ToU16()); }
    void DeleteSegment(int index) { ReportRefusal(m_Data.DeleteSegment(index)); }
    void AddSeries(const CString& text, COLORREF color)
    {
        ReportRefusal(m_Data.AddSeries(text.ToU16(), color));
    }
    void DeleteSeries(int index) { ReportRefusal(m_Data.DeleteSeries(index)); }
    void SetValue(int segment, int series, int value)
    {
        ReportRefusal(m_Data.SetValue(segment, series, value));
    }
    void Clear() noexcept { m_Data.Clear(); }

    // The fonts are made again, that of the legend by another factor than at construction.
    void Resize(TSize size);
    void SetPosition(TPoint position) noexcept { m_ptGraph = position; }
    void SetWindowSize(TSize size) noexcept { m_szWindow = size; }

    void SetAnimation(int on, int type) noexcept { m_Animation.SetAnimation(on, type); }
    void Animate() noexcept { m_Animation.Animate(m_Data.m_nSegments, m_Data.m_nSeries); }
    [[nodiscard]] double AnimationPercent() const noexcept { return m_Animation.m_nAnimationPercent; }

    void Draw(HDC hDC);
    void DrawLegend(HDC hDC) const;

    COLORREF m_crLegendText = 0;
    COLORREF m_crLegendBackground = 0xFFFFFF;
    COLORREF m_crLabels = 0;
    COLORREF m_crBackground = 0xFBFFFF; // the window's own counts; this is only kept

private:
    void DrawSteps(HDC hDC, const CValueTable& table, const TBarPicture& picture) const;

    CBarAnimation m_Animation;
    CBarData m_Data;
    std::unique_ptr<CFont> m_pLabelsFont;
    std::unique_ptr<CFont> m_pLegendFont;
    TSize m_szWindow;
    TSize m_szGraph;
    TPoint m_ptGraph;
};
