// The states that mouse and keys work in, the ways into each, and the block of commands.

#include "InteractionHost.h"
#include "support/DialogCloser.h"

namespace
{

using InteractionOperations = FrontDoorInteraction;

constexpr WPARAM Entries[] = {Command::noOp,   Command::zoom, Command::pan,
                              Command::cursor, Command::edit, Command::measure};
constexpr EOperation States[] = {opNone, opZoom, opPan, opCursor, opEditCurve, opMeasure};

long AutoScaleOf(ISGraphAxis* pAxis)
{
    long bValue = -1;
    pAxis->GetAutoScale(&bValue);
    return bValue;
}

} // namespace

TEST_F(InteractionOperations, EveryCommandEntersItsStateFromAnyOther)
{
    EXPECT_EQ(Operation(), opNone);
    for (std::size_t from = 0; from < std::size(Entries); ++from) {
        for (std::size_t to = 0; to < std::size(Entries); ++to) {
            Send(Entries[from]);
            EXPECT_EQ(Operation(), States[from]);
            Clean();
            Send(Entries[to]);
            EXPECT_EQ(Operation(), States[to]) << Entries[from] << " then " << Entries[to];
            EXPECT_TRUE(IsDirty()) << Entries[to];
        }
    }
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionOperations, MethodsEnterAllStatesButTheCursors)
{
    EXPECT_EQ(graph->Zoom(), S_OK);
    EXPECT_EQ(Operation(), opZoom);
    EXPECT_EQ(graph->Pan(), S_OK);
    EXPECT_EQ(Operation(), opPan);
    EXPECT_EQ(graph->Edit(), S_OK);
    EXPECT_EQ(Operation(), opEditCurve);
    EXPECT_EQ(graph->Measure(), S_OK);
    EXPECT_EQ(Operation(), opMeasure);
    EXPECT_EQ(graph->Cursor(), S_OK);
    EXPECT_EQ(Operation(), opMeasure);
    EXPECT_EQ(graph->SendMessage(WM_COMMAND, Command::cursor, 0), S_OK);
    EXPECT_EQ(Operation(), opCursor);
    EXPECT_EQ(graph->NoOp(), S_OK);
    EXPECT_EQ(Operation(), opNone);
    EXPECT_EQ(graph->PostMessage(WM_COMMAND, Command::cursor, 0), S_OK);
    HostWindow::Pump();
    EXPECT_EQ(Operation(), opCursor);
}

TEST_F(InteractionOperations, PanAndTheCursorStopRoundingOnAllAxesAndNothingElseDoes)
{
    AddLine(1, 1, 1);
    for (std::size_t i = 0; i < std::size(Entries); ++i) {
        for (int axis = 0; axis < 2; ++axis) {
            XAxis(axis)->SetAutoScale(1);
            YAxis(axis)->SetAutoScale(1);
        }
        Send(Entries[i]);
        const long bExpected = States[i] == opPan || States[i] == opCursor ? 0 : 1;
        for (int axis = 0; axis < 2; ++axis) {
            EXPECT_EQ(AutoScaleOf(XAxis(axis).Get()), bExpected) << Entries[i];
            EXPECT_EQ(AutoScaleOf(YAxis(axis).Get()), bExpected) << Entries[i];
        }
    }
}

TEST_F(InteractionOperations, TheCommandToPassOnReachesTheParentAsItCame)
{
    Send(Command::passOn);
    EXPECT_EQ(Heards(), std::vector{FromGraph(VPX_MESSAGE_PASSED_ON)});
    EXPECT_EQ(graphHalf, static_cast<std::int32_t>(graphHalf)) << "32 bits, widened with sign";
    EXPECT_EQ(Operation(), opNone);
}

TEST_F(InteractionOperations, IdsWithoutAHandlerDoNothing)
{
    Send(Command::measure);
    Clean();
    for (WPARAM id : {39999, 40006, 40008, 40016}) {
        Send(id);
        EXPECT_EQ(Operation(), opMeasure) << id;
        EXPECT_FALSE(IsDirty()) << id;
    }
    EXPECT_TRUE(Heards().empty());
    EXPECT_EQ(CurveCount(), 1);
}

TEST_F(InteractionOperations, TheLabelCommandPutsAnEmptyLabelInTheMiddle)
{
    const RECT inner = Inner();
    const POINT middle = Middle(inner);
    Clean();
    Send(Command::insertLabel);
    EXPECT_TRUE(IsDirty());
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(middle.x, middle.y), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(picture.At(middle.x - 40, middle.y + 40), ::GetSysColor(COLOR_WINDOW));
    EXPECT_NE(picture.At(middle.x - 56, middle.y + 30), ::GetSysColor(COLOR_WINDOW));
}

TEST_F(InteractionOperations, ThePropertiesCommandActsAsADoubleClickInAnyState)
{
    const DialogCloser closer;
    for (WPARAM entry : Entries) {
        Send(entry);
        graph->SetCursor(Middle(RectOf(YAxis().Get())).x, At(0, 5).y);
        Heards();
        Send(Command::properties);
        EXPECT_EQ(Heards(), std::vector{FromGraph(XG_YAXISDBLCLICK)}) << entry;
    }
    Send(Command::noOp);
    graph->SetCursor(At(0, 2).x + 30, At(0, 9).y);
    Send(Command::properties);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_GRAPHDBLCLICK)});
    graph->SetCursor(At(5, 5).x, At(5, 5).y);
    Send(Command::properties);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVEDBLCLICK)});
    EXPECT_EQ(closer.m_nClosed, 8);
}

TEST_F(InteractionOperations, ThePropertiesCommandIsDeafWithoutInteraction)
{
    const DialogCloser closer;
    graph->SetInteraction(0);
    graph->SetCursor(At(5, 5).x, At(5, 5).y);
    Send(Command::properties);
    EXPECT_TRUE(Heards().empty());
    EXPECT_FALSE(IsSelected(Curve(0).Get()));
    EXPECT_EQ(closer.m_nClosed, 0);
}

TEST_F(InteractionOperations, TrendCommandsWorkOnTheCurveThatAClickSelected)
{
    Click(At(5, 5));
    Send(Command::linearTrend);
    ASSERT_EQ(CurveCount(), 2);
    Send(Command::cubicTrend);
    ASSERT_EQ(CurveCount(), 3);
    Text label;
    Curve(1)->GetLabel(label.Out());
    EXPECT_NE(label.Str().find(L"linear trend"), std::wstring::npos) << "of the first curve";
}

TEST_F(InteractionOperations, AnyStateMayStandBeforeTheFirstFrameAndWithoutData)
{
    const DialogCloser closer;
    graph->ResetAll();
    for (WPARAM entry : Entries) {
        if (entry == Command::measure)
            continue; // a measure needs a curve
        Send(entry);
        const POINT from = {100, 100}, to = {200, 200};
        DragAcross(from, to);
        DoubleClick(from);
        RightClick(to);
        for (WPARAM key : {VK_HOME, VK_ADD, VK_SUBTRACT, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_DELETE})
            Key(key);
        Mouse(WM_MOUSEWHEEL, from, MAKEWPARAM(MK_SHIFT, 120));
        Send(Command::noOp);
    }
    Send(Command::zoomBack);
    Send(Command::resetZoom);
    EXPECT_EQ(ZoomDepth(), 0);
}

TEST_F(InteractionOperations, DeathTest_AMeasureWithoutACurveEndsTheProcess)
{
    graph->ResetAll();
    Send(Command::measure);
    EXPECT_EXIT(DragAcross({100, 100}, {200, 200}),
                testing::ExitedWithCode(static_cast<int>(0xC0000417)), "");
}
