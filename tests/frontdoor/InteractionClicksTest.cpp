// What clicks on axes, on curves and on nothing do, and what the parent hears of them.

#include "InteractionHost.h"
#include "support/DialogCloser.h"

namespace
{

class InteractionClicks : public FrontDoorInteraction
{
protected:
    POINT OnYAxis(int nAxis = 0) { return {Middle(RectOf(YAxis(nAxis).Get())).x, At(0, 5, 0, nAxis).y}; }
    POINT OnXAxis(int nAxis = 0) { return {At(5, 0, nAxis).x, Middle(RectOf(XAxis(nAxis).Get())).y}; }
    POINT OnCurve() { return At(5, 5); }
    POINT OnNothing() { return {At(3, 9).x, At(3, 9).y}; }
};

} // namespace

TEST_F(InteractionClicks, OnAYAxisTellItsIndexAndSelectIt)
{
    AddLine(1, 1, 1);
    ShowAsTold();
    Frame();
    Click(OnYAxis(1));
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_YAXISCLICK, 1)});
    EXPECT_TRUE(IsSelected(YAxis(1).Get()));
    EXPECT_FALSE(IsSelected(YAxis(0).Get()));
    Click(OnYAxis(0));
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_YAXISCLICK, 0)});
    EXPECT_FALSE(IsSelected(YAxis(1).Get()));
}

TEST_F(InteractionClicks, OnAnXAxisTellItsIndexAndSelectIt)
{
    AddLine(1, 1, 1);
    ShowAsTold();
    Frame();
    Click(OnXAxis(1));
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_XAXISCLICK, 1)});
    EXPECT_TRUE(IsSelected(XAxis(1).Get()));
    EXPECT_FALSE(IsSelected(XAxis(0).Get()));
}

TEST_F(InteractionClicks, OnAYAndAnXAxisAtOnceTellOfTheYAxisAloneAndSelectBoth)
{
    const POINT corner = OnXAxis();
    RECT around = {corner.x - 5, corner.y - 5, corner.x + 5, corner.y + 5};
    YAxis()->SetRect(&around);
    Click(corner);
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_YAXISCLICK, 0)});
    EXPECT_TRUE(IsSelected(YAxis().Get()));
    EXPECT_TRUE(IsSelected(XAxis().Get()));
}

TEST_F(InteractionClicks, OnTwoYAxesAtOnceTellOfBoth)
{
    AddLine(1, 1, 1);
    Frame();
    RECT both = RectOf(YAxis(0).Get());
    YAxis(1)->SetRect(&both);
    XAxis(0)->SetRect(&both);
    Click(Middle(both));
    const std::vector<Heard> expected{FromGraph(XG_YAXISCLICK, 0), FromGraph(XG_YAXISCLICK, 1)};
    EXPECT_EQ(Heards(), expected);
}

TEST_F(InteractionClicks, OnACurveTellItsIndexAndSelectIt)
{
    Click(OnCurve());
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVECLICK, 0)});
    EXPECT_TRUE(IsSelected(Curve(0).Get()));
    Click(OnNothing());
    EXPECT_TRUE(Heards().empty());
    EXPECT_FALSE(IsSelected(Curve(0).Get()));
}

TEST_F(InteractionClicks, OnTwoCurvesReachTheFirstVisibleOne)
{
    AddLine(1);
    AddLine(2);
    ShowAsTold();
    Curve(0)->SetVisible(0);
    Curve(0)->SetSelected(1);
    Curve(2)->SetSelected(1);
    Frame();
    Click(OnCurve());
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVECLICK, 1)});
    EXPECT_TRUE(IsSelected(Curve(0).Get())) << "a hidden curve is left alone";
    EXPECT_TRUE(IsSelected(Curve(1).Get()));
    EXPECT_FALSE(IsSelected(Curve(2).Get()));
}

TEST_F(InteractionClicks, TwoPixelsBesideACurveReachItAndFourDoNot)
{
    graph->ResetAll();
    std::vector<TDataPoint> flat{{0, 5}, {10, 5}};
    graph->SetData(nullptr, flat.data(), 2, 0, 0, 0, 1);
    ShowAsTold();
    Frame();
    POINT at = At(5, 5);
    for (int below = -5; below <= 5; ++below) {
        Click({at.x, at.y + below});
        const bool reached = Heards() == std::vector{FromGraph(XG_CURVECLICK, 0)};
        if (std::abs(below) <= 1) {
            EXPECT_TRUE(reached) << below;
        } else if (std::abs(below) >= 4) {
            EXPECT_FALSE(reached) << below;
        }
    }
}

TEST_F(InteractionClicks, DoubleClicksHaveNumbersOfTheirOwn)
{
    const DialogCloser closer;
    const struct {
        POINT at;
        UINT click;
        UINT doubleClick;
    } rows[] = {{OnYAxis(), XG_YAXISCLICK, XG_YAXISDBLCLICK},
                {OnXAxis(), XG_XAXISCLICK, XG_XAXISDBLCLICK},
                {OnCurve(), XG_CURVECLICK, XG_CURVEDBLCLICK}};
    for (const auto& row : rows) {
        DoubleClick(row.at);
        const std::vector<Heard> expected{FromGraph(row.click), FromGraph(row.doubleClick)};
        EXPECT_EQ(Heards(), expected) << row.click;
    }
    // The last click has left no axis selected that would take the next one for a marker.
    DoubleClick(OnNothing());
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_GRAPHDBLCLICK)});
    EXPECT_EQ(closer.m_nClosed, 4) << "the sheet came up each time";
}

TEST_F(InteractionClicks, ADoubleClickOutsideTheNormalStateDoesNothing)
{
    const DialogCloser closer;
    for (WPARAM entry :
         {Command::zoom, Command::pan, Command::cursor, Command::edit, Command::measure}) {
        Send(entry);
        Hover(OnYAxis());
        Heards();
        Mouse(WM_LBUTTONDBLCLK, OnYAxis(), MK_LBUTTON);
        EXPECT_TRUE(Heards().empty()) << entry;
    }
    EXPECT_EQ(closer.m_nClosed, 0);
}

TEST_F(InteractionClicks, WithoutInteractionNothingIsToldButTheRightButton)
{
    const DialogCloser closer;
    graph->SetInteraction(0);
    for (POINT at : {OnYAxis(), OnXAxis(), OnCurve(), OnNothing()})
        DoubleClick(at);
    EXPECT_TRUE(Heards().empty());
    EXPECT_FALSE(IsSelected(YAxis().Get()));
    Click(OnNothing());
    EXPECT_EQ(MarkerCount(YAxis().Get()), 0);
    RightClick(OnCurve());
    EXPECT_EQ(Heards(), std::vector{FromWindow(XG_RBUTTONUP)});
}

TEST_F(InteractionClicks, TheRightButtonAsksTheParentForAMenuWhereverItGoesUp)
{
    RightClick(OnNothing());
    EXPECT_EQ(Heards(), std::vector{FromWindow(XG_RBUTTONUP)});
    RightClick(OnCurve());
    const std::vector<Heard> expected{FromGraph(XG_CURVECLICK), FromWindow(XG_RBUTTONUP)};
    EXPECT_EQ(Heards(), expected);
}

TEST_F(InteractionClicks, APressTakesFocusAndCaptureAndTheReleaseGivesTheCaptureBack)
{
    ::SetFocus(host.m_hWnd);
    Press(OnNothing());
    EXPECT_EQ(::GetFocus(), Handle());
    EXPECT_EQ(::GetCapture(), Handle());
    Clean();
    Release(OnNothing());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(IsDirty());
}

TEST_F(InteractionClicks, AReleaseWithoutAPressIsNoClick)
{
    Hover(OnCurve());
    Clean();
    Release(OnCurve());
    EXPECT_TRUE(Heards().empty());
    EXPECT_FALSE(IsDirty());
}

TEST_F(InteractionClicks, AButtonReleasedOutsideTheWindowEndsThePressAtTheNextMove)
{
    Press(OnCurve());
    Hover(OnCurve()); // the move says that the button is up
    Release(OnCurve());
    EXPECT_TRUE(Heards().empty());
    EXPECT_EQ(::GetCapture(), Handle()) << "nobody gives it back";
    ::ReleaseCapture();
}

TEST_F(InteractionClicks, AClickIsJudgedWhereTheLastMoveWas)
{
    Hover(OnCurve());
    Press(OnNothing());
    Release(OnNothing());
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVECLICK)});
}

TEST_F(InteractionClicks, TheCursorTellsOfEveryMove)
{
    Send(Command::cursor);
    Hover(OnNothing());
    Hover(OnCurve());
    const std::vector<Heard> expected{FromWindow(XG_CURSORMOVED), FromWindow(XG_CURSORMOVED)};
    EXPECT_EQ(Heards(), expected);
}

TEST_F(InteractionClicks, InTheCursorsStateAClickTellsAndPinsANote)
{
    Send(Command::cursor);
    Hover(OnCurve());
    Heards();
    const Picture before = Shoot();
    Press(OnCurve());
    Release(OnCurve());
    EXPECT_EQ(Heards(), std::vector{FromGraph(XG_CURVECLICK)});
    EXPECT_GT(Shoot().CountDifferences(before), 50);
}

TEST_F(InteractionClicks, InTheEditStateEveryMoveOverACurveTellsOfIt)
{
    Send(Command::edit);
    Hover(OnCurve());
    Hover(OnCurve());
    Hover(OnNothing());
    const std::vector<Heard> expected{FromGraph(XG_CURVECLICK), FromGraph(XG_CURVECLICK)};
    EXPECT_EQ(Heards(), expected);
}

TEST_F(InteractionClicks, ZoomPanAndMeasureTellOfNoClicks)
{
    for (WPARAM entry : {Command::zoom, Command::pan, Command::measure}) {
        Send(entry);
        for (POINT at : {OnYAxis(), OnXAxis(), OnCurve()})
            Click(at);
        EXPECT_TRUE(Heards().empty()) << entry;
    }
}
