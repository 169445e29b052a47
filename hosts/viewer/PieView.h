#pragma once
// The slices of a plan shown in a PieChart3d.

#include "viewer/CategoryPlan.h"
#include "viewer/ChartView.h"

namespace Viewer
{

class PieView : public ChartView
{
public:
    PieView(const ChartServer& server, HWND parent, const RECT& place, const CategoryPlan& plan,
            const Options& options);

    // Style, order, tilt, start and depth.
    void SetLooks(const Options& options);
    // "Coal" if its slice was clicked last; else empty.
    [[nodiscard]] std::u16string SelectedName();

    [[nodiscard]] HWND Window() const noexcept override { return m_window; }
    void MoveTo(const RECT& place) noexcept override;

private:
    ComPointer<IPieChart3d> m_pie;
    HWND m_window = nullptr;
    int m_depth = 0;
};

} // namespace Viewer
