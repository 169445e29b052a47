#pragma once
// The property sheet of a graph of the DLL, opened as a user does, and the hands to drive it:
// numbers of pages and controls are typed out, as a host's robot would have them.

#include "frontdoor/InteractionHost.h"
#include "support/DialogHands.h"
#include "support/MessageBoxes.h"
#include "support/ModalScript.h"

#include <commctrl.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace Id
{
enum {
    ok = 1,
    cancel = 2,
    apply = 5002,
    tabs = 6073,
    // the graph
    backColor = 6047,
    graphColor = 6048,
    innerColor = 6049,
    showLegend = 6050,
    legendAlignment = 6051,
    doubleBuffer = 6052,
    xAxes = 6055,
    curves = 6057,
    yAxes = 6070,
    snapSpin = 6074,
    snapRange = 6075,
    snapCursor = 6076,
    // an axis
    scaleFont = 6001,
    titleFont = 6002,
    color = 6007,
    visible = 6009,
    label = 6010,
    max = 6013,
    showGrid = 6014,
    dateTime = 6015,
    decimals = 6016,
    decimalsSpin = 6017,
    arcSize = 6018,
    arcSpin = 6019,
    tickSize = 6020,
    tickSpin = 6021,
    markerSize = 6022,
    markerSpin = 6023,
    step = 6024,
    minDate = 6025,
    minTime = 6026,
    maxDate = 6029,
    maxTime = 6030,
    gridColor = 6033,
    autoScale = 6039,
    min = 6040,
    dateFormat = 6046,
    showKeys = 6058,
    gridStyle = 6072,
    placement = 6077,
    timeStep = 6081,
    timeUnit = 6083,
    // a curve
    lineSize = 6035
};
} // namespace Id

class SheetHost : public FrontDoorInteraction
{
protected:
    enum Tab { Chart, Axis, Curve_ };
    static constexpr const wchar_t* SheetCaption = L"XGraph-属性";
    static constexpr const wchar_t* Box = L"Vantoplex"; // of every message box

    using Texts = std::vector<std::wstring>;

    // What is done while the sheet takes input, or while a dialog of it does.
    struct Step {
        template <class Action>
        requires std::is_invocable_v<Action> Step(Action act) : action([act](HWND) mutable { act(); }) {}
        Step(const wchar_t* pszDialog, ModalScript::Action act)
            : caption(pszDialog), action(std::move(act))
        {
        }
        std::wstring caption = SheetCaption;
        ModalScript::Action action;
    };

    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        graph->SetShowLegend(1);
        Frame();
    }

    // Where a double click opens what.
    POINT OnNothing() { return {At(0, 2).x + 30, At(0, 9).y}; }
    POINT OnYAxis(int nAxis = 0) { return Middle(RectOf(YAxis(nAxis).Get())); }
    POINT OnXAxis(int nAxis = 0) { return Middle(RectOf(XAxis(nAxis).Get())); }
    POINT OnCurve() { return At(5, 5); }

    // Double-clicks there and works what has opened. True if the steps closed all of it; what they
    // leave open is cancelled.
    bool Open(POINT at, std::vector<Step> steps)
    {
        return Work([&] { BareDoubleClick(at); }, std::move(steps));
    }
    static bool Work(const std::function<void()>& open, std::vector<Step> steps)
    {
        ModalScript script;
        for (Step& step : steps)
            script.When(step.caption, std::move(step.action));
        script.CancelWhatIsLeft();
        open();
        return !script.HasCancelled();
    }
    void BareDoubleClick(POINT at)
    {
        Click(at);
        Mouse(WM_LBUTTONDBLCLK, at, MK_LBUTTON);
        Release(at);
    }

    static HWND Sheet() { return ModalScript::Find(SheetCaption, true); }
    static HWND Tabs() { return ::GetDlgItem(Sheet(), Id::tabs); }
    // A page is known by a control that no other one has.
    static HWND Page(Tab tab)
    {
        static constexpr int own[] = {Id::backColor, Id::min, Id::lineSize};
        for (HWND hWnd = ::GetWindow(Tabs(), GW_CHILD); hWnd != nullptr;
             hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
            if (::GetDlgItem(hWnd, own[tab]) != nullptr)
                return hWnd;
        }
        return nullptr;
    }
    static int CurrentTab() { return static_cast<int>(::SendMessageW(Tabs(), TCM_GETCURSEL, 0, 0)); }
    static void ClickTab(Tab tab) { DialogHands::OpenTab(Sheet(), tab); }
    // The page that is seen, and its controls.
    static HWND Shown() { return DialogHands::PageOf(Sheet()); }
    static HWND Item(int id) { return ::GetDlgItem(Shown(), id); }
    static bool Enabled(int id) { return DialogHands::IsEnabled(Shown(), id); }
    static void Press(int id) { ::SendMessageW(Item(id), BM_CLICK, 0, 0); }
    using FrontDoorInteraction::Press;
    static bool Checked(int id) { return DialogHands::IsChecked(Shown(), id); }
    static std::wstring Shows(int id) { return DialogHands::TextOf(Shown(), id); }
    // Replaces the text at once, as a paste does: one change is told.
    static void Enter(int id, const wchar_t* text)
    {
        ::SendMessageW(Item(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    static int Row(int id) { return DialogHands::RowOf(Shown(), id); }
    static Texts Rows(int id) { return DialogHands::RowsOf(Shown(), id); }
    static void Choose(int id, int row)
    {
        DialogHands::Choose(Shown(), id, row);
        EXPECT_EQ(Row(id), row);
    }
    // For messages.
    static std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
    static void CloseBox() { ::PostMessageW(Sheet(), WM_SYSCOMMAND, SC_CLOSE, 0); }
};
