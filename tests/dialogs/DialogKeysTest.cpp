// The Tab key in the sheet's pages and the dialogs of the curve page, and a real mouse and
// keyboard at work.

#include "CurvePageHost.h"
#include "KeyWalk.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class DialogKeys : public CurvePageTest
{
protected:
    // The sheet on that tab, with its page made ready; Tab goes round in the order of the template,
    // past what is closed or hidden.
    void ExpectOrder(
        int nTab, const std::vector<int>& stops, bool bBack,
        std::function<void(HWND)> prepare = [](HWND) {})
    {
        script.When(SheetCaption, [=, this](HWND hSheet) {
            const HWND hPage = OpenTab(hSheet, nTab);
            prepare(hPage);
            KeyWalk::Round(script, SheetCaption, hPage, stops, bBack,
                           [](HWND hStill) { ::PostMessageW(hStill, WM_CLOSE, 0, 0); });
        });
        Open();
    }
    // The same in a dialog that a button of the curve page opens.
    void ExpectOrder(int nButton, const wchar_t* pszDialog, const std::vector<int>& stops, bool bBack)
    {
        OpenAnd([=, this](HWND hPage) {
            script.When(pszDialog, [=, this](HWND hDialog) {
                KeyWalk::Round(script, pszDialog, hDialog, stops, bBack,
                               [](HWND hStill) { ::PostMessageW(hStill, WM_CLOSE, 0, 0); });
            });
            DialogHands::Click(hPage, nButton);
        });
    }
};

// The machine's own mouse and keyboard: where the pointer is decides which window gets what.
class RealInput : public CurvePageTest
{
protected:
    void TearDown() override
    {
        ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    }
    static void Click(POINT at, int nTimes = 1)
    {
        ::SetCursorPos(at.x, at.y);
        for (int i = 0; i < nTimes; ++i) {
            INPUT inputs[2] = {};
            inputs[0].type = inputs[1].type = INPUT_MOUSE;
            inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
            inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
            EXPECT_EQ(::SendInput(2, inputs, sizeof(INPUT)), 2u);
        }
    }
    static void Click(HWND hWnd)
    {
        RECT rect;
        ::GetWindowRect(hWnd, &rect);
        Click(Middle(rect));
    }
    static void Type(WORD nKey)
    {
        INPUT inputs[2] = {};
        inputs[0].type = inputs[1].type = INPUT_KEYBOARD;
        inputs[0].ki.wVk = inputs[1].ki.wVk = nKey;
        inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
        EXPECT_EQ(::SendInput(2, inputs, sizeof(INPUT)), 2u);
    }
    // Does something on the page once what was done before has taken effect.
    struct Step {
        std::function<bool(HWND hPage)> isReady;
        std::function<void(HWND hPage)> act;
    };
    void Next(std::vector<Step> steps, int nLooks = 0)
    {
        if (steps.empty())
            return;
        script.When(SheetCaption, [this, steps = std::move(steps), nLooks](HWND hSheet) mutable {
            const HWND hPage = PageOf(hSheet);
            if (!steps.front().isReady(hPage)) {
                if (nLooks < 500)
                    return Next(std::move(steps), nLooks + 1);
                ADD_FAILURE() << steps.size() << " steps before the end nothing came";
                ::PostMessageW(hSheet, WM_CLOSE, 0, 0);
                return;
            }
            const Step step = std::move(steps.front());
            steps.erase(steps.begin());
            Next(std::move(steps));
            step.act(hPage);
        });
    }
};

const std::vector<int> ChartOrder = {1,    2,    6047, 6048, 6049, 6050, 6051,
                                     6076, 6075, 6055, 6070, 6057, 6052};
const std::vector<int> AxisOrder = {1,    2,    6010, 6039, 6040, 6013, 6001, 6002, 6014, 6015, 6016,
                                    6033, 6007, 6018, 6020, 6022, 6024, 6058, 6077, 6072, 6009};
const std::vector<int> DatesOrder = {1,    2,    6010, 5002, 6039, 6001, 6002, 6014,
                                     6015, 6033, 6007, 6018, 6020, 6022, 6025, 6026,
                                     6029, 6030, 6046, 6058, 6081, 6083, 6072, 6009};
const std::vector<int> CurveOrder = {6010, 6008, 6035, 6022, 6034, 6007, 6009, 6038,
                                     6011, 6066, 6067, 6065, 6080, 1,    2};
// 6062 and 6032 are the chosen ones of their groups.
const std::vector<int> FilledOrder = {6010, 6008, 6035, 6022, 6034, 6007, 6009, 6038, 6062, 6011,
                                      6012, 6032, 6066, 6067, 6065, 6080, 1,    2,    5002};

} // namespace

TEST_F(DialogKeys, TabFollowsTheTemplateOnEachPage)
{
    for (const bool bBack : {false, true}) {
        ExpectOrder(0, ChartOrder, bBack);
        ExpectOrder(1, AxisOrder, bBack);
        ExpectOrder(2, CurveOrder, bBack);
    }
}

TEST_F(DialogKeys, TabStopsAtWhatAChangeHasOpened)
{
    ExpectOrder(1, DatesOrder, false, [](HWND hPage) { Click(hPage, 6015); });
    ExpectOrder(2, FilledOrder, false, [](HWND hPage) {
        Click(hPage, fill);
        Click(hPage, showMarker);
    });
}

TEST_F(DialogKeys, TabFollowsTheTemplateInTheSmallDialogs)
{
    for (const bool bBack : {false, true}) {
        ExpectOrder(linearTrend, Trend, {ok, cancel, expand, degree}, bBack);
        ExpectOrder(average, AverageDialog, {ok, cancel, type, span}, bBack);
    }
}

TEST_F(RealInput, WorksThePageAndItsColours)
{
    const auto HasFocus = [](int nID) {
        return [nID](HWND hPage) { return ::GetFocus() == ::GetDlgItem(hPage, nID); };
    };
    Next({{[](HWND) { return true; }, [](HWND hPage) { Click(::GetDlgItem(hPage, label)); }},
          {HasFocus(label),
           [](HWND) {
               Type(VK_END);
               Type('7');
           }},
          {[](HWND hPage) { return TextOf(hPage, label) == L"T17"; },
           [](HWND hPage) {
               EXPECT_TRUE(IsEnabled(hPage, apply));
               Type(VK_ESCAPE);
               Type(VK_RETURN);
               Type(VK_TAB);
           }},
          {HasFocus(lineStyle), [](HWND hPage) { Click(::GetDlgItem(hPage, color)); }},
          {[](HWND) { return ::GetCapture() != nullptr; },
           [](HWND) { // the second cell of the first row, or what is above it
               RECT rect;
               ::GetWindowRect(::GetCapture(), &rect);
               Click(POINT{rect.left + 30, rect.top + 50});
           }},
          {[](HWND) { return ::GetCapture() == nullptr; },
           [](HWND hPage) { Click(::GetDlgItem(hPage, ok)); }}});
    Curve(0)->SetColor(0x123456);
    Frame();
    ASSERT_TRUE(::SetForegroundWindow(host.m_hWnd));
    HostWindow::Pump();
    POINT at = At(2, 2);
    ::ClientToScreen(Handle(), &at);
    Click(at, 2);
    EXPECT_TRUE(HostWindow::PumpUntil([this] { return LabelOf(0) == L"T17"; }));
    ULONG cr = 0x123456;
    Curve(0)->GetColor(&cr);
    EXPECT_NE(cr, 0x123456u);
}
