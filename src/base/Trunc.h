#pragma once
// Conversion of a value to a pixel: truncation toward zero. What does not fit an int,
// and what is not a number, becomes the smallest int, which is the processor's own
// rule; the language leaves that case undefined, so every conversion goes through here.

#include <cstdint>
#include <emmintrin.h>
#include <xmmintrin.h>

[[nodiscard]] inline std::int32_t Trunc(double value) noexcept
{
    return _mm_cvttsd_si32(_mm_set_sd(value));
}

[[nodiscard]] inline std::int32_t Trunc(float value) noexcept
{
    return _mm_cvttss_si32(_mm_set_ss(value));
}
