#include "draw/PolygonRows.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

namespace PolygonRows
{
namespace
{
using LongLines::TVertex;

bool IsUsable(TVertex vertex)
{
    constexpr double farthest = 1e300;
    return std::fabs(vertex.x) <= farthest && std::fabs(vertex.y) <= farthest;
}

// The pixels at which a row changes between outside and inside: crossed twice is not crossed.
class CCrossings
{
public:
    explicit CCrossings(const TRect& visible)
        : m_visible(visible), m_nWidth(static_cast<std::size_t>(visible.right - visible.left)),
          m_changes(m_nWidth * static_cast<std::size_t>(visible.bottom - visible.top))
    {
    }

    void Add(TVertex from, TVertex to)
    {
        if (from.y > to.y)
            std::swap(from, to);
        const double first = std::max<double>(std::ceil(from.y), m_visible.top);
        const double end = std::min<double>(std::ceil(to.y), m_visible.bottom);
        for (double y = first; y < end; ++y) {
            const double x = from.x + (y - from.y) * (to.x - from.x) / (to.y - from.y);
            if (x <= m_visible.right - 1)
                Change(std::max<double>(std::ceil(x), m_visible.left), y);
        }
    }

    [[nodiscard]] std::vector<TRect> Bands() const
    {
        std::vector<TRect> bands;
        for (std::int32_t top = m_visible.top; top < m_visible.bottom;) {
            std::int32_t bottom = top + 1;
            while (bottom < m_visible.bottom && std::equal(Row(top), Row(top + 1), Row(bottom)))
                ++bottom;
            AppendRow(bands, top, bottom);
            top = bottom;
        }
        return bands;
    }

private:
    void Change(double x, double y)
    {
        auto change =
            Row(static_cast<std::int32_t>(y)) + (static_cast<std::int32_t>(x) - m_visible.left);
        *change = !*change;
    }

    void AppendRow(std::vector<TRect>& bands, std::int32_t top, std::int32_t bottom) const
    {
        const auto row = Row(top);
        const auto end = Row(top + 1);
        const auto columnOf = [&](auto place) {
            return m_visible.left + static_cast<std::int32_t>(place - row);
        };
        for (auto from = std::find(row, end, true); from != end;) {
            const auto to = std::find(from + 1, end, true);
            bands.push_back({columnOf(from), top, columnOf(to), bottom});
            from = to == end ? end : std::find(to + 1, end, true);
        }
    }

    std::vector<bool>::iterator Row(std::int32_t y)
    {
        return m_changes.begin() + static_cast<std::ptrdiff_t>(Offset(y));
    }
    [[nodiscard]] std::vector<bool>::const_iterator Row(std::int32_t y) const
    {
        return m_changes.begin() + static_cast<std::ptrdiff_t>(Offset(y));
    }
    [[nodiscard]] std::size_t Offset(std::int32_t y) const
    {
        return m_nWidth * static_cast<std::size_t>(y - m_visible.top);
    }

    TRect m_visible;
    std::size_t m_nWidth;
    std::vector<bool> m_changes;
};
} // namespace

std::vector<TRect> Fill(std::span<const TVertex> polygon, const TRect& visible)
{
    if (visible.right <= visible.left || visible.bottom <= visible.top)
        return {};
    std::vector<TVertex> vertices;
    vertices.reserve(polygon.size());
    std::copy_if(polygon.begin(), polygon.end(), std::back_inserter(vertices), IsUsable);
    CCrossings crossings(visible);
    for (std::size_t i = 0; i < vertices.size(); ++i)
        crossings.Add(vertices[i == 0 ? vertices.size() - 1 : i - 1], vertices[i]);
    return crossings.Bands();
}
} // namespace PolygonRows
