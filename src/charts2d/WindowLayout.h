#pragma once
// Where things are in the window of a business chart: fixed shares of the window's width cx
// and height cy, all through Trunc.

#include <cstdint>

#include "base/Geometry.h"

namespace WindowLayout
{

// As CreateGraph takes it.
enum EKind : std::int32_t { none = -1, bar = 0, flatPie = 1, line = 2 };

inline constexpr std::int32_t SmallestSide = 200;

// Both sides raised to the smallest.
[[nodiscard]] TSize AtLeastSmallest(TSize size) noexcept;

// The rectangle with right and bottom moved out to the smallest sides.
[[nodiscard]] TRect AtLeastSmallest(TRect rect) noexcept;

struct TArea {
    TPoint Position;
    TSize Size;
    friend bool operator==(const TArea&, const TArea&) = default;
};

// The graph area of a chart. (0.05 cx, 0.35 cy), half as high as the window; 0.7 of its
// width for bars and lines, 0.5 for the pie.
[[nodiscard]] TArea GraphArea(EKind kind, TSize window) noexcept;

// What a paint on a solid background clears first.
[[nodiscard]] TRect ClearRect(EKind kind, TSize window) noexcept;

// What a tick clears at the end of an animation: for all kinds the pie's, and so narrower than
// what the bar and line paints clear.
[[nodiscard]] TRect TickClearRect(TSize window) noexcept;

struct TTextPlace {
    TPoint Text;
    TPoint Shadow;
    TSize Font; // width and height of the font
    friend bool operator==(const TTextPlace&, const TTextPlace&) = default;
};
[[nodiscard]] TTextPlace Title(TSize window) noexcept;
[[nodiscard]] TTextPlace Subtitle(TSize window) noexcept;

// Frames that no window can show are not made: beyond a window's largest side, or 256 MB.
[[nodiscard]] bool HasFrame(TSize window) noexcept;

} // namespace WindowLayout
