#include "dialogs/PopupLayout.h"

#include <algorithm>

namespace
{

using PopupLayout::AutoBox;
using PopupLayout::EArrow;
using PopupLayout::MoreBox;
using PopupLayout::NoCell;
using PopupLayout::TGrid;

bool Contains(const TRect& rect, TPoint point) noexcept
{
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
}

void Shift(TRect& rect, int x, int y) noexcept
{
    rect = {rect.left + x, rect.top + y, rect.right + x, rect.bottom + y};
}

void FitToScreen(TRect& frame, const PopupLayout::TSurroundings& around) noexcept
{
    if (frame.right > around.screen.cx)
        Shift(frame, around.screen.cx - frame.right, 0);
    if (frame.left < 0)
        Shift(frame, -frame.left, 0);
    if (frame.bottom > around.screen.cy)
        Shift(frame, 0, -(frame.Height() + around.buttonHeight));
}

// Past the last cell.
int AfterCells(const TGrid& grid) noexcept
{
    return grid.hasMore ? MoreBox : grid.hasAuto ? AutoBox : 0;
}

// Before the first cell.
int BeforeCells(const TGrid& grid) noexcept
{
    return grid.hasAuto ? AutoBox : grid.hasMore ? MoreBox : grid.cells - 1;
}

int MoveFromCell(const TGrid& grid, int cell, EArrow arrow) noexcept
{
    switch (arrow) {
    case EArrow::Down:
        return cell + grid.columns < grid.cells ? cell + grid.columns : AfterCells(grid);
    case EArrow::Up:
        return cell >= grid.columns ? cell - grid.columns : BeforeCells(grid);
    case EArrow::Right:
        return cell + 1 < grid.cells ? cell + 1 : AfterCells(grid);
    case EArrow::Left:
        break;
    }
    return cell > 0 ? cell - 1 : BeforeCells(grid);
}

} // namespace

int PopupLayout::CellSize(int cellSize, int edge) noexcept
{
    return cellSize - 2 * edge - 2 < 5 ? 2 * edge + 7 : cellSize;
}

PopupLayout::TPlace PopupLayout::Layout(int cells, int cellSize, int edge, const TSize* autoText,
                                        const TSize* moreText, const TSurroundings& around) noexcept
{
    TGrid grid{cells,
               Columns,
               (cells + Columns - 1) / Columns,
               cellSize,
               edge,
               autoText != nullptr,
               moreText != nullptr,
               {},
               {}};
    const TSize none;
    const TSize& first = autoText ? *autoText : none;
    const TSize& second = moreText ? *moreText : none;
    int boxWidth = std::max(first.cx, second.cx) + 2 * edge;
    const int boxHeight = std::max(first.cy, second.cy) + 2 * edge + 2;
    int width = grid.columns * cellSize + 2 * edge;
    int height = grid.rows * cellSize + 2 * edge;

    if (grid.hasAuto) {
        width = std::max(width, boxWidth);
        boxWidth = width - 2 * edge;
        grid.autoBox = {edge, edge, edge + boxWidth, 2 * edge + boxHeight};
        height += grid.autoBox.Height() + 2 * edge;
    }
    if (grid.hasMore) {
        width = std::max(width, boxWidth);
        grid.moreBox = {edge, height, edge + width - 2 * edge, height + edge + boxHeight};
        height += grid.moreBox.Height() + 2 * edge;
    }

    const TPoint origin = around.origin;
    TRect frame{origin.x, origin.y, origin.x + width, origin.y + height};
    FitToScreen(frame, around);
    return {grid, frame};
}

TRect PopupLayout::CellRect(const TGrid& grid, int cell) noexcept
{
    const int left = cell % grid.columns * grid.cellSize + grid.edge;
    int top = cell / grid.columns * grid.cellSize + grid.edge;
    if (grid.hasAuto)
        top += grid.autoBox.Height() + grid.edge;
    return {left, top, left + grid.cellSize, top + grid.cellSize};
}

int PopupLayout::HitTest(const TGrid& grid, TPoint point) noexcept
{
    point = {point.x - grid.edge, point.y - grid.edge};
    if (grid.hasMore && Contains(grid.moreBox, point))
        return MoreBox;
    if (grid.hasAuto && Contains(grid.autoBox, point))
        return AutoBox;
    if (grid.hasAuto)
        point.y -= grid.autoBox.Height();
    // Quotients round toward zero, so a cell's width beside the grid still counts as its first.
    const int row = point.y / grid.cellSize;
    const int column = point.x / grid.cellSize;
    if (row < 0 || row >= grid.rows || column < 0 || column >= grid.columns)
        return NoCell;
    const int cell = row * grid.columns + column;
    return cell < grid.cells ? cell : NoCell;
}

int PopupLayout::Move(const TGrid& grid, int hot, EArrow arrow) noexcept
{
    if (hot >= 0)
        return MoveFromCell(grid, hot, arrow);
    const bool forward = arrow == EArrow::Down || arrow == EArrow::Right;
    const int last = grid.cells - 1;
    if (hot == MoreBox)
        return !forward ? last : grid.hasAuto ? AutoBox : 0;
    return forward ? 0 : grid.hasMore ? MoreBox : last;
}
