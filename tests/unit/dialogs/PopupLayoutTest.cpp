// The colour popup's places and keys.

#include <gtest/gtest.h>

#include <string>

#include "dialogs/ColourTable.h"
#include "dialogs/PopupLayout.h"

using PopupLayout::AutoBox;
using PopupLayout::EArrow;
using PopupLayout::MoreBox;
using PopupLayout::NoCell;
using PopupLayout::TGrid;

namespace
{

constexpr int Edge = 2;
constexpr int Cell = 18;
const TSize AutoText{50, 13};
const TSize MoreText{70, 14};
const PopupLayout::TSurroundings Middle{{100, 200}, {1000, 800}, 20};

PopupLayout::TPlace Place(bool hasAuto, bool hasMore, const PopupLayout::TSurroundings& around = Middle)
{
    return PopupLayout::Layout(40, Cell, Edge, hasAuto ? &AutoText : nullptr,
                               hasMore ? &MoreText : nullptr, around);
}

struct TBoxes {
    bool hasAuto;
    bool hasMore;
};
constexpr TBoxes AllBoxes[] = {{true, true}, {true, false}, {false, true}, {false, false}};

std::string Name(const TBoxes& boxes)
{
    return std::string(boxes.hasAuto ? "auto " : "") + (boxes.hasMore ? "more" : "");
}

// Out of the grid downwards, and out of it upwards.
int Below(const TBoxes& boxes)
{
    if (boxes.hasMore)
        return MoreBox;
    return boxes.hasAuto ? AutoBox : 0;
}
int Above(const TBoxes& boxes)
{
    if (boxes.hasAuto)
        return AutoBox;
    return boxes.hasMore ? MoreBox : 39;
}

} // namespace

TEST(PopupKeys, EveryArrowFromEveryCell)
{
    for (const TBoxes& boxes : AllBoxes) {
        const TGrid grid = Place(boxes.hasAuto, boxes.hasMore).grid;
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 8; ++column) {
                const int cell = row * 8 + column;
                SCOPED_TRACE(Name(boxes) + " cell " + std::to_string(cell));
                EXPECT_EQ(Move(grid, cell, EArrow::Down), row < 4 ? cell + 8 : Below(boxes));
                EXPECT_EQ(Move(grid, cell, EArrow::Up), row > 0 ? cell - 8 : Above(boxes));
                EXPECT_EQ(Move(grid, cell, EArrow::Right), cell < 39 ? cell + 1 : Below(boxes));
                EXPECT_EQ(Move(grid, cell, EArrow::Left), cell > 0 ? cell - 1 : Above(boxes));
            }
        }
    }
}

TEST(PopupKeys, EveryArrowFromTheLowerBox)
{
    for (const TBoxes& boxes : {TBoxes{true, true}, TBoxes{false, true}}) {
        const TGrid grid = Place(boxes.hasAuto, boxes.hasMore).grid;
        SCOPED_TRACE(Name(boxes));
        const int forward = boxes.hasAuto ? AutoBox : 0;
        EXPECT_EQ(Move(grid, MoreBox, EArrow::Down), forward);
        EXPECT_EQ(Move(grid, MoreBox, EArrow::Right), forward);
        EXPECT_EQ(Move(grid, MoreBox, EArrow::Up), 39);
        EXPECT_EQ(Move(grid, MoreBox, EArrow::Left), 39);
    }
}

TEST(PopupKeys, EveryArrowFromTheUpperBox)
{
    for (const TBoxes& boxes : {TBoxes{true, true}, TBoxes{true, false}}) {
        const TGrid grid = Place(boxes.hasAuto, boxes.hasMore).grid;
        SCOPED_TRACE(Name(boxes));
        const int backward = boxes.hasMore ? MoreBox : 39;
        EXPECT_EQ(Move(grid, AutoBox, EArrow::Down), 0);
        EXPECT_EQ(Move(grid, AutoBox, EArrow::Right), 0);
        EXPECT_EQ(Move(grid, AutoBox, EArrow::Up), backward);
        EXPECT_EQ(Move(grid, AutoBox, EArrow::Left), backward);
    }
}

TEST(PopupKeys, WithoutAHotCellTheyActAsFromTheUpperBox) // a decision of ours
{
    for (const TBoxes& boxes : AllBoxes) {
        const TGrid grid = Place(boxes.hasAuto, boxes.hasMore).grid;
        SCOPED_TRACE(Name(boxes));
        const int backward = boxes.hasMore ? MoreBox : 39;
        EXPECT_EQ(Move(grid, NoCell, EArrow::Down), 0);
        EXPECT_EQ(Move(grid, NoCell, EArrow::Right), 0);
        EXPECT_EQ(Move(grid, NoCell, EArrow::Up), backward);
        EXPECT_EQ(Move(grid, NoCell, EArrow::Left), backward);
    }
}

TEST(PopupLayout, GridAloneIsCellsAndMargin)
{
    const auto place = Place(false, false);
    EXPECT_EQ(place.grid.columns, 8);
    EXPECT_EQ(place.grid.rows, 5);
    EXPECT_EQ(place.frame, (TRect{100, 200, 100 + 8 * 18 + 4, 200 + 5 * 18 + 4}));
    EXPECT_EQ(PopupLayout::CellRect(place.grid, 0), (TRect{2, 2, 20, 20}));
    EXPECT_EQ(PopupLayout::CellRect(place.grid, 39),
              (TRect{2 + 7 * 18, 2 + 4 * 18, 2 + 8 * 18, 2 + 5 * 18}));
}

TEST(PopupLayout, BoxesTakeTheLargerTextAndStandAboveAndBelow)
{
    const auto place = Place(true, true);
    const int h = 14 + 2 * Edge + 2;
    const int width = 8 * 18 + 4;
    const int gridHeight = 5 * 18 + 4;
    EXPECT_EQ(place.grid.autoBox, (TRect{2, 2, width - 2, 4 + h}));
    const int boxHeight = h + Edge;
    const int moreTop = gridHeight + boxHeight + 2 * Edge;
    EXPECT_EQ(place.grid.moreBox, (TRect{2, moreTop, width - 2, moreTop + Edge + h}));
    EXPECT_EQ(place.frame, (TRect{100, 200, 100 + width, 200 + moreTop + boxHeight + 2 * Edge}));
    EXPECT_EQ(PopupLayout::CellRect(place.grid, 9),
              (TRect{20, 20 + boxHeight + Edge, 38, 38 + boxHeight + Edge}));
}

TEST(PopupLayout, LongCaptionWidensTheWindow)
{
    const TSize text{200, 13};
    const auto upper = PopupLayout::Layout(40, Cell, Edge, &text, nullptr, Middle);
    EXPECT_EQ(upper.frame.Width(), 204);
    EXPECT_EQ(upper.grid.autoBox.right, 202);
    const auto lower = PopupLayout::Layout(40, Cell, Edge, nullptr, &text, Middle);
    EXPECT_EQ(lower.frame.Width(), 204);
    EXPECT_EQ(lower.grid.moreBox.right, 202);
    EXPECT_EQ(lower.grid.moreBox.top, 94);
}

TEST(PopupLayout, WindowStaysOnTheScreen)
{
    const int height = Place(true, true).frame.Height();
    const TRect right = Place(true, true, {{950, 200}, {1000, 800}, 20}).frame;
    EXPECT_EQ(right.right, 1000);
    EXPECT_EQ(right.Width(), 148);
    const TRect left = Place(true, true, {{-30, 200}, {1000, 800}, 20}).frame;
    EXPECT_EQ(left.left, 0);
    const TRect bottom = Place(true, true, {{100, 700}, {1000, 800}, 20}).frame;
    EXPECT_EQ(bottom.top, 700 - height - 20) << "over the button";
    EXPECT_EQ(bottom.Height(), height);
    const TRect exact = Place(true, true, {{100, 800 - height}, {1000, 800}, 20}).frame;
    EXPECT_EQ(exact.top, 800 - height);
    const TRect narrow = Place(true, true, {{10, 10}, {100, 800}, 20}).frame;
    EXPECT_EQ(narrow.left, 0) << "the left edge wins on a screen that is too narrow";
}

TEST(PopupLayout, CellGrowsUntilItsFieldHasFivePixels)
{
    EXPECT_EQ(PopupLayout::CellSize(18, 2), 18);
    EXPECT_EQ(PopupLayout::CellSize(18, 5), 18) << "a field of 6";
    EXPECT_EQ(PopupLayout::CellSize(18, 6), 19);
    EXPECT_EQ(PopupLayout::CellSize(11, 2), 11) << "a field of exactly 5";
    EXPECT_EQ(PopupLayout::CellSize(10, 2), 11);
}

TEST(PopupHitTest, MiddleOfEachCellAndBoxIsItself)
{
    for (const TBoxes& boxes : AllBoxes) {
        const TGrid grid = Place(boxes.hasAuto, boxes.hasMore).grid;
        for (int cell = 0; cell < 40; ++cell) {
            const TRect rect = PopupLayout::CellRect(grid, cell);
            EXPECT_EQ(HitTest(grid, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}), cell)
                << Name(boxes);
        }
        const auto middle = [](const TRect& rect) {
            return TPoint{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
        };
        if (boxes.hasAuto) {
            EXPECT_EQ(HitTest(grid, middle(grid.autoBox)), AutoBox);
        }
        if (boxes.hasMore) {
            EXPECT_EQ(HitTest(grid, middle(grid.moreBox)), MoreBox);
        }
    }
}

TEST(PopupHitTest, PointIsTakenLessTheMarginFirst)
{
    const TGrid grid = Place(true, true).grid;
    EXPECT_EQ(HitTest(grid, {4, 4}), AutoBox);
    EXPECT_EQ(HitTest(grid, {grid.autoBox.right + 1, 10}), AutoBox);
    EXPECT_NE(HitTest(grid, {grid.autoBox.right + 2, 10}), AutoBox);
    // Below the upper box the rows are taken a margin higher than they are drawn.
    const int top = PopupLayout::CellRect(grid, 1).top;
    EXPECT_EQ(HitTest(grid, {30, top - 1}), AutoBox);
    EXPECT_EQ(HitTest(grid, {30, top}), 1);
    EXPECT_EQ(HitTest(grid, {30, top + Cell - Edge - 1}), 1);
    EXPECT_EQ(HitTest(grid, {30, top + Cell - Edge}), 9);
}

TEST(PopupHitTest, RightAndBelowOfTheCellsIsNothing)
{
    const TGrid grid = Place(false, false).grid;
    EXPECT_EQ(HitTest(grid, {2 + 8 * 18, 30}), NoCell);
    EXPECT_EQ(HitTest(grid, {30, 2 + 5 * 18}), NoCell);
    EXPECT_EQ(HitTest(grid, {2 + 8 * 18 - 1, 2 + 5 * 18 - 1}), 39);
    EXPECT_EQ(HitTest(grid, {2 - 18, 30}), NoCell) << "a cell's width to the left";
    EXPECT_EQ(HitTest(grid, {30, -1000}), NoCell);
}

TEST(PopupHitTest, BesideTheUpperBoxIsNothing)
{
    const TGrid grid = Place(true, false).grid;
    EXPECT_EQ(HitTest(grid, {30, 3}), NoCell) << "above it";
    EXPECT_EQ(HitTest(grid, {30, 4}), AutoBox);
    EXPECT_NE(HitTest(grid, {3, 10}), AutoBox) << "left of it";
}

TEST(PopupHitTest, BehindTheLastCellOfAnUnfilledRowIsNothing)
{
    const TGrid grid = PopupLayout::Layout(10, Cell, Edge, nullptr, nullptr, Middle).grid;
    const int secondRow = Edge + Cell + 5;
    EXPECT_EQ(HitTest(grid, {Edge + Cell + 5, secondRow}), 9);
    EXPECT_EQ(HitTest(grid, {Edge + 2 * Cell + 5, secondRow}), NoCell);
}

TEST(PopupHitTest, QuotientsRoundTowardZeroBesideTheFirstCells)
{
    const TGrid grid = Place(false, false).grid;
    EXPECT_EQ(HitTest(grid, {2 - 17, 10}), 0);
    EXPECT_EQ(HitTest(grid, {10, 2 - 17}), 0);
}

TEST(ColourTable, FirstCellOfAColourIsFound)
{
    EXPECT_EQ(ColourTable::Find(0x000000), 0);
    EXPECT_EQ(ColourTable::Find(0xFFFFFF), 39);
    EXPECT_EQ(ColourTable::Find(0x0000FF), 16);
    EXPECT_FALSE(ColourTable::Find(0x123456));
    EXPECT_FALSE(ColourTable::Find(0xFF000000));
}

TEST(ColourTable, HoldsFortyNamedColours)
{
    ASSERT_EQ(ColourTable::Entries.size(), 40u);
    EXPECT_EQ(ColourTable::Entries[1].name, u"Brown");
    EXPECT_EQ(ColourTable::Entries[1].colour, 0x002AA5u);
    EXPECT_EQ(ColourTable::Entries[35].name, u"Pale green ");
    EXPECT_EQ(ColourTable::Entries[37].colour, 0x8B8368u);
    for (int cell = 0; cell < 40; ++cell)
        EXPECT_EQ(ColourTable::Find(ColourTable::Entries[static_cast<std::size_t>(cell)].colour), cell);
}
