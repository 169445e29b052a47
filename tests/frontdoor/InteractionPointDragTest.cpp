// Data points moved by hand, and the record of each step.

#include "InteractionHost.h"

namespace
{

struct TPointRecord {
    int nCurve;
    int nIndex;
    double fOldY;
    double fNewY;
};

class InteractionPointDrag : public FrontDoorInteraction
{
protected:
    // The curve reads the host's array.
    void SetUp() override
    {
        FrontDoorInteraction::SetUp();
        points = Line(6); // x = y = 0, 2, 4, 6, 8, 10
        graph->SetData(nullptr, points.data(), 6, 0, 0, 0, 0);
        ShowAsTold();
        Frame();
        Send(Command::edit);
        Hover({At(3, 3).x, At(3, 3).y}); // takes hold of the next point
        Heards();
    }
    // The notifications of steps alone.
    std::vector<Heard> Steps()
    {
        std::vector<Heard> steps;
        for (const Heard& heard : Heards()) {
            if (heard.message == XG_POINTCHANGED)
                steps.push_back(heard);
        }
        return steps;
    }
    static const TPointRecord& Record(const Heard& step)
    {
        return *reinterpret_cast<const TPointRecord*>(step.wParam); // as a 64-bit host reads it
    }

    std::vector<TDataPoint> points;
};

} // namespace

TEST_F(InteractionPointDrag, EachStepTellsAndChangesTheHostsArray)
{
    const POINT from = At(3, 3), to = At(3, 7);
    const double fNew = YAt(to.y);
    Press(from);
    Clean();
    DragTo(to);
    EXPECT_TRUE(IsDirty());
    auto steps = Steps();
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_EQ(steps[0].lParam, graphHalf);
    EXPECT_LT(steps[0].wParam, WPARAM{0x80000000});
    const TPointRecord& record = Record(steps[0]);
    EXPECT_EQ(record.nCurve, 0);
    const int nIndex = record.nIndex;
    ASSERT_TRUE(nIndex == 1 || nIndex == 2) << nIndex;
    EXPECT_EQ(record.fOldY, 2.0 * nIndex);
    EXPECT_EQ(record.fNewY, fNew);
    EXPECT_EQ(points[nIndex].fYVal, fNew);
    EXPECT_EQ(points[nIndex].fXVal, 2.0 * nIndex) << "only y moves";

    const POINT next = At(9, 1);
    DragTo(next); // far off the curve
    steps = Steps();
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_EQ(&Record(steps[0]), &record) << "one record, overwritten";
    EXPECT_EQ(record.nIndex, nIndex);
    EXPECT_EQ(record.fOldY, fNew);
    EXPECT_EQ(record.fNewY, points[nIndex].fYVal);
    Release(next);
    EXPECT_TRUE(Steps().empty());
    Hover(At(9, 2));
    EXPECT_TRUE(Steps().empty());
}

TEST_F(InteractionPointDrag, TheValueStandsBesideThePointWhileItIsDragged)
{
    Press(At(3, 3));
    DragTo(At(3, 8));
    const POINT at = At(3, 8);
    const RECT beside = {at.x + 10, at.y, at.x + 45, at.y + 14};
    EXPECT_GT(Shoot().Count(beside, 0x000000), 10);
    Release(At(3, 8));
    Hover(At(9, 2));
    EXPECT_EQ(Shoot().Count(beside, 0x000000), 0);
}

TEST_F(InteractionPointDrag, OtherStatesMoveNoPoints)
{
    for (WPARAM entry : {Command::noOp, Command::cursor, Command::measure}) {
        Send(entry);
        Hover(At(3, 3));
        Press(At(3, 3));
        DragTo(At(3, 7));
        Release(At(3, 7));
        EXPECT_TRUE(Steps().empty()) << entry;
    }
    EXPECT_EQ(points[1].fYVal, 2);
    EXPECT_EQ(points[2].fYVal, 4);
}

TEST_F(InteractionPointDrag, ACurveThatOwnsItsPointsLeavesTheHostsArrayAlone)
{
    graph->ResetAll();
    graph->SetData(nullptr, points.data(), 6, 0, 0, 0, 1);
    ShowAsTold();
    Frame();
    Hover(At(3, 3));
    Press(At(3, 3));
    DragTo(At(3, 7));
    EXPECT_EQ(Steps().size(), 1u);
    EXPECT_EQ(points[1].fYVal, 2);
    EXPECT_EQ(points[2].fYVal, 4);
    Release(At(3, 7));
}

TEST_F(InteractionPointDrag, ACurveThatGetsFewerPointsLendsItsLastOne)
{
    Hover(At(9, 9));
    Heards();
    Press(At(9, 9));
    std::vector<TDataPoint> few{{0, 0}, {10, 10}};
    graph->SetData(nullptr, few.data(), 2, 0, 0, 0, 0);
    DragTo(At(9, 5));
    const auto steps = Steps();
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_EQ(Record(steps[0]).nIndex, 1);
    EXPECT_EQ(few[1].fYVal, Record(steps[0]).fNewY);
    EXPECT_EQ(points[5].fYVal, 10);
    Release(At(9, 5));
    graph->ResetAll();
}

TEST_F(InteractionPointDrag, ACurveDeletedUnderTheHandEndsTheDrag)
{
    Press(At(3, 3));
    DragTo(At(3, 4));
    EXPECT_EQ(Steps().size(), 1u);
    graph->DeleteCurve(0);
    DragTo(At(3, 5));
    DragTo(At(3, 6));
    Release(At(3, 6));
    EXPECT_TRUE(Steps().empty());
    Hover(At(3, 3));
    EXPECT_TRUE(Heards().empty());
}

TEST_F(InteractionPointDrag, EverythingDeletedUnderTheHandEndsTheDrag)
{
    Press(At(3, 3));
    DragTo(At(3, 4));
    graph->ResetAll();
    Steps();
    DragTo({120, 120});
    Frame();
    Release({120, 120});
    EXPECT_TRUE(Steps().empty());
}
