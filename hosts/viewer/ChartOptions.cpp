#include "viewer/ChartOptions.h"

#include <array>
#include <utility>

namespace Viewer
{
namespace
{

template <class T> using Word = std::pair<std::u16string_view, T>;

constexpr std::array<Word<ChartKind>, 5> Kinds = {{{u"graph", ChartKind::Graph},
                                                   {u"bar", ChartKind::Bar},
                                                   {u"line", ChartKind::Line},
                                                   {u"pie", ChartKind::Pie},
                                                   {u"pie3d", ChartKind::Pie3d}}};
constexpr std::array<Word<PieStyle>, 3> Styles = {
    {{u"doughnut", PieStyle::Doughnut}, {u"flat", PieStyle::Flat}, {u"3d", PieStyle::Solid}}};
constexpr std::array<Word<PieOrder>, 3> Orders = {{{u"none", PieOrder::AsRead},
                                                   {u"descending", PieOrder::Descending},
                                                   {u"ascending", PieOrder::Ascending}}};

constexpr std::array<Animation, 9> AllAnimations = {{
    {ChartKind::Bar, Motion::BarsGrow, u"grow", u"All bars grow"},
    {ChartKind::Bar, Motion::BarGroupsGrow, u"grow-groups", u"Groups grow in turn"},
    {ChartKind::Bar, Motion::BarSeriesGrow, u"grow-series", u"Series grow in turn"},
    {ChartKind::Bar, Motion::BarGroupsFade, u"fade-groups", u"Groups fade in"},
    {ChartKind::Bar, Motion::BarSeriesFade, u"fade-series", u"Series fade in"},
    {ChartKind::Line, Motion::LinesDraw, u"draw", u"All lines draw on"},
    {ChartKind::Line, Motion::LineSeriesDraw, u"draw-series", u"Lines draw on in turn"},
    {ChartKind::Pie, Motion::PieSweep, u"sweep", u"Slices sweep in"},
    {ChartKind::Pie, Motion::PieFade, u"fade", u"Slices fade in"},
}};

template <class T, std::size_t count>
std::optional<T> Find(const std::array<Word<T>, count>& words, std::u16string_view sought) noexcept
{
    for (const auto& [word, value] : words) {
        if (word == sought)
            return value;
    }
    return std::nullopt;
}

} // namespace

std::optional<ChartKind> FindChartKind(std::u16string_view word) noexcept
{
    return Find(Kinds, word);
}

std::optional<PieStyle> FindPieStyle(std::u16string_view word) noexcept
{
    return Find(Styles, word);
}

std::optional<PieOrder> FindPieOrder(std::u16string_view word) noexcept
{
    return Find(Orders, word);
}

std::span<const Animation> Animations() noexcept
{
    return AllAnimations;
}

const Animation* FindAnimation(ChartKind kind, std::u16string_view word) noexcept
{
    for (const Animation& animation : AllAnimations) {
        if (animation.kind == kind && animation.word == word)
            return &animation;
    }
    return nullptr;
}

} // namespace Viewer
