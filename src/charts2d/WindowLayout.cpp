#include "charts2d/WindowLayout.h"

#include <algorithm>

#include "base/Trunc.h"
#include "base/Wrap.h"

namespace WindowLayout
{

namespace
{

TPoint At(TSize window, double x, double y) noexcept
{
    return {Trunc(window.cx * x), Trunc(window.cy * y)};
}

TRect FromGraphCorner(TSize window, double share) noexcept
{
    const TPoint corner = At(window, 0.05, 0.35);
    const TPoint extent = At(window, share, share);
    return {corner.x, corner.y, Wrap::Add(extent.x, corner.x), Wrap::Add(extent.y, corner.y)};
}

} // namespace

TSize AtLeastSmallest(TSize size) noexcept
{
    return {std::max(size.cx, SmallestSide), std::max(size.cy, SmallestSide)};
}

TRect AtLeastSmallest(TRect rect) noexcept
{
    using namespace Wrap;
    if (Subtract(rect.right, rect.left) < SmallestSide)
        rect.right = Add(rect.left, SmallestSide);
    if (Subtract(rect.bottom, rect.top) < SmallestSide)
        rect.bottom = Add(rect.top, SmallestSide);
    return rect;
}

TArea GraphArea(EKind kind, TSize window) noexcept
{
    const TPoint extent = At(window, kind == flatPie ? 0.5 : 0.7, 0.5);
    return {At(window, 0.05, 0.35), {extent.x, extent.y}};
}

TRect ClearRect(EKind kind, TSize window) noexcept
{
    return FromGraphCorner(window, kind == flatPie ? 0.5 : 0.6);
}

TRect TickClearRect(TSize window) noexcept
{
    return FromGraphCorner(window, 0.5);
}

TTextPlace Title(TSize window) noexcept
{
    return {At(window, 0.05, 0.025),
            At(window, 0.065, 0.037),
            {Trunc(window.cx * 0.04), Trunc(window.cy * 0.2)}};
}

TTextPlace Subtitle(TSize window) noexcept
{
    return {At(window, 0.05, 0.2),
            At(window, 0.06, 0.208),
            {Trunc(window.cx * 0.03), Trunc(window.cy * 0.07)}};
}

bool HasFrame(TSize window) noexcept
{
    constexpr std::int32_t largestSide = 32767;
    constexpr std::int64_t mostPixels = std::int64_t{1} << 26;
    return window.cx > 0 && window.cy > 0 && window.cx <= largestSide && window.cy <= largestSide &&
           std::int64_t{window.cx} * window.cy <= mostPixels;
}

} // namespace WindowLayout
