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

void AddUnlessEmpty(std::vector<TFlatPieSlice>& slices, const TFlatPieSlice& slice)
{
    if (slice.ptStart != slice.ptEnd)
        slices.push_back(slice);
}

double Turned(double angle, double percent)
{
    const double sum = angle + FlatPieGeometry::Angle(percent);
    return sum > FlatPieGeometry::FullCircle ? sum - FlatPieGeometry::FullCircle : sum;
}

void Still(TFlatPiePicture& picture, const CFlatPieData& data, const TBox& box)
{
    double angle = 0;
    TPoint start = FlatPieGeometry::Start(box.Position, box.Size);
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        angle = Turned(angle, segment->dPercent);
        const TPoint end = FlatPieGeometry::ByHalves(box.Position, box.Size, angle);
        picture.Slices.push_back({segment, start, end});
        start = end;
    }
}

// The slices that Rounded places one after the other: each starts where the one before it ends.
class CRoundedWalk
{
public:
    explicit CRoundedWalk(const TBox& box) noexcept
        : m_box(box), m_end(FlatPieGeometry::Start(box.Position, box.Size))
    {
    }

    // The next slice, of a whole segment.
    TFlatPieSlice Next(const SPieSegment& segment) noexcept
    {
        const TPoint start = At(m_dAngle);
        m_dAngle += FlatPieGeometry::Angle(segment.dPercent);
        m_end = FlatPieGeometry::Rounded(m_box.Position, m_box.Size, m_dAngle, start);
        return {&segment, start, m_end};
    }

    // An angle outside the circle is where the last slice ends.
    [[nodiscard]] TPoint At(double angle) const noexcept
    {
        return FlatPieGeometry::Rounded(m_box.Position, m_box.Size, angle, m_end);
    }

private:
    const TBox& m_box;
    TPoint m_end;
    double m_dAngle = 0;
};

// Draws slices whole until the one in progress, and that one as far as the sweep has come.
void Sweep(TFlatPiePicture& picture, const CFlatPieData& data, CFlatPieAnimation& animation,
           const TBox& box)
{
    CRoundedWalk walk(box);
    for (const SPieSegment* segment = data.m_pSegments; segment; segment = segment->pNext) {
        const double drawn = animation.m_dDrawnPercent + segment->dPercent;
        if (!(animation.m_dAnimationPercent > Trunc(drawn / data.m_dTotalPercent * 100 + 0.5))) {
            AddUnlessEmpty(picture.Slices,
                           {segment, animation.m_ptStart, walk.At(animation.m_dSweepAngle)});
            return;
        }
        animation.m_dDrawnPercent = drawn;
        const TFlatPieSlice whole = walk.Next(*segment);
        animation.m_ptStart = whole.ptEnd;
        AddUnlessEmpty(picture.Slices, whole);
    }
}

// The first segment that hasn't faded in fades aside, and those before it are whole. Without
// such a segment there is no slice.
void Fade(TFlatPiePicture& picture, const CFlatPieData& data, CFlatPieAnimation& animation,
          const TBox& box)
{
    double angle = 0;
    const SPieSegment* fading = data.m_pSegments;
    for (; fading && fading->nId <= animation.m_nFadeSegment; fading = fading->pNext)
        angle += FlatPieGeometry::Angle(fading->dPercent);
    if (!fading)
        return;

    angle += FlatPieGeometry::Angle(fading->dPercent);
    const TPoint end = FlatPieGeometry::ByHalves(box.Position, box.Size, angle);
    picture.Fading = {fading, animation.m_ptStart, end};
    CRoundedWalk walk(box);
    for (const SPieSegment* segment = data.m_pSegments; segment != fading; segment = segment->pNext)
        picture.Slices.push_back(walk.Next(*segment));
    if (animation.m_dAnimationPercent >= 100)
        animation.m_ptStart = end;
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
