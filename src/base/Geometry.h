#pragma once
// Points, sizes and rectangles of 32-bit pixels, with the layout of the platform's
// POINT, SIZE and RECT. Right and bottom edges lie outside a rectangle.

#include <cstdint>

struct TPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const TPoint&, const TPoint&) = default;
};

struct TSize {
    std::int32_t cx = 0;
    std::int32_t cy = 0;
    friend bool operator==(const TSize&, const TSize&) = default;
};

struct TRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend bool operator==(const TRect&, const TRect&) = default;

    [[nodiscard]] constexpr std::int32_t Width() const noexcept { return right - left; }
    [[nodiscard]] constexpr std::int32_t Height() const noexcept { return bottom - top; }
};
