// A host that knows nothing but a ProgID: makes a graph by it and looks for its pixels.
// With /CurrentUser it looks the class up in the user's part of the registry itself, as COM does:
// that of Wine 8 looks at the machine's part alone.
// Exit code: 0 a curve was drawn, 2 no such class, 3 no window or no picture.

#include <vantoplex.h>

#include <string>
#include <string_view>

namespace
{

int CountOf(HWND window, COLORREF color)
{
    const HDC canvas = GetDC(window);
    RECT area{};
    GetClientRect(window, &area);
    int count = 0;
    for (int y = 0; y < area.bottom; ++y) {
        for (int x = 0; x < area.right; ++x)
            count += GetPixel(canvas, x, y) == color;
    }
    ReleaseDC(window, canvas);
    return count;
}

int Draw(ISGraph* graph)
{
    const HWND parent = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                        nullptr, nullptr, nullptr, nullptr);
    RECT place = {0, 0, 300, 200};
    graph->Create(nullptr, &place, ToWire(parent), 1);
    TDataPoint points[] = {{0, 0}, {1, 2}, {2, 1}};
    ISGraphDataSerie* curve = nullptr;
    graph->SetData(&curve, points, 3, 0, 0, 0, TRUE);
    if (!curve)
        return 3;
    curve->SetColor(RGB(255, 0, 255));
    curve->Release();
    wireHWND wire = nullptr;
    graph->GetHandle(&wire);
    const HWND window = FromWire(wire);
    graph->Invalidate(TRUE);
    UpdateWindow(window);
    const int drawn = CountOf(window, RGB(255, 0, 255));
    DestroyWindow(parent);
    return drawn > 50 ? 0 : 3;
}

std::wstring UsersValue(const std::wstring& key)
{
    wchar_t text[1024] = L"";
    DWORD size = sizeof text;
    RegGetValueW(HKEY_CURRENT_USER, (L"Software\\Classes\\" + key).c_str(), nullptr, RRF_RT_REG_SZ,
                 nullptr, text, &size);
    return text;
}

ISGraph* MakeAsRegisteredForUser()
{
    const std::wstring clsid = UsersValue(L"Vantoplex.SGraph.1\\CLSID");
    const HMODULE module = LoadLibraryW(UsersValue(L"CLSID\\" + clsid + L"\\InprocServer32").c_str());
    CLSID wanted{};
    if (!module || FAILED(CLSIDFromString(clsid.c_str(), &wanted)))
        return nullptr;
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto get = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    IClassFactory* factory = nullptr;
    ISGraph* graph = nullptr;
    if (SUCCEEDED(get(wanted, IID_IClassFactory, reinterpret_cast<void**>(&factory)))) {
        factory->CreateInstance(nullptr, __uuidof(ISGraph), reinterpret_cast<void**>(&graph));
        factory->Release();
    }
    return graph;
}

ISGraph* Make()
{
    CLSID wanted{};
    ISGraph* graph = nullptr;
    if (SUCCEEDED(CLSIDFromProgID(L"Vantoplex.SGraph.1", &wanted)))
        CoCreateInstance(wanted, nullptr, CLSCTX_INPROC_SERVER, __uuidof(ISGraph),
                         reinterpret_cast<void**>(&graph));
    return graph;
}

} // namespace

int main(int count, char** arguments)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int result = 2;
    if (ISGraph* const graph = count > 1 && arguments[1] == std::string_view("/CurrentUser")
                                   ? MakeAsRegisteredForUser()
                                   : Make()) {
        result = Draw(graph);
        graph->Release();
    }
    CoUninitialize();
    return result;
}
