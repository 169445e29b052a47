// A flat pie that sweeps open
//
// The slices open one after the other.

#include "recipe.h"

RECIPE("pie-sweep")
{
    vantoplex::BusinessChart chart(window, VPX_CHART_PIE);
    chart.SetTitles(L"Energy", L"percent");
    chart.AddSlice(L"wind", 42, RGB(90, 160, 210));
    chart.AddSlice(L"sun", 23, RGB(240, 190, 50));
    chart.AddSlice(L"water", 20, RGB(40, 90, 170));
    chart.AddSlice(L"other", 15, RGB(150, 150, 150)); // what goes above 100 would be cut
    chart.Animate(VPX_ANIMATION_PIE_SWEEP);
    chart.Fit();
    recipes::Tick(chart.Window(), 70);
    recipes::Present(window);
}
