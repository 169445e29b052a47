// 3D pie with a selection
//
// A click selects an element; Selected answers with its item, NameOf with the name that your program
// gave it. Items are keys of their own: don't look into them.

#include "recipe.h"

RECIPE("pie3d-selection")
{
    const RECT place = {0, 0, 640, 360};
    vantoplex::Pie pie(window, L"Costs", &place);
    pie.Insert(L"rent", L"Rent", 900, RGB(60, 110, 180));
    pie.Insert(L"food", L"Food", 450, RGB(200, 90, 60));
    pie.Insert(L"travel", L"Travel", 250, RGB(90, 160, 90));
    pie->SetInclineAngle(50);
    pie->SetDepth(40);
    const HWND name = CreateWindowExW(0, L"STATIC", L"Click on a slice.", WS_CHILD | WS_VISIBLE, 10, 370,
                                      620, 24, window, nullptr, nullptr, nullptr);
    const auto show = [&] {
        if (const auto item = pie.Selected())
            SetWindowTextW(name, (L"selected: " + pie.NameOf(item)).c_str());
    };
    recipes::OnMessage(window, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_TIMER)
            show();
    });
    if (!recipes::Unattended())
        SetTimer(window, 1, 100, nullptr); // the pie posts nothing when it is clicked
    UpdateWindow(pie.Window());
    recipes::Click(pie.Window(), {100, 172});
    show();
    recipes::Present(window);
}
