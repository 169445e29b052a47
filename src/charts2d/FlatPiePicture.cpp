#include "charts2d/FlatPiePicture.h"

#include "base/Trunc.h"
#include "charts2d/FlatPieGeometry.h"

namespace FlatPiePicture
{

namespace
{

struct TBox {
    TPoint Position;
    TSize Size;
};

bool HasWidth(const TBox& box, const TFlatPieSlice& slice) noexcept
{
    return !FlatPieGeometry::OnOneRadial(box.Position, box.Size, slice.ptStart, slice.ptEnd);
}

bool IsVisible(const TBox& box, const TFlatPieSlice& slice) noexcept
{
    return HasWidth(box, slice) || slice.pSegment->dPercent >= 50;
}

void Add(std::vector<TFlatPieSlice>& slices, const TBox& box, const TFlatPieSlice& slice)
{
    if (IsVisible(box, slice))
        slices.push_back(slice);
}

double Turned(double angle, double percent)
{
    const double sum = angle + FlatPieGeometry::Angle(percent);
    return sum > FlatPieGeometry::fullCircle ? sum - FlatPieGeometry::fullCircle : sum;
}

void Still(TFlatPiePicture& picture, const CFlatPieData& data, const TBox& box)
{
    double angle = 0;
    TPoint start = FlatPieGeometry::Start(box.Position, box.Size);
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        angle = Turned(angle, segment->dPercent);
        const TPoint end = FlatPieGeometry::ByHalves(box.Position, box.Size, angle);
        Add(picture.Slices, box, {segment, start, end});
        start = end;
    }
}

// Draws slices whole until the one in progress, and that one as far as the sweep has come.
void Sweep(TFlatPiePicture& picture, const CFlatPieData& data, CFlatPieAnimation& animation,
           const TBox& box)
{
    double angle = 0;
    TPoint start = FlatPieGeometry::Start(box.Position, box.Size);
    TPoint end = start;
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        const double drawn = animation.m_dDrawnPercent + segment->dPercent;
        if (!(animation.m_dAnimationPercent > Trunc(drawn / data.m_dTotalPercent * 100 + 0.5))) {
            const TPoint sweepEnd =
                FlatPieGeometry::Rounded(box.Position, box.Size, animation.m_dSweepAngle, end);
            const TFlatPieSlice begun{segment, end, sweepEnd};
            if (HasWidth(box, begun))
                picture.Slices.push_back(begun);
            return;
        }
        animation.m_dDrawnPercent = drawn;
        start = FlatPieGeometry::Rounded(box.Position, box.Size, angle, start);
        angle += FlatPieGeometry::Angle(segment->dPercent);
        end = FlatPieGeometry::Rounded(box.Position, box.Size, angle, end);
        const TFlatPieSlice whole{segment, start, end};
        if (HasWidth(box, whole))
            picture.Slices.push_back(whole);
    }
}

// The slice that fades starts where those before it end, which follows from the segments
// themselves: a frame that was never painted, or a new size, leaves no trace.
void Fade(TFlatPiePicture& picture, const CFlatPieData& data, const CFlatPieAnimation& animation,
          const TBox& box)
{
    double angle = 0;
    TPoint fadeStart = FlatPieGeometry::Start(box.Position, box.Size);
    TPoint start = fadeStart;
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        if (segment->nId > animation.m_nFadeSegment) {
            const TPoint end =
                FlatPieGeometry::ByHalves(box.Position, box.Size, Turned(angle, segment->dPercent));
            const TFlatPieSlice slice{segment, fadeStart, end};
            if (IsVisible(box, slice))
                picture.Fading = slice;
            return;
        }
        const TPoint from = FlatPieGeometry::Rounded(box.Position, box.Size, angle, start);
        const double endAngle = angle + FlatPieGeometry::Angle(segment->dPercent);
        const TPoint to = FlatPieGeometry::Rounded(box.Position, box.Size, endAngle, from);
        if (from != to || FlatPieGeometry::InCircle(endAngle))
            Add(picture.Slices, box, {segment, from, to});
        angle = endAngle;
        start = to;
        fadeStart = FlatPieGeometry::ByHalves(box.Position, box.Size, angle);
    }
}

} // namespace

TFlatPiePicture Compose(const CFlatPieData& data, CFlatPieAnimation& animation, TPoint position,
                        TSize size)
{
    TFlatPiePicture picture;
    animation.m_dDrawnPercent = 0;
    if (!data.m_pSegments)
        return picture;
    const TBox box{position, size};
    if (animation.m_bAnimation != 1)
        Still(picture, data, box);
    else if (animation.m_nAnimationType == CFlatPieAnimation::sweep)
        Sweep(picture, data, animation, box);
    else if (animation.m_nAnimationType == CFlatPieAnimation::fade)
        Fade(picture, data, animation, box);
    return picture;
}

} // namespace FlatPiePicture
