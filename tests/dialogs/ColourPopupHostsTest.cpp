// Hosts that interfere with an open popup, and what many openings leave behind.

#include <gtest/gtest.h>

#include <string>

#include "dialogs/ColourHost.h"
#include "support/ModalScript.h"
#include "support/Openings.h"
#include "windowing/DialogHost.h"

namespace
{

// What a host can take away while the popup lives.
enum class ETarget { Popup, Button, Board, Host };

void Destroy(CColourHost& host, ETarget target)
{
    switch (target) {
    case ETarget::Popup:
        if (CColourPopup* const popup = host.Popup())
            popup->DestroyWindow();
        break;
    case ETarget::Button:
        host.m_button.DestroyWindow();
        break;
    case ETarget::Board:
        host.m_board.DestroyWindow();
        break;
    case ETarget::Host:
        ::DestroyWindow(host.m_host.Handle());
        break;
    }
}

class ColourPopupHosts : public testing::TestWithParam<ETarget>
{
protected:
    CColourHost m_host;

    void DestroyAt(UINT message)
    {
        m_host.m_board.m_onNote = [this, message](UINT arrived) {
            if (arrived == message)
                Destroy(m_host, GetParam());
        };
    }
    void ExpectNothingLeft()
    {
        HostWindow::Pump();
        if (CColourPopup* const popup = m_host.Popup())
            popup->DestroyWindow(); // a popup without its button may go on by itself
        EXPECT_EQ(::GetCapture(), nullptr);
    }
};

} // namespace

TEST_P(ColourPopupHosts, DestroyWhileItIsOpen)
{
    ASSERT_NE(m_host.Click(), nullptr);
    Destroy(m_host, GetParam());
    if (m_host.Popup()) {
        CColourHost::Press(VK_DOWN);
        CColourHost::Press(VK_RETURN);
    }
    ExpectNothingLeft();
}

TEST_P(ColourPopupHosts, DestroyWhenItOpens)
{
    DestroyAt(CBM_DROPDOWN);
    m_host.Click();
    ExpectNothingLeft();
}

TEST_P(ColourPopupHosts, DestroyWhenACellGetsHotByKey)
{
    m_host.Click();
    DestroyAt(CBM_COLORCHANGE);
    CColourHost::Press(VK_DOWN);
    ExpectNothingLeft();
}

TEST_P(ColourPopupHosts, DestroyWhenACellGetsHotByMouse)
{
    CColourPopup* const popup = m_host.Click();
    DestroyAt(CBM_COLORCHANGE);
    CColourHost::MoveTo(*popup, CColourHost::MiddleOf(*popup, 9));
    ExpectNothingLeft();
}

TEST_P(ColourPopupHosts, DestroyWhenItCloses)
{
    m_host.Click();
    CColourHost::Press(VK_DOWN);
    DestroyAt(CBM_CLOSEUP);
    CColourHost::Press(VK_RETURN);
    ExpectNothingLeft();
}

TEST_P(ColourPopupHosts, DestroyUnderTheColourDialog)
{
    m_host.Click();
    CColourHost::Press(VK_UP);
    const CModalSteps steps({[this]() -> bool {
                                 const CColourPopup* const popup = m_host.Popup();
                                 const HWND dialog = ::GetActiveWindow();
                                 if (!popup || ::GetWindow(dialog, GW_OWNER) != *popup)
                                     return false;
                                 Destroy(m_host, GetParam());
                                 return true;
                             },
                             [] {
                                 wchar_t name[16] = {};
                                 const HWND dialog = ::GetActiveWindow();
                                 ::GetClassNameW(dialog, name, 16);
                                 if (std::wstring(name) == L"#32770")
                                     ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
                             }});
    CColourHost::Press(VK_RETURN);
    EXPECT_GE(steps.Done(), 1u);
    ExpectNothingLeft();
    EXPECT_TRUE(!::IsWindow(m_host.m_host.Handle()) || ::IsWindowEnabled(m_host.m_host.Handle()));
}

INSTANTIATE_TEST_SUITE_P(Targets, ColourPopupHosts,
                         testing::Values(ETarget::Popup, ETarget::Button, ETarget::Board,
                                         ETarget::Host));

TEST(ColourPopupEndurance, OpeningsLeaveNothing)
{
    CColourHost host;
    Openings::ExpectNothingLeft([&host] {
        ASSERT_NE(host.Click(), nullptr);
        HostWindow::Pump();
        CColourHost::Press(VK_DOWN);
        CColourHost::Press(VK_RETURN);
        ASSERT_EQ(host.Popup(), nullptr);
        host.m_board.m_notes.clear();
    });
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(ColourPopupEndurance, SystemDialogsLeaveNothing)
{
    CColourHost host;
    ModalScript script;
    Openings::ExpectNothingLeft([&] {
        ASSERT_NE(host.OpenOn(0x123456), nullptr); // a colour that has no cell
        CColourHost::Press(VK_UP);
        script.When(ModalScript::ColorDialog,
                    [](HWND hDialog) { ::PostMessageW(hDialog, WM_COMMAND, IDOK, 0); });
        CColourHost::Press(VK_RETURN);
        ASSERT_EQ(host.Popup(), nullptr);
        host.m_board.m_notes.clear();
    });
    EXPECT_EQ(::GetCapture(), nullptr);
}
