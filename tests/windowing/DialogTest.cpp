// Dialogs: their modal loop, their owner, their place and their keys.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "framework/windowing/Exceptions.h"
#include "framework/windowing/ModuleState.h"
#include "windowing/TestDialog.h"

using namespace TestDialogs;

namespace
{

class Dialog : public TestDialogs::CHostTest
{
};

CRect PlaceOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, place);
    return place;
}

} // namespace

TEST_F(Dialog, RunsUntilEndDialogWhoseArgumentIsTheResult)
{
    CTestDialog dialog(Values);
    const CModalSteps steps(
        {[&] { EXPECT_TRUE(dialog.IsWindowVisible()); }, [&] { dialog.EndDialog(4711); }});
    EXPECT_EQ(dialog.DoModal(), 4711);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.m_bShownAtInit) << "it is shown when it is complete";
}

TEST_F(Dialog, CanRunAgain)
{
    CTestDialog dialog(Values);
    for (int run = 1; run <= 2; ++run) {
        const CModalSteps steps({[&] { dialog.EndDialog(run); }});
        EXPECT_EQ(dialog.DoModal(), run);
    }
}

TEST_F(Dialog, SecondRunMeanwhileIsRefused)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] {
                                 EXPECT_EQ(dialog.DoModal(), -1);
                                 EXPECT_TRUE(dialog.IsWindowVisible());
                             },
                             [&] { dialog.EndDialog(3); }});
    EXPECT_EQ(dialog.DoModal(), 3);
}

TEST_F(Dialog, OwnerIsDisabledMeanwhileAndActiveAfterwards)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] {
                                 EXPECT_EQ(::GetWindow(dialog, GW_OWNER), m_host.Handle());
                                 EXPECT_FALSE(::IsWindowEnabled(m_host.Handle()));
                                 EXPECT_EQ(::GetActiveWindow(), dialog.m_hWnd);
                             },
                             [&] { dialog.EndDialog(1); }});
    dialog.DoModal();
    EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()));
    EXPECT_EQ(::GetActiveWindow(), m_host.Handle());
}

TEST_F(Dialog, GivenParentCountsWithItsTopLevelWindow)
{
    CHostWindow other;
    CWnd child;
    ASSERT_TRUE(child.Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 50, 50), m_host, 1));
    CTestDialog dialog(Values, &child);
    const CModalSteps steps({[&] {
        EXPECT_EQ(::GetWindow(dialog, GW_OWNER), m_host.Handle());
        EXPECT_TRUE(::IsWindowEnabled(other.Handle()));
        dialog.EndDialog(1);
    }});
    dialog.DoModal();
}

TEST_F(Dialog, OwnerThatWasDisabledStaysSo)
{
    CTestDialog dialog(Values);
    ::EnableWindow(m_host.Handle(), FALSE);
    const CModalSteps steps({[&] { dialog.EndDialog(1); }});
    dialog.DoModal();
    EXPECT_FALSE(::IsWindowEnabled(m_host.Handle()));
    ::EnableWindow(m_host.Handle(), TRUE);
}

TEST_F(Dialog, NestedDialogKeepsBothOwnersFromInput)
{
    CTestDialog outer(Values);
    CTestDialog inner(Values);
    const CModalSteps steps({[&] {
                                 EXPECT_EQ(inner.DoModal(), 2);
                                 outer.EndDialog(1);
                             },
                             [&] {
                                 EXPECT_EQ(::GetWindow(inner, GW_OWNER), outer.m_hWnd);
                                 EXPECT_FALSE(::IsWindowEnabled(outer));
                                 EXPECT_FALSE(::IsWindowEnabled(m_host.Handle()));
                             },
                             [&] { inner.EndDialog(2); }});
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_EQ(steps.Done(), 3u);
}

TEST_F(Dialog, OuterMayEndBeforeTheInner)
{
    CTestDialog outer(Values);
    CTestDialog inner(Values);
    const CModalSteps steps({[&] { EXPECT_EQ(inner.DoModal(), 2); },
                             [&] {
                                 outer.EndDialog(1);
                                 EXPECT_NE(outer.m_hWnd, nullptr) << "its loop is not back yet";
                             },
                             [&] { inner.EndDialog(2); }});
    EXPECT_EQ(outer.DoModal(), 1);
}

TEST_F(Dialog, EndInOnInitDialogNeverShowsIt)
{
    CTestDialog dialog(Values);
    dialog.m_onInit = [&] { dialog.EndDialog(5); };
    EXPECT_EQ(dialog.DoModal(), 5);
}

TEST_F(Dialog, MissingTemplateGivesMinusOne)
{
    CTestDialog dialog(39999);
    EXPECT_EQ(dialog.DoModal(), -1);
    CTestDialog modeless;
    EXPECT_FALSE(modeless.Create(39999, m_host));
}

TEST_F(Dialog, FailureInOnInitDialogGivesMinusOne)
{
    CTestDialog dialog(Values);
    dialog.m_onInit = [] { AfxThrowResourceException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(Dialog, DamagedRowsGiveMinusOne)
{
    CTestDialog dialog(Damaged);
    EXPECT_EQ(dialog.DoModal(), -1);
}

TEST_F(Dialog, InitialisationResourceFillsTheLists)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.Create(Values, m_host));
    const HWND combo = ::GetDlgItem(dialog, 108);
    EXPECT_EQ(::SendMessageW(combo, CB_GETCOUNT, 0, 0), 2);
    wchar_t text[20] = {};
    ::SendMessageW(combo, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_EQ(std::wstring(text), L"second");
    EXPECT_EQ(::SendDlgItemMessageW(dialog, 110, LB_GETCOUNT, 0, 0), 1);
}

TEST_F(Dialog, TemplateIsThatOfTheCurrentModule)
{
    AFX_MODULE_STATE foreign;
    foreign.m_hCurrentResourceHandle = ::GetModuleHandleW(L"kernel32.dll");
    CTestDialog dialog;
    {
        AFX_MANAGE_STATE(&foreign);
        EXPECT_FALSE(dialog.Create(Values, m_host));
        {
            AFX_MANAGE_STATE(AfxGetStaticModuleState());
            EXPECT_TRUE(dialog.Create(Values, m_host));
        }
    }
}

TEST_F(Dialog, ModuleStateIsOursInItsHandlersWhateverTheHostSets)
{
    AFX_MODULE_STATE foreign;
    CTestDialog dialog(Values);
    AFX_MODULE_STATE* seen = nullptr;
    dialog.m_onPreTranslate = [&](MSG* message) {
        if (message->message == WM_KEYDOWN)
            seen = AfxGetModuleState();
        return FALSE;
    };
    const CModalSteps steps({[&] { dialog.Press(VK_ESCAPE); }});
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(seen, AfxGetStaticModuleState());
}

TEST_F(Dialog, StandsOverTheMiddleOfItsOwner)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] {
        const CPoint middle = PlaceOf(dialog).CenterPoint();
        const CPoint owner = PlaceOf(m_host.Handle()).CenterPoint();
        EXPECT_LE(std::abs(middle.x - owner.x), 1);
        EXPECT_LE(std::abs(middle.y - owner.y), 1);
        dialog.EndDialog(1);
    }});
    dialog.DoModal();
}

TEST_F(Dialog, StaysOnTheScreenWhereItsOwnerDoesNot)
{
    ::SetWindowPos(m_host.Handle(), nullptr, -380, -280, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] {
        EXPECT_EQ(PlaceOf(dialog).TopLeft(), CPoint(0, 0));
        dialog.EndDialog(1);
    }});
    dialog.DoModal();
}

TEST_F(Dialog, PlaceOfTheTemplateOrOfOnInitDialogIsKept)
{
    const HWND plain =
        ::CreateDialogParamW(nullptr, MAKEINTRESOURCEW(Placed), m_host.Handle(), nullptr, 0);
    const CPoint expected = PlaceOf(plain).TopLeft();
    ::DestroyWindow(plain);
    CTestDialog placed(Placed);
    const CModalSteps steps({[&] {
        EXPECT_EQ(PlaceOf(placed).TopLeft(), expected);
        placed.EndDialog(1);
    }});
    placed.DoModal();

    CTestDialog moved(Values);
    moved.m_onInit = [&] { moved.SetWindowPos(nullptr, 77, 88, 0, 0, SWP_NOSIZE | SWP_NOZORDER); };
    const CModalSteps more({[&] {
        EXPECT_EQ(PlaceOf(moved).TopLeft(), CPoint(77, 88));
        moved.EndDialog(1);
    }});
    moved.DoModal();
}

TEST(DialogIdle, OwnerLearnsThatTheDialogIsIdleUnlessItsStyleForbidsThat)
{
    HWND idle = nullptr;
    CHostWindow host([&](HWND, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
            idle = reinterpret_cast<HWND>(lParam);
            ::PostMessageW(idle, WM_COMMAND, IDCANCEL, 0);
        }
        return false;
    });
    ::SetActiveWindow(host.Handle());
    CTestDialog told(Values);
    told.m_onInit = [&] { EXPECT_EQ(idle, nullptr); };
    EXPECT_EQ(told.DoModal(), IDCANCEL);
    EXPECT_NE(idle, nullptr);

    idle = nullptr;
    CTestDialog silent(Placed);
    const CModalSteps steps({[] {}, [] {}, [&] { silent.EndDialog(5); }}, 100);
    EXPECT_EQ(silent.DoModal(), 5);
    EXPECT_EQ(idle, nullptr);
}

TEST_F(Dialog, EnterPressesTheDefaultButtonAndEscapeCancels)
{
    CTestDialog dialog(Values);
    {
        const CModalSteps steps({[&] { dialog.Press(VK_RETURN); }});
        EXPECT_EQ(dialog.DoModal(), IDOK);
    }
    {
        const CModalSteps steps({[&] { dialog.Press(VK_ESCAPE); }});
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
    EXPECT_EQ(dialog.m_nOK, 1);
    EXPECT_EQ(dialog.m_nCancel, 1);
}

TEST_F(Dialog, CloseBoxCancels)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] { dialog.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }});
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_nCancel, 1);
}

TEST_F(Dialog, FirstControlHasTheFocusAndTabGoesOn)
{
    CTestDialog dialog(Values);
    std::vector<int> focused;
    const auto note = [&] { focused.push_back(::GetDlgCtrlID(::GetFocus())); };
    const CModalSteps steps({[&] {
                                 note();
                                 dialog.Press(VK_TAB);
                             },
                             [&] {
                                 note();
                                 dialog.Press(VK_TAB);
                             },
                             [&] {
                                 note();
                                 dialog.EndDialog(1);
                             }});
    dialog.DoModal();
    EXPECT_EQ(focused, (std::vector<int>{1, 2, 101}));
}

TEST_F(Dialog, MnemonicReachesItsControl)
{
    CTestDialog dialog(Values);
    const CModalSteps steps({[&] { ::PostMessageW(::GetFocus(), WM_SYSCHAR, 'c', 1 << 29); },
                             [&] {
                                 EXPECT_EQ(::SendDlgItemMessageW(dialog, 104, BM_GETCHECK, 0, 0),
                                           BST_CHECKED);
                                 dialog.EndDialog(1);
                             }});
    dialog.DoModal();
}

TEST_F(Dialog, HostsOwnLoopGivesAModelessDialogItsKeys)
{
    CTestDialog page;
    CWnd panel;
    ASSERT_TRUE(panel.Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 300, 200), m_host, 1));
    ASSERT_TRUE(page.Create(Page, &panel));
    page.ShowWindow(SW_SHOW);
    ::SetFocus(::GetDlgItem(page, 101));
    page.Press(VK_TAB);
    HostWindow::Pump();
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDOK);
    page.Press(VK_RETURN);
    HostWindow::Pump();
    EXPECT_EQ(page.m_nOK, 1);
}

TEST_F(Dialog, PageReachesItsSheetThroughAnotherControl)
{
    CTestDialog sheet;
    ASSERT_TRUE(sheet.Create(Values, m_host));
    CTestDialog page;
    ASSERT_TRUE(page.Create(Page, CWnd::FromHandle(::GetDlgItem(sheet, 111))));
    EXPECT_EQ(page.GetParentOwner(), &sheet);
    EXPECT_FALSE(page.IsWindowVisible());
}
