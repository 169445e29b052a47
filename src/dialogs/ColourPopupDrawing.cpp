// How the popup and its parts look.

#include "dialogs/ColourPopup.h"

using PopupLayout::AutoBox;
using PopupLayout::MoreBox;

namespace
{

// A device with a palette shows the table's own colours while one of these lives.
class CPaletteInUse
{
public:
    CPaletteInUse(CDC& dc, CPalette& palette) : m_dc(dc)
    {
        if (!(dc.GetDeviceCaps(RASTERCAPS) & RC_PALETTE))
            return;
        m_before = dc.SelectPalette(&palette, FALSE);
        dc.RealizePalette();
    }
    CPaletteInUse(const CPaletteInUse&) = delete;
    CPaletteInUse& operator=(const CPaletteInUse&) = delete;
    ~CPaletteInUse()
    {
        if (m_before)
            m_dc.SelectPalette(m_before, FALSE);
    }

private:
    CDC& m_dc;
    CPalette* m_before = nullptr;
};

COLORREF PaletteColour(int cell) noexcept
{
    return 0x02000000 | ColourTable::Entries[static_cast<std::size_t>(cell)].colour;
}

} // namespace

void CColourPopup::DrawPart(CDC& dc, int part)
{
    if (part == AutoBox)
        DrawAuto(dc);
    else if (part == MoreBox)
        DrawMore(dc);
    else if (part >= 0 && part < m_nCells)
        DrawCell(dc, part);
}

void CColourPopup::DrawEdgeOf(CDC& dc, CRect box, int part) const
{
    if (part == m_nHot)
        dc.DrawEdge(box, BDR_RAISEDINNER, BF_RECT);
    else if (part == m_nPicked)
        dc.DrawEdge(box, BDR_SUNKENOUTER, BF_RECT);
}

void CColourPopup::DrawCell(CDC& dc, int cell)
{
    const CPaletteInUse palette(dc, m_Palette);
    CRect place = PopupLayout::CellRect(Grid(), cell);
    const bool pickedOnly = cell == m_nPicked && cell != m_nHot;
    dc.FillSolidRect(place, ::GetSysColor(pickedOnly ? COLOR_BTNHIGHLIGHT : COLOR_BTNFACE));
    DrawEdgeOf(dc, place, cell);

    place.DeflateRect(m_nEdge + 1, m_nEdge + 1);
    CBrush brush(PaletteColour(cell));
    CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
    CBrush* const brushBefore = dc.SelectObject(&brush);
    CPen* const penBefore = dc.SelectObject(&pen);
    dc.Rectangle(place);
    dc.SelectObject(penBefore);
    dc.SelectObject(brushBefore);
}

void CColourPopup::DrawCaption(CDC& dc, CRect box, const CString& caption)
{
    const int mode = dc.SetBkMode(TRANSPARENT);
    CFont* const before = dc.SelectObject(&m_Font);
    dc.DrawText(caption, box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    dc.SelectObject(before);
    dc.SetBkMode(mode);
}

void CColourPopup::DrawAuto(CDC& dc)
{
    dc.FillSolidRect(m_rcAuto, ::GetSysColor(COLOR_BTNFACE));
    CRect box = m_rcAuto;
    box.DeflateRect(1, 1);
    const bool pickedOnly = m_nPicked == AutoBox && m_nHot != AutoBox;
    dc.FillSolidRect(box, ::GetSysColor(pickedOnly ? COLOR_3DLIGHT : COLOR_BTNFACE));

    CRect frame = box;
    frame.DeflateRect(2 * m_nEdge, 2 * m_nEdge);
    CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
    CPen* const penBefore = dc.SelectObject(&pen);
    CGdiObject* const brushBefore = dc.SelectStockObject(NULL_BRUSH);
    dc.Rectangle(frame);
    dc.SelectObject(static_cast<CBrush*>(brushBefore));
    dc.SelectObject(penBefore);

    DrawEdgeOf(dc, box, AutoBox);
    DrawCaption(dc, box, m_strAutoCaption);
}

void CColourPopup::DrawMore(CDC& dc)
{
    CRect box = m_rcMore;
    box.top += 2 * m_nEdge;
    dc.FillSolidRect(box, ::GetSysColor(COLOR_BTNFACE));
    const int left = m_rcMore.left + 2 * m_nEdge;
    const int width = m_rcMore.Width() - 4 * m_nEdge;
    dc.FillSolidRect(left, m_rcMore.top, width, 1, ::GetSysColor(COLOR_BTNSHADOW));
    dc.FillSolidRect(left, m_rcMore.top + 1, width, 1, ::GetSysColor(COLOR_BTNHIGHLIGHT));

    box.DeflateRect(1, 1);
    const bool pickedOnly = m_nPicked == MoreBox && m_nHot != MoreBox;
    dc.FillSolidRect(box, ::GetSysColor(pickedOnly ? COLOR_3DLIGHT : COLOR_BTNFACE));
    DrawEdgeOf(dc, box, MoreBox);
    DrawCaption(dc, box, m_strMoreCaption);
}

void CColourPopup::OnPaint()
{
    CPaintDC dc(this);
    if (!m_strAutoCaption.IsEmpty())
        DrawAuto(dc);
    for (int cell = 0; cell < m_nCells; ++cell)
        DrawCell(dc, cell);
    if (!m_strMoreCaption.IsEmpty())
        DrawMore(dc);
    CRect client;
    GetClientRect(client);
    dc.DrawEdge(client, EDGE_RAISED, BF_RECT);
}
