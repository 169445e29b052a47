#pragma once
// An XY graph under a person's hands: operations, the curve in question, readings, files.

#include "viewer/ChartView.h"
#include "viewer/GraphAnalysis.h"

#include <string>

namespace Viewer
{

class GraphControl
{
public:
    explicit GraphControl(ISGraph& graph) : m_graph(graph) {}

    // One of GraphCommand. Trends work on the curve in question. False if nothing could be done.
    bool Send(unsigned command);
    bool Analyse(Analysis analysis, int parameter);
    void DeleteMeasures();

    [[nodiscard]] int Operation() const;
    [[nodiscard]] int ZoomDepth() const;
    [[nodiscard]] int CurveCount() const;
    // The curve that trends and readings are about: the one clicked or chosen last. -1 if none.
    [[nodiscard]] int CurrentCurve() const;
    void ChooseCurve(int curve);

    [[nodiscard]] bool ShowsLegend() const;
    void ToggleLegend();
    [[nodiscard]] bool SnapsCursor() const;
    void ToggleSnap();

    // What the cursor stands on; empty without a curve.
    [[nodiscard]] std::u16string Reading() const;
    // The pixel of a curve's point at that x of the window.
    [[nodiscard]] int PixelOnCurve(int curve, int x) const;

    [[nodiscard]] bool Save(const std::u16string& path, unsigned sections) const;
    // The graph is empty then, whether or not the file could be read.
    [[nodiscard]] bool Load(const std::u16string& path);
    void SetPageTexts(std::u16string_view header, std::u16string_view footer);

private:
    [[nodiscard]] ComPointer<ISGraphDataSerie> Curve(int curve) const;
    void BindCursor();

    ISGraph& m_graph;
    int m_curve = 0;
    bool m_mayHaveMeasures = false;
};

} // namespace Viewer
