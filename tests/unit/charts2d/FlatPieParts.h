#pragma once
// A flat pie of a known place, filled by percents.

#include "charts2d/FlatPieAnimation.h"
#include "charts2d/FlatPieData.h"
#include "charts2d/FlatPiePicture.h"

#include <initializer_list>
#include <vector>

namespace FlatPieParts
{

inline constexpr TPoint Position{10, 20};
inline constexpr TSize Size{200, 100};
inline constexpr TPoint Right{210, 70};
inline constexpr TPoint Left{10, 70};
inline constexpr TPoint Top{110, 20};
inline constexpr TPoint Bottom{110, 120};

inline std::vector<double> Percents(const CFlatPieData& data)
{
    std::vector<double> percents;
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext)
        percents.push_back(segment->dPercent);
    return percents;
}

inline void Fill(CFlatPieData& data, std::initializer_list<double> percents)
{
    for (const double percent : percents)
        data.AddSegment(percent, 0, u"slice");
}

inline TFlatPiePicture Compose(const CFlatPieData& data, CFlatPieAnimation& animation)
{
    return FlatPiePicture::Compose(data, animation, Position, Size);
}

using TPercents = std::vector<double>;

} // namespace FlatPieParts
