#include "draw/KeptBuffer.h"

namespace
{
constexpr ULONGLONG Pause = 2000; // milliseconds
} // namespace

bool CKeptBuffer::Start(CDC* pTarget, CSize size)
{
    if (m_bBusy)
        return false;
    m_nLastFrame = ::GetTickCount64();
    if (size != m_size)
        Free();
    if (!m_bitmap.m_hObject)
        Make(pTarget, size);
    m_nState = m_bitmap.m_hObject ? m_dc.SaveDC() : 0;
    m_bBusy = m_nState != 0;
    return m_bBusy;
}

void CKeptBuffer::Make(CDC* pTarget, CSize size)
{
    if (!m_dc.CreateCompatibleDC(pTarget) ||
        !m_bitmap.CreateCompatibleBitmap(pTarget, size.cx, size.cy) || !::SelectObject(m_dc, m_bitmap)) {
        Free();
        return;
    }
    m_size = size;
}

void CKeptBuffer::Finish(CDC* pTarget)
{
    m_dc.RestoreDC(m_nState); // a clip region that a frame leaves would cut this copy and the next
    pTarget->BitBlt(0, 0, m_size.cx, m_size.cy, &m_dc, 0, 0, SRCCOPY);
    m_bBusy = false;
}

bool CKeptBuffer::IsIdle() const noexcept
{
    return m_bitmap.m_hObject && !m_bBusy && ::GetTickCount64() - m_nLastFrame >= Pause;
}

void CKeptBuffer::Free() noexcept
{
    if (m_bBusy)
        return;
    m_dc.DeleteDC(); // lets go of the bitmap, whatever becomes of a selection
    m_bitmap.DeleteObject();
}
