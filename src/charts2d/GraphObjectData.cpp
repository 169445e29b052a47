// Data operations: each goes to the chart of its own kind, whatever is shown. A refusal opens a
// message box, so the chart's call is the last thing that each of them does.

#include "charts2d/GraphObject.h"

void CGraphObject::Add2DBarGraphSegment(const CString& text)
{
    if (m_pBarGraph)
        m_pBarGraph->AddSegment(text);
}

void CGraphObject::Delete2DBarGraphSegment(int index)
{
    if (m_pBarGraph)
        m_pBarGraph->DeleteSegment(index);
}

void CGraphObject::Add2DBarGraphSeries(const CString& text, COLORREF color)
{
    if (m_pBarGraph)
        m_pBarGraph->AddSeries(text, color);
}

void CGraphObject::Detele2DBarGraphSeries(int index)
{
    if (m_pBarGraph)
        m_pBarGraph->DeleteSeries(index);
}

void CGraphObject::Set2DBarGraphValue(int segment, int series, int value)
{
    if (m_pBarGraph)
        m_pBarGraph->SetValue(segment, series, value);
}

void CGraphObject::Add2DLineGraphSegment(const CString& text)
{
    if (m_pLineGraph)
        m_pLineGraph->AddSegment(text);
}

void CGraphObject::Delete2DLineGraphSegment(int index)
{
    if (m_pLineGraph)
        m_pLineGraph->DeleteSegment(index);
}

void CGraphObject::Add2DLineGraphSeries(const CString& text, COLORREF color)
{
    if (m_pLineGraph)
        m_pLineGraph->AddSeries(text, color);
}

void CGraphObject::Delete2DLineGraphSeries(int index)
{
    if (m_pLineGraph)
        m_pLineGraph->DeleteSeries(index);
}

void CGraphObject::Set2DLineGraphValue(int segment, int series, int value)
{
    if (m_pLineGraph)
        m_pLineGraph->SetValue(segment, series, value);
}

void CGraphObject::Add2DPieGraphSegment(double percent, COLORREF color, const CString& text)
{
    if (m_pPieGraph)
        m_pPieGraph->AddSegment(percent, color, text);
}

void CGraphObject::Update2DPieGraphSegment(int index, int percent, COLORREF color, const CString& text)
{
    if (m_pPieGraph)
        m_pPieGraph->UpdateSegment(index, percent, color, text);
}

void CGraphObject::Delete2DPieGraphSegment(int index)
{
    if (m_pPieGraph)
        m_pPieGraph->DeleteSegment(index);
}

void CGraphObject::Clear2DPieGraph()
{
    if (m_pPieGraph)
        m_pPieGraph->Clear();
}
