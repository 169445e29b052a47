// Rows of the legend under the mouse.

#include "InteractionHost.h"
#include "support/DialogCloser.h"

namespace
{

class InteractionLegend : public FrontDoorInteraction
{
protected:
    // Three curves of known colours and a legend on the left.
    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        AddLine(1);
        AddLine(2);
        ShowAsTold();
        graph->SetShowLegend(1);
        graph->SetLegendAlignment(left);
        Frame();
    }
    // A place in the row of a curve: its key has the curve's colour.
    POINT Row(int nCurve)
    {
        const Picture picture = Shoot();
        ULONG color = 0;
        Curve(nCurve)->GetColor(&color);
        for (int y = 0; y < Height; ++y) {
            for (int x = 0; x < 40; ++x) {
                if (picture.At(x, y) == color)
                    return {x + 4, y + 2};
            }
        }
        ADD_FAILURE() << "no key of curve " << nCurve;
        return {};
    }
    std::vector<bool> Selected()
    {
        std::vector<bool> selected;
        for (int i = 0; i < CurveCount(); ++i)
            selected.push_back(IsSelected(Curve(i).Get()));
        return selected;
    }
    using Flags = std::vector<bool>;
};

} // namespace

TEST_F(InteractionLegend, AClickOnARowSelectsItsCurveAndTellsNothing)
{
    const POINT rows[] = {Row(0), Row(1), Row(2)};
    for (int i = 0; i < 3; ++i) {
        Click(rows[i]);
        Flags expected(3, false);
        expected[i] = true;
        EXPECT_EQ(Selected(), expected);
    }
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionLegend, AMoveOutsideTheRowsClearsTheSelection)
{
    graph->SelectCurve(1);
    EXPECT_EQ(Selected(), (Flags{false, true, false}));
    Hover(At(3, 9));
    EXPECT_EQ(Selected(), (Flags{false, false, false}));
}

TEST_F(InteractionLegend, AMoveOverARowChangesOnlyTheRowsAboveIt)
{
    const POINT row = Row(1);
    for (int i = 0; i < 3; ++i)
        Curve(i)->SetSelected(1);
    Hover(row);
    EXPECT_EQ(Selected(), (Flags{false, true, true}));
    EXPECT_EQ(::SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()),
                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)),
              1)
        << "a hand over the row";
}

TEST_F(InteractionLegend, ADoubleClickOnARowIsNotTold)
{
    const DialogCloser closer;
    DoubleClick(Row(1));
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionLegend, ADoubleClickChoosesTheCurveAtTheRowsNumber)
{
    const DialogCloser closer;
    const POINT second = Row(1);
    Curve(0)->SetVisible(0);
    Curve(1)->SetLabel(Text(L"second"));
    Frame();
    (void)second;
    DoubleClick(Row(1)); // the first row now, so the number of the hidden curve
    Send(Command::linearTrend);
    ASSERT_EQ(CurveCount(), 4);
    Text label;
    Curve(3)->GetLabel(label.Out());
    EXPECT_EQ(label.Str().find(L"second"), std::wstring::npos);
}

TEST_F(InteractionLegend, WithoutInteractionRowsAreDeaf)
{
    const DialogCloser closer;
    graph->SetInteraction(0);
    Click(Row(1));
    DoubleClick(Row(1));
    EXPECT_EQ(Selected(), (Flags{false, false, false}));
}

TEST_F(InteractionLegend, RowsOfAFrameBeforeACurveWentHarmNobody)
{
    const DialogCloser closer;
    const POINT rows[] = {Row(0), Row(1), Row(2)};
    graph->DeleteCurve(2);
    Clean(); // no frame in between
    for (POINT row : rows) {
        Hover(row);
        Click(row);
        Mouse(WM_LBUTTONDBLCLK, row, MK_LBUTTON);
        Clean();
    }
    graph->ResetAll();
    Clean();
    for (POINT row : rows) {
        Hover(row);
        Click(row);
        Mouse(WM_LBUTTONDBLCLK, row, MK_LBUTTON);
        Clean();
    }
    graph->SetShowLegend(0); // the old rows stay and harm as little
    Frame();
    Mouse(WM_LBUTTONDBLCLK, rows[2], MK_LBUTTON);
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(InteractionLegend, RowsOfCurvesThatMovedWhenTheListGrewAreLeftAlone)
{
    const POINT row = Row(0);
    for (int i = 3; i < 40; ++i)
        AddLine(i);
    Clean();
    Hover(row);
    Click(row);
    EXPECT_FALSE(IsSelected(Curve(39).Get()));
}
