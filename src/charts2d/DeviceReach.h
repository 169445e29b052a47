#pragma once
// How far from the frame's corner shapes may reach before they are drawn in. No frame is larger
// than half of it; the platform takes 27 bits, but fills the outline of a wide line row by row,
// seen or not.

#include <cstdint>

inline constexpr std::int32_t DeviceReach = 1 << 16;
