// Measures as a person drags them and a host deletes them.

#include "FrontDoorGraph.h"

namespace
{

constexpr COLORREF Elbow = 0x0000FF;

class FrontDoorMeasure : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        graph->SetShowLegend(0);
        Holder<ISGraphDataSerie> curve = AddLine(0);
        Shoot();
        graph->Measure();
        Shoot();
    }
    void Send(UINT message, WPARAM keys, int x, int y)
    {
        ::SendMessageW(Handle(), message, keys, MAKELPARAM(x, y));
    }
    void Drag()
    {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, 120, 60);
        Send(WM_MOUSEMOVE, MK_LBUTTON, 200, 80);
        Send(WM_MOUSEMOVE, MK_LBUTTON, 300, 150);
    }
    void Release() { Send(WM_LBUTTONUP, 0, 300, 150); }
};

} // namespace

TEST_F(FrontDoorMeasure, ADragIsShownKeptAndDeleted)
{
    EOperation operation = opNone;
    graph->GetOperation(&operation);
    EXPECT_EQ(operation, opMeasure);
    const Picture without = Shoot();
    const int nBefore = without.Count(Elbow);
    Drag();
    EXPECT_GT(Shoot().Count(Elbow), nBefore + 60); // live
    Release();
    graph->NoOp();
    EXPECT_GT(Shoot().Count(Elbow), nBefore + 60); // kept
    EXPECT_EQ(graph->DeleteMeasures(), S_OK);
    EXPECT_EQ(Shoot().CountDifferences(without), 0);
}

TEST_F(FrontDoorMeasure, DeletingThemAllDoesNotRepaint)
{
    Drag();
    Release();
    Shoot();
    graph->DeleteMeasures();
    EXPECT_FALSE(::GetUpdateRect(Handle(), nullptr, FALSE));
}

TEST_F(FrontDoorMeasure, WithoutABufferTheReleaseLeavesTheSamePicture)
{
    Drag();
    Release();
    const Picture buffered = Shoot();
    graph->DeleteMeasures();
    graph->SetDoubleBuffer(0);
    Shoot();
    const int nBefore = Picture(Handle()).Count(Elbow);
    Drag();
    EXPECT_GT(Picture(Handle()).Count(Elbow), nBefore + 60); // at once, with no frame
    Release();
    ::UpdateWindow(Handle());
    EXPECT_EQ(Picture(Handle()).CountDifferences(buffered), 0);
}

TEST_F(FrontDoorMeasure, ManySpansAndEveryPlainClickAreKept)
{
    const int nBefore = Shoot().Count(Elbow);
    for (int i = 0; i < 50; ++i) {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, 60 + 5 * i, 100);
        Send(WM_LBUTTONUP, 0, 60 + 5 * i, 100);
    }
    EXPECT_GT(Shoot().Count(Elbow), nBefore + 60); // arrows on most of the eleven points
    graph->ResetAll();                             // they survive, and name a curve that is not there
    graph->DeleteMeasures();
    Shoot();
    EXPECT_TRUE(::IsWindow(Handle()));
}

TEST_F(FrontDoorMeasure, WithoutInteractionItMeasuresOn)
{
    graph->SetInteraction(0);
    const int nBefore = Shoot().Count(Elbow);
    Drag();
    Release();
    EXPECT_GT(Shoot().Count(Elbow), nBefore + 60);
}

TEST_F(FrontDoorMeasure, DeathTest_ASpanOfARemovedCurveEndsTheProcess)
{
    Drag();
    Release();
    graph->DeleteCurve(0);
    EXPECT_EXIT(Shoot(), testing::ExitedWithCode(static_cast<int>(0xC0000417)), "");
}
