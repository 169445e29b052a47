#pragma once
// What is being dragged. The mouse capture lets one drag run at a time, so one state serves
// all graphs of the process.

#include "framework/windowing/Geometry.h"
#include "graph/GraphRecords.h"

struct TDragState {
    int nYMarker = -1;         // marker dragged on the Y axes, by its index on every one of them
    int nXMarker = -1;         // the same for the X axes
    CRect rcYBand{0, 0, 0, 0}; // the strip round a marker that the mouse takes hold of
    CRect rcXBand{0, 0, 0, 0};
    int nCurve = -1; // curve and point of a point drag
    int nPoint = -1;
};

[[nodiscard]] TDragState& DragState() noexcept;

// The record whose address goes out with XG_POINTCHANGED, overwritten by the next drag step. It
// lies below 2 GB, so that the low half of its address, which the message carries, is the whole
// of it; the image's own memory serves only where no such place is free.
[[nodiscard]] TPointChange& PointChange() noexcept;
