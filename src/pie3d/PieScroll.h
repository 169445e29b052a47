#pragma once
// Arithmetic of the scrolling label list. The list scrolls by whole rows: the scroll bar's
// position counts pixels, the first row shown is an element's key.

#include <cstdint>
#include <optional>

namespace PieScroll
{

// The scroll bar and the list before a step.
struct TList {
    std::int32_t nElements = 0;
    std::int32_t nRowHeight = 0;
    std::int32_t nRowGap = 0;
    std::int32_t nPieHeight = 0;
    std::int32_t nLimit = 0; // the largest position
    std::int32_t nPos = 0;   // the bar's position
    std::int32_t nFirst = 0; // key of the first row shown

    [[nodiscard]] std::int32_t Step() const noexcept { return nRowHeight + nRowGap; }
    // The first row when the last one is shown at the bottom.
    [[nodiscard]] std::int32_t LastFirst() const noexcept
    {
        return nElements - (nPieHeight - nRowHeight) / Step() - 1;
    }
};

struct TSynced {
    std::int32_t nFirst = 0;
    bool bToLimit = false; // the bar's position goes to its limit
    friend bool operator==(const TSynced&, const TSynced&) = default;
};

// The first row for the position nPos. While the thumb is tracked a list near its end shows
// its last row, and a list that cannot scroll stays. A negative nPos changes nothing.
[[nodiscard]] TSynced SyncFirstLabel(const TList& list, std::int32_t nPos, bool bTrack) noexcept;

enum class EStep : std::int32_t { lineUp, lineDown, pageUp, pageDown, thumb, none };

struct TScrolled {
    std::int32_t nPos = 0; // where the bar is sent; it keeps that within its range
    std::int32_t nFirst = 0;
    bool bToLimit = false;
    friend bool operator==(const TScrolled&, const TScrolled&) = default;
};

// One scroll message. nTrackPos is the thumb's position, if the bar knows it; nMessagePos
// the 16 bits of it that the message carries.
[[nodiscard]] TScrolled Scroll(const TList& list, EStep step, std::optional<std::int32_t> nTrackPos,
                               std::int32_t nMessagePos) noexcept;

} // namespace PieScroll
