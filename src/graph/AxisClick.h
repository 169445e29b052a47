#pragma once
// How clicks on X and Y axes differ; the rest is common code.

#include "base/Vocabulary.h"
#include "framework/windowing/CheckedVector.h"
#include "framework/windowing/Geometry.h"

class CXGraph;
class CXGraphAxis;
struct TDragState;

struct TAxisClick {
    CCheckedVector<CXGraphAxis> CXGraph::*pAxes;
    int TDragState::*pDragged;
    CRect TDragState::*pBand;
    CRect (*pfnBand)(const CRect& inner, CPoint marker);
    int (*pfnPosition)(CPoint point);
    XGRAPH_MSG nClick;
    XGRAPH_MSG nDblClick;
    bool bAlwaysPosts;
};

extern const TAxisClick YAxisClick;
extern const TAxisClick XAxisClick;
