// What a graph and its pieces are asked for, and wrappers that a host makes itself.

#include "GraphActor.h"

namespace
{
template <class Interface, class Owner, class Value>
void Ask(Interface* pObject, HRESULT (STDMETHODCALLTYPE Owner::*pfn)(Value*))
{
    Value value{};
    (pObject->*pfn)(&value);
    (pObject->*pfn)(nullptr);
}

template <class Interface, class Owner>
void AskText(Interface* pObject, HRESULT (STDMETHODCALLTYPE Owner::*pfn)(BSTR*))
{
    Text text;
    (pObject->*pfn)(text.Out());
    (pObject->*pfn)(text.Out());
}

// A new wrapper without an object. What all pieces share ends the process there.
void AskOwnWrappers(const Server& server, unsigned long color)
{
    const auto bitmap = server.Make<SGraphBitmap, ISGraphBitmap>();
    Ask(bitmap.Get(), &ISGraphBitmap::GetBorder);
    bitmap->SetBorder(1);
    bitmap->SetBitmap(nullptr);
    Ask(bitmap.Get(), &ISGraphBitmap::GetBitmap);
    const auto axis = server.Make<SGraphLogAxis, ISGraphLogAxis>();
    axis->SetRange(1, 100);
    axis->SetAxisType(atLinear);
    double value = 0;
    axis->GetValueForPos(3, &value);
    const auto object = server.Make<SObject, ISObject>();
    unsigned* pHandle = nullptr;
    object->SetObjectHandle(nullptr);
    object->GetObjectHandle(&pHandle);
    const auto label = server.Make<SGraphLabel, ISGraphLabel>();
    label->SetTextColor(color);
}
} // namespace

void GraphActor::AskGraph(Random& random, Log& log)
{
    log.Say("questions to the graph");
    ISGraph* const pGraph = m_graph.Get();
    Ask(pGraph, &ISGraph::GetZoomDepth);
    Ask(pGraph, &ISGraph::GetBackColor);
    Ask(pGraph, &ISGraph::GetGraphColor);
    Ask(pGraph, &ISGraph::GetInnerColor);
    Ask(pGraph, &ISGraph::GetDoubleBuffer);
    Ask(pGraph, &ISGraph::GetShowLegend);
    Ask(pGraph, &ISGraph::GetInteraction);
    Ask(pGraph, &ISGraph::GetSnapCursor);
    Ask(pGraph, &ISGraph::GetLegendAlignment);
    Ask(pGraph, &ISGraph::GetSnapRange);
    Ask(pGraph, &ISGraph::GetOperation);
    long x = 0, y = 0;
    pGraph->GetCursor(&x, &y);
    pGraph->SetGraphColor(random.Color());
    pGraph->SetBackgroundBitmap(nullptr, 0);
    pGraph->InsertBitmap(nullptr, nullptr, nullptr);
    pGraph->GetXGraphMsgInfo(XG_CURVECLICK, nullptr);
    pGraph->GetXGraphPersistInfo(PERSIST_DATA, nullptr);
    pGraph->GetXGraphXgcInfo(XGC_HORIZ, nullptr);
    if (random.OneIn(4))
        AskOwnWrappers(m_server, random.Color());
}

void GraphActor::SetShared(ISGraphObject* pObject, Random& random)
{
    RECT rect = {Extremes::Number(random, -50, 300), Extremes::Number(random, -50, 200),
                 Extremes::Number(random, 0, 400), Extremes::Number(random, 0, 300)};
    Ask(pObject, &ISGraphObject::GetRect);
    Ask(pObject, &ISGraphObject::GetSelected);
    Ask(pObject, &ISGraphObject::GetVisible);
    Ask(pObject, &ISGraphObject::GetColor);
    if (random.OneIn(3))
        pObject->SetRect(&rect);
    pObject->SetSelected(random.Int(0, 1));
    pObject->SetColor(random.Color());
    IDispatch* pSelf = nullptr;
    pObject->GetGraph(&pSelf); // comes without a reference
    unsigned* pHandle = nullptr;
    pObject->GetObjectHandle(&pHandle);
}

void GraphActor::AskAxis(Random& random, Log& log)
{
    bool bY = false;
    const auto axis = AnyAxis(random, bY);
    if (!axis)
        return;
    log.Say("questions to an axis");
    ISGraphAxis* const pAxis = axis.Get();
    SetShared(pAxis, random);
    Ask(pAxis, &ISGraphAxis::GetAxisType);
    Ask(pAxis, &ISGraphAxis::GetShowMarker);
    Ask(pAxis, &ISGraphAxis::GetDateTime);
    Ask(pAxis, &ISGraphAxis::GetShowGrid);
    Ask(pAxis, &ISGraphAxis::GetAutoScale);
    Ask(pAxis, &ISGraphAxis::GetArcSize);
    Ask(pAxis, &ISGraphAxis::GetMarkerSize);
    Ask(pAxis, &ISGraphAxis::GetTickSize);
    Ask(pAxis, &ISGraphAxis::GetGridStyle);
    Ask(pAxis, &ISGraphAxis::GetGridColor);
    Ask(pAxis, &ISGraphAxis::GetPlacement);
    Ask(pAxis, &ISGraphAxis::GetAxisMarkerCount);
    AskText(pAxis, &ISGraphAxis::GetLabel);
    AskText(pAxis, &ISGraphAxis::GetDisplayFmt);
    pAxis->SetGridColor(random.Color());
    if (random.OneIn(4))
        pAxis->DeleteAllColorRanges();
}

void GraphActor::AskCurve(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    Holder<ISGraphDataSerie> curve;
    m_graph->GetCurve(curve.Out(), random.Int(0, Curves() - 1));
    log.Say("questions to a curve");
    ISGraphDataSerie* const pCurve = curve.Get();
    SetShared(pCurve, random);
    Ask(pCurve, &ISGraphDataSerie::GetIndex);
    Ask(pCurve, &ISGraphDataSerie::GetXAxis);
    Ask(pCurve, &ISGraphDataSerie::GetYAxis);
    Ask(pCurve, &ISGraphDataSerie::GetLineSize);
    Ask(pCurve, &ISGraphDataSerie::GetFillStyle);
    Ask(pCurve, &ISGraphDataSerie::GetMarkerType);
    Ask(pCurve, &ISGraphDataSerie::GetMarker);
    Ask(pCurve, &ISGraphDataSerie::GetMarkerSize);
    Ask(pCurve, &ISGraphDataSerie::GetLineStyle);
    Ask(pCurve, &ISGraphDataSerie::GetShowMarker);
    Ask(pCurve, &ISGraphDataSerie::GetFillBeneath);
    Ask(pCurve, &ISGraphDataSerie::GetFillCurve);
    Ask(pCurve, &ISGraphDataSerie::GetFillTransparent);
    Ask(pCurve, &ISGraphDataSerie::GetType);
    AskText(pCurve, &ISGraphDataSerie::GetLabel);
    pCurve->SetFillColor(random.Color());
    pCurve->SetFillCurve(random.OneIn(2) ? 0xFFFF : random.Int(0, Curves() - 1));
    IDispatch* pApart = nullptr;
    if (pCurve->GetGraph(&pApart) == S_OK && pApart != nullptr)
        pApart->Release(); // a graph without a window, on which nothing may be called
    m_graph->AddLinearTrend(pCurve);
    m_graph->AddCubicTrend(pCurve);
    m_graph->AddLinearTrend(nullptr);
    const int nX = Count(&ISGraph::GetXAxisCount), nY = Count(&ISGraph::GetYAxisCount);
    if (nX > 0 && nY > 0)
        m_graph->Autoscale(random.Int(0, nX - 1), random.Int(0, nY - 1), random.Int(0, Curves() - 1));
}

void GraphActor::SetLabel(ISGraphLabel* pLabel, Random& random)
{
    SetShared(pLabel, random);
    pLabel->SetText(Text(Extremes::String(random)));
    pLabel->SetColor(random.Color());
    pLabel->SetTextColor(random.Color());
    pLabel->SetCurve(Extremes::Number(random, 0, 2)); // another name of the alignment
    Ask(pLabel, &ISGraphLabel::GetTextColor);
    Ask(pLabel, &ISGraphLabel::GetBorder);
    Ask(pLabel, &ISGraphLabel::GetTransparent);
    Ask(pLabel, &ISGraphLabel::GetAlignment);
    Ask(pLabel, &ISGraphLabel::GetCurve);
    AskText(pLabel, &ISGraphLabel::GetText);
}
