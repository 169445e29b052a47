#pragma once
// A graph in the hand of a host that trusts no result: it looks before each call whether what the
// call needs is there.

#include "Stage.h"

#include <vector>

class GraphHand
{
public:
    // Makes one and puts it into the stage's window.
    void Create(Stage& stage);
    // Curves, axes, labels, notes; whatever was there before goes.
    void Plot(Stage& stage);

    [[nodiscard]] ISGraph* Get() const { return m_graph.Get(); }
    [[nodiscard]] HWND Window() const;
    [[nodiscard]] int Count(HRESULT (STDMETHODCALLTYPE ISGraph::*pfn)(int*)) const;
    [[nodiscard]] Holder<ISGraphAxis> XAxis(int nAxis) const;
    [[nodiscard]] Holder<ISGraphAxis> YAxis(int nAxis) const;
    [[nodiscard]] Holder<ISGraphDataSerie> Curve(int nCurve) const;
    // The plot's rectangle, between its axes.
    [[nodiscard]] RECT Inner() const;
    void Send(WPARAM nCommand) const;
    void Mouse(UINT message, POINT at, WPARAM nKeys = 0) const;
    void Drag(POINT from, POINT to) const;

private:
    void PlotCurve(int nCurve, int nXAxis, int nYAxis);
    void SetAxes();
    void SetCurves();
    void AddObjects(Stage& stage);

    Holder<ISGraph> m_graph;
};
