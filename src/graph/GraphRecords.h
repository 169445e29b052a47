#pragma once
// Small records of the XY graph. Positions are zero-based.

#include "framework/windowing/Geometry.h"

class CXGraphDataSerie;

// A measure's two ends, each a point of a curve. Goes into graph files raw, 16 bytes.
struct TMeasureSpan {
    int nCurve1 = 0;
    int nIndex1 = 0;
    int nCurve2 = 0;
    int nIndex2 = 0;
};
static_assert(sizeof(TMeasureSpan) == 16);

// One row of the legend as the last frame drew it, in client pixels. The pointer is good until
// the graph's list of curves changes, while rows stay until the next frame: code that follows it
// asks CXGraph::GetCurveIndex first.
struct TLegendEntry {
    CRect rcRow;
    CXGraphDataSerie* pCurve = nullptr;
};

// What a dragged data point sends to the parent window with XG_POINTCHANGED.
struct TPointChange {
    int nCurve = 0;
    int nIndex = 0;
    double fOldY = 0.0; // before the drag step
    double fNewY = 0.0; // after it
};
static_assert(sizeof(TPointChange) == 24);
