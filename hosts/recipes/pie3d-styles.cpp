// 3D pie as a doughnut
//
// Three styles: with side walls, doughnut, flat.

#include "recipe.h"

RECIPE("pie3d-styles")
{
    vantoplex::Pie pie(window, L"Votes");
    pie.Insert(L"a", L"yes", 61, RGB(60, 150, 90));
    pie.Insert(L"b", L"no", 30, RGB(190, 60, 60));
    pie.Insert(L"c", L"abstained", 9, RGB(150, 150, 150));
    pie->SetPieChartStyle(VPX_PIE_DOUGHNUT);
    pie->SetBackgrndColor(RGB(230, 236, 245));
    pie->SetLabelColor(RGB(40, 40, 60));
    pie.Fit();
    recipes::Present(window);
}
