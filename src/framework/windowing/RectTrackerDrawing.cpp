// The look of a tracker: outline, hatching and handles.

#include "base/Colors.h"
#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/RectTracker.h"
#include "framework/windowing/Window.h"

namespace
{
constexpr int HandleCount = 8;

// Diagonals four pixels apart: the clear bits are drawn in the text colour.
class CHatchBrush : public CBrush
{
public:
    CHatchBrush()
    {
        static const WORD rows[8] = {0xEE, 0xDD, 0xBB, 0x77, 0xEE, 0xDD, 0xBB, 0x77};
        CBitmap pattern;
        if (pattern.CreateBitmap(8, 8, 1, 1, rows))
            Attach(::CreatePatternBrush(pattern));
    }
};

// The destination stays where the pattern is white.
constexpr DWORD MaskByPattern = 0x00A000C9;
} // namespace

void CRectTracker::Draw(CDC* pDC) const
{
    const int saved = pDC->SaveDC();
    CRect rect(m_rect);
    rect.NormalizeRect();

    if (m_nStyle & (solidLine | dottedLine)) {
        CPen pen(m_nStyle & dottedLine ? PS_DOT : PS_SOLID, 1, Black);
        pDC->SelectStockObject(NULL_BRUSH);
        CPen* old = pDC->SelectObject(&pen);
        pDC->SetROP2(R2_COPYPEN);
        CRect line(rect);
        line.InflateRect(1, 1);
        pDC->Rectangle(&line);
        pDC->SelectObject(old);
    }

    if (m_nStyle & (hatchInside | hatchedBorder))
        DrawHatch(pDC, rect);

    if (m_nStyle & (resizeInside | resizeOutside)) {
        const UINT mask = GetHandleMask();
        for (int handle = 0; handle < HandleCount; ++handle) {
            if ((mask & 1u << handle) == 0)
                continue;
            CRect square;
            GetHandleRect(handle, &square);
            pDC->FillSolidRect(&square, Black);
        }
    }
    pDC->RestoreDC(saved);
}

void CRectTracker::DrawHatch(CDC* pDC, const CRect& rect) const
{
    CHatchBrush brush;
    CBrush* old = pDC->SelectObject(&brush);
    pDC->SetTextColor(Black);
    pDC->SetBkColor(White);
    CRect outer;
    GetTrueRect(&outer);

    if (m_nStyle & hatchInside)
        pDC->PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), MaskByPattern);

    if (m_nStyle & hatchedBorder) {
        pDC->PatBlt(outer.left, outer.top, outer.Width(), Wrap::Subtract(rect.top, outer.top), PATCOPY);
        pDC->PatBlt(outer.left, rect.bottom, outer.Width(), Wrap::Subtract(outer.bottom, rect.bottom),
                    PATCOPY);
        pDC->PatBlt(outer.left, rect.top, Wrap::Subtract(rect.left, outer.left), rect.Height(), PATCOPY);
        pDC->PatBlt(rect.right, rect.top, Wrap::Subtract(outer.right, rect.right), rect.Height(),
                    PATCOPY);
    }
    pDC->SelectObject(old);
}

void CRectTracker::DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd)
{
    CRect rect(lpRect);
    rect.NormalizeRect();
    if (pWndClipTo)
        ::MapWindowPoints(*pWnd, *pWndClipTo, reinterpret_cast<LPPOINT>(&rect), 2);
    // By inversion, so that the same call draws and removes.
    pDC->DrawFocusRect(&rect);
}
