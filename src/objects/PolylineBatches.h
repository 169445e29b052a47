#pragma once
// Joins segments to polylines, leaving out those that show nothing.

#include "base/Geometry.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

// emit(std::span<const TPoint>) gets each polyline, of two points at least. A long one comes
// in parts, each starting with the point that the last one ended with.
template <class Emit> class CPolylineBatches
{
public:
    static constexpr std::size_t MostPoints = 16384;
    static constexpr std::size_t UsualPoints = 1024; // about one a column

    // `reach` is the plot, grown by what a pen adds to a line; its edges are part of it. `points` is
    // the room for a polyline, empty at first and in the end.
    CPolylineBatches(TRect reach, std::vector<TPoint>& points, Emit emit)
        : m_reach(reach), m_points(points), m_emit(std::move(emit))
    {
        m_points.reserve(UsualPoints);
    }

    void Add(TPoint from, TPoint to)
    {
        if (MissesReach(from, to))
            return;
        if (m_points.empty() || m_points.back() != from || m_points.size() == MostPoints) {
            Flush();
            m_points.push_back(from);
        }
        m_points.push_back(to);
    }

    void Flush()
    {
        if (!m_points.empty())
            m_emit(std::span<const TPoint>(m_points));
        m_points.clear();
    }

private:
    [[nodiscard]] bool MissesReach(TPoint from, TPoint to) const noexcept
    {
        return (from.x < m_reach.left && to.x < m_reach.left) ||
               (from.x > m_reach.right && to.x > m_reach.right) ||
               (from.y < m_reach.top && to.y < m_reach.top) ||
               (from.y > m_reach.bottom && to.y > m_reach.bottom);
    }

    TRect m_reach;
    std::vector<TPoint>& m_points;
    Emit m_emit;
};
