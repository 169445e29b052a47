// Window classes of the module.

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/ThreadState.h"
#include "framework/windowing/Window.h"

BOOL AfxRegisterClass(WNDCLASSW* lpWndClass)
{
    WNDCLASSW known;
    if (::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &known))
        return TRUE;
    if (!::RegisterClassW(lpWndClass))
        return FALSE;
    AfxGetModuleState()->AddClassName(lpWndClass->lpszClassName);
    return TRUE;
}

LPCWSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    const HINSTANCE instance = AfxGetInstanceHandle();
    CString name;
    name.Format(L"Afx:%x:%x:%x:%x:%x", reinterpret_cast<UINT_PTR>(instance), nClassStyle,
                reinterpret_cast<UINT_PTR>(hCursor), reinterpret_cast<UINT_PTR>(hbrBackground),
                reinterpret_cast<UINT_PTR>(hIcon));

    WCHAR(&result)[96] = AfxGetThreadState().szWndClass;
    ::lstrcpynW(result, name, static_cast<int>(std::size(result)));
    WNDCLASSW looks{};
    looks.style = nClassStyle;
    looks.lpfnWndProc = &::DefWindowProcW;
    looks.hInstance = instance;
    looks.hIcon = hIcon;
    looks.hCursor = hCursor;
    looks.hbrBackground = hbrBackground;
    looks.lpszClassName = result;
    if (!AfxRegisterClass(&looks))
        AfxThrowResourceException();
    return result;
}
