#pragma once
// The kinds of chart, their looks and animations, and the words for them on the command line.

#include <optional>
#include <span>
#include <string_view>

namespace Viewer
{

enum class ChartKind { Graph, Bar, Line, Pie, Pie3d };
enum class PieStyle { Doughnut, Flat, Solid };
enum class PieOrder { AsRead, Descending, Ascending };

enum class Motion {
    BarsGrow,
    BarGroupsGrow,
    BarSeriesGrow,
    BarGroupsFade,
    BarSeriesFade,
    LinesDraw,
    LineSeriesDraw,
    PieSweep,
    PieFade
};

struct Animation {
    ChartKind kind;
    Motion motion;
    std::u16string_view word;
    std::u16string_view title; // in the menu
};

[[nodiscard]] std::optional<ChartKind> FindChartKind(std::u16string_view word) noexcept;
[[nodiscard]] std::optional<PieStyle> FindPieStyle(std::u16string_view word) noexcept;
[[nodiscard]] std::optional<PieOrder> FindPieOrder(std::u16string_view word) noexcept;

[[nodiscard]] std::span<const Animation> Animations() noexcept;
// Null if this kind of chart has no such animation.
[[nodiscard]] const Animation* FindAnimation(ChartKind kind, std::u16string_view word) noexcept;

} // namespace Viewer
