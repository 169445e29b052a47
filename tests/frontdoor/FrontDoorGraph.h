#pragma once
// A created graph in a host's window.

#include "Host.h"
#include "support/Picture.h"

class FrontDoorGraph : public testing::Test
{
protected:
    static constexpr int Width = 400;
    static constexpr int Height = 300;

    FrontDoorGraph() : graph(Server::Shared().Make<SGraph, ISGraph>()) {}

    void SetUp() override
    {
        ASSERT_TRUE(graph);
        RECT rect = {0, 0, Width, Height};
        ASSERT_EQ(graph->Create(nullptr, &rect, WireHandle(host.m_hWnd), 7), S_OK);
        ASSERT_NE(Handle(), nullptr);
    }

    [[nodiscard]] HWND Handle() const
    {
        wireHWND hWnd = nullptr;
        graph->GetHandle(&hWnd);
        return reinterpret_cast<HWND>(hWnd);
    }
    // A straight line from (0, 0) to (10, 10).
    static std::vector<TDataPoint> Line(int nCount = 11)
    {
        std::vector<TDataPoint> points;
        for (int i = 0; i < nCount; ++i)
            points.push_back({10.0 * i / (nCount - 1), 10.0 * i / (nCount - 1)});
        return points;
    }
    Holder<ISGraphDataSerie> AddLine(int nCurve, int nXAxis = 0, int nYAxis = 0)
    {
        auto points = Line();
        Holder<ISGraphDataSerie> curve;
        graph->SetData(curve.Out(), points.data(), static_cast<long>(points.size()), nCurve, nXAxis,
                       nYAxis, 1);
        return curve;
    }
    Holder<ISGraphAxis> XAxis(int nAxis = 0)
    {
        Holder<ISGraphAxis> axis;
        graph->GetXAxis(axis.Out(), nAxis);
        return axis;
    }
    Holder<ISGraphAxis> YAxis(int nAxis = 0)
    {
        Holder<ISGraphAxis> axis;
        graph->GetYAxis(axis.Out(), nAxis);
        return axis;
    }
    int CurveCount()
    {
        int nCount = -1;
        graph->GetCurveCount(&nCount);
        return nCount;
    }
    Picture Shoot()
    {
        graph->Invalidate(1);
        ::UpdateWindow(Handle());
        return Picture(Handle());
    }

    HostWindow host;
    Holder<ISGraph> graph;
};
