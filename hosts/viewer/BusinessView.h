#pragma once
// A plan of categories shown in a Chart2d: bars, lines or a flat pie.

#include "viewer/CategoryPlan.h"
#include "viewer/ChartView.h"

namespace Viewer
{

class BusinessView : public ChartView
{
public:
    // `options.chart` is Bar, Line or Pie. Throws Error.
    BusinessView(const ChartServer& server, HWND parent, const RECT& place, const CategoryPlan& plan,
                 const Options& options);

    // By a word of Animations() for this kind of chart; an empty one ends the animation.
    void Animate(std::u16string_view word);
    // Stops the clock of the animation and lets it tick that often, painting every time: a window
    // that is shown has the same picture then on any machine.
    void StopAtTick(int tick);

    [[nodiscard]] HWND Window() const noexcept override { return m_window; }
    void MoveTo(const RECT& place) noexcept override;

private:
    void SetLooks(const Options& options);
    void AddBars(const CategoryPlan& plan);
    void AddLines(const CategoryPlan& plan);
    void AddSlices(const CategoryPlan& plan);

    ComPointer<IChart2d> m_chart;
    ChartKind m_kind;
    HWND m_window = nullptr;
};

} // namespace Viewer
