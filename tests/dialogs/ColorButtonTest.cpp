// The colour button by itself: its look, and what it makes of the popup's messages.

#include <gtest/gtest.h>

#include "dialogs/ColourHost.h"
#include "support/Picture.h"

namespace
{

class ColorButton : public testing::Test
{
protected:
    CColourHost m_host;
    CColorButton& m_button = m_host.m_button;
    CBoard& m_board = m_host.m_board;

    [[nodiscard]] Picture Look()
    {
        HostWindow::Pump();
        m_button.RedrawWindow();
        return Picture(m_button);
    }
};

constexpr COLORREF Red = RGB(255, 0, 0);
constexpr COLORREF Blue = RGB(0, 0, 255);

} // namespace

TEST_F(ColorButton, StartsWithTheAutomaticColourAndItsCaptions)
{
    EXPECT_EQ(m_button.GetColor(), 0xFF000000u);
    EXPECT_EQ(m_button.m_crAutomatic, ::GetSysColor(COLOR_APPWORKSPACE));
    EXPECT_EQ(m_button.m_strAutoCaption, L"Automatic");
    EXPECT_EQ(m_button.m_strMoreCaption, L"More Colors...");
    EXPECT_EQ(m_button.m_bOpen, 0);
    EXPECT_EQ(m_button.m_bFollowPointer, 0);
}

TEST_F(ColorButton, RunTimeClassMakesOne)
{
    const CRuntimeClass* const record = m_button.GetRuntimeClass();
    EXPECT_STREQ(record->m_lpszClassName, "CColorButton");
    const std::unique_ptr<CObject> made(record->CreateObject());
    EXPECT_TRUE(made->IsKindOf(record));
}

TEST_F(ColorButton, DrawsItselfWhetherCreatedOrTakenFromATemplate)
{
    EXPECT_EQ(m_button.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_OWNERDRAW));
    const HWND plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | BS_DEFPUSHBUTTON, 0, 0, 9, 9,
                                         m_board, reinterpret_cast<HMENU>(5), nullptr, nullptr);
    CColorButton taken;
    ASSERT_TRUE(taken.SubclassWindow(plain));
    EXPECT_EQ(taken.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_OWNERDRAW));
}

TEST_F(ColorButton, ShowsItsColourAtOnceInABlackFrame)
{
    m_button.SetColor(Red); // without a message of the queue
    const Picture picture(m_button);
    EXPECT_EQ(picture.At(40, 12), Red);
    const int edge = ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(picture.At(edge, 12), 0u) << "the frame's left side";
    EXPECT_EQ(picture.At(edge + 1, 12), Red);
    // From the right: edge, half an edge, arrow, half an edge, separator and twice an edge.
    const int right = 100 - edge - edge / 2 - 4 - edge / 2 - 2 * edge - 1;
    EXPECT_EQ(picture.At(right - 1, 12), 0u);
    EXPECT_NE(picture.At(right, 12), 0u);
    EXPECT_EQ(picture.At(right - 2, 12), Red);
}

TEST_F(ColorButton, ShowsTheAutomaticColourForTheDefault)
{
    m_button.m_crAutomatic = Blue;
    m_button.SetColor(CLR_DEFAULT);
    EXPECT_EQ(Look().At(40, 12), Blue);
}

TEST_F(ColorButton, ARequestToDrawWithoutACanvasDrawsNothing)
{
    m_button.SetColor(Red);
    const Picture before = Look();
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = m_button.GetDlgCtrlID();
    item.itemAction = ODA_DRAWENTIRE;
    item.hwndItem = m_button;
    item.rcItem = CRect(0, 0, 100, 25);
    m_board.SendMessage(WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(Look().CountDifferences(before), 0);
}

TEST_F(ColorButton, DisabledButtonShowsNoColourAndAGreyArrow)
{
    m_button.SetColor(Red);
    const CRect arrow(90, 8, 98, 17);
    EXPECT_GT(Look().Count(arrow, 0), 0);
    m_button.EnableWindow(FALSE);
    const Picture picture = Look();
    EXPECT_EQ(picture.Count(Red), 0);
    EXPECT_EQ(picture.Count(arrow, 0), 0);
    EXPECT_GT(picture.Count(arrow, ::GetSysColor(COLOR_GRAYTEXT)), 0);
}

TEST_F(ColorButton, ArrowIsATriangleFourWideAndTwoHigh)
{
    const Picture picture = Look();
    const int edge = ::GetSystemMetrics(SM_CXEDGE);
    const int left = 100 - edge - edge / 2 - 4;
    const int top = edge + (25 - 2 * edge - 2) / 2;
    EXPECT_EQ(picture.Count({left, top, left + 5, top + 1}, 0), 5) << "both ends of the upper side";
    EXPECT_EQ(picture.Count({left, top + 1, left + 5, top + 2}, 0), 3);
    EXPECT_EQ(picture.Count({left, top + 2, left + 5, top + 3}, 0), 1);
    EXPECT_EQ(picture.At(left + 2, top + 2), 0u);
}

TEST_F(ColorButton, PushedButtonMovesItsContents)
{
    m_button.SetColor(Red);
    ::SetFocus(nullptr);
    const int edge = ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(Look().At(edge + 1, 12), Red);
    m_button.SendMessage(BM_SETSTATE, TRUE);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(edge + 1, 12), 0u) << "the frame has moved by one";
    EXPECT_EQ(picture.At(edge + 2, 12), Red);
}

TEST_F(ColorButton, OpenButtonLooksPushedAndFocused)
{
    m_button.SetColor(Red);
    m_button.SendMessage(BM_SETSTATE, TRUE);
    const Picture pushed = Look();
    m_button.SendMessage(BM_SETSTATE, FALSE);
    ::SetFocus(nullptr);
    EXPECT_GT(Look().CountDifferences(pushed), 0);
    m_button.m_bOpen = 1;
    EXPECT_EQ(Look().CountDifferences(pushed), 0);
    m_button.m_bOpen = 0;
}

TEST_F(ColorButton, AcceptedColourClosesAcceptsAndChanges)
{
    m_button.m_bOpen = 1;
    EXPECT_EQ(m_button.SendMessage(CBM_ACCEPT, Red), 1);
    EXPECT_EQ(m_button.m_bOpen, 0);
    EXPECT_EQ(m_button.GetColor(), Red);
    EXPECT_EQ(
        m_board.m_notes,
        (std::vector<TNote>{{CBM_CLOSEUP, Red, 77}, {CBM_ACCEPT, Red, 77}, {CBM_COLORCHANGE, Red, 77}}));
}

TEST_F(ColorButton, AcceptedColourThatItHasAlreadyIsNoChange)
{
    m_button.SetColor(Red);
    m_button.SendMessage(CBM_ACCEPT, Red);
    EXPECT_EQ(m_board.Take(), (std::vector<UINT>{CBM_CLOSEUP, CBM_ACCEPT}));
}

TEST_F(ColorButton, CancelTakesTheGivenColourBack)
{
    m_button.m_bOpen = 1;
    EXPECT_EQ(m_button.SendMessage(CBM_CANCEL, Blue), 1);
    EXPECT_EQ(m_button.m_bOpen, 0);
    EXPECT_EQ(m_button.GetColor(), Blue);
    EXPECT_EQ(m_board.m_notes, (std::vector<TNote>{{CBM_CLOSEUP, Blue, 77}, {CBM_CANCEL, Blue, 77}}));
}

TEST_F(ColorButton, ColourUnderThePointerIsPassedOnAndFollowedOnlyOnWish)
{
    EXPECT_EQ(m_button.SendMessage(CBM_COLORCHANGE, Red), 1);
    EXPECT_EQ(m_button.GetColor(), CLR_DEFAULT);
    EXPECT_EQ(m_board.m_notes, (std::vector<TNote>{{CBM_COLORCHANGE, Red, 77}}));
    m_button.m_bFollowPointer = 1;
    m_button.SendMessage(CBM_COLORCHANGE, Blue);
    EXPECT_EQ(m_button.GetColor(), Blue);
}

TEST_F(ColorButton, ClickOpensThePopupUnderItAndSaysSo)
{
    m_button.SetColor(Red);
    CColourPopup* const popup = m_host.Click();
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(m_button.m_bOpen, 1);
    EXPECT_EQ(m_board.m_notes, (std::vector<TNote>{{CBM_DROPDOWN, Red, 77}}));
    CRect button;
    m_button.GetWindowRect(button);
    CRect window;
    popup->GetWindowRect(window);
    EXPECT_EQ(window.TopLeft(), CPoint(button.left, button.bottom));
    EXPECT_EQ(::GetCapture(), popup->m_hWnd);
    EXPECT_EQ(::GetWindow(*popup, GW_OWNER), m_host.m_host.Handle()) << "the button's top-level window";
}

TEST_F(ColorButton, ParentThatDestroysItInAnyMessageIsSurvived)
{
    for (const UINT end : {CBM_CLOSEUP, CBM_ACCEPT, CBM_COLORCHANGE}) {
        auto button = std::make_unique<CColorButton>();
        button->Create(L"", WS_VISIBLE, CRect(0, 0, 30, 20), &m_board, 5);
        m_board.m_onNote = [&](UINT message) {
            if (message == end)
                button.reset();
        };
        ::SendMessageW(*button, CBM_ACCEPT, Red, 0);
        EXPECT_EQ(button, nullptr);
        m_board.m_onNote = nullptr;
    }
}
