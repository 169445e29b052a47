#pragma once
// The flat pie: slices by percent of the whole circle, counterclockwise from the right, and a
// legend with the percent and name of each.
//
// Draws on device contexts that it is handed. Positions of segments count from 1; a refused
// update or deletion changes nothing and shows a message box.

#include <memory>

#include "base/Geometry.h"
#include "charts2d/FlatPieAnimation.h"
#include "charts2d/FlatPieData.h"
#include "charts2d/FlatPiePicture.h"
#include "charts2d/RefusalMessages.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"

class C2DPieGraph
{
public:
    // The pie's box inside the window, in pixels.
    C2DPieGraph(TPoint position, TSize size);
    C2DPieGraph(const C2DPieGraph&) = delete;
    C2DPieGraph& operator=(const C2DPieGraph&) = delete;
    virtual ~C2DPieGraph();

    void AddSegment(double percent, COLORREF color, const CString& text)
    {
        m_Data.AddSegment(percent, color, text.ToU16());
    }
    // Starts the animation over.
    void UpdateSegment(int index, int percent, COLORREF color, const CString& text);
    void DeleteSegment(int index) { ReportRefusal(m_Data.DeleteSegment(index)); }
    void Clear() noexcept { m_Data.Clear(); }

    // The legend's font is made again, in another face than at construction.
    void Resize(TSize size);
    void SetPosition(TPoint position) noexcept { m_ptGraph = position; }
    void SetWindowSize(TSize size) noexcept { m_szWindow = size; }

    void SetAnimation(int on, int type) noexcept { m_Animation.SetAnimation(on, type, Start()); }
    void Animate() noexcept { m_Animation.Animate(m_Data.m_dTotalPercent, m_Data.m_nSegments, Start()); }
    [[nodiscard]] double AnimationPercent() const noexcept { return m_Animation.m_dAnimationPercent; }

    // A frame of an animation notes how far it has drawn.
    void Draw(HDC hDC);
    void DrawLegend(HDC hDC) const;

    COLORREF m_crLegendText = 0;
    COLORREF m_crLegendBackground = 0xFFFFFF;
    COLORREF m_crBackground = 0xFBFFFF; // the window's own counts; this is only kept

private:
    [[nodiscard]] TPoint Start() const noexcept;
    [[nodiscard]] TRect Box() const noexcept;
    void DrawSlice(HDC hDC, const TFlatPieSlice& slice) const;

    CFlatPieAnimation m_Animation;
    CFlatPieData m_Data;
    std::unique_ptr<CFont> m_pLegendFont;
    TSize m_szWindow;
    TSize m_szGraph;
    TPoint m_ptGraph;
};
