#pragma once
// All that a picture of the pie shows, as values. Two pictures of equal looks are equal to the last
// pixel, so a picture is kept together with its look and nobody has to say what changed.

#include "base/Geometry.h"
#include "pie3d/PieColors.h"

#include <cstdint>
#include <string>
#include <vector>

struct TPieFont {
    std::wstring strFace;
    std::int32_t nPoints = 0;
    std::int32_t nStyle = 0;
    friend bool operator==(const TPieFont&, const TPieFont&) = default;
};

// Frame and title.
struct TBackgroundLook {
    TSize size;
    std::uint32_t crParentWindow = 0; // 0x00BBGGRR
    PieColors::Argb crLight = 0;
    PieColors::Argb crDark = 0;
    PieColors::Argb crTitle = 0;
    std::wstring strTitle;
    TPieFont titleFont;
    friend bool operator==(const TBackgroundLook&, const TBackgroundLook&) = default;
};

struct TSliceLook {
    float fSweep = 0;
    float fPercent = 0;
    PieColors::Argb crLight = 0;
    PieColors::Argb crDark = 0;
    PieColors::Argb crColor = 0;
    bool bSelected = false;
    friend bool operator==(const TSliceLook&, const TSliceLook&) = default;
};

// Background, slices and percents; not the label list.
struct TPieLook {
    TBackgroundLook background;
    std::int32_t nChartStyle = 0;
    std::int32_t nPieLimit = 0;
    float fStartAngle = 0;
    float fInclineAngle = 0;
    float fDepthRatio = 0;
    PieColors::Argb crSelected = 0;
    PieColors::Argb crLabel = 0;
    bool bShowPercent = false;
    TPieFont percentFont;
    std::vector<TSliceLook> slices;
    friend bool operator==(const TPieLook&, const TPieLook&) = default;
};
