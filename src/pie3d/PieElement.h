#pragma once
// One slice of the pie. The window owns it; the host holds its plain address as an item.

#include "framework/windowing/Strings.h"
#include "pie3d/GdiPlus.h"

#include <cstdint>
#include <map>
#include <memory>

struct SPieElement {
    double dValue = 0;
    float fPercent = 0; // share of the total, 0 to 1
    float fSweep = 0;   // degrees
    float fGradientLight = 120.0f;
    float fGradientDark = 10.0f;
    PieColors::Argb crLight = 0;
    PieColors::Argb crDark = 0;
    PieColors::Argb crColor = 0;
    CString strLabel;
    CString strName;      // the host's key: not empty, unique
    float fDrawSweep = 0; // degrees on the tilted ellipse
    float fLabelX = 0;    // where the element ends on the rim
    float fLabelY = 0;
    GdiPlus::CPath pPath; // the visible side wall, for hit testing
    std::int32_t nPathStatus = 0;
    std::int32_t nOrder = 0; // the element count at insertion
    BOOL bSelected = FALSE;
};

// The elements by position; this order is the order of drawing.
using TPieElements = std::map<std::int32_t, std::unique_ptr<SPieElement>>;
