#pragma once
// An XY graph under a person's hands: operations, the curve in question, readings, files.

#include "viewer/ChartView.h"
#include "viewer/GraphAnalysis.h"

#include <string>
#include <vector>

namespace Viewer
{

class GraphControl
{
public:
    // The graph has its axes already.
    explicit GraphControl(ISGraph& graph);

    // One of VpxCommand. Trends work on the curve in question. False if nothing could be done.
    bool Send(unsigned command);
    bool Analyse(Analysis analysis, int parameter);
    // To be called when the view has changed.
    void FitDateLabels();
    void DeleteMeasures();

    [[nodiscard]] int Operation() const;
    void SetOperation(int operation); // one that Operation has returned
    [[nodiscard]] int ZoomDepth() const;
    [[nodiscard]] int CurveCount() const;
    // The curve that trends and readings are about: the one clicked or chosen last. -1 if none.
    [[nodiscard]] int CurrentCurve() const;
    void ChooseCurve(int curve);

    [[nodiscard]] bool ShowsLegend() const;
    void ToggleLegend();
    [[nodiscard]] bool SnapsCursor() const;
    void ToggleSnap();

    // What the cursor is on; empty without a curve.
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
    [[nodiscard]] ComPointer<ISGraphAxis> YAxis(int axis) const;

    // For each axis, X before Y, whether it rounds its range.
    [[nodiscard]] std::vector<LONG> Rounding() const;
    void SetRounding(const std::vector<LONG>& rounding);
    template <class Action> void ForEachAxis(Action action) const;

    ISGraph& m_graph;
    std::vector<LONG> m_rounding; // as the graph was made
    int m_curve = 0;
    bool m_mayHaveMeasures = false;
};

} // namespace Viewer
