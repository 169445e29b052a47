#pragma once
// The record and the enumerations that the type library shares with the native classes.
// The values and the layout are those of the type library. The header that is generated
// for hosts leaves its own copies out where this one was included first.

#include <cstdint>

#define VANTOPLEX_VOCABULARY

// One point of a curve: the element of every curve's array, 16 bytes.
struct TDataPoint {
    double fXVal;
    double fYVal;
};

enum EAxisType : std::int32_t { atLog = 0, atLinear = 1 };
enum EAxisPlacement : std::int32_t { apLeft = 0, apRight = 1, apAutomatic = 2 };
enum EGraphType : std::int32_t { gtLine = 0, gtScatter = 1 };

// Scoped, since the names of its values are everyday words.
enum class EAlignment : std::int32_t { left = 0, right = 1, top = 2, bottom = 3 };

// What the mouse and the keys do in a graph.
enum EOperation : std::int32_t {
    opNone = 0,
    opZoom = 1,
    opReset = 2,
    opPan = 3,
    opCursor = 4,
    opMoveObject = 5,
    opEditObject = 6,
    opEditCurve = 7,
    opMeasure = 8
};

// Messages that a graph posts to its parent window.
enum XGRAPH_MSG : std::int32_t {
    XG_YAXISCLICK = 1025,
    XG_XAXISCLICK = 1026,
    XG_CURVECLICK = 1027,
    XG_YAXISDBLCLICK = 1028,
    XG_XAXISDBLCLICK = 1029,
    XG_CURVEDBLCLICK = 1030,
    XG_GRAPHDBLCLICK = 1031,
    XG_RBUTTONUP = 1032,
    XG_CURSORMOVED = 1033,
    XG_ZOOMCHANGE = 1034,
    XG_POINTCHANGED = 1035
};

// Sections of a graph file, as bits.
enum XGRAPH_PERSIST : std::int32_t { PERSIST_PROPERTIES = 1, PERSIST_DATA = 2, PERSIST_OBJECTS = 4 };

// What the cursor shows, as bits.
enum XGRAPH_XGC : std::int32_t { XGC_HORIZ = 1, XGC_VERT = 2, XGC_LEGEND = 4, XGC_ADJUSTSMOOTH = 8 };
