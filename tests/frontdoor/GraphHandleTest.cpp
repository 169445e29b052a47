// How a wrapper holds its object, and what it says of it.

#include "FrontDoorGraph.h"

using GraphHandles = FrontDoorGraph;

TEST_F(GraphHandles, ClearingAHandleLeavesTheObjectAlone)
{
    auto curve = AddLine(0);
    curve->SetMarkerSize(33);
    EXPECT_EQ(curve->SetObjectHandle(nullptr), S_OK);
    int nSize = -5;
    EXPECT_EQ(curve->GetMarkerSize(&nSize), S_OK);
    EXPECT_EQ(nSize, -5); // the wrapper holds nothing
    Holder<ISGraphDataSerie> again;
    graph->GetCurve(again.Out(), 0);
    again->GetMarkerSize(&nSize);
    EXPECT_EQ(nSize, 33);
}

TEST_F(GraphHandles, ReadingTheHandleGivesTheCallersOwnAddress)
{
    auto curve = AddLine(0);
    UINT* pHandle = nullptr;
    EXPECT_EQ(curve->GetObjectHandle(&pHandle), S_OK);
    EXPECT_EQ(pHandle, reinterpret_cast<UINT*>(&pHandle));
    EXPECT_EQ(curve->GetObjectHandle(nullptr), S_FALSE);
    const auto empty = Server::Shared().Make<SGraphAxis, ISGraphAxis>();
    EXPECT_EQ(empty->GetObjectHandle(&pHandle), S_OK);
    EXPECT_EQ(pHandle, reinterpret_cast<UINT*>(&pHandle));
}

TEST_F(GraphHandles, AnAxisGivesItselfAsItsGraph)
{
    AddLine(0);
    auto axis = XAxis();
    const ULONG nBefore = (axis->AddRef(), axis->Release());
    IDispatch* pGraph = nullptr;
    EXPECT_EQ(axis->GetGraph(&pGraph), S_OK);
    EXPECT_EQ(pGraph, static_cast<IDispatch*>(axis.Get()));
    EXPECT_EQ((axis->AddRef(), axis->Release()), nBefore);
    EXPECT_EQ(axis->GetGraph(nullptr), S_FALSE);
}

TEST_F(GraphHandles, TheObjectsOwnFieldsAreStoredAndTold)
{
    AddLine(0);
    auto axis = YAxis();
    RECT rect = {1, 2, 3, 4};
    EXPECT_EQ(axis->SetRect(&rect), S_OK);
    EXPECT_EQ(axis->SetRect(nullptr), S_FALSE);
    RECT told = {};
    EXPECT_EQ(axis->GetRect(&told), S_OK);
    EXPECT_TRUE(::EqualRect(&told, &rect));
    EXPECT_EQ(axis->GetRect(nullptr), S_FALSE);
    LONG bValue = -1;
    EXPECT_EQ(axis->SetSelected(-3), S_OK);
    EXPECT_EQ(axis->GetSelected(&bValue), S_OK);
    EXPECT_EQ(bValue, 1);
    EXPECT_EQ(axis->GetSelected(nullptr), S_FALSE);
    EXPECT_EQ(axis->SetVisible(0), S_OK);
    EXPECT_EQ(axis->GetVisible(&bValue), S_OK);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(axis->GetVisible(nullptr), S_FALSE);
    EXPECT_EQ(axis->GetColor(nullptr), S_FALSE);
}

TEST_F(GraphHandles, AWrapperOutlivesTheGraphsAutomationObject)
{
    auto curve = AddLine(0);
    graph.Release();
    LONG nCount = 0;
    EXPECT_EQ(curve->GetCount(&nCount), S_OK);
    EXPECT_EQ(nCount, 11);
}

TEST_F(GraphHandles, BaseInterfacesAreNotAnswered)
{
    AddLine(0);
    auto axis = XAxis();
    void* pInterface = &axis;
    EXPECT_EQ(axis->QueryInterface(__uuidof(ISGraphObject), &pInterface), E_NOINTERFACE);
    EXPECT_EQ(pInterface, nullptr);
    EXPECT_EQ(axis->QueryInterface(__uuidof(ISObject), &pInterface), E_NOINTERFACE);
}
