#include "recipe.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>

namespace recipes
{
namespace
{

constexpr int Width = 640;
constexpr int Height = 400;
constexpr wchar_t ClassName[] = L"VantoplexRecipe";
constexpr UINT_PTR AnimationTimer = 50000;

Recipe* first = nullptr;
bool unattended = false;

std::map<HWND, Handler>& Handlers()
{
    static std::map<HWND, Handler> handlers;
    return handlers;
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = Handlers().find(window);
    if (found != Handlers().end() && found->second)
        found->second(message, wParam, lParam);
    if (message == WM_CLOSE)
        PostQuitMessage(0);
    return message == WM_CLOSE ? 0 : DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeWindow(const char* name)
{
    static const ATOM registered = [] {
        WNDCLASSW description{};
        description.lpfnWndProc = WindowProcedure;
        description.hInstance = GetModuleHandleW(nullptr);
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        description.lpszClassName = ClassName;
        return RegisterClassW(&description);
    }();
    const DWORD style = (unattended ? WS_POPUP : WS_OVERLAPPEDWINDOW) | WS_CLIPCHILDREN;
    RECT place = {0, 0, Width, Height};
    AdjustWindowRect(&place, style, FALSE);
    const HWND window =
        CreateWindowExW(0, MAKEINTATOM(registered), std::wstring(name, name + std::strlen(name)).c_str(),
                        style, unattended ? 0 : CW_USEDEFAULT, 0, place.right - place.left,
                        place.bottom - place.top, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    ShowWindow(window, unattended ? SW_SHOWNOACTIVATE : SW_SHOW);
    return window;
}

void HandleWhatWaits()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

void RunUntilClosed()
{
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

std::wstring folder;

std::wstring PictureOf(HWND window)
{
    wchar_t name[64] = L"";
    GetWindowTextW(window, name, 64);
    return folder + L"\\" + name + L".png";
}

bool Draw(const Recipe& recipe)
{
    const HWND window = MakeWindow(recipe.name);
    try {
        recipe.show(window);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", recipe.name, error.what());
        return false;
    }
    Handlers().erase(window);
    DestroyWindow(window);
    return true;
}

// The pictures of all recipes, or of those that are named.
int DrawAll(int count, wchar_t** names)
{
    int failures = 0;
    for (const Recipe* recipe = first; recipe; recipe = recipe->next) {
        bool wanted = count == 0;
        for (int i = 0; i < count; ++i)
            wanted = wanted ||
                     std::wstring(recipe->name, recipe->name + std::strlen(recipe->name)) == names[i];
        if (wanted && !Draw(*recipe))
            ++failures;
    }
    return failures;
}

int ShowOne(const wchar_t* name)
{
    for (const Recipe* recipe = first; recipe; recipe = recipe->next) {
        if (!name || std::wstring(recipe->name, recipe->name + std::strlen(recipe->name)) == name)
            return Draw(*recipe) ? 0 : 1;
    }
    std::fputs("There is no recipe of this name. There are:\n", stderr);
    for (const Recipe* recipe = first; recipe; recipe = recipe->next)
        std::fprintf(stderr, "  %s\n", recipe->name);
    return 2;
}

} // namespace

Recipe::Recipe(const char* recipeName, Show recipeShow) : name(recipeName), show(recipeShow), next(first)
{
    first = this;
}

void OnMessage(HWND window, Handler handler)
{
    Handlers()[window] = std::move(handler);
}

void Present(HWND window, HWND shown)
{
    if (!unattended)
        return RunUntilClosed();
    HandleWhatWaits();
    if (FAILED(vantoplex::SavePng(shown ? shown : window, PictureOf(window).c_str())))
        throw std::runtime_error("no picture could be written");
}

void PresentFile(HWND window, const std::wstring& picture)
{
    if (!unattended)
        RunUntilClosed();
    else if (!CopyFileW(picture.c_str(), PictureOf(window).c_str(), FALSE))
        throw std::runtime_error("the recipe wrote no picture");
}

bool Unattended()
{
    return unattended;
}

void Move(HWND chart, POINT place, WPARAM buttons)
{
    if (unattended)
        SendMessageW(chart, WM_MOUSEMOVE, buttons, MAKELPARAM(place.x, place.y));
}

void Click(HWND chart, POINT place)
{
    Drag(chart, place, place);
}

void Drag(HWND chart, POINT from, POINT to)
{
    if (!unattended)
        return;
    Move(chart, from);
    SendMessageW(chart, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
    for (int step = 1; step <= 10 && (from.x != to.x || from.y != to.y); ++step)
        Move(chart, {from.x + (to.x - from.x) * step / 10, from.y + (to.y - from.y) * step / 10},
             MK_LBUTTON);
    SendMessageW(chart, WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
    HandleWhatWaits();
}

void Tick(HWND chart, int times)
{
    if (!unattended)
        return;
    KillTimer(chart, AnimationTimer);
    for (int i = 0; i < times; ++i)
        SendMessageW(chart, WM_TIMER, AnimationTimer, 0);
}

std::wstring Temporary(const wchar_t* name)
{
    return (std::filesystem::temp_directory_path() / name).wstring();
}

} // namespace recipes

int wmain(int count, wchar_t** arguments)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int result = 0;
    if (count > 2 && arguments[1] == std::wstring(L"--pictures")) {
        recipes::unattended = true;
        recipes::folder = arguments[2];
        result = recipes::DrawAll(count - 3, arguments + 3);
    } else {
        result = recipes::ShowOne(count > 1 ? arguments[1] : nullptr);
    }
    CoUninitialize();
    return result;
}
