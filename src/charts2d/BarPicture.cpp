#include "charts2d/BarPicture.h"

#include "charts2d/BarAnimationTable.h"
#include "charts2d/BarComposer.h"

namespace BarPicture
{

TBarPicture Compose(const CValueTable& table, const CBarAnimation& animation, TPoint position,
                    TSize size)
{
    TBarPicture picture;
    const std::int32_t segments = table.SegmentCount();
    const std::int32_t series = table.SeriesCount();
    const TBarAnimationRow* const animated =
        animation.m_bAnimation == 1 ? FindBarAnimation(animation.m_nAnimationType) : nullptr;
    if ((animation.m_bAnimation != 0 && !animated) || segments < 1 || series < 1)
        return picture;

    picture.bValueLabels = true;
    picture.nMaximum = table.Maximum();
    picture.Bars = BarGeometry::Measure(position, size, segments, series);
    CBarComposer composer(picture, table, animation, size);
    if (animated)
        (composer.*animated->pfnCompose)();
    else
        composer.WholeBars();
    return picture;
}

} // namespace BarPicture
