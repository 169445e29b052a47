#pragma once
// What a graph keeps from frame to frame for the next one's sake alone: no picture and no value
// depends on it. It goes with the window.

#include "draw/KeptBuffer.h"
#include "draw/KeptFonts.h"
#include "framework/windowing/Strings.h"
#include "graph/FrameLayout.h"
#include "objects/FrameRoom.h"

#include <optional>
#include <vector>

// A row of the legend with its size on the screen, which stays with the text.
struct TLegendRow {
    std::size_t nCurve = 0;    // its position, hidden curves included
    CString cLabel;            // the curve's
    CString strText;           // as shown; empty for a row not yet made
    std::optional<CSize> size; // nothing until the platform has measured it
};

struct TKeptFrame {
    CKeptBuffer buffer;
    CKeptFonts fonts;
    bool bScreen = false; // the last frame's buffer was known as the screen's (CDCEx::TakeScreen)
    TFrameRoom room;
    std::vector<FrameLayout::YAxis> yAxes;
    std::vector<FrameLayout::XAxis> xAxes;
    std::vector<TLegendRow> legend;
};
