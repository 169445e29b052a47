#pragma once
// The frame of all recipes. A recipe is one source file: the body of RECIPE gets `window`, an empty
// window of 640 by 400 pixels, and ends with Present. Link one such file with recipe.cpp and it is
// a program; link many, and the first argument chooses one.
//
// With --pictures FOLDER nobody is in front of the screen: each recipe is drawn into a PNG file, and
// Present returns at once.

#include <vantoplex.hpp>

#include <functional>
#include <string>

namespace recipes
{

using Show = void (*)(HWND window);

struct Recipe {
    Recipe(const char* name, Show show);
    const char* name;
    Show show;
    Recipe* next;
};

// What else the window does with a message, WM_SIZE and what charts post among them.
using Handler = std::function<void(UINT message, WPARAM wParam, LPARAM lParam)>;
void OnMessage(HWND window, Handler handler);

// Keeps the window on the screen until a person closes it. The recipe's picture is that of `shown`,
// or the file that the recipe has written itself.
void Present(HWND window, HWND shown = nullptr);
void PresentFile(HWND window, const std::wstring& picture);

// Whether pictures are drawn. The rest stands in for a person then, and does nothing otherwise.
bool Unattended();
void Move(HWND chart, POINT place, WPARAM buttons = 0);
void Click(HWND chart, POINT place);
void Drag(HWND chart, POINT from, POINT to);
void Tick(HWND chart, int times); // of the business chart's animation

// A file's path in the folder for temporary files.
std::wstring Temporary(const wchar_t* name);

} // namespace recipes

#define RECIPE(NAME)                                                                                    \
    static void ShowRecipe(HWND window);                                                                \
    static recipes::Recipe recipe(NAME, ShowRecipe);                                                    \
    static void ShowRecipe([[maybe_unused]] HWND window)
