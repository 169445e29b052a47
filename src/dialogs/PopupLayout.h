#pragma once
// Where the parts of the colour popup lie, what is under the pointer, and where the arrow
// keys lead. Pixels; rectangles are in client terms unless said otherwise.
//
//     +--------------+
//     |  Automatic   |   the upper box, if it exists
//     | ## ## .. ##  |   the cells, numbered row by row from 0
//     | More Colors  |   the lower box, if it exists
//     +--------------+

#include <cstdint>

#include "base/Geometry.h"

namespace PopupLayout
{

// Beside the numbers of the cells.
inline constexpr int NoCell = -1;
inline constexpr int MoreBox = -2;
inline constexpr int AutoBox = -3;

inline constexpr int Columns = 8;

struct TGrid {
    int cells = 0;
    int columns = 0;
    int rows = 0;
    int cellSize = 0;
    int edge = 0; // the window's margin
    bool hasAuto = false;
    bool hasMore = false;
    TRect autoBox; // empty if there is none
    TRect moreBox;
};

struct TPlace {
    TGrid grid;
    TRect frame; // the window, on the screen
};

struct TSurroundings {
    TPoint origin;        // the window's point on the screen, before it is fitted
    TSize screen;         // of the primary monitor
    int buttonHeight = 0; // the popup moves over the button where it doesn't fit below
};

// The side of a cell whose coloured field would be under 5 pixels grows.
[[nodiscard]] int CellSize(int cellSize, int edge) noexcept;
// The captions' extents are null for boxes that don't exist.
[[nodiscard]] TPlace Layout(int cells, int cellSize, int edge, const TSize* autoText,
                            const TSize* moreText, const TSurroundings& around) noexcept;
[[nodiscard]] TRect CellRect(const TGrid& grid, int cell) noexcept;
// A cell, a box, or none.
[[nodiscard]] int HitTest(const TGrid& grid, TPoint point) noexcept;

enum class EArrow { Left, Up, Right, Down };
// Where an arrow key leads. Without a hot cell it leads where it would from "Automatic".
[[nodiscard]] int Move(const TGrid& grid, int hot, EArrow arrow) noexcept;

} // namespace PopupLayout
