// The colour popup: mouse, keys, and the system's colour dialog behind it.

#include <gtest/gtest.h>

#include <string>

#include "dialogs/ColourHost.h"
#include "windowing/DialogHost.h"

using PopupLayout::AutoBox;
using PopupLayout::MoreBox;
using PopupLayout::NoCell;

namespace
{

constexpr COLORREF Unknown = RGB(1, 2, 3); // in no cell
constexpr int RedCell = 16;
constexpr COLORREF Red = RGB(255, 0, 0);

class ColourPopup : public testing::Test
{
protected:
    CColourHost m_host;
    CColorButton& m_button = m_host.m_button;
    CBoard& m_board = m_host.m_board;

    CColourPopup* OpenOn(COLORREF colour) { return m_host.OpenOn(colour); }
    // Answers the colour dialog with a button.
    static CModalSteps::CStep AnswerColourDialog(int button)
    {
        return [button]() -> bool {
            const HWND dialog = ::GetActiveWindow();
            wchar_t name[16] = {};
            ::GetClassNameW(dialog, name, 16);
            if (std::wstring(name) != L"#32770" || !::IsWindowVisible(dialog))
                return false;
            ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
            return true;
        };
    }
    void ExpectClosed()
    {
        EXPECT_EQ(m_host.Popup(), nullptr);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(m_button.m_bOpen, 0);
    }
};

} // namespace

TEST_F(ColourPopup, StartsOnTheColourWithNothingHot)
{
    const struct {
        COLORREF colour;
        int picked;
    } cases[] = {{CLR_DEFAULT, AutoBox}, {Red, RedCell}, {0, 0}, {Unknown, MoreBox}};
    for (const auto& [colour, picked] : cases) {
        CColourPopup* const popup = OpenOn(colour);
        ASSERT_NE(popup, nullptr);
        EXPECT_EQ(popup->m_nPicked, picked);
        EXPECT_EQ(popup->m_nHot, NoCell);
        CColourHost::Press(VK_ESCAPE);
    }
}

TEST_F(ColourPopup, BoxesWithoutACaptionDoNotExist)
{
    m_button.m_strAutoCaption = CString();
    m_button.m_strMoreCaption = CString();
    for (const COLORREF colour : {CLR_DEFAULT, Unknown}) {
        CColourPopup* const popup = OpenOn(colour);
        ASSERT_NE(popup, nullptr);
        EXPECT_EQ(popup->m_nPicked, NoCell);
        EXPECT_TRUE(popup->m_rcAuto.IsRectEmpty());
        EXPECT_TRUE(popup->m_rcMore.IsRectEmpty());
        EXPECT_EQ(popup->m_rcFrame.Height(), 5 * popup->m_nCellSize + 2 * popup->m_nEdge);
        CColourHost::Press(VK_ESCAPE);
    }
}

TEST_F(ColourPopup, WindowIsItsFrame)
{
    const CColourPopup* const popup = OpenOn(Red);
    CRect window;
    popup->GetWindowRect(window);
    EXPECT_EQ(window, popup->m_rcFrame);
    EXPECT_EQ(popup->GetStyle() & (WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_BORDER),
              static_cast<DWORD>(WS_POPUP | WS_VISIBLE));
    EXPECT_EQ(::GetClassLongPtrW(*popup, GCL_STYLE), 2115u);
}

TEST_F(ColourPopup, OpensOverTheButtonAtTheScreensLowerEdge)
{
    ::SetWindowPos(m_host.m_host.Handle(), nullptr, 100, ::GetSystemMetrics(SM_CYSCREEN) - 200, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER);
    const CColourPopup* const popup = OpenOn(Red);
    CRect button;
    m_button.GetWindowRect(button);
    EXPECT_EQ(popup->m_rcFrame.bottom, button.top);
}

TEST_F(ColourPopup, PointerMakesCellsAndBoxesHotAndSaysTheirColours)
{
    CColourPopup* const popup = OpenOn(Unknown);
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, RedCell));
    EXPECT_EQ(popup->m_nHot, RedCell);
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, AutoBox));
    EXPECT_EQ(popup->m_nHot, AutoBox);
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, MoreBox));
    EXPECT_EQ(popup->m_nHot, MoreBox);
    EXPECT_EQ(m_board.m_notes, (std::vector<TNote>{{CBM_COLORCHANGE, Red, 77},
                                                   {CBM_COLORCHANGE, CLR_DEFAULT, 77},
                                                   {CBM_COLORCHANGE, Unknown, 77}}));
    EXPECT_EQ(m_button.GetColor(), Unknown);
}

TEST_F(ColourPopup, PointerThatStaysOnACellSaysNothingNew)
{
    CColourPopup* const popup = OpenOn(Unknown);
    const CPoint middle = CColourHost::MiddleOf(*popup, RedCell);
    CColourHost::MoveTo(*popup, middle);
    CColourHost::MoveTo(*popup, middle + CPoint(1, 1));
    EXPECT_EQ(m_board.m_notes.size(), 1u);
    CColourHost::MoveTo(*popup, CPoint(popup->m_rcFrame.Width() + 40, 60));
    EXPECT_EQ(popup->m_nHot, RedCell) << "outside the last cell stays hot";
    EXPECT_EQ(m_board.m_notes.size(), 1u);
}

TEST_F(ColourPopup, ReleaseInsideAcceptsTheHotCell)
{
    CColourPopup* const popup = OpenOn(Unknown);
    const CPoint middle = CColourHost::MiddleOf(*popup, RedCell);
    CColourHost::MoveTo(*popup, middle);
    m_board.m_notes.clear();
    CColourHost::ReleaseAt(*popup, middle);
    EXPECT_EQ(
        m_board.m_notes,
        (std::vector<TNote>{{CBM_CLOSEUP, Red, 77}, {CBM_ACCEPT, Red, 77}, {CBM_COLORCHANGE, Red, 77}}));
    EXPECT_EQ(m_button.GetColor(), Red);
    ExpectClosed();
}

TEST_F(ColourPopup, ReleaseOutsideCancels)
{
    CColourPopup* const popup = OpenOn(Unknown);
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, RedCell));
    m_board.m_notes.clear();
    CColourHost::ReleaseAt(*popup, CPoint(popup->m_rcFrame.Width() + 5, 10));
    EXPECT_EQ(m_board.m_notes,
              (std::vector<TNote>{{CBM_CLOSEUP, Unknown, 77}, {CBM_CANCEL, Unknown, 77}}));
    EXPECT_EQ(m_button.GetColor(), Unknown);
    ExpectClosed();
}

TEST_F(ColourPopup, ReleaseWithNothingHotKeepsTheColour)
{
    CColourPopup* const popup = OpenOn(Unknown);
    CColourHost::ReleaseAt(*popup, CPoint(1, 1)); // the popup's own border
    const std::vector<UINT> messages = m_board.Take();
    EXPECT_EQ(messages, (std::vector<UINT>{CBM_CLOSEUP, CBM_ACCEPT}));
    EXPECT_EQ(m_button.GetColor(), Unknown);
    ExpectClosed();
}

TEST_F(ColourPopup, AutomaticIsTheDefaultColour)
{
    CColourPopup* const popup = OpenOn(Red);
    const CPoint middle = CColourHost::MiddleOf(*popup, AutoBox);
    CColourHost::MoveTo(*popup, middle);
    CColourHost::ReleaseAt(*popup, middle);
    EXPECT_EQ(m_button.GetColor(), CLR_DEFAULT);
}

TEST_F(ColourPopup, ArrowsMoveTheHotCellRoundTheWindow)
{
    CColourPopup* const popup = OpenOn(Unknown);
    const struct {
        UINT key;
        int hot;
    } steps[] = {{VK_DOWN, 0},       {VK_RIGHT, 1},      {VK_DOWN, 9},       {VK_LEFT, 8},
                 {VK_UP, 0},         {VK_UP, AutoBox},   {VK_UP, MoreBox},   {VK_UP, 39},
                 {VK_DOWN, MoreBox}, {VK_DOWN, AutoBox}, {VK_DOWN, 0},       {VK_LEFT, AutoBox},
                 {VK_LEFT, MoreBox}, {VK_LEFT, 39},      {VK_RIGHT, MoreBox}};
    for (const auto& [key, hot] : steps) {
        CColourHost::Press(key);
        EXPECT_EQ(popup->m_nHot, hot) << "key " << key;
    }
    EXPECT_EQ(m_board.m_notes.size(), std::size(steps)) << "each says its colour";
    EXPECT_EQ(m_board.m_notes.front(), (TNote{CBM_COLORCHANGE, 0, 77}));
    EXPECT_EQ(m_board.m_notes.back(), (TNote{CBM_COLORCHANGE, Unknown, 77}));
}

TEST_F(ColourPopup, OtherKeysDoNothing)
{
    CColourPopup* const popup = OpenOn(Unknown);
    for (const UINT key : std::vector<UINT>{VK_TAB, VK_HOME, 'A'})
        CColourHost::Press(key);
    EXPECT_EQ(popup->m_nHot, NoCell);
    EXPECT_EQ(m_host.Popup(), popup);
    EXPECT_TRUE(m_board.m_notes.empty());
}

TEST_F(ColourPopup, EscapeGivesTheColourOfTheOpening)
{
    OpenOn(Unknown);
    m_button.m_bFollowPointer = 1;
    CColourHost::Press(VK_DOWN);
    EXPECT_EQ(m_button.GetColor(), 0u);
    m_board.m_notes.clear();
    CColourHost::Press(VK_ESCAPE);
    EXPECT_EQ(m_board.m_notes,
              (std::vector<TNote>{{CBM_CLOSEUP, Unknown, 77}, {CBM_CANCEL, Unknown, 77}}));
    EXPECT_EQ(m_button.GetColor(), Unknown);
    ExpectClosed();
}

TEST_F(ColourPopup, ReturnAndSpaceAcceptTheHotCell)
{
    for (const UINT key : std::vector<UINT>{VK_RETURN, VK_SPACE}) {
        OpenOn(Unknown);
        CColourHost::Press(VK_DOWN);
        m_board.m_notes.clear();
        CColourHost::Press(key);
        EXPECT_EQ(m_board.Take(), (std::vector<UINT>{CBM_CLOSEUP, CBM_ACCEPT, CBM_COLORCHANGE}));
        EXPECT_EQ(m_button.GetColor(), 0u);
        ExpectClosed();
    }
}

TEST_F(ColourPopup, MoreColoursAsksTheSystemsDialog)
{
    OpenOn(Unknown);
    CColourHost::Press(VK_UP);
    m_board.m_notes.clear();
    const CModalSteps steps({AnswerColourDialog(IDOK)});
    CColourHost::Press(VK_RETURN);
    EXPECT_EQ(m_board.Take(), (std::vector<UINT>{CBM_CLOSEUP, CBM_ACCEPT}));
    EXPECT_EQ(m_button.GetColor(), Unknown) << "the dialog starts from the opening's colour";
    ExpectClosed();
}

TEST_F(ColourPopup, CancelOfTheSystemsDialogCancels)
{
    OpenOn(Unknown);
    CColourHost::Press(VK_DOWN); // a cell that must not be taken
    CColourHost::Press(VK_UP);
    CColourHost::Press(VK_UP);
    m_board.m_notes.clear();
    const CModalSteps steps({AnswerColourDialog(IDCANCEL)});
    CColourHost::Press(VK_RETURN);
    EXPECT_EQ(m_board.m_notes,
              (std::vector<TNote>{{CBM_CLOSEUP, Unknown, 77}, {CBM_CANCEL, Unknown, 77}}));
    EXPECT_EQ(m_button.GetColor(), Unknown);
    ExpectClosed();
}

TEST_F(ColourPopup, SystemsDialogBelongsToThePopupAndShutsOutTheRest)
{
    CColourPopup* const popup = OpenOn(Unknown);
    CColourHost::Press(VK_UP);
    const CModalSteps steps({[&]() -> bool {
                                 const HWND dialog = ::GetActiveWindow();
                                 if (dialog == *popup || ::GetWindow(dialog, GW_OWNER) != *popup)
                                     return false;
                                 EXPECT_EQ(popup->m_bDialogOpen, 1);
                                 EXPECT_FALSE(::IsWindowEnabled(m_host.m_host.Handle()));
                                 // Its own drags keep the mouse.
                                 ::SetCapture(dialog);
                                 ::PostMessageW(dialog, WM_MOUSEMOVE, 0, 0);
                                 return true;
                             },
                             [] {
                                 EXPECT_EQ(::GetCapture(), ::GetActiveWindow());
                                 ::ReleaseCapture();
                             },
                             AnswerColourDialog(IDCANCEL)});
    CColourHost::Press(VK_RETURN);
    EXPECT_EQ(steps.Done(), 3u);
    EXPECT_TRUE(::IsWindowEnabled(m_host.m_host.Handle()));
    ExpectClosed();
}

TEST_F(ColourPopup, DeactivatedProgramCancels)
{
    CColourPopup* const popup = OpenOn(Unknown);
    popup->SendMessage(WM_ACTIVATEAPP, TRUE);
    EXPECT_EQ(m_host.Popup(), popup);
    popup->SendMessage(WM_ACTIVATEAPP, FALSE);
    EXPECT_EQ(m_board.Take(), (std::vector<UINT>{CBM_CLOSEUP, CBM_CANCEL}));
    ExpectClosed();
}

TEST_F(ColourPopup, LostFocusReleasesTheMouse)
{
    CColourPopup* const popup = OpenOn(Unknown);
    ::SetFocus(m_button);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(m_host.Popup(), popup);
    popup->DestroyWindow();
}

TEST_F(ColourPopup, TakesTheMouseBackFromAnotherWindowAndSwallowsTheMessage)
{
    CColourPopup* const popup = OpenOn(Unknown);
    ::SetCapture(m_board);
    CColourHost::Press(VK_DOWN);
    EXPECT_EQ(::GetCapture(), popup->m_hWnd);
    EXPECT_EQ(popup->m_nHot, NoCell);
    CColourHost::Press(VK_DOWN);
    EXPECT_EQ(popup->m_nHot, 0);
}
