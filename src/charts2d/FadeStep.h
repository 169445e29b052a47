#pragma once
// Fading: shapes are drawn on a scratch copy of the target, and the copy is blended into the
// target with a constant alpha.
//
//   target --copy--> first  <- shapes are drawn here (m_hMemDC)
//          --copy--> second <- alpha blend of first; its corner pixel is the key colour
//   target <--all but the key colour-- second

#include "base/Geometry.h"

#include <windows.h>

class CFadeStep
{
public:
    // Both copies have the window's size.
    CFadeStep(HDC target, TSize window);
    CFadeStep(const CFadeStep&) = delete;
    CFadeStep& operator=(const CFadeStep&) = delete;
    ~CFadeStep() = default;

    [[nodiscard]] HDC Canvas() const noexcept { return m_First.m_hMemDC; }

    // Blends the part of the area (X, Y, W, H) that lies in `changed`: elsewhere the copies are
    // equal, and blending equal pixels changes nothing. percent is that of the full strength.
    void Blend(TPoint position, TSize size, const TRect& changed, double percent) const;

    // Alpha of a percent: Trunc(percent / 100 * 255).
    [[nodiscard]] static BYTE Alpha(double percent) noexcept;

private:
    // A copy of the target in memory.
    struct TScratch {
        TScratch(HDC target, TSize window);
        TScratch(const TScratch&) = delete;
        TScratch& operator=(const TScratch&) = delete;
        ~TScratch();

        HDC m_hMemDC;
        HBITMAP m_hBitmap;
        HGDIOBJ m_hOldBitmap;
    };

    HDC m_hTarget;
    TScratch m_First;
    TScratch m_Second;
};
