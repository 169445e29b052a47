#include "pie3d/TextSizes.h"

namespace
{

constexpr std::size_t MostTexts = 20000; // twice the percents that two digits can show

} // namespace

GdiPlus::CFont NewFont(const TPieFont& look) noexcept
{
    return GdiPlus::NewFont(look.strFace.c_str(), look.nPoints, look.nStyle);
}

PieGeometry::TRectF CTextSizes::Of(const std::wstring& text, const GdiPlus::CGraphics& graphics,
                                   const GdiPlus::CFont& font, const TPieFont& look)
{
    if (m_font != look || m_sizes.size() >= MostTexts) {
        m_sizes.clear();
        m_font = look;
    }
    const auto known = m_sizes.find(text);
    if (known != m_sizes.end())
        return known->second;
    const PieGeometry::TRectF size = graphics.Measure(text, font);
    m_sizes.emplace(text, size);
    return size;
}
