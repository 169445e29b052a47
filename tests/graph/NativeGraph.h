#pragma once
// A graph in a visible window of a host, and its pixels.

#include "base/Vocabulary.h"
#include "framework/windowing/ModuleState.h"
#include "graph/XGraph.h"
#include "support/HostWindow.h"
#include "support/Picture.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

inline void PrintTo(const RECT& rect, std::ostream* stream)
{
    *stream << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

inline void PrintTo(const CRect& rect, std::ostream* stream)
{
    PrintTo(static_cast<const RECT&>(rect), stream);
}

// The object of that number in the graph's list, the cursor's label first.
template <class Object = CXGraphObject> Object* ObjectAt(const CXGraph& graph, int nIndex)
{
    POSITION place = graph.m_Objects.GetHeadPosition();
    for (int i = 0; i < nIndex; ++i)
        (void)graph.m_Objects.GetNext(place);
    return static_cast<Object*>(graph.m_Objects.GetNext(place));
}

template <class Object> Object* LastObject(const CXGraph& graph)
{
    return ObjectAt<Object>(graph, static_cast<int>(graph.m_Objects.GetCount()) - 1);
}

class GraphTest : public testing::Test
{
protected:
    static constexpr int Width = 400;
    static constexpr int Height = 300;

    GraphTest() : graph(*new CXGraph)
    {
        graph.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, Width, Height),
                     CWnd::FromHandle(host.m_hWnd), 7);
        graph.m_crBackColor = 0x102030;
        graph.m_crGraphColor = 0x405060;
        graph.m_crInnerColor = 0x708090;
    }
    ~GraphTest() override { delete &graph; }

    // A straight line from (0, 0) to (10, 10) in as many points.
    static std::vector<TDataPoint> Line(int nCount = 11)
    {
        std::vector<TDataPoint> points;
        for (int i = 0; i < nCount; ++i)
            points.push_back({10.0 * i / (nCount - 1), 10.0 * i / (nCount - 1)});
        return points;
    }
    CXGraphDataSerie* AddLine(int nXAxis = 0, int nYAxis = 0)
    {
        auto points = Line();
        return graph.SetData(points.data(), static_cast<long>(points.size()),
                             static_cast<int>(graph.m_Curves.size()), nXAxis, nYAxis, true);
    }
    void Paint()
    {
        graph.Invalidate();
        graph.UpdateWindow();
    }
    Picture Shoot()
    {
        Paint();
        return Picture(graph.m_hWnd);
    }

    HostWindow host;
    CXGraph& graph;
};
