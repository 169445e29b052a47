// Registration for one user
//
// The keys that COM needs of a class, below the user's own part of the registry: no administrator's
// rights. The installer with /CurrentUser writes them for all classes. The recipe writes, makes a
// chart and takes the keys away.

#include "recipe.h"

static const std::wstring Root = L"Software\\Classes\\";
static const std::wstring Class = Root + L"CLSID\\{43ABC0D1-4E08-40C3-9681-E30EA84142B3}";

static bool Write(const std::wstring& key, const wchar_t* name, const std::wstring& value)
{
    return RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name, REG_SZ, value.c_str(),
                           DWORD((value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

static bool RegisterGraph(const std::wstring& library)
{
    return Write(Root + L"Vantoplex.SGraph\\CLSID", nullptr,
                 L"{43ABC0D1-4E08-40C3-9681-E30EA84142B3}") &&
           Write(Class + L"\\InprocServer32", nullptr, library) &&
           Write(Class + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
}

static void Unregister()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, (Root + L"Vantoplex.SGraph").c_str());
    RegDeleteTreeW(HKEY_CURRENT_USER, Class.c_str());
}

RECIPE("per-user-registration")
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    const bool registered = RegisterGraph(path.substr(0, path.rfind(L'\\') + 1) + L"Vantoplex.dll");
    CreateWindowExW(0, L"STATIC", registered ? L"registered for this user" : L"could not be registered",
                    WS_CHILD | WS_VISIBLE, 10, 370, 620, 24, window, nullptr, nullptr, nullptr);

    const RECT place = {0, 0, 640, 360};
    vantoplex::Graph graph(window, &place);
    const std::vector<TDataPoint> points = {{0, 4}, {1, 2}, {2, 3}, {3, 1}};
    graph.Plot(points, L"mine alone");
    Unregister();
    recipes::Present(window);
}
