#pragma once
// Fading: shapes are drawn on a scratch copy of the target and blended from there into the
// graph area with a constant alpha.
//
//   target --copy--> first  <- shapes are drawn here (Canvas)
//          --copy--> second <- alpha blend of first
//          --copy--> result <- all of second but the pixels of the key colour, which is that of
//                              second at the graph area's corner
//   target <--------- result, at the end
//
// Only where shapes are drawn do the copies differ, and blending equal pixels changes nothing,
// so the copies hold the part of the graph area that the shapes reach, and each blend works on
// the rectangles of the shapes. The transparent copy goes straight over the pixels: the
// platform's own takes longer than all the rest of a frame.

#include <cstdint>
#include <span>
#include <vector>

#include "base/Geometry.h"

#include <windows.h>

class CFadeStep
{
public:
    // The sizes of the window and of the graph area in it, and the rectangle around all shapes
    // that will be drawn; what they reach outside of the area is not blended.
    CFadeStep(HDC target, TSize window, TPoint position, TSize size, const TRect& shapes);
    CFadeStep(const CFadeStep&) = delete;
    CFadeStep& operator=(const CFadeStep&) = delete;

    // Takes the window's coordinates.
    [[nodiscard]] HDC Canvas() const noexcept { return m_First.m_hMemDC; }

    // Reports a shape that was drawn on the canvas: its rectangle, edges in any order.
    void Touch(const TRect& shape);

    // Blends every shape that was reported so far, those of earlier blends again.
    void Blend(double percent);

    // Shows the result on the target.
    void Finish() const;

    // Alpha of a percent: Trunc(percent / 100 * 255).
    [[nodiscard]] static BYTE Alpha(double percent) noexcept;

private:
    // A copy in memory of a part of the target, 32 bits a pixel.
    struct TScratch {
        TScratch(HDC target, const TRect& part);
        TScratch(const TScratch&) = delete;
        TScratch& operator=(const TScratch&) = delete;
        ~TScratch();

        HDC m_hMemDC = nullptr;
        HBITMAP m_hBitmap = nullptr;
        HGDIOBJ m_hOldBitmap = nullptr;
        std::uint32_t* m_pBits = nullptr; // null if there is no room for the copy
    };

    [[nodiscard]] std::span<std::uint32_t> Row(const TScratch& scratch, const TRect& part,
                                               std::int32_t y) const;
    [[nodiscard]] std::uint32_t KeyColor() const;
    void CopyButKey(const TRect& part, std::uint32_t key);

    HDC m_hTarget;
    TPoint m_ptCorner; // of the graph area
    TRect m_rcPart;    // of the window that the copies hold
    TScratch m_First;
    TScratch m_Second;
    TScratch m_Result;
    std::vector<TRect> m_Shapes; // disjoint, inside the part
};
