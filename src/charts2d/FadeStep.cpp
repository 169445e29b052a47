#include "charts2d/FadeStep.h"

#include <algorithm>

#include "base/Trunc.h"
#include "charts2d/Rectangles.h"

namespace
{

constexpr std::uint32_t ColorBits = 0xFFFFFF;
constexpr std::size_t MostShapes = 32; // beyond, one rectangle around them all is cheaper

TRect AreaInWindow(TSize window, TPoint position, TSize size) noexcept
{
    return Rectangles::Common({0, 0, window.cx, window.cy},
                              {position.x, position.y, position.x + size.cx, position.y + size.cy});
}

} // namespace

CFadeStep::TScratch::TScratch(HDC target, const TRect& part)
{
    if (Rectangles::IsEmpty(part))
        return;
    BITMAPINFO info{};
    info.bmiHeader = {
        sizeof(BITMAPINFOHEADER), part.Width(), -part.Height(), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_hMemDC = ::CreateCompatibleDC(target);
    m_hBitmap = ::CreateDIBSection(target, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!m_hBitmap)
        return;
    m_pBits = static_cast<std::uint32_t*>(bits);
    m_hOldBitmap = ::SelectObject(m_hMemDC, m_hBitmap);
    ::SetViewportOrgEx(m_hMemDC, -part.left, -part.top, nullptr);
    ::BitBlt(m_hMemDC, part.left, part.top, part.Width(), part.Height(), target, part.left, part.top,
             SRCCOPY);
}

CFadeStep::TScratch::~TScratch()
{
    if (m_hOldBitmap)
        ::SelectObject(m_hMemDC, m_hOldBitmap);
    if (m_hBitmap)
        ::DeleteObject(m_hBitmap);
    if (m_hMemDC)
        ::DeleteDC(m_hMemDC);
}

CFadeStep::CFadeStep(HDC target, TSize window, TPoint position, TSize size, const TRect& shapes)
    : m_hTarget(target), m_ptCorner(position),
      m_rcPart(Rectangles::Common(AreaInWindow(window, position, size), shapes)),
      m_First(target, m_rcPart), m_Second(target, m_rcPart), m_Result(target, m_rcPart)
{
}

BYTE CFadeStep::Alpha(double percent) noexcept
{
    return static_cast<BYTE>(std::clamp(Trunc(percent / 100.0 * 255.0), 0, 255));
}

void CFadeStep::Touch(const TRect& shape)
{
    TRect added = Rectangles::Common(Rectangles::Ordered(shape), m_rcPart);
    if (Rectangles::IsEmpty(added))
        return;
    const bool all = m_Shapes.size() >= MostShapes;
    // What has grown by one rectangle may reach another.
    for (auto other = m_Shapes.begin(); other != m_Shapes.end();) {
        if (!all && Rectangles::IsEmpty(Rectangles::Common(*other, added))) {
            ++other;
            continue;
        }
        added = Rectangles::Around(*other, added);
        m_Shapes.erase(other);
        other = m_Shapes.begin();
    }
    m_Shapes.push_back(added);
}

std::span<std::uint32_t> CFadeStep::Row(const TScratch& scratch, const TRect& part, std::int32_t y) const
{
    const auto row =
        static_cast<std::size_t>(y - m_rcPart.top) * static_cast<std::size_t>(m_rcPart.Width());
    const auto column = static_cast<std::size_t>(part.left - m_rcPart.left);
    return {scratch.m_pBits + row + column, static_cast<std::size_t>(part.Width())};
}

std::uint32_t CFadeStep::KeyColor() const
{
    const TRect corner{m_ptCorner.x, m_ptCorner.y, m_ptCorner.x + 1, m_ptCorner.y + 1};
    if (!Rectangles::IsEmpty(Rectangles::Common(corner, m_rcPart)))
        return Row(m_Second, corner, corner.top)[0] & ColorBits;
    const COLORREF color = ::GetPixel(m_hTarget, corner.left, corner.top);
    return static_cast<std::uint32_t>(GetRValue(color)) << 16 |
           static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
}

void CFadeStep::Blend(double percent)
{
    if (m_Shapes.empty() || !m_First.m_pBits || !m_Second.m_pBits || !m_Result.m_pBits)
        return;
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, Alpha(percent), 0};
    for (const TRect& part : m_Shapes)
        ::GdiAlphaBlend(m_Second.m_hMemDC, part.left, part.top, part.Width(), part.Height(),
                        m_First.m_hMemDC, part.left, part.top, part.Width(), part.Height(), blend);
    ::GdiFlush();
    const std::uint32_t key = KeyColor();
    for (const TRect& part : m_Shapes)
        CopyButKey(part, key);
}

void CFadeStep::CopyButKey(const TRect& part, std::uint32_t key)
{
    for (std::int32_t y = part.top; y < part.bottom; ++y) {
        const auto source = Row(m_Second, part, y);
        const auto target = Row(m_Result, part, y);
        std::transform(source.begin(), source.end(), target.begin(), target.begin(),
                       [key](std::uint32_t blended, std::uint32_t shown) {
                           return (blended & ColorBits) != key ? blended : shown;
                       });
    }
}

void CFadeStep::Finish() const
{
    if (m_Result.m_pBits)
        ::BitBlt(m_hTarget, m_rcPart.left, m_rcPart.top, m_rcPart.Width(), m_rcPart.Height(),
                 m_Result.m_hMemDC, m_rcPart.left, m_rcPart.top, SRCCOPY);
}
