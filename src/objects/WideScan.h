#pragma once
// Scans over rows of points, eight at a time, for processors with 256-bit registers (AVX2). Each
// passes over whole turns of eight points that all keep a condition, by the very operations of the
// loop point by point, and leaves the rest to that loop. None may be called where IsAvailable
// says no.

#include "base/Vocabulary.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace WideScan
{

inline constexpr std::size_t Turn = 8;

[[nodiscard]] bool IsAvailable() noexcept;

// A linear mapping to pixels, and pixel columns, both ends included.
struct TColumnTest {
    double fStart;
    double fFactor;
    double fOrigin;
    std::int32_t nFirst;
    std::int32_t nLast;
};

// From an index up: past the turns whose pixels are all in the columns.
[[nodiscard]] std::size_t SkipColumns(std::span<const TDataPoint> points, std::size_t from,
                                      const TColumnTest& test) noexcept;
// From an index up: past the turns whose x are all at least fLow and at most fHigh.
[[nodiscard]] std::size_t SkipWithin(std::span<const TDataPoint> points, std::size_t from, double fLow,
                                     double fHigh) noexcept;
// From an index down: past the turns, each ending at the index, whose x are all above fBound.
[[nodiscard]] std::size_t SkipDownAbove(std::span<const TDataPoint> points, std::size_t from,
                                        double fBound) noexcept;

} // namespace WideScan
