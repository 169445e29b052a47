// How the colour popup looks, and its tool tips.

#include <gtest/gtest.h>

#include "dialogs/ColourHost.h"
#include "support/Picture.h"

using PopupLayout::AutoBox;

namespace
{

constexpr COLORREF Unknown = RGB(1, 2, 3); // in no cell
constexpr int RedCell = 16;
constexpr COLORREF Red = RGB(255, 0, 0);

class ColourPopupLook : public testing::Test
{
protected:
    CColourHost m_host;
};

} // namespace

TEST_F(ColourPopupLook, EachCellHasItsNameAsToolTip)
{
    CColourPopup* const popup = m_host.OpenOn(Unknown);
    ASSERT_EQ(popup->m_ToolTip.SendMessage(TTM_GETTOOLCOUNT), 40);
    for (int cell = 0; cell < 40; ++cell) {
        wchar_t text[80] = {};
        const CPoint middle = CColourHost::MiddleOf(*popup, cell);
        TTHITTESTINFOW hit{};
        hit.hwnd = *popup;
        hit.pt = middle;
        hit.ti.cbSize = sizeof hit.ti;
        hit.ti.lpszText = text;
        ASSERT_TRUE(popup->m_ToolTip.SendMessage(TTM_HITTESTW, 0, reinterpret_cast<LPARAM>(&hit)));
        EXPECT_EQ(CString(text), CString(ColourTable::Entries[static_cast<std::size_t>(cell)].name));
    }
}

TEST_F(ColourPopupLook, CellsShowTheirColours)
{
    CColourPopup* const popup = m_host.OpenOn(Unknown);
    popup->RedrawWindow();
    const Picture picture(*popup);
    for (int cell = 0; cell < 40; ++cell) {
        const CPoint middle = CColourHost::MiddleOf(*popup, cell);
        EXPECT_EQ(picture.At(middle.x, middle.y),
                  ColourTable::Entries[static_cast<std::size_t>(cell)].colour);
    }
}

TEST_F(ColourPopupLook, PickedCellIsSunkenAndTheHotOneRaised)
{
    CColourPopup* const popup = m_host.OpenOn(Red);
    popup->RedrawWindow();
    const CPoint red = CColourHost::MiddleOf(*popup, RedCell);
    const int half = popup->m_nCellSize / 2;
    const CPoint corner(red.x - half, red.y - half); // the cell's own
    {
        const Picture picture(*popup);
        EXPECT_EQ(picture.At(corner.x, corner.y), ::GetSysColor(COLOR_BTNSHADOW));
        EXPECT_EQ(picture.At(corner.x + 1, corner.y + 1), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    }
    CColourHost::MoveTo(*popup, red);
    {
        const Picture picture(*popup);
        EXPECT_EQ(picture.At(corner.x, corner.y), ::GetSysColor(COLOR_BTNHIGHLIGHT));
        EXPECT_EQ(picture.At(corner.x + 1, corner.y + 1), ::GetSysColor(COLOR_BTNFACE));
    }
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, RedCell + 1));
    const Picture picture(*popup);
    EXPECT_EQ(picture.At(corner.x, corner.y), ::GetSysColor(COLOR_BTNSHADOW))
        << "redrawn without its heat";
}

TEST_F(ColourPopupLook, PickedBoxIsLighterUntilItIsHot)
{
    CColourPopup* const popup = m_host.OpenOn(CLR_DEFAULT);
    popup->RedrawWindow();
    const int x = popup->m_rcAuto.left + 3;
    const int y = popup->m_rcAuto.top + 3;
    EXPECT_EQ(Picture(*popup).At(x, y), ::GetSysColor(COLOR_3DLIGHT));
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, AutoBox));
    EXPECT_EQ(Picture(*popup).At(x, y), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(ColourPopupLook, LineSeparatesTheLowerBox)
{
    CColourPopup* const popup = m_host.OpenOn(Red);
    popup->RedrawWindow();
    const Picture picture(*popup);
    const int left = popup->m_rcMore.left + 2 * popup->m_nEdge;
    const int right = popup->m_rcMore.right - 2 * popup->m_nEdge;
    const int top = popup->m_rcMore.top;
    EXPECT_EQ(picture.Count({left, top, right, top + 1}, ::GetSysColor(COLOR_BTNSHADOW)), right - left);
    EXPECT_EQ(picture.Count({left, top + 1, right, top + 2}, ::GetSysColor(COLOR_BTNHIGHLIGHT)),
              right - left);
}

TEST_F(ColourPopupLook, ChangedPaletteOfAnotherWindowRepaintsIt)
{
    CColourPopup* const popup = m_host.OpenOn(Red);
    popup->RedrawWindow();
    popup->SendMessage(WM_PALETTECHANGED, reinterpret_cast<WPARAM>(popup->m_hWnd));
    EXPECT_FALSE(::GetUpdateRect(*popup, nullptr, FALSE));
    popup->SendMessage(WM_PALETTECHANGED, reinterpret_cast<WPARAM>(m_host.m_board.m_hWnd));
    EXPECT_TRUE(::GetUpdateRect(*popup, nullptr, FALSE));
    popup->RedrawWindow();
    popup->SendMessage(WM_QUERYNEWPALETTE);
    EXPECT_TRUE(::GetUpdateRect(*popup, nullptr, FALSE));
}
