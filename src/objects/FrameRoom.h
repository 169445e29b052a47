#pragma once
// The room of what a frame lists: pixels, ticks, labels. A graph keeps it between its frames, so that
// one like the last takes nothing from the heap.

#include "base/Geometry.h"
#include "objects/AxisTicks.h"
#include "objects/PlotHost.h"
#include "objects/TickLabels.h"

#include <cstddef>
#include <vector>

struct TFrameRoom {
    std::vector<TPoint> line;
    std::vector<TPoint> polygon;
    std::vector<TTick> ticks;
    std::vector<CTickLabels::TLabel> pile;
    std::vector<CTickLabels::TShape> shapes;
};

// An empty list that takes over a room of the graph and returns it at its end, so that two users of
// one room don't meet. Without a graph, or before its first frame, it is a list of its own.
template <class Element> class CRoomyList
{
public:
    using List = std::vector<Element>;

    CRoomyList(CXGraph* pGraph, List TFrameRoom::*member)
    {
        TFrameRoom* const pRoom = pGraph ? PlotHost::FrameRoom(*pGraph) : nullptr;
        m_pKept = pRoom ? &(pRoom->*member) : nullptr;
        if (m_pKept)
            m_list.swap(*m_pKept);
    }
    CRoomyList(const CRoomyList&) = delete;
    CRoomyList& operator=(const CRoomyList&) = delete;
    ~CRoomyList()
    {
        m_list.clear();
        if (m_pKept && m_list.capacity() <= MostKept)
            m_list.swap(*m_pKept);
    }

    [[nodiscard]] List& operator*() noexcept { return m_list; }
    [[nodiscard]] List* operator->() noexcept { return &m_list; }

private:
    static constexpr std::size_t MostKept = 65536; // a rare giant isn't worth its memory

    List* m_pKept;
    List m_list;
};
