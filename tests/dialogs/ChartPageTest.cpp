// The page of the graph as a whole.

#include "dialogs/SheetHost.h"

namespace
{

class ChartPage : public SheetHost
{
protected:
    void SetUp() override
    {
        SheetHost::SetUp();
        AddLine(1, 1, 1);
        AddLine(2, 1, 0);
        ShowAsTold();
        for (int i = 0; i < 3; ++i)
            Curve(i)->SetLabel(Text(i == 0 ? L"a" : i == 1 ? L"b" : L"c"));
        XAxis(0)->SetLabel(Text(L"x0"));
        XAxis(1)->SetLabel(Text(L"x1"));
        YAxis(0)->SetLabel(Text(L"y0"));
        YAxis(1)->SetLabel(Text(L"y1"));
        Frame();
    }
    void OpenChart(std::vector<Step> steps) { Open(OnNothing(), std::move(steps)); }

    template <class Value> Value Got(HRESULT (STDMETHODCALLTYPE ISGraph::*get)(Value*))
    {
        Value value{};
        (graph.Get()->*get)(&value);
        return value;
    }
    static COLORREF ShownColor(int id)
    {
        ::UpdateWindow(Item(id));
        return Picture(Item(id)).At(12, 8);
    }
};

constexpr const wchar_t* Limits = L"Please enter an integer between 0 and 100.";

} // namespace

TEST_F(ChartPage, ShowsWhatTheGraphHas)
{
    for (const int on : {0, 1}) {
        graph->SetShowLegend(on);
        graph->SetDoubleBuffer(on);
        graph->SetSnapCursor(on);
        graph->SetSnapRange(on ? 100 : 7);
        OpenChart({[&] {
            EXPECT_EQ(Checked(Id::showLegend), on != 0);
            EXPECT_EQ(Checked(Id::doubleBuffer), on != 0);
            EXPECT_EQ(Checked(Id::snapCursor), on != 0);
            EXPECT_EQ(Shows(Id::snapRange), on ? L"100" : L"7");
            EXPECT_FALSE(Enabled(Id::apply));
        }});
    }
}

TEST_F(ChartPage, ShowsTheThreeColours)
{
    graph->SetBackColor(0x1020F0);
    graph->SetInnerColor(0xF05060);
    OpenChart({[&] {
        EXPECT_EQ(ShownColor(Id::backColor), 0x1020F0u);
        EXPECT_EQ(ShownColor(Id::graphColor), 0xFFFFFFu) << "no host can set it";
        EXPECT_EQ(ShownColor(Id::innerColor), 0xF05060u);
    }});
}

TEST_F(ChartPage, ListsAxesAndCurvesByNumberAndLabel)
{
    OpenChart({[&] {
        EXPECT_EQ(Rows(Id::curves), (Texts{L"1 a", L"2 b", L"3 c"}));
        EXPECT_EQ(Rows(Id::xAxes), (Texts{L"1 x0", L"2 x1"}));
        EXPECT_EQ(Rows(Id::yAxes), (Texts{L"1 y0", L"2 y1"}));
        EXPECT_TRUE(Rows(Id::legendAlignment).empty());
    }});
}

TEST_F(ChartPage, SelectsWhatTheSheetOpenedOn)
{
    const struct {
        POINT at;
        int xAxis, yAxis, curve;
    } rows[] = {{OnNothing(), -1, 0, 0}, {OnXAxis(1), 1, -1, 0}, {OnYAxis(1), -1, 1, 0}};
    for (const auto& row : rows) {
        Open(row.at, {[&] {
                 ClickTab(Chart);
                 EXPECT_EQ(Row(Id::xAxes), row.xAxis);
                 EXPECT_EQ(Row(Id::yAxes), row.yAxis);
                 EXPECT_EQ(Row(Id::curves), row.curve);
             }});
    }
    Curve(0)->SetVisible(0);
    Curve(2)->SetVisible(0);
    Frame();
    Open(At(5, 5, 1, 1), {[&] {
             EXPECT_EQ(CurrentTab(), Curve_);
             ClickTab(Chart);
             EXPECT_EQ(Row(Id::curves), 1);
         }});
}

TEST_F(ChartPage, AChangeEnablesApply)
{
    const std::vector<std::function<void()>> changes = {
        [&] { Press(Id::showLegend); },
        [&] { Press(Id::doubleBuffer); },
        [&] { Press(Id::snapCursor); },
        [&] { Enter(Id::snapRange, L"12"); },
        [&] {
            ::SendMessageW(Shown(), WM_COMMAND, MAKEWPARAM(Id::legendAlignment, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(Item(Id::legendAlignment)));
        },
        [&] { EXPECT_EQ(::SendMessageW(Shown(), 2025, 0x123456, Id::backColor), 0); }};
    for (const auto& change : changes) {
        OpenChart({[&] {
            EXPECT_FALSE(Enabled(Id::apply));
            change();
            EXPECT_TRUE(Enabled(Id::apply));
            Press(Id::apply);
            EXPECT_FALSE(Enabled(Id::apply));
        }});
    }
}

TEST_F(ChartPage, TheAlignmentIsClosedWithoutALegend)
{
    OpenChart({[&] {
        EXPECT_TRUE(Enabled(Id::legendAlignment));
        Press(Id::showLegend);
        EXPECT_FALSE(Enabled(Id::legendAlignment));
        Press(Id::showLegend);
        EXPECT_TRUE(Enabled(Id::legendAlignment));
    }});
}

TEST_F(ChartPage, ApplyStoresAndRepaints)
{
    graph->SetSnapCursor(0);
    OpenChart({[&] {
        Press(Id::showLegend);
        Press(Id::doubleBuffer);
        Press(Id::snapCursor);
        Enter(Id::snapRange, L"33");
        EXPECT_EQ(Got(&ISGraph::GetSnapRange), 10) << "not yet";
        Clean();
        Press(Id::apply);
        EXPECT_TRUE(IsDirty());
        EXPECT_EQ(Got(&ISGraph::GetShowLegend), 0);
        EXPECT_EQ(Got(&ISGraph::GetDoubleBuffer), 0);
        EXPECT_NE(Got(&ISGraph::GetSnapCursor), 0);
        EXPECT_EQ(Got(&ISGraph::GetSnapRange), 33);
    }});
}

TEST_F(ChartPage, ApplyLeavesNoLegendAlignment)
{
    graph->SetLegendAlignment(left);
    OpenChart({[&] {
        Press(Id::doubleBuffer);
        Press(Id::apply);
    }});
    EXPECT_EQ(static_cast<int>(Got(&ISGraph::GetLegendAlignment)), -1);
    Shoot();
}

// The colour button drops its colours down below itself; the second cell of the second row.
TEST_F(ChartPage, AColourChosenInThePopupIsAppliedToTheGraph)
{
    OpenChart({[&] { Press(Id::backColor); },
               [&] {
                   const HWND popup = ::GetCapture();
                   ASSERT_NE(popup, nullptr);
                   DialogHands::PostKey(popup, VK_DOWN);
                   DialogHands::PostKey(popup, VK_RETURN);
               },
               [&] {
                   EXPECT_EQ(::GetCapture(), nullptr);
                   EXPECT_TRUE(Enabled(Id::apply));
                   Press(Id::apply);
               }});
    EXPECT_NE(Got(&ISGraph::GetBackColor), 0xFFFFFFu);
}

TEST_F(ChartPage, AChosenAxisIsSelectedAtOnceAndFillsItsPage)
{
    OpenChart({[&] {
        Choose(Id::xAxes, 1);
        EXPECT_EQ(Row(Id::yAxes), -1);
        EXPECT_TRUE(IsSelected(XAxis(1).Get()));
        ClickTab(Axis);
        EXPECT_EQ(Shows(Id::label), L"x1");
        ClickTab(Chart);
        Choose(Id::yAxes, 1);
        EXPECT_EQ(Row(Id::xAxes), -1);
        EXPECT_TRUE(IsSelected(YAxis(1).Get()));
        EXPECT_FALSE(Enabled(Id::apply));
        ClickTab(Axis);
        EXPECT_EQ(Shows(Id::label), L"y1");
        Enter(Id::label, L"changed");
        Press(Id::apply);
    }});
    Text label;
    YAxis(1)->GetLabel(label.Out());
    EXPECT_EQ(label.Str(), L"changed");
}

TEST_F(ChartPage, AChosenCurveIsSelectedAtOnceAndFillsItsPage)
{
    OpenChart({[&] {
        Choose(Id::curves, 2);
        EXPECT_TRUE(IsSelected(Curve(2).Get()));
        ClickTab(Curve_);
        EXPECT_EQ(Shows(Id::label), L"c");
    }});
}

TEST_F(ChartPage, ASnapRangeThatIsNoneIsRefusedWithABoxAndNothingApplied)
{
    const struct {
        const wchar_t* text;
        const wchar_t* box;
    } rows[] = {{L"101", Limits},
                {L"4294967295", Limits},
                {L"", L"Please enter a positive integer."},
                {L"1,5", L"Please enter a positive integer."},
                {L"-1", L"Please enter a positive integer."},
                {L"ten", L"Please enter a positive integer."},
                {L"99999999999999999999", Limits}};
    for (const auto& row : rows) {
        MessageBoxes boxes;
        OpenChart({[&] {
            Press(Id::doubleBuffer);
            Enter(Id::snapRange, row.text);
            EXPECT_EQ(boxes.Take(), Texts{row.box}) << Narrow(row.text);
            EXPECT_TRUE(DialogHands::IsOffered(Shown(), Id::snapRange)) << Narrow(row.text);
            Press(Id::apply);
            EXPECT_EQ(boxes.Take(), Texts{row.box}) << Narrow(row.text);
            EXPECT_TRUE(Enabled(Id::apply));
        }});
        EXPECT_EQ(Got(&ISGraph::GetSnapRange), 10);
        EXPECT_NE(Got(&ISGraph::GetDoubleBuffer), 0);
    }
}

TEST_F(ChartPage, TheLimitsOfTheSnapRangeAreTaken)
{
    for (const wchar_t* text : {L"0", L"100"}) {
        OpenChart({[&] {
            Enter(Id::snapRange, text);
            Press(Id::apply);
        }});
        EXPECT_EQ(Got(&ISGraph::GetSnapRange), _wtoi(text));
    }
}

TEST_F(ChartPage, TheSpinRunsFrom0To100)
{
    OpenChart({[&] {
        EXPECT_EQ(::SendMessageW(Item(Id::snapSpin), UDM_GETRANGE, 0, 0), MAKELONG(100, 0));
        ::SetFocus(Item(Id::snapRange));
        ::SendMessageW(Item(Id::snapRange), WM_KEYDOWN, VK_UP, 1);
        EXPECT_EQ(Shows(Id::snapRange), L"11");
        EXPECT_TRUE(Enabled(Id::apply));
    }});
}

TEST_F(ChartPage, AChoiceWithARefusedSnapRangeDoesNothing)
{
    MessageBoxes boxes;
    OpenChart({[&] {
        Enter(Id::snapRange, L"");
        (void)boxes.Take();
        ::SetFocus(Item(Id::curves));
        ::SendMessageW(Item(Id::curves), WM_KEYDOWN, VK_DOWN, 1);
        EXPECT_EQ(boxes.Take().size(), 1u);
        EXPECT_FALSE(IsSelected(Curve(1).Get()));
    }});
}
