// The curve wrapper.

#include "FrontDoorGraph.h"

namespace
{

class CurveWrapper : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        curve = AddLine(0);
        ASSERT_TRUE(curve);
    }
    Holder<ISGraphDataSerie> curve;
};

} // namespace

TEST_F(CurveWrapper, NumbersAreStoredAndTold)
{
    using Set = HRESULT (STDMETHODCALLTYPE ISGraphDataSerie::*)(int);
    using Get = HRESULT (STDMETHODCALLTYPE ISGraphDataSerie::*)(int*);
    const std::tuple<Set, Get, int> numbers[] = {
        {&ISGraphDataSerie::SetLineSize, &ISGraphDataSerie::GetLineSize, 1},
        {&ISGraphDataSerie::SetFillStyle, &ISGraphDataSerie::GetFillStyle, 6},
        {&ISGraphDataSerie::SetMarkerType, &ISGraphDataSerie::GetMarkerType, 0},
        {&ISGraphDataSerie::SetMarker, &ISGraphDataSerie::GetMarker, 0},
        {&ISGraphDataSerie::SetMarkerSize, &ISGraphDataSerie::GetMarkerSize, 10}};
    for (const auto& [set, get, nDefault] : numbers) {
        int nValue = -1;
        EXPECT_EQ((curve.Get()->*get)(&nValue), S_OK);
        EXPECT_EQ(nValue, nDefault);
        EXPECT_EQ((curve.Get()->*set)(-44), S_OK);
        (curve.Get()->*get)(&nValue);
        EXPECT_EQ(nValue, -44);
        EXPECT_EQ((curve.Get()->*get)(nullptr), S_FALSE);
    }
}

TEST_F(CurveWrapper, FlagsComeBackAsZeroOrOne)
{
    LONG bValue = -1;
    EXPECT_EQ(curve->GetShowMarker(&bValue), S_OK);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(curve->SetShowMarker(256), S_OK);
    curve->GetShowMarker(&bValue);
    EXPECT_EQ(bValue, 1);
    EXPECT_EQ(curve->GetFillTransparent(&bValue), S_OK);
    EXPECT_EQ(bValue, 1);
    EXPECT_EQ(curve->SetFillTransparent(0), S_OK);
    curve->GetFillTransparent(&bValue);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(curve->GetFillBeneath(&bValue), S_OK);
    EXPECT_EQ(bValue, 0);
    EXPECT_EQ(curve->GetShowMarker(nullptr), S_FALSE);
    EXPECT_EQ(curve->GetFillTransparent(nullptr), S_FALSE);
    EXPECT_EQ(curve->GetFillBeneath(nullptr), S_FALSE);
}

TEST_F(CurveWrapper, TheFillsPartnerIsCutToSixteenBits)
{
    int nPartner = 0;
    LONG bFill = 0;
    EXPECT_EQ(curve->SetFillBeneath(1, 3), S_OK);
    EXPECT_EQ(curve->GetFillCurve(&nPartner), S_OK);
    EXPECT_EQ(nPartner, 3);
    curve->GetFillBeneath(&bFill);
    EXPECT_EQ(bFill, 1);
    EXPECT_EQ(curve->SetFillCurve(70000), S_OK);
    curve->GetFillCurve(&nPartner);
    EXPECT_EQ(nPartner, 4464);
    EXPECT_EQ(curve->SetFillCurve(65535), S_OK);
    curve->GetFillCurve(&nPartner);
    EXPECT_EQ(nPartner, -1); // widened with its sign
    EXPECT_EQ(curve->GetFillCurve(nullptr), S_FALSE);
}

TEST_F(CurveWrapper, ItTellsItsPlaceAndSize)
{
    AddLine(1, 1, 2 - 1);
    Holder<ISGraphDataSerie> second;
    graph->GetCurve(second.Out(), 1);
    LONG nCount = 0;
    int nValue = -1;
    EXPECT_EQ(second->GetCount(&nCount), S_OK);
    EXPECT_EQ(nCount, 11);
    EXPECT_EQ(second->GetIndex(&nValue), S_OK);
    EXPECT_EQ(nValue, 1);
    EXPECT_EQ(second->GetXAxis(&nValue), S_OK);
    EXPECT_EQ(nValue, 1);
    EXPECT_EQ(second->GetYAxis(&nValue), S_OK);
    EXPECT_EQ(nValue, 1);
    EXPECT_EQ(second->GetIndex(nullptr), S_FALSE);
    EXPECT_EQ(second->GetXAxis(nullptr), S_FALSE);
    EXPECT_EQ(second->GetYAxis(nullptr), S_FALSE);
    EXPECT_EQ(second->GetCount(nullptr), S_FALSE);
}

TEST_F(CurveWrapper, TypeStyleAndLabel)
{
    EGraphType type = gtScatter;
    EXPECT_EQ(curve->GetType(&type), S_OK);
    EXPECT_EQ(type, gtLine);
    EXPECT_EQ(curve->SetType(gtScatter), S_OK);
    curve->GetType(&type);
    EXPECT_EQ(type, gtScatter);
    EXPECT_EQ(curve->GetType(nullptr), S_FALSE);
    UINT nStyle = 9;
    EXPECT_EQ(curve->GetLineStyle(&nStyle), S_OK);
    EXPECT_EQ(nStyle, 0u);
    EXPECT_EQ(curve->SetLineStyle(2), S_OK);
    curve->GetLineStyle(&nStyle);
    EXPECT_EQ(nStyle, 2u);
    EXPECT_EQ(curve->GetLineStyle(nullptr), S_FALSE);
    Text text;
    EXPECT_EQ(curve->GetLabel(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L" ");
    EXPECT_EQ(curve->SetLabel(Text(L"measured")), S_OK);
    EXPECT_EQ(curve->SetLabel(nullptr), S_FALSE);
    EXPECT_EQ(curve->GetLabel(text.Out()), S_OK);
    EXPECT_EQ(text.Str(), L"measured");
    EXPECT_EQ(curve->GetLabel(nullptr), S_OK);
}

TEST_F(CurveWrapper, TheFillTakesItsColour)
{
    curve->SetFillColor(0x00C800);
    curve->SetFillTransparent(0);
    EXPECT_EQ(Shoot().Count(0x00C800), 0);
    curve->SetFillBeneath(1, 65535);
    EXPECT_GT(Shoot().Count(0x00C800), 5000);
}

TEST_F(CurveWrapper, GetGraphGivesANewObjectThatIsAttachedToNothing)
{
    Holder<IDispatch> dispatch;
    ASSERT_EQ(curve->GetGraph(dispatch.Out()), S_OK);
    ASSERT_TRUE(dispatch);
    Holder<ISGraph> other;
    ASSERT_EQ(dispatch->QueryInterface(__uuidof(ISGraph), reinterpret_cast<void**>(other.Out())), S_OK);
    EXPECT_NE(other.Get(), graph.Get());
    auto hWnd = WireHandle(host.m_hWnd);
    EXPECT_EQ(other->GetHandle(&hWnd), S_FALSE);
    EXPECT_EQ(hWnd, nullptr);
    EXPECT_EQ(curve->GetGraph(nullptr), S_OK);
}

TEST(CurveWithoutHandle, NothingIsDoneAndThatIsNoFailure)
{
    const auto curve = Server::Shared().Make<SGraphDataSerie, ISGraphDataSerie>();
    ASSERT_TRUE(curve);
    auto* const pMark = reinterpret_cast<IDispatch*>(0x10);
    IDispatch* pGraph = pMark;
    EXPECT_EQ(curve->GetGraph(&pGraph), S_OK);
    EXPECT_EQ(pGraph, pMark);
    int nValue = 77;
    EXPECT_EQ(curve->GetFillCurve(&nValue), S_OK);
    EXPECT_EQ(nValue, 77);
    EXPECT_EQ(curve->SetFillBeneath(1, 2), S_OK);
    EXPECT_EQ(curve->SetLabel(nullptr), S_OK);
    EXPECT_EQ(curve->GetType(nullptr), S_OK);
}
