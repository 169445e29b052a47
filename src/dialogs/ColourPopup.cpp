#include "dialogs/ColourPopup.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "dialogs/ColorButton.h"
#include "framework/windowing/CommonDialogs.h"

IMPLEMENT_DYNAMIC(CColourPopup, CWnd)

BEGIN_MESSAGE_MAP(CColourPopup, CWnd)
ON_WM_NCDESTROY()
ON_WM_LBUTTONUP()
ON_WM_PAINT()
ON_WM_MOUSEMOVE()
ON_WM_KEYDOWN()
ON_WM_QUERYNEWPALETTE()
ON_WM_PALETTECHANGED()
ON_WM_KILLFOCUS()
ON_WM_ACTIVATEAPP()
END_MESSAGE_MAP()

using PopupLayout::AutoBox;
using PopupLayout::EArrow;
using PopupLayout::MoreBox;
using PopupLayout::NoCell;

CColourPopup::CColourPopup(CPoint point, COLORREF cr, CWnd* pButton, LPCWSTR lpszAutoCaption,
                           LPCWSTR lpszMoreCaption)
    : m_nEdge(::GetSystemMetrics(SM_CXEDGE)), m_strAutoCaption(lpszAutoCaption),
      m_strMoreCaption(lpszMoreCaption), m_crOpening(cr), m_crResult(cr), m_pButton(pButton),
      m_hButton(pButton->m_hWnd)
{
    m_nCellSize = PopupLayout::CellSize(m_nCellSize, m_nEdge);
    MakeFont();
    MakePalette();
    Open(point);
    m_bOpening = false;
}

// The window is visible at once and takes the activation, so a host may already destroy it.
void CColourPopup::Open(CPoint point)
{
    const LPCWSTR looks =
        AfxRegisterWndClass(CS_SAVEBITS | CS_CLASSDC | CS_HREDRAW | CS_VREDRAW, nullptr,
                            reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_BTNFACE + 1)), nullptr);
    if (!CreateEx(0, looks, nullptr, WS_POPUP | WS_VISIBLE, point.x, point.y, 100, 100, m_hButton,
                  nullptr))
        return;
    Layout();
    if (m_hWnd)
        MakeToolTips();
    m_nPicked = CellForColor(m_crOpening);
    if (m_hWnd)
        SetCapture();
}

void CColourPopup::MakeFont()
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize =
        offsetof(NONCLIENTMETRICSW, iPaddedBorderWidth); // every system knows these 500 bytes
    if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
        m_Font.CreateFontIndirect(&metrics.lfMessageFont);
}

void CColourPopup::MakePalette()
{
    std::vector<BYTE> block(offsetof(LOGPALETTE, palPalEntry) +
                            ColourTable::Count * sizeof(PALETTEENTRY));
    auto* const palette = reinterpret_cast<LOGPALETTE*>(block.data());
    palette->palVersion = 0x300;
    palette->palNumEntries = ColourTable::Count;
    PALETTEENTRY* entry = palette->palPalEntry;
    for (const ColourTable::TEntry& named : ColourTable::Entries)
        *entry++ = {GetRValue(named.colour), GetGValue(named.colour), GetBValue(named.colour), 0};
    m_Palette.CreatePalette(palette);
}

void CColourPopup::Layout()
{
    TSize autoText;
    TSize moreText;
    {
        CClientDC dc(this);
        CFont* const before = dc.SelectObject(&m_Font);
        autoText = dc.GetTextExtent(m_strAutoCaption);
        moreText = dc.GetTextExtent(m_strMoreCaption);
        dc.SelectObject(before);
    }
    CRect window;
    GetWindowRect(window);
    CRect button;
    ::GetWindowRect(m_hButton, button);
    const PopupLayout::TSurroundings around{
        window.TopLeft(),
        {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)},
        button.Height()};
    const auto place = PopupLayout::Layout(m_nCells, m_nCellSize, m_nEdge,
                                           m_strAutoCaption.IsEmpty() ? nullptr : &autoText,
                                           m_strMoreCaption.IsEmpty() ? nullptr : &moreText, around);
    m_nColumns = place.grid.columns;
    m_nRows = place.grid.rows;
    m_rcAuto = place.grid.autoBox;
    m_rcMore = place.grid.moreBox;
    m_rcFrame = place.frame;
    MoveWindow(m_rcFrame);
}

void CColourPopup::MakeToolTips()
{
    if (!m_ToolTip.Create(this))
        return;
    for (int cell = 0; cell < m_nCells; ++cell) {
        const CRect place = PopupLayout::CellRect(Grid(), cell);
        m_ToolTip.AddTool(this, CString(ColourTable::Entries[static_cast<std::size_t>(cell)].name),
                          place, static_cast<UINT_PTR>(cell + 1));
    }
}

PopupLayout::TGrid CColourPopup::Grid() const noexcept
{
    return {m_nCells,
            m_nColumns,
            m_nRows,
            m_nCellSize,
            m_nEdge,
            !m_strAutoCaption.IsEmpty(),
            !m_strMoreCaption.IsEmpty(),
            m_rcAuto,
            m_rcMore};
}

int CColourPopup::CellForColor(COLORREF cr) const noexcept
{
    if (cr == CLR_DEFAULT && !m_strAutoCaption.IsEmpty())
        return AutoBox;
    return ColourTable::Find(cr).value_or(m_strMoreCaption.IsEmpty() ? NoCell : MoreBox);
}

BOOL CColourPopup::PreTranslateMessage(MSG* pMsg)
{
    // The colour dialog's messages come by as well, for the popup owns it; its mouse is its own.
    if (m_bDialogOpen)
        return CWnd::PreTranslateMessage(pMsg);
    if (m_ToolTip.m_hWnd)
        m_ToolTip.RelayEvent(pMsg);
    const HWND capture = ::GetCapture();
    if (capture && capture != m_hWnd) {
        SetCapture();
        return TRUE;
    }
    return CWnd::PreTranslateMessage(pMsg);
}

void CColourPopup::SendButton(UINT message, COLORREF cr) const
{
    // The button may be gone, and its handle another window's.
    if (FromHandlePermanent(m_hButton) == m_pButton)
        ::SendMessageW(m_hButton, message, cr, 0);
}

void CColourPopup::SetHot(int cell)
{
    {
        CClientDC dc(this);
        DrawPart(dc, std::exchange(m_nHot, NoCell));
        m_nHot = cell > m_nCells ? MoreBox : cell;
        DrawPart(dc, m_nHot);
    }
    COLORREF shown = m_crOpening;
    if (m_nHot == AutoBox)
        shown = m_crResult = CLR_DEFAULT;
    else if (m_nHot >= 0)
        shown = m_crResult = ColourTable::Entries[static_cast<std::size_t>(m_nHot)].colour;
    SendButton(CBM_COLORCHANGE, shown);
}

bool CColourPopup::AskForColor(UINT& message)
{
    const std::weak_ptr<const int> life = m_life;
    m_bDialogOpen = 1;
    CColorDialog dialog(m_crOpening, CC_ANYCOLOR | CC_FULLOPEN, this);
    const bool chosen = dialog.DoModal() == IDOK;
    if (life.expired())
        return false;
    if (chosen) {
        m_crResult = dialog.GetColor();
    } else {
        message = CBM_CANCEL;
        m_crResult = m_crOpening;
    }
    m_bDialogOpen = 0;
    return true;
}

void CColourPopup::Finish(UINT message)
{
    ::ReleaseCapture();
    if (message == CBM_CANCEL)
        m_crResult = m_crOpening;
    else if (m_nHot == MoreBox && !AskForColor(message))
        return;
    const std::weak_ptr<const int> life = m_life;
    SendButton(message, m_crResult);
    if (!life.expired() && !m_bDialogOpen)
        DestroyWindow();
}

void CColourPopup::OnNcDestroy()
{
    CWnd::OnNcDestroy();
    if (!m_bOpening)
        delete this;
}

void CColourPopup::OnLButtonUp(UINT, CPoint)
{
    Default();
    const DWORD position = ::GetMessagePos();
    Finish(m_rcFrame.PtInRect(CPoint(static_cast<LPARAM>(position))) ? CBM_ACCEPT : CBM_CANCEL);
}

void CColourPopup::OnMouseMove(UINT, CPoint point)
{
    const std::weak_ptr<const int> life = m_life;
    const int hit = PopupLayout::HitTest(Grid(), point);
    if (hit != NoCell && hit != m_nHot)
        SetHot(hit);
    if (!life.expired())
        Default();
}

void CColourPopup::OnKeyDown(UINT nChar, UINT, UINT)
{
    const auto move = [this](EArrow arrow) { SetHot(PopupLayout::Move(Grid(), m_nHot, arrow)); };
    switch (nChar) {
    case VK_LEFT:
        return move(EArrow::Left);
    case VK_UP:
        return move(EArrow::Up);
    case VK_RIGHT:
        return move(EArrow::Right);
    case VK_DOWN:
        return move(EArrow::Down);
    case VK_ESCAPE:
        m_crResult = m_crOpening;
        return Finish(CBM_CANCEL);
    case VK_RETURN:
    case VK_SPACE:
        return Finish(CBM_ACCEPT);
    default:
        Default();
    }
}

BOOL CColourPopup::OnQueryNewPalette()
{
    Invalidate();
    return static_cast<BOOL>(Default());
}

void CColourPopup::OnPaletteChanged(CWnd* pFocusWnd)
{
    Default();
    if (!pFocusWnd || pFocusWnd->m_hWnd != m_hWnd)
        Invalidate();
}

void CColourPopup::OnKillFocus(CWnd*)
{
    Default();
    ::ReleaseCapture();
}

void CColourPopup::OnActivateApp(BOOL bActive, DWORD)
{
    Default();
    if (!bActive)
        Finish(CBM_CANCEL);
}
