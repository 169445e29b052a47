// What a host may do to the graph while the property sheet is open, and what is left of many
// openings.

#include "dialogs/SheetHost.h"
#include "support/GdiCount.h"

#include <psapi.h>

namespace
{

class SheetAndHost : public SheetHost
{
protected:
    // The host's window takes input again and nothing keeps the mouse.
    void ExpectNothingLeft()
    {
        EXPECT_TRUE(ModalDriver::Dialogs().empty());
        EXPECT_EQ(::GetCapture(), nullptr);
        if (host.m_hWnd != nullptr) {
            EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
        }
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
    static std::size_t WindowsOfThread()
    {
        std::size_t count = 0;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND, LPARAM lParam) -> BOOL {
                ++*reinterpret_cast<std::size_t*>(lParam);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    }
    static std::size_t PrivateBytes()
    {
        PROCESS_MEMORY_COUNTERS_EX counters = {};
        ::GetProcessMemoryInfo(::GetCurrentProcess(),
                               reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof counters);
        return counters.PrivateUsage;
    }
    static std::wstring ActiveTitle() { return TextOf(::GetActiveWindow()); }
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
    Open(OnNothing(), {[&] { Enter(Id::snapRange, L"101"); },
                       [&] {
                           if (ModalDriver::Dialogs().size() < 2)
                               return ModalDriver::Again();
                           host.Destroy();
                       }});
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
                     [&] {
                         if (ModalDriver::Dialogs().size() < 2)
                             return ModalDriver::Again();
                         host.Destroy();
                     }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, AHostMayDestroyItsWindowWhileAFontDialogIsOpen)
{
    Open(OnYAxis(), {[&] { Press(Id::scaleFont); },
                     [&] {
                         if (ModalDriver::Dialogs().size() < 2)
                             return ModalDriver::Again();
                         host.Destroy();
                     }});
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
                     [&] {
                         if (ModalDriver::Dialogs().size() < 2)
                             return ModalDriver::Again();
                         graph->ResetAll();
                         ::PostMessageW(ModalDriver::Dialogs().front(), WM_COMMAND, IDOK, 0);
                     },
                     [&] { EXPECT_NE(Sheet(), nullptr); }});
    ExpectNothingLeft();
}

TEST_F(SheetAndHost, TheEndOfTheSheetActivatesTheHostsWindow)
{
    ::SetActiveWindow(host.m_hWnd);
    Open(OnNothing(), {[&] { EXPECT_EQ(ActiveTitle(), L"XGraph-属性"); }});
    EXPECT_EQ(::GetActiveWindow(), host.m_hWnd);
}

TEST_F(SheetAndHost, ManyOpeningsLeaveNothingBehind)
{
    const auto Once = [&](int i) {
        Open(OnNothing(), {[&] {
                 ClickTab(static_cast<Tab>(i % 3));
                 Press(Id::ok);
             }});
        ::UpdateWindow(Handle());
        host.m_notifications.clear();
    };
    for (int i = 0; i < 12; ++i)
        Once(i);
    const int nObjects = GdiCount::All();
    const std::size_t nWindows = WindowsOfThread(), nBytes = PrivateBytes();
    for (int i = 0; i < 60; ++i)
        Once(i);
    EXPECT_EQ(GdiCount::All(), nObjects);
    EXPECT_EQ(WindowsOfThread(), nWindows);
    EXPECT_LT(PrivateBytes(), nBytes + 1'000'000);
    ExpectNothingLeft();
}
