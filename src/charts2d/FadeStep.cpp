#include "charts2d/FadeStep.h"

#include <algorithm>

#include "base/Trunc.h"

CFadeStep::TScratch::TScratch(HDC target, TSize window)
    : m_hMemDC(::CreateCompatibleDC(target)),
      m_hBitmap(::CreateCompatibleBitmap(target, window.cx, window.cy)),
      m_hOldBitmap(::SelectObject(m_hMemDC, m_hBitmap))
{
    ::BitBlt(m_hMemDC, 0, 0, window.cx, window.cy, target, 0, 0, SRCCOPY);
}

CFadeStep::TScratch::~TScratch()
{
    ::SelectObject(m_hMemDC, m_hOldBitmap);
    ::DeleteObject(m_hBitmap);
    ::DeleteDC(m_hMemDC);
}

CFadeStep::CFadeStep(HDC target, TSize window)
    : m_hTarget(target), m_First(target, window), m_Second(target, window)
{
}

BYTE CFadeStep::Alpha(double percent) noexcept
{
    return static_cast<BYTE>(std::clamp(Trunc(percent / 100.0 * 255.0), 0, 255));
}

void CFadeStep::Blend(TPoint position, TSize size, const TRect& changed, double percent) const
{
    const RECT area{position.x, position.y, position.x + size.cx, position.y + size.cy};
    const RECT wanted{changed.left, changed.top, changed.right, changed.bottom};
    RECT part;
    if (!::IntersectRect(&part, &area, &wanted))
        return;
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;

    const BLENDFUNCTION blend{AC_SRC_OVER, 0, Alpha(percent), 0};
    ::GdiAlphaBlend(m_Second.m_hMemDC, part.left, part.top, width, height, m_First.m_hMemDC, part.left,
                    part.top, width, height, blend);
    const COLORREF key = ::GetPixel(m_Second.m_hMemDC, position.x, position.y);
    ::GdiTransparentBlt(m_hTarget, part.left, part.top, width, height, m_Second.m_hMemDC, part.left,
                        part.top, width, height, key);
}
