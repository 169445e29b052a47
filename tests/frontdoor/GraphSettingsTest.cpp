// The graph's settings, and methods whose whole effect is their result.

#include "FrontDoorGraph.h"
#include "support/Faults.h"

using GraphSettings = FrontDoorGraph;

TEST_F(GraphSettings, DefaultsAreTold)
{
    ULONG color = 1;
    graph->GetBackColor(&color);
    EXPECT_EQ(color, 0xFFFFFFu);
    graph->GetGraphColor(&color);
    EXPECT_EQ(color, 0xFFFFFFu);
    graph->GetInnerColor(&color);
    EXPECT_EQ(color, 0xF0F0F0u);
    EAlignment align = left;
    graph->GetLegendAlignment(&align);
    EXPECT_EQ(align, right);
    int nRange = 0;
    graph->GetSnapRange(&nRange);
    EXPECT_EQ(nRange, 10);
    EOperation operation = opZoom;
    graph->GetOperation(&operation);
    EXPECT_EQ(operation, opNone);
}

TEST_F(GraphSettings, ColoursAreStoredWithoutARepaint)
{
    ::UpdateWindow(Handle());
    EXPECT_EQ(graph->SetBackColor(0x010203), S_OK);
    EXPECT_EQ(graph->SetInnerColor(0x040506), S_OK);
    EXPECT_FALSE(::GetUpdateRect(Handle(), nullptr, FALSE));
    ULONG color = 0;
    EXPECT_EQ(graph->GetBackColor(&color), S_OK);
    EXPECT_EQ(color, 0x010203u);
    EXPECT_EQ(graph->GetInnerColor(&color), S_OK);
    EXPECT_EQ(color, 0x040506u);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.At(0, 0), 0x010203u);
    EXPECT_EQ(picture.At(50, 100), 0x040506u);
}

TEST_F(GraphSettings, TheGraphColourStaysAsItWas)
{
    EXPECT_EQ(graph->SetGraphColor(0x123456), S_OK);
    ULONG color = 0;
    graph->GetGraphColor(&color);
    EXPECT_EQ(color, 0xFFFFFFu);
}

TEST_F(GraphSettings, FlagsComeBackAsZeroOrOne)
{
    using Set = HRESULT (STDMETHODCALLTYPE ISGraph::*)(LONG);
    using Get = HRESULT (STDMETHODCALLTYPE ISGraph::*)(LONG*);
    const std::pair<Set, Get> flags[] = {{&ISGraph::SetDoubleBuffer, &ISGraph::GetDoubleBuffer},
                                         {&ISGraph::SetShowLegend, &ISGraph::GetShowLegend},
                                         {&ISGraph::SetInteraction, &ISGraph::GetInteraction},
                                         {&ISGraph::SetSnapCursor, &ISGraph::GetSnapCursor}};
    for (const auto& [set, get] : flags) {
        LONG bValue = -7;
        EXPECT_EQ((graph.Get()->*get)(&bValue), S_OK);
        EXPECT_EQ(bValue, 1);
        EXPECT_EQ((graph.Get()->*set)(0), S_OK);
        (graph.Get()->*get)(&bValue);
        EXPECT_EQ(bValue, 0);
        (graph.Get()->*set)(-4096);
        (graph.Get()->*get)(&bValue);
        EXPECT_EQ(bValue, 1);
        EXPECT_EQ((graph.Get()->*get)(nullptr), S_FALSE);
    }
}

TEST_F(GraphSettings, ValuesArePassedWithoutACheck)
{
    EXPECT_EQ(graph->SetLegendAlignment(static_cast<EAlignment>(77)), S_OK);
    EAlignment align = left;
    graph->GetLegendAlignment(&align);
    EXPECT_EQ(static_cast<int>(align), 77);
    EXPECT_EQ(graph->SetSnapRange(-5), S_OK);
    int nRange = 0;
    graph->GetSnapRange(&nRange);
    EXPECT_EQ(nRange, -5);
    Shoot(); // and paints with them
}

TEST_F(GraphSettings, TheCursorsPlaceIsStoredAndTold)
{
    EXPECT_EQ(graph->SetCursor(-3, 70000), S_OK);
    LONG x = 0;
    LONG y = 0;
    EXPECT_EQ(graph->GetCursor(&x, &y), S_OK);
    EXPECT_EQ(x, -3);
    EXPECT_EQ(y, 70000);
    EXPECT_EQ(graph->GetCursor(nullptr, nullptr), S_FALSE);
    EXPECT_EQ(graph->GetCursor(nullptr, &y), S_FALSE);
}

TEST_F(GraphSettings, ANullPointerForAResultIsTold)
{
    EXPECT_EQ(graph->GetBackColor(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetGraphColor(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetInnerColor(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetLegendAlignment(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetSnapRange(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetOperation(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetXAxisCount(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetYAxisCount(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetCurveCount(nullptr), S_FALSE);
    EXPECT_EQ(graph->GetHandle(nullptr), S_FALSE);
}

TEST_F(GraphSettings, ANullTextIsToldWhereItIsTested)
{
    EXPECT_EQ(graph->SetPrintHeader(nullptr), S_FALSE);
    EXPECT_EQ(graph->SetPrintFooter(nullptr), S_FALSE);
    EXPECT_EQ(graph->SaveBitmap(nullptr), S_FALSE);
    EXPECT_EQ(graph->SetPrintHeader(Text(L"head")), S_OK);
    EXPECT_EQ(graph->SetPrintFooter(Text(L"foot")), S_OK);
}

TEST_F(GraphSettings, CursorDoesNotEnterTheCursorsMode)
{
    EOperation before = opZoom;
    EOperation after = opPan;
    graph->GetOperation(&before);
    EXPECT_EQ(graph->Cursor(), S_OK);
    graph->GetOperation(&after);
    EXPECT_EQ(before, after);
}

TEST_F(GraphSettings, PicturesAreNotTaken)
{
    RECT rect = {0, 0, 10, 10};
    const auto picture = Server::Shared().Make<SGraphBitmap, ISGraphBitmap>();
    auto* const pMark = reinterpret_cast<ISGraphBitmap*>(0x10);
    ISGraphBitmap* pOut = pMark;
    EXPECT_EQ(graph->InsertBitmap(&rect, picture.Get(), &pOut), S_FALSE);
    EXPECT_EQ(graph->InsertBitmap(nullptr, nullptr, &pOut), S_FALSE);
    EXPECT_EQ(pOut, pMark);
    EXPECT_EQ(graph->SetBackgroundBitmap(nullptr, 0), S_FALSE);
    EXPECT_EQ(graph->SetBackgroundBitmap(picture.Get(), 3), S_FALSE);
}

TEST_F(GraphSettings, InformationMethodsAreOfNoUse)
{
    EXPECT_EQ(graph->GetXGraphMsgInfo(XG_YAXISCLICK, Text(L"x")), S_FALSE);
    EXPECT_EQ(graph->GetXGraphPersistInfo(PERSIST_OBJECTS, nullptr), S_FALSE);
    EXPECT_EQ(graph->GetXGraphXgcInfo(static_cast<XGRAPH_XGC>(1234), nullptr), S_FALSE);
}

TEST_F(GraphSettings, RemainingSettersSucceed)
{
    EXPECT_EQ(graph->SetCursorFlags(15), S_OK);
    EXPECT_EQ(graph->ForceSnap(-1), S_OK);
    EXPECT_EQ(graph->DeleteMeasures(), S_OK);
    EXPECT_EQ(graph->ResetAll(), S_OK);
    EXPECT_EQ(graph->SetGraphMargins(20, 30, 40, 50), S_OK);
    graph->SetShowLegend(0);
    graph->SetBackColor(0x0000FF);
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count(0x0000FF), Width * Height - (Width - 60) * (Height - 80));
}

TEST_F(GraphSettings, DeathTest_AskingForTheCursorWithANullYFaults)
{
    LONG x = 0;
    EXPECT_EXIT((Faults::EndAtOnce(), graph->GetCursor(&x, nullptr)),
                testing::ExitedWithCode(Faults::AccessViolation), "");
}
