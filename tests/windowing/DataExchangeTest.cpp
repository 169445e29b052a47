// The data exchange of dialogs, and what it says to the user.

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>
#include <new>
#include <string>

#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/OleDateTime.h"
#include "support/MessageBoxes.h"
#include "windowing/TestWindows.h"

namespace
{

enum {
    Text = 101,
    Unsigned = 102,
    Real = 103,
    Check = 104,
    FirstRadio = 105,
    Combo = 108,
    Picker = 109,
    Owner = 111,
    Integer = 112
};

class CValuesDialog : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    CString m_strText;
    UINT m_nUnsigned = 5;
    double m_fReal = 0.5;
    int m_bCheck = 0;
    int m_nRadio = -1;
    int m_nCombo = -1;
    COleDateTime m_dtDate;
    int m_nInteger = -3;
    CButton m_button;
    int m_nChanges = 0;
    bool m_bMissing = false;

    // Puts a text into a control as the user does, and takes all values.
    BOOL Type(int id, const wchar_t* text)
    {
        ::SetDlgItemTextW(m_hWnd, id, text);
        return UpdateData(TRUE);
    }
    [[nodiscard]] std::wstring Shown(int id) const
    {
        wchar_t text[64] = {};
        ::GetDlgItemTextW(m_hWnd, id, text, 64);
        return text;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, Owner, m_button);
        DDX_Text(pDX, Text, m_strText);
        DDX_Text(pDX, Unsigned, m_nUnsigned);
        DDV_MinMaxUInt(pDX, m_nUnsigned, 1, 100);
        DDX_Text(pDX, Real, m_fReal);
        DDV_MinMaxDouble(pDX, m_fReal, -10.0, 2.5);
        DDX_Text(pDX, Integer, m_nInteger);
        DDX_Check(pDX, Check, m_bCheck);
        DDX_Radio(pDX, FirstRadio, m_nRadio);
        DDX_CBIndex(pDX, Combo, m_nCombo);
        DDX_DateTimeCtrl(pDX, Picker, m_dtDate);
        if (m_bMissing)
            DDX_Text(pDX, 999, m_strText);
    }
    afx_msg void OnChange() { ++m_nChanges; }
};

BEGIN_MESSAGE_MAP(CValuesDialog, CDialog)
ON_EN_CHANGE(Unsigned, OnChange)
END_MESSAGE_MAP()

class DataExchange : public testing::Test
{
protected:
    void SetUp() override
    {
        ::SetActiveWindow(m_host.Handle());
        m_dialog.m_dtDate = COleDateTime(2024, 2, 29, 13, 14, 15);
        ASSERT_TRUE(m_dialog.Create(30000, m_host));
        m_dialog.ShowWindow(SW_SHOW);
        HostWindow::Pump();
    }
    // The text is refused with one box, the focus is in the control and its text selected, and
    // no value behind it was taken.
    void ExpectRefused(int id, const wchar_t* text, const std::wstring& box)
    {
        SCOPED_TRACE(std::string(text, text + ::wcslen(text)));
        ::SetFocus(::GetDlgItem(m_dialog, IDOK));
        ::SendDlgItemMessageW(m_dialog, Check, BM_SETCHECK, BST_CHECKED, 0);
        m_dialog.m_bCheck = 0;
        EXPECT_FALSE(m_dialog.Type(id, text));
        EXPECT_EQ(m_boxes.Take(), std::vector<std::wstring>{box});
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), id);
        DWORD start = 9;
        DWORD end = 0;
        ::SendDlgItemMessageW(m_dialog, id, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                              reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(start, 0u);
        EXPECT_EQ(end, ::wcslen(text));
        EXPECT_EQ(m_dialog.m_bCheck, 0);
    }
    MessageBoxes m_boxes;
    CHostWindow m_host;
    CValuesDialog m_dialog;
};

constexpr const wchar_t* NoUnsigned = L"Please enter a positive integer.";
constexpr const wchar_t* NoInteger = L"Please enter an integer.";
constexpr const wchar_t* NoReal = L"Please enter a number.";
constexpr const wchar_t* UnsignedLimits = L"Please enter an integer between 1 and 100.";
constexpr const wchar_t* RealLimits = L"Please enter a number between -10 and 2.5.";

} // namespace

TEST_F(DataExchange, MembersShowInTheControls)
{
    m_dialog.m_strText = L"线 text";
    m_dialog.m_nUnsigned = 4294967295u;
    m_dialog.m_fReal = 1e-7;
    m_dialog.m_nInteger = -17;
    m_dialog.m_bCheck = 1;
    m_dialog.m_nRadio = 2;
    m_dialog.m_nCombo = 1;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(m_dialog.Shown(Text), L"线 text");
    EXPECT_EQ(m_dialog.Shown(Unsigned), L"4294967295");
    EXPECT_EQ(m_dialog.Shown(Real), L"1e-07");
    EXPECT_EQ(m_dialog.Shown(Integer), L"-17");
    EXPECT_EQ(::IsDlgButtonChecked(m_dialog, Check), 1u);
    EXPECT_EQ(::IsDlgButtonChecked(m_dialog, 105), 0u);
    EXPECT_EQ(::IsDlgButtonChecked(m_dialog, 107), 1u);
    EXPECT_EQ(::SendDlgItemMessageW(m_dialog, Combo, CB_GETCURSEL, 0, 0), 1);
    EXPECT_TRUE(m_boxes.m_texts.empty()) << "limits are for what the user types";
}

TEST_F(DataExchange, ControlsGoToTheMembers)
{
    ::SetDlgItemTextW(m_dialog, Text, L"线");
    ::SetDlgItemTextW(m_dialog, Unsigned, L" 100 ");
    ::SetDlgItemTextW(m_dialog, Real, L"-1e1");
    ::SetDlgItemTextW(m_dialog, Integer, L"-2147483648");
    ::CheckDlgButton(m_dialog, Check, BST_CHECKED);
    ::CheckRadioButton(m_dialog, 105, 107, 106);
    ::SendDlgItemMessageW(m_dialog, Combo, CB_SETCURSEL, 0, 0);
    EXPECT_TRUE(m_dialog.UpdateData());
    EXPECT_EQ(m_dialog.m_strText, L"线");
    EXPECT_EQ(m_dialog.m_nUnsigned, 100u);
    EXPECT_EQ(m_dialog.m_fReal, -10.0);
    EXPECT_EQ(m_dialog.m_nInteger, std::numeric_limits<int>::min());
    EXPECT_EQ(m_dialog.m_bCheck, 1);
    EXPECT_EQ(m_dialog.m_nRadio, 1);
    EXPECT_EQ(m_dialog.m_nCombo, 0);
    EXPECT_EQ(m_dialog.m_dtDate.GetYear(), 2024);
    EXPECT_EQ(m_dialog.m_dtDate.GetDay(), 29);
}

TEST_F(DataExchange, NothingSelectedIsMinusOne)
{
    m_dialog.m_nRadio = 1;
    m_dialog.m_nCombo = 1;
    EXPECT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_EQ(m_dialog.m_nRadio, -1);
    EXPECT_EQ(m_dialog.m_nCombo, -1);
    m_dialog.m_nCombo = 0;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    m_dialog.m_nCombo = -1;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(::SendDlgItemMessageW(m_dialog, Combo, CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(DataExchange, CheckWithAnOddValueShowsUnchecked)
{
    m_dialog.m_bCheck = 7;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(::IsDlgButtonChecked(m_dialog, Check), 0u);
    EXPECT_EQ(m_dialog.m_bCheck, 0);
}

TEST_F(DataExchange, EveryBadWholeNumberGivesItsBox)
{
    for (const wchar_t* text : {L"", L"abc", L"-1", L"1,5", L"1.5", L"1 0"})
        ExpectRefused(Unsigned, text, NoUnsigned);
    for (const wchar_t* text : {L"0", L"101", L"99999999999999999999"})
        ExpectRefused(Unsigned, text, UnsignedLimits);
    EXPECT_TRUE(m_dialog.Type(Unsigned, L"1"));
    for (const wchar_t* text : {L"", L"1,5", L"x"})
        ExpectRefused(Integer, text, NoInteger);
}

TEST_F(DataExchange, EveryBadRealNumberGivesItsBox)
{
    for (const wchar_t* text : {L"", L"abc", L"1,5", L"1e999", L"nan"})
        ExpectRefused(Real, text, NoReal);
    for (const wchar_t* text : {L"2.6", L"-10.1", L"1e300"})
        ExpectRefused(Real, text, RealLimits);
}

TEST_F(DataExchange, UnlimitedRealLimitsStillNameTheType)
{
    CDataExchange exchange(&m_dialog, TRUE);
    exchange.PrepareEditCtrl(Real);
    try {
        DDV_MinMaxDouble(&exchange, std::numeric_limits<double>::infinity(), -DBL_MAX, DBL_MAX);
        ADD_FAILURE() << "infinity is outside";
    } catch (CUserException* e) {
        e->Delete();
    }
    EXPECT_EQ(m_boxes.Take(),
              std::vector<std::wstring>{
                  L"Please enter a number between -1.79769313486232e+308 and 1.79769313486232e+308."});
}

TEST_F(DataExchange, RefusedWordsLeaveWhatTheEarlierControlsGave)
{
    ::SetDlgItemTextW(m_dialog, Text, L"taken");
    EXPECT_FALSE(m_dialog.Type(Unsigned, L"x"));
    EXPECT_EQ(m_dialog.m_strText, L"taken");
    EXPECT_EQ(m_dialog.m_nUnsigned, 5u);
}

TEST_F(DataExchange, EnterOnABadValueKeepsTheDialogOpen)
{
    ::SetDlgItemTextW(m_dialog, Unsigned, L"x");
    m_dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(m_boxes.Take(), std::vector<std::wstring>{NoUnsigned});
    EXPECT_TRUE(m_dialog.IsWindowVisible());
}

TEST_F(DataExchange, NotificationsDoNotArriveWhileItRuns)
{
    m_dialog.m_nUnsigned = 77;
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(m_dialog.m_nChanges, 0);
    ::SetDlgItemTextW(m_dialog, Unsigned, L"78");
    EXPECT_EQ(m_dialog.m_nChanges, 1);
    EXPECT_FALSE(m_dialog.Type(Unsigned, L""));
    m_dialog.m_nChanges = 0;
    ::SetDlgItemTextW(m_dialog, Unsigned, L"79");
    EXPECT_EQ(m_dialog.m_nChanges, 1) << "a refused value ends the silence too";
}

TEST_F(DataExchange, TextThatIsThereAlreadyKeepsItsSelection)
{
    m_dialog.m_strText = L"abcdef";
    m_dialog.UpdateData(FALSE);
    ::SendDlgItemMessageW(m_dialog, Text, EM_SETSEL, 2, 4);
    m_dialog.UpdateData(FALSE);
    const LRESULT selection = ::SendDlgItemMessageW(m_dialog, Text, EM_GETSEL, 0, 0);
    EXPECT_EQ(selection, MAKELRESULT(2, 4));
}

TEST_F(DataExchange, ControlIsSubclassedOnce)
{
    EXPECT_EQ(m_dialog.m_button.m_hWnd, ::GetDlgItem(m_dialog, Owner));
    EXPECT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(m_dialog, Owner)), &m_dialog.m_button);
}

TEST_F(DataExchange, MissingControlFailsTheExchangeWithoutABox)
{
    m_dialog.m_bMissing = true;
    EXPECT_FALSE(m_dialog.UpdateData(FALSE));
    EXPECT_FALSE(m_dialog.UpdateData(TRUE));
    EXPECT_TRUE(m_boxes.m_texts.empty());
}

TEST_F(DataExchange, ForeignExceptionPassesAndEndsTheSilence)
{
    class CFailing : public CValuesDialog
    {
    public:
        bool m_bFail = false;

    protected:
        void DoDataExchange(CDataExchange* pDX) override
        {
            CValuesDialog::DoDataExchange(pDX);
            if (m_bFail)
                throw std::bad_alloc();
        }
    };
    CFailing dialog;
    ASSERT_TRUE(dialog.Create(30000, m_host));
    dialog.m_bFail = true;
    EXPECT_THROW(dialog.UpdateData(TRUE), std::bad_alloc);
    ::SetDlgItemTextW(dialog, Unsigned, L"78");
    EXPECT_EQ(dialog.m_nChanges, 1);
}

TEST_F(DataExchange, DialogMayGoWhileTheBoxIsOpen)
{
    // The host's answer to the box takes the whole window down.
    CHostWindow host;
    CValuesDialog dialog;
    ASSERT_TRUE(dialog.Create(30000, host));
    static HWND doomed;
    doomed = host.Handle();
    const HHOOK hook = ::SetWindowsHookExW(
        WH_CBT,
        [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
            wchar_t name[8] = {};
            ::GetClassNameW(reinterpret_cast<HWND>(wParam), name, 8);
            if (code == HCBT_ACTIVATE && std::wstring(name) == L"#32770" &&
                ::GetDlgItem(reinterpret_cast<HWND>(wParam), 0xFFFF))
                ::PostMessageW(doomed, WM_CLOSE, 0, 0);
            return ::CallNextHookEx(nullptr, code, wParam, lParam);
        },
        nullptr, ::GetCurrentThreadId());
    EXPECT_FALSE(dialog.Type(Unsigned, L"x"));
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(m_boxes.Take().size(), 1u);
}

TEST(OleDateTime, HoldsDatesInTheOleForm)
{
    EXPECT_EQ(COleDateTime().m_dt, 0.0);
    EXPECT_EQ(COleDateTime(1900, 1, 1, 12, 0, 0).m_dt, 2.5);
    const COleDateTime date(45351.551562500003);
    EXPECT_EQ(date.GetYear(), 2024);
    EXPECT_EQ(date.GetMonth(), 2);
    EXPECT_EQ(date.GetDay(), 29);
    EXPECT_EQ(date.GetHour(), 13);
    EXPECT_EQ(date.GetMinute(), 14);
    EXPECT_EQ(date.GetSecond(), 15);
    EXPECT_NEAR(COleDateTime(2024, 2, 29, 13, 14, 15), 45351.5515625, 1e-9);
}

TEST(OleDateTime, DateThatDoesNotExistIsInvalid)
{
    EXPECT_EQ(COleDateTime(2023, 2, 29, 0, 0, 0).m_status, COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(2023, 2, 28, 24, 0, 0).m_status, COleDateTime::invalid);
    EXPECT_EQ(COleDateTime(2023, 2, 29, 0, 0, 0).GetYear(), COleDateTime::error);
    SYSTEMTIME time{};
    EXPECT_FALSE(COleDateTime(1e300).GetAsSystemTime(time));
    EXPECT_EQ(time.wYear, 0);
}
