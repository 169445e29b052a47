#pragma once
// The one place that distinguishes the kinds of chart for calls that all of them take.

#include "charts2d/GraphObject.h"

// Calls action(chart) for the chart of the current kind, if there is one.
template <class Action> void CGraphObject::WithChart(Action action)
{
    if (!HasChart())
        return;
    if (m_nGraphType == WindowLayout::bar)
        action(*m_pBarGraph);
    else if (m_nGraphType == WindowLayout::flatPie)
        action(*m_pPieGraph);
    else
        action(*m_pLineGraph);
}
