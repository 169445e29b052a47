#include "dialogs/ColorButtonDrawing.h"

#include <array>

namespace
{

const CSize ArrowSize(4, 2);

void DrawFace(CDC& dc, CRect face, UINT state)
{
    UINT look = DFCS_BUTTONPUSH | DFCS_ADJUSTRECT;
    if (state & ODS_SELECTED)
        look |= DFCS_PUSHED;
    if (state & ODS_DISABLED)
        look |= DFCS_INACTIVE;
    dc.DrawFrameControl(face, DFC_BUTTON, look);
}

// A triangle that points down and fills the box.
void DrawArrow(CDC& dc, const CRect& box, COLORREF colour)
{
    const std::array<POINT, 3> corners = {
        {{box.left, box.top}, {box.right, box.top}, {box.left + box.Width() / 2, box.bottom}}};
    CPen pen(PS_SOLID, 1, colour);
    CBrush brush(colour);
    const int saved = dc.SaveDC();
    dc.SelectObject(&pen);
    dc.SelectObject(&brush);
    dc.SetPolyFillMode(WINDING);
    dc.Polygon(corners.data(), static_cast<int>(corners.size()));
    dc.RestoreDC(saved);
}

void DrawField(CDC& dc, const CRect& field, COLORREF colour)
{
    CBrush brush(colour);
    dc.FillRect(field, &brush);
    ::FrameRect(dc, field, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
}

} // namespace

void ColorButtonDrawing::Draw(CDC& dc, const CRect& item, UINT state, COLORREF colour)
{
    const int xEdge = ::GetSystemMetrics(SM_CXEDGE);
    const bool disabled = (state & ODS_DISABLED) != 0;
    DrawFace(dc, item, state);

    CRect rest = item;
    if (state & ODS_SELECTED)
        rest.OffsetRect(1, 1);
    if (state & ODS_FOCUS) {
        const CRect focus(rest.left, rest.top, rest.right - 1, rest.bottom);
        dc.DrawFocusRect(focus);
    }
    rest.DeflateRect(xEdge, ::GetSystemMetrics(SM_CYEDGE));

    const CPoint arrow(rest.right - xEdge / 2 - ArrowSize.cx,
                       rest.top + (rest.Height() - ArrowSize.cy) / 2);
    DrawArrow(dc, CRect(arrow, ArrowSize), disabled ? ::GetSysColor(COLOR_GRAYTEXT) : 0);
    rest.right = arrow.x - xEdge / 2;
    dc.DrawEdge(rest, EDGE_ETCHED, BF_RIGHT);
    rest.right -= 2 * xEdge + 1;
    if (!disabled)
        DrawField(dc, rest, colour);
}
