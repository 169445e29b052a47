#pragma once
// The rubber band of a zoom: from the press to the release in opZoom, over all axes at once.

#include "framework/windowing/Geometry.h"

class CDCEx;
class CXGraph;

class CZoomBand
{
public:
    explicit CZoomBand(CXGraph& graph) : m_Graph(graph) {}

    void Clear();
    // A frame may come only after the release, which needs the band: a move of the mouse computes it
    // too, where the frame draws it.
    void Follow();
    // Without a buffer, over the old band, which it erases.
    void DrawZoomRect(CDCEx* pDC);
    // Shows what the band spans on all axes and keeps what each showed before. A band under 15
    // pixels either way does nothing and stays.
    void ApplyZoomRect();

    // Client pixels, cut to the plot. Written by moves and frames while the button is held, and empty
    // after Zoom, a step back or a zoom.
    CRect m_rcZoom{0, 0, 0, 0};

private:
    [[nodiscard]] CRect Band() const;

    CXGraph& m_Graph;
};
