#pragma once
// A dialog of the tests, and the host that it runs over.

#include <gtest/gtest.h>

#include "framework/windowing/Dialog.h"
#include "windowing/DialogHost.h"
#include "windowing/TestWindows.h"

namespace TestDialogs
{

// The templates of TestDialogs.rc.
inline constexpr UINT Values = 30000;  // a dialog with all sorts of controls, at (0, 0)
inline constexpr UINT Damaged = 30001; // its rows can't be read
inline constexpr UINT Page = 30002;    // a child
inline constexpr UINT Placed = 30003;  // with a place of its own, and no idle messages

class CTestDialog : public CDialog
{
public:
    using CDialog::CDialog;

    std::function<void()> m_onInit;
    std::function<BOOL(MSG*)> m_onPreTranslate;
    int m_nOK = 0;
    int m_nCancel = 0;
    bool m_bShownAtInit = false;

    BOOL OnInitDialog() override
    {
        const BOOL result = CDialog::OnInitDialog();
        m_bShownAtInit = IsWindowVisible();
        if (m_onInit)
            m_onInit();
        return result;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (m_onPreTranslate && m_onPreTranslate(pMsg))
            return TRUE;
        return CDialog::PreTranslateMessage(pMsg);
    }
    void Press(UINT key) const { ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1); }
    void Choose(int id) const { PostMessage(WM_COMMAND, static_cast<WPARAM>(id), 0); }

protected:
    void OnOK() override
    {
        ++m_nOK;
        CDialog::OnOK();
    }
    void OnCancel() override
    {
        ++m_nCancel;
        CDialog::OnCancel();
    }
};

class CHostTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ::SetActiveWindow(m_host.Handle());
        HostWindow::Pump();
    }
    // What must hold after every end of a modal dialog.
    void TearDown() override
    {
        EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()) || !::IsWindow(m_host.Handle()));
        EXPECT_EQ(::GetCapture(), nullptr);
    }
    CHostWindow m_host;
};

} // namespace TestDialogs
