#pragma once
// Sizes of texts in one font, measured once each.

#include "pie3d/GdiPlus.h"
#include "pie3d/PieLook.h"

#include <string>
#include <unordered_map>

[[nodiscard]] GdiPlus::CFont NewFont(const TPieFont& look) noexcept;

class CTextSizes
{
public:
    // In pixels. `font` is made as `look` says.
    [[nodiscard]] PieGeometry::TRectF Of(const std::wstring& text, const GdiPlus::CGraphics& graphics,
                                         const GdiPlus::CFont& font, const TPieFont& look);

private:
    TPieFont m_font;
    std::unordered_map<std::wstring, PieGeometry::TRectF> m_sizes;
};
