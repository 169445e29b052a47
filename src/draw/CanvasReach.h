#pragma once
// What the drawing of a canvas asks before it leaves something to the platform.

#include <windows.h>

namespace CanvasReach
{
// A metafile has no clip box: it keeps whatever any player of it may show.
[[nodiscard]] inline bool IsRecording(HDC hDC) noexcept
{
    const DWORD type = ::GetObjectType(hDC);
    return type == OBJ_ENHMETADC || type == OBJ_METADC;
}

[[nodiscard]] constexpr bool Within(POINT point, LONG limit) noexcept
{
    return point.x >= -limit && point.x <= limit && point.y >= -limit && point.y <= limit;
}
} // namespace CanvasReach
