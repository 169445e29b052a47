#pragma once
// Why a chart refused a data operation. A refused operation has changed nothing.

enum class ERefusal {
    none,
    indexOutOfBounds,        // no segment at that position
    segmentIndexOutOfBounds, // no such segment to set a value of
    seriesIndexOutOfBounds,  // no such series
    noSegments,              // a series before any segment
    percentNotValid          // a slice of nothing or less
};
