// The platform's dialogs for fonts and colours.

#include <gtest/gtest.h>

#include <string>

#include "framework/windowing/CommonDialogs.h"
#include "framework/windowing/Dialog.h"
#include "windowing/DialogHost.h"
#include "windowing/TestWindows.h"

namespace
{

class CommonDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        ::SetActiveWindow(m_host.Handle());
        HostWindow::Pump();
    }
    // Presses a button of the dialog over `owner`; false while there is none.
    [[nodiscard]] static bool Press(HWND owner, int button)
    {
        const HWND popup = ::GetLastActivePopup(owner);
        if (popup == owner || !::IsWindowVisible(popup))
            return false;
        ::PostMessageW(popup, WM_COMMAND, static_cast<WPARAM>(button), 0);
        return true;
    }
    CHostWindow m_host;
};

} // namespace

TEST_F(CommonDialog, FontDialogStartsFromTheGivenFontAndGivesTheChosenOne)
{
    LOGFONTW font{};
    font.lfHeight = -20;
    font.lfWeight = FW_BOLD;
    ::lstrcpyW(font.lfFaceName, L"Tahoma");
    CFontDialog dialog(&font);
    EXPECT_EQ(dialog.m_cf.Flags, static_cast<DWORD>(257 | CF_INITTOLOGFONTSTRUCT));
    const CModalSteps steps({[&] {
        const bool open = Press(m_host.Handle(), IDOK);
        EXPECT_TRUE(!open || !::IsWindowEnabled(m_host.Handle()));
        return open;
    }});
    EXPECT_EQ(dialog.DoModal(), IDOK);
    LOGFONTW chosen{};
    dialog.GetCurrentFont(&chosen);
    EXPECT_EQ(std::wstring(chosen.lfFaceName), L"Tahoma");
    EXPECT_EQ(chosen.lfWeight, FW_BOLD);
    EXPECT_EQ(std::wstring(font.lfFaceName), L"Tahoma");
    EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()));
}

TEST_F(CommonDialog, FontDialogWithoutAStartFontCanBeCancelled)
{
    CFontDialog dialog;
    EXPECT_EQ(dialog.m_cf.Flags, 257u);
    const CModalSteps steps({[&] { return Press(m_host.Handle(), IDCANCEL); }});
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(CommonDialog, ColourDialogStartsFromTheGivenColourAndGivesIt)
{
    CColorDialog dialog(RGB(1, 2, 3), 258);
    const CModalSteps steps({[&] { return Press(m_host.Handle(), IDOK); }});
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()));
}

TEST_F(CommonDialog, CustomColoursAreKeptBetweenColourDialogs)
{
    COLORREF* const colours = CColorDialog::GetSavedCustomColors();
    const COLORREF before = colours[3];
    EXPECT_EQ(before, static_cast<COLORREF>(RGB(255, 255, 255)));
    colours[3] = RGB(9, 8, 7);
    CColorDialog dialog(0, 0);
    const CModalSteps steps({[&] { return Press(m_host.Handle(), IDOK); }});
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_cc.lpCustColors, colours);
    EXPECT_EQ(colours[3], static_cast<COLORREF>(RGB(9, 8, 7)));
    colours[3] = before;
}

TEST_F(CommonDialog, EveryOwnerIsKeptFromInput)
{
    CDialog outer;
    ASSERT_TRUE(outer.Create(30000, m_host));
    outer.ShowWindow(SW_SHOW);
    CColorDialog dialog(0, 0, &outer);
    const CModalSteps steps({[&] {
        const bool open = Press(outer, IDCANCEL);
        EXPECT_TRUE(!open || !::IsWindowEnabled(outer));
        EXPECT_TRUE(!open || !::IsWindowEnabled(m_host.Handle()));
        return open;
    }});
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(::IsWindowEnabled(outer));
    EXPECT_TRUE(::IsWindowEnabled(m_host.Handle()));
}

TEST_F(CommonDialog, OwnerDestroyedMeanwhileCancelsThem)
{
    for (const bool font : {true, false}) {
        CHostWindow host;
        ::SetActiveWindow(host.Handle());
        const CModalSteps steps({[&] {
            const bool open = ::GetLastActivePopup(host.Handle()) != host.Handle();
            if (open)
                ::DestroyWindow(host.Handle());
            return open;
        }});
        if (font)
            EXPECT_EQ(CFontDialog().DoModal(), IDCANCEL);
        else
            EXPECT_EQ(CColorDialog().DoModal(), IDCANCEL);
    }
}
