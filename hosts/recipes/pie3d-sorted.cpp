// 3D pie, sorted
//
// Sorting changes the order on the screen; SortToOrginalOrder goes back to that of insertion.

#include "recipe.h"

RECIPE("pie3d-sorted")
{
    vantoplex::Pie pie(window, L"Languages");
    pie.Insert(L"es", L"Spanish", 480, RGB(220, 70, 60));
    pie.Insert(L"zh", L"Mandarin", 920, RGB(235, 170, 50));
    pie.Insert(L"pt", L"Portuguese", 230, RGB(90, 160, 90));
    pie.Insert(L"en", L"English", 380, RGB(70, 110, 190));
    pie->SetInclineAngle(55);
    pie.Fit();
    pie->SetDepth(40); // after the window has its size
    pie->sortPiechartElements(VPX_PIE_ORDER_DESCENDING);
    recipes::Present(window);
}
