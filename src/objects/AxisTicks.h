#pragma once
// What the linear and the logarithmic painting of an axis have in common. One painter lives
// for one Draw. All coordinates are screen units.

#include "draw/DCEx.h"
#include "draw/VisibleArea.h"
#include "objects/XGraphAxis.h"

#include <optional>
#include <vector>

// The canvas of a Draw: the frame's own, or for a hidden axis a memory context that nobody
// sees, so that it computes its lengths and its step all the same.
class CAxisCanvas
{
public:
    CAxisCanvas(const CXGraphAxis& axis, CDCEx* pDC);

    [[nodiscard]] CDCEx* Get() noexcept { return m_hidden ? &*m_hidden : m_pDC; }

private:
    CDCEx* m_pDC;
    std::optional<CDCEx> m_hidden;
};

struct TTick {
    double fValue;
    double fPlace; // pixel along the axis, not yet cut
    bool bLabel = true;
};

class CAxisTicks
{
public:
    CAxisTicks(CXGraphAxis& axis, CDCEx* pDC);

    // Sets the axis's margins; the results below depend on them.
    void MeasureMargins();
    // The far end of the axis's line: its top, or its right end.
    [[nodiscard]] int FarEnd() const noexcept { return m_nFarEnd; }

    // Colour ranges, axis markers if asked for, curve keys; then the colours of what follows.
    void DrawBackground(bool bMarkers);
    // Adds its size to the end margin a second time.
    void DrawTitle();
    // Labels and grid lines. The gaps of dashed grid lines are clear if asked for, else opaque.
    void DrawTicks(const std::vector<TTick>& ticks, bool bClearGaps);
    // The line with its arrowhead, the axis's rectangle, the frame of a selected axis.
    void DrawLine();

private:
    [[nodiscard]] UINT LabelFormat() const; // of DrawText
    [[nodiscard]] CRect LabelRect(double fPlace, CSize size) const;
    void DrawGridLine(int nPlace);
    [[nodiscard]] bool HasTicks() const;

    CXGraphAxis& m_axis;
    CDCEx* m_pDC;
    CRect m_rcPlot;
    TVisibleArea m_visible;
    int m_nFarEnd = 0;
};

namespace AxisPainting
{

// A pen style that every platform has a pen for: an unknown one is solid.
[[nodiscard]] int PenStyle(UINT nStyle) noexcept;

// The logarithmic painting of an axis whose visible range is ready.
void DrawLogarithmic(CXGraphAxis& axis, CDCEx* pDC, bool bMarkers);

} // namespace AxisPainting
