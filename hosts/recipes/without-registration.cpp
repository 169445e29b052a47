// Use without registration
//
// Library makes the charts from the file itself, here the one beside the program. It must outlive
// them. A missing file, or one of the other bitness, is named in one sentence.

#include "recipe.h"

static std::wstring BesideProgram(const wchar_t* name)
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.rfind(L'\\') + 1) + name;
}

RECIPE("without-registration")
{
    vantoplex::Status status;
    const auto missing = vantoplex::Library::Load(L"C:\\nowhere\\Vantoplex.dll", status);
    CreateWindowExW(0, L"STATIC", status.text.c_str(), WS_CHILD | WS_VISIBLE, 10, 370, 620, 24, window,
                    nullptr, nullptr, nullptr);

    const vantoplex::Library library(BesideProgram(L"Vantoplex.dll"));
    const RECT place = {0, 0, 640, 360};
    vantoplex::Graph graph(window, &place, 1, &library);
    const std::vector<TDataPoint> points = {{0, 1}, {1, 3}, {2, 2}, {3, 5}};
    graph.Plot(points, L"no registration");
    recipes::Present(window);
}
