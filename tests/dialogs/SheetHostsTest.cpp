// What a host may do to the graph while the property sheet is open.

#include "dialogs/SheetHost.h"

namespace
{

class SheetAndHost : public SheetHost
{
protected:
    // The host's window takes input again and nothing keeps the mouse.
    void ExpectNothingLeft()
    {
        EXPECT_EQ(ModalScript::FindAny(), nullptr);
        EXPECT_EQ(::GetCapture(), nullptr);
        if (host.m_hWnd != nullptr) {
            EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
        }
    }
    // That many in all, and one curve, on the first: an axis without a curve can be deleted.
    void AddXAxes(int nCount)
    {
        for (int i = CurveCount(); i < nCount; ++i)
            AddLine(i, i, 0);
        while (CurveCount() > 1)
            graph->DeleteCurve(1);
        ShowAsTold();
    }
    std::vector<std::function<void()>> Removals()
    {
        return {[&] { graph->ResetAll(); },
                [&] {
                    graph->DeleteCurve(0);
                    graph->DeleteXAxis(0);
                    graph->DeleteYAxis(0);
                },
                [&] {
                    for (int i = 0; i < 40; ++i) // the lists move in memory
                        AddLine(CurveCount(), i + 1, i + 1);
                }};
    }
};

} // namespace

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileTheSheetIsOpen)
{
    Open(OnNothing(), {[&] {
             ClickTab(Curve_);
             host.Destroy();
             EXPECT_EQ(Sheet(), nullptr);
         }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileAMessageBoxIsOpen)
{
    Open(OnNothing(), {[&] { Enter(Id::snapRange, L"101"); }, {Box, [&](HWND) { host.Destroy(); }}});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileTheBoxOfAnApplyIsOpen)
{
    Open(OnYAxis(), {[&] {
                         MessageBoxes boxes;
                         Enter(Id::decimals, L"7");
                         EXPECT_EQ(boxes.Take().size(), 1u);
                     },
                     [&] { Press(Id::ok); },
                     {Box, [&](HWND) { host.Destroy(); }}});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileAFontDialogIsOpen)
{
    Open(OnYAxis(),
         {[&] { Press(Id::scaleFont); }, {ModalScript::FontDialog, [&](HWND) { host.Destroy(); }}});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileColoursAreDroppedDown)
{
    Open(OnNothing(), {[&] { Press(Id::backColor); }, [&] { host.Destroy(); }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, APageAppliesNothingToWhatTheHostHasTakenAway)
{
    for (std::size_t i = 0; i < Removals().size(); ++i) {
        for (const Tab tab : {Axis, Curve_, Chart}) {
            graph->ResetAll();
            AddLine(0);
            ShowAsTold();
            Frame();
            Open(OnNothing(), {[&] {
                                   ClickTab(tab);
                                   Removals()[i]();
                                   Enter(tab == Chart ? Id::snapRange : Id::label, L"5");
                                   Press(Id::apply);
                                   EXPECT_FALSE(Enabled(Id::apply));
                               },
                               [&] { Press(Id::ok); }});
            Frame();
            ExpectNothingLeft();
            int nSnapRange = 0;
            graph->GetSnapRange(&nSnapRange);
            EXPECT_EQ(nSnapRange, tab == Chart ? 5 : 10);
            graph->SetSnapRange(10);
        }
    }
}

// The lists hold their elements by value, and the one behind moves to the place of a removed one.
TEST_F(SheetAndHost, ThePageOfAnAxisFollowsItsAxisAndLeavesItsSuccessorAlone)
{
    const auto Label = [&](int nAxis) {
        Text label;
        XAxis(nAxis)->GetLabel(label.Out());
        return label.Str();
    };
    for (const int removed : {0, 1}) {
        graph->ResetAll();
        AddXAxes(3);
        for (int i = 0; i < 3; ++i)
            XAxis(i)->SetLabel(Text((L"x" + std::to_wstring(i)).c_str()));
        Frame();
        Open(OnXAxis(1), {[&] {
                              EXPECT_EQ(Shows(Id::label), L"x1");
                              graph->DeleteXAxis(removed);
                              Enter(Id::label, L"applied");
                              Press(Id::apply);
                              EXPECT_FALSE(Enabled(Id::apply));
                              Press(Id::titleFont);
                          },
                          {ModalScript::FontDialog,
                           [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0); }},
                          [] {}});
        EXPECT_EQ(Label(0), removed == 0 ? L"applied" : L"x0");
        EXPECT_EQ(Label(1), L"x2");
        ExpectNothingLeft();
    }
}

// The first notice of the sheet to a host is that its window is disabled.
TEST_F(SheetAndHost, AHostMayRemoveTheAxisBeforeTheSheetHasItsPages)
{
    AddXAxes(2);
    Frame();
    static ISGraph* pGraph;
    pGraph = graph.Get();
    ::SetWindowSubclass(
        host.m_hWnd,
        [](HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) -> LRESULT {
            if (message == WM_ENABLE && !wParam)
                pGraph->DeleteXAxis(1);
            return ::DefSubclassProc(hWnd, message, wParam, lParam);
        },
        1, 0);
    Open(OnXAxis(1), {[&] {
             EXPECT_EQ(CurrentTab(), Chart);
             EXPECT_EQ(Row(Id::yAxes), 0) << "as if no axis had been hit";
         }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, ARowOfWhatTheHostHasTakenAwayChoosesNothing)
{
    AddLine(1, 1, 1);
    ShowAsTold();
    Frame();
    Open(OnNothing(), {[&] {
             graph->ResetAll();
             Choose(Id::xAxes, 1);
             Choose(Id::yAxes, 1);
             Choose(Id::curves, 1);
         }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AFontOfAnAxisThatHasGoneIsNobodys)
{
    Open(OnYAxis(), {[&] { Press(Id::titleFont); },
                     {ModalScript::FontDialog,
                      [&](HWND hFonts) {
                          graph->ResetAll();
                          ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0);
                      }},
                     [&] { EXPECT_NE(Sheet(), nullptr); }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, TheEndOfTheSheetActivatesTheHostsWindow)
{
    ::SetActiveWindow(host.m_hWnd);
    Open(OnNothing(), {[&] { EXPECT_EQ(::GetActiveWindow(), Sheet()); }});
    EXPECT_EQ(::GetActiveWindow(), host.m_hWnd);
}
