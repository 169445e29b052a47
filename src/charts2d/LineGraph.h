#pragma once
// The line chart: one polyline for each series over the segments, in the frame of the bar
// chart. It needs two segments to draw a line.
//
// Draws on device contexts that it is handed. Positions of segments and series count from 1;
// a refused operation changes nothing and shows a message box.

#include <memory>

#include "base/Geometry.h"
#include "charts2d/BarData.h"
#include "charts2d/LineAnimation.h"
#include "charts2d/LinePicture.h"
#include "charts2d/RefusalMessages.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"

class C2DLineGraph
{
public:
    // The graph area inside the window, in pixels.
    C2DLineGraph(TPoint position, TSize size);
    C2DLineGraph(const C2DLineGraph&) = delete;
    C2DLineGraph& operator=(const C2DLineGraph&) = delete;
    virtual ~C2DLineGraph();

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

    // The fonts are made again, that of the legend by other factors than at construction.
    void Resize(TSize size);
    void SetPosition(TPoint position) noexcept { m_ptGraph = position; }
    void SetWindowSize(TSize size) noexcept { m_szWindow = size; }

    void SetAnimation(int on, int type);
    void Animate();
    [[nodiscard]] double AnimationPercent() const noexcept { return m_Animation.m_nAnimationPercent; }

    // A frame of an animation moves the end points of its lines.
    void Draw(HDC hDC);
    void DrawLegend(HDC hDC) const;

    COLORREF m_crLegendText = 0;
    COLORREF m_crLegendBackground = 0xFFFFFF;
    COLORREF m_crLabels = 0;
    COLORREF m_crBackground = 0xFBFFFF; // the window's own counts; this is only kept

private:
    [[nodiscard]] TPoint StartPoint() const noexcept;
    static void DrawSteps(HDC hDC, const CValueTable& table, const TLinePicture& picture);

    CLineAnimation m_Animation;
    CBarData m_Data;
    std::unique_ptr<CFont> m_pLabelsFont;
    std::unique_ptr<CFont> m_pLegendFont;
    TSize m_szWindow;
    TSize m_szGraph;
    TPoint m_ptGraph;
};
