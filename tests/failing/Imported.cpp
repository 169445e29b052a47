#include "Imported.h"

#include <commdlg.h>
#include <objidl.h>
#include <ole2.h>

#include <gdiplus.h>

#include <cstdlib>
#include <cstring>
#include <initializer_list>

// malloc and its kin have attributes that a template's argument loses: they don't change the call.
#pragma GCC diagnostic ignored "-Wignored-attributes"

namespace
{
using Platform::EKind;
using Platform::ETakes;
using Platform::Stub;
using Platform::TRow;
namespace Flat = Gdiplus::DllExports;

constexpr auto OutOfMemory = static_cast<LONG_PTR>(E_OUTOFMEMORY);

// Refused with null, or what else means that there is none, and given as the result.
#define TAKEN(function, kind)                                                                           \
    Stub<#function, EKind::kind, ETakes::asResult, LONG_PTR{0}, decltype(&::function)>::Row()
#define TAKEN_ANEW(function, kind)                                                                      \
    Stub<#function, EKind::kind, ETakes::insteadOfFirst, LONG_PTR{0}, decltype(&::function)>::Row()
#define GIVEN_BACK(function)                                                                            \
    Stub<#function, EKind::memory, ETakes::givesBackFirst, LONG_PTR{0}, decltype(&::function)>::Row()
#define GIVEN_BACK_SECOND(function)                                                                     \
    Stub<#function, EKind::memory, ETakes::givesBackSecond, LONG_PTR{0}, decltype(&::function)>::Row()
#define DONE(function, kind, refusal)                                                                   \
    Stub<#function, EKind::kind, ETakes::nothing, refusal, decltype(&::function)>::Row()
#define GDIP_TAKEN(function)                                                                            \
    Stub<#function, EKind::gdiplus, ETakes::asLastArgument, LONG_PTR{Gdiplus::OutOfMemory},             \
         decltype(&Flat::function)>::Row()
#define GDIP_DONE(function)                                                                             \
    Stub<#function, EKind::gdiplus, ETakes::nothing, LONG_PTR{Gdiplus::OutOfMemory},                    \
         decltype(&Flat::function)>::Row()
#define GDIP_GIVEN_BACK(function)                                                                       \
    Stub<#function, EKind::gdiplus, ETakes::givesBackFirst, LONG_PTR{0},                                \
         decltype(&Flat::function)>::Row()

void Add(std::vector<TRow>& rows, std::initializer_list<TRow> more)
{
    rows.insert(rows.end(), more);
}

void AddMemory(std::vector<TRow>& rows)
{
    Add(rows, {TAKEN(malloc, memory), TAKEN(calloc, memory), TAKEN_ANEW(realloc, memory),
               GIVEN_BACK(free), TAKEN(CoTaskMemAlloc, memory), GIVEN_BACK(CoTaskMemFree),
               TAKEN(SysAllocString, memory), TAKEN(SysAllocStringLen, memory),
               DONE(SysReAllocString, memory, LONG_PTR{0}), GIVEN_BACK(SysFreeString),
               TAKEN(GlobalAlloc, memory), TAKEN_ANEW(GlobalReAlloc, memory), GIVEN_BACK(GlobalFree)});
}

void AddDrawing(std::vector<TRow>& rows)
{
    Add(rows, {TAKEN(CreateBitmap, gdi),
               TAKEN(CreateBitmapIndirect, gdi),
               TAKEN(CreateBrushIndirect, gdi),
               TAKEN(CreateCompatibleBitmap, gdi),
               TAKEN(CreateCompatibleDC, gdi),
               TAKEN(CreateDCW, gdi),
               TAKEN(CreateDIBSection, gdi),
               TAKEN(CreateFontIndirectW, gdi),
               TAKEN(CreateFontW, gdi),
               TAKEN(CreateHatchBrush, gdi),
               TAKEN(CreatePalette, gdi),
               TAKEN(CreatePatternBrush, gdi),
               TAKEN(CreatePen, gdi),
               TAKEN(CreatePenIndirect, gdi),
               TAKEN(CreatePolygonRgn, gdi),
               TAKEN(CreateRectRgn, gdi),
               TAKEN(CreateRectRgnIndirect, gdi),
               TAKEN(CreateSolidBrush, gdi),
               TAKEN(ExtCreatePen, gdi),
               GIVEN_BACK(DeleteObject),
               GIVEN_BACK(DeleteDC),
               TAKEN(GetDC, gdi),
               TAKEN(GetDCEx, gdi),
               TAKEN(GetWindowDC, gdi),
               GIVEN_BACK_SECOND(ReleaseDC),
               DONE(SaveDC, gdi, LONG_PTR{0}),
               DONE(GetDIBits, gdi, LONG_PTR{0}),
               DONE(GetObjectW, gdi, LONG_PTR{0}),
               DONE(GetTextMetricsW, gdi, LONG_PTR{0}),
               DONE(GetTextExtentPoint32W, gdi, LONG_PTR{0}),
               DONE(BitBlt, gdi, LONG_PTR{0}),
               DONE(StretchBlt, gdi, LONG_PTR{0}),
               DONE(GetClipBox, gdi, LONG_PTR{0}),
               DONE(GetBitmapBits, gdi, LONG_PTR{0}),
               DONE(GetCharWidth32W, gdi, LONG_PTR{0}),
               DONE(GetCharABCWidthsW, gdi, LONG_PTR{0}),
               DONE(GradientFill, gdi, LONG_PTR{0}),
               DONE(AlphaBlend, gdi, LONG_PTR{0}),
               DONE(TransparentBlt, gdi, LONG_PTR{0}),
               DONE(StartDocW, gdi, LONG_PTR{0}),
               DONE(StartPage, gdi, LONG_PTR{0}),
               DONE(EndPage, gdi, LONG_PTR{0}),
               DONE(EndDoc, gdi, LONG_PTR{0})});
}

void AddGdiplus(std::vector<TRow>& rows)
{
    Add(rows, {GDIP_TAKEN(GdipCreateBitmapFromScan0),
               GDIP_TAKEN(GdipCreateCachedBitmap),
               GDIP_TAKEN(GdipCreateFont),
               GDIP_DONE(GdipCreateFontFamilyFromName),
               GDIP_TAKEN(GdipCreateFromHDC),
               GDIP_TAKEN(GdipCreateLineBrushI),
               GDIP_TAKEN(GdipCreatePath),
               GDIP_TAKEN(GdipCreatePen1),
               GDIP_TAKEN(GdipCreatePen2),
               GDIP_TAKEN(GdipCreateSolidFill),
               GDIP_TAKEN(GdipCreateStringFormat),
               GDIP_TAKEN(GdipGetImageGraphicsContext),
               GDIP_GIVEN_BACK(GdipDeleteBrush),
               GDIP_GIVEN_BACK(GdipDeleteCachedBitmap),
               GDIP_GIVEN_BACK(GdipDeleteFont),
               GDIP_GIVEN_BACK(GdipDeleteGraphics),
               GDIP_GIVEN_BACK(GdipDeletePath),
               GDIP_GIVEN_BACK(GdipDeletePen),
               GDIP_GIVEN_BACK(GdipDeleteStringFormat),
               GDIP_GIVEN_BACK(GdipDisposeImage)});
    Add(rows, {GDIP_DONE(GdipAddPathArc),
               GDIP_DONE(GdipAddPathLine),
               GDIP_DONE(GdipAddPathPath),
               GDIP_DONE(GdipAddPathPie),
               GDIP_DONE(GdipBitmapLockBits),
               GDIP_DONE(GdipDrawCachedBitmap),
               GDIP_DONE(GdipDrawEllipse),
               GDIP_DONE(GdipDrawLine),
               GDIP_DONE(GdipDrawPath),
               GDIP_DONE(GdipDrawPie),
               GDIP_DONE(GdipDrawRectangle),
               GDIP_DONE(GdipDrawString),
               GDIP_DONE(GdipFillEllipse),
               GDIP_DONE(GdipFillPath),
               GDIP_DONE(GdipFillPie),
               GDIP_DONE(GdipFillRectangle),
               GDIP_DONE(GdipGetGenericFontFamilySansSerif),
               GDIP_DONE(GdipGetImageEncoders),
               GDIP_DONE(GdipGetImageEncodersSize),
               GDIP_DONE(GdipGetImageHeight),
               GDIP_DONE(GdipGetImageWidth),
               GDIP_DONE(GdipGetPointCount),
               GDIP_DONE(GdipIsVisiblePathPoint),
               GDIP_DONE(GdipMeasureString),
               GDIP_DONE(GdipResetPath),
               GDIP_DONE(GdipSaveImageToFile),
               GDIP_DONE(GdipSetLineColors),
               GDIP_DONE(GdipSetPenBrushFill),
               GDIP_DONE(GdipSetPenColor),
               GDIP_DONE(GdipSetSmoothingMode),
               GDIP_DONE(GdipSetSolidFillColor),
               GDIP_DONE(GdipSetStringFormatFlags),
               Stub<"GdiplusStartup", EKind::gdiplus, ETakes::nothing, LONG_PTR{Gdiplus::OutOfMemory},
                    decltype(&Gdiplus::GdiplusStartup)>::Row()});
}

void AddWindows(std::vector<TRow>& rows)
{
    Add(rows,
        {DONE(CreateWindowExW, window, LONG_PTR{0}),
         DONE(CreateDialogIndirectParamW, window, LONG_PTR{0}),
         DONE(RegisterClassW, window, LONG_PTR{0}), TAKEN(CreatePopupMenu, window),
         GIVEN_BACK(DestroyMenu), TAKEN(SetWindowsHookExW, window), GIVEN_BACK(UnhookWindowsHookEx),
         DONE(MessageBoxW, window, LONG_PTR{0}), DONE(PostMessageW, window, LONG_PTR{0}),
         DONE(SetWindowPos, window, LONG_PTR{0}), DONE(SetTimer, timer, LONG_PTR{0})});
}

void AddFiles(std::vector<TRow>& rows)
{
    Add(rows, {Stub<"CreateFileW", EKind::file, ETakes::asResult, LONG_PTR{-1},
                    decltype(&::CreateFileW)>::Row(),
               GIVEN_BACK(CloseHandle), DONE(WriteFile, file, LONG_PTR{0}),
               DONE(ReadFile, file, LONG_PTR{0}), DONE(SetFilePointerEx, file, LONG_PTR{0}),
               DONE(GetFileSizeEx, file, LONG_PTR{0}), DONE(FlushFileBuffers, file, LONG_PTR{0})});
}

// What the module has of the system, and the registry.
void AddModule(std::vector<TRow>& rows)
{
    Add(rows, {DONE(FlsAlloc, module, LONG_PTR{-1}),
               DONE(FlsSetValue, module, LONG_PTR{0}),
               DONE(ActivateActCtx, module, LONG_PTR{0}),
               DONE(CreateActCtxW, module, LONG_PTR{-1}),
               DONE(FindResourceW, module, LONG_PTR{0}),
               DONE(LoadResource, module, LONG_PTR{0}),
               DONE(LockResource, module, LONG_PTR{0}),
               DONE(LoadStringW, module, LONG_PTR{0}),
               DONE(LoadCursorW, module, LONG_PTR{0}),
               DONE(GetModuleFileNameW, module, LONG_PTR{0}),
               DONE(VirtualAlloc, module, LONG_PTR{0}),
               DONE(LoadLibraryW, module, LONG_PTR{0}),
               DONE(LoadTypeLibEx, module, OutOfMemory),
               DONE(LoadRegTypeLib, module, OutOfMemory),
               DONE(RegisterTypeLib, module, OutOfMemory),
               DONE(UnRegisterTypeLib, module, OutOfMemory),
               DONE(CoCreateInstance, module, OutOfMemory),
               DONE(RegCreateKeyExW, module, LONG_PTR{ERROR_NOT_ENOUGH_MEMORY}),
               DONE(RegOpenKeyExW, module, LONG_PTR{ERROR_NOT_ENOUGH_MEMORY}),
               DONE(RegSetValueExW, module, LONG_PTR{ERROR_NOT_ENOUGH_MEMORY})});
}
} // namespace

const std::vector<TRow>& Platform::Imported()
{
    static const std::vector<TRow> rows = [] {
        std::vector<TRow> all;
        AddMemory(all);
        AddDrawing(all);
        AddGdiplus(all);
        AddWindows(all);
        AddFiles(all);
        AddModule(all);
        return all;
    }();
    return rows;
}
