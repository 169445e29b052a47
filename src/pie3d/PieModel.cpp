// The elements: insertion, removal, changes and orders.

#include "pie3d/PieChartWnd.h"

#include "pie3d/PieOrder.h"
#include "pie3d/PieShares.h"

#include <algorithm>
#include <cmath>

SPieElement* CPieChartWnd::InsertItem(const CString& strElement, const CString& strLabel, double dValue,
                                      PieColors::Argb crColor)
{
    const bool usable = dValue > 0 && PieShares::IsUsable(m_dTotal + dValue);
    if (strElement.IsEmpty() || !usable || GetPieChartItem(strElement))
        return nullptr;
    auto element = std::make_unique<SPieElement>();
    element->pPath = GdiPlus::NewPath();
    element->strName = strElement;
    element->strLabel = strLabel;
    element->dValue = dValue;
    element->nOrder = m_nElements;
    element->crColor = crColor;
    element->crLight = PieColors::LightenColor(crColor, element->fGradientLight);
    element->crDark = PieColors::DarkenColor(crColor, element->fGradientDark);

    const bool longest = strLabel.GetLength() > m_strLongestLabel.GetLength();
    CString longestLabel = longest ? strLabel : m_strLongestLabel;

    SPieElement* const added = element.get();
    const auto named = m_Names.emplace(added->strName.View(), added).first;
    try {
        m_mapElements.emplace_hint(m_mapElements.end(), m_nElements, std::move(element));
    } catch (...) { // no memory: nothing has changed
        m_Names.erase(named);
        throw;
    }
    m_strLongestLabel = std::move(longestLabel);
    ++m_nElements;
    m_dTotal += dValue;
    m_bSettled = false;
    RecalcLabelExtent();
    UpdateScrollBar();
    Repaint();
    return added;
}

// Insertions only add to a total, so shares taken after the last of them are those that each would
// have led to.
void CPieChartWnd::Settle()
{
    if (!m_bSettled) {
        m_bSettled = true;
        RecalcPercents();
    }
}

int CPieChartWnd::RemoveItem(const CString& strElement)
{
    const SPieElement* const element = GetPieChartItem(strElement);
    if (!element)
        return 0;
    return Remove(std::find_if(m_mapElements.begin(), m_mapElements.end(),
                               [&](const auto& entry) { return entry.second.get() == element; }));
}

int CPieChartWnd::RemoveItemByIndex(std::int32_t iElementID)
{
    const auto found = m_mapElements.find(iElementID);
    return found != m_mapElements.end() ? Remove(found) : 0;
}

int CPieChartWnd::Remove(TPieElements::iterator position)
{
    Settle();
    const double total = m_dTotal - position->second->dValue;
    if (!PieShares::IsUsable(total))
        return 0;
    CString longestLabel = LongestLabelWith(position->second.get(), {});
    m_dTotal = total;
    m_Names.erase(position->second->strName.View());
    m_mapElements.erase(position);
    m_KeptPicture.Reset();
    --m_nElements;
    RenumberElements();
    m_strLongestLabel = std::move(longestLabel);
    RecalcPercents();
    RecalcLabelExtent();
    SyncFirstLabel(m_wndScrollBar.GetScrollPos(), FALSE);
    UpdateScrollBar();
    Repaint();
    return 1;
}

void CPieChartWnd::RemoveAllItem()
{
    Settle();
    m_dTotal = 0;
    m_nElements = 0;
    m_Names.clear();
    m_mapElements.clear();
    m_KeptPicture.Reset();
}

int CPieChartWnd::UpdateItemLabel(SPieElement* pItem, const CString& strLabel)
{
    if (!pItem)
        return 0;
    CString longestLabel = LongestLabelWith(pItem, strLabel);
    pItem->strLabel = strLabel;
    m_strLongestLabel = std::move(longestLabel);
    Repaint();
    return 1;
}

int CPieChartWnd::UpdateItemValue(SPieElement* pItem, double dVal)
{
    if (!pItem || dVal == 0)
        return 0;
    Settle();
    const double total = m_dTotal - pItem->dValue + dVal;
    if (!PieShares::IsUsable(total))
        return 0;
    m_dTotal = total;
    pItem->dValue = dVal;
    RecalcPercents();
    Repaint();
    return 1;
}

int CPieChartWnd::UpdateItemColor(SPieElement* pItem, PieColors::Argb crItem)
{
    if (!pItem)
        return 0;
    pItem->crColor = crItem;
    pItem->crDark = PieColors::DarkenColor(crItem, pItem->fGradientDark);
    pItem->crLight = PieColors::LightenColor(crItem, pItem->fGradientLight);
    Repaint();
    return 1;
}

int CPieChartWnd::SetPieElementGradientLight(SPieElement* pItem, float flGradientVal)
{
    if (!pItem || !std::isfinite(flGradientVal))
        return 0;
    pItem->fGradientLight = flGradientVal;
    pItem->crLight = PieColors::LightenColor(pItem->crColor, flGradientVal);
    Repaint();
    return 1;
}

int CPieChartWnd::SetPieElementGradientDark(SPieElement* pItem, float flGradientVal)
{
    if (!pItem || !std::isfinite(flGradientVal))
        return 0;
    pItem->fGradientDark = flGradientVal;
    pItem->crDark = PieColors::DarkenColor(pItem->crColor, flGradientVal);
    Repaint();
    return 1;
}

int CPieChartWnd::SetPieElementGradientLightAll(float flGradientVal)
{
    if (!std::isfinite(flGradientVal))
        return 0;
    for (const auto& [key, element] : m_mapElements)
        element->crLight = PieColors::LightenColor(element->crColor, flGradientVal);
    Repaint();
    return 1;
}

int CPieChartWnd::SetPieElementGradientDarkAll(float flGradientVal)
{
    if (!std::isfinite(flGradientVal))
        return 0;
    for (const auto& [key, element] : m_mapElements) {
        element->fGradientDark = flGradientVal;
        element->crDark = PieColors::DarkenColor(element->crColor, flGradientVal);
    }
    Repaint();
    return 1;
}

void CPieChartWnd::sortPiechartElements(long bClockWise)
{
    std::vector<double> values;
    values.reserve(m_mapElements.size());
    for (const auto& [key, element] : m_mapElements)
        values.push_back(element->dValue);
    PutInOrder(PieOrder::ByValue(values, bClockWise != 0));
}

void CPieChartWnd::SortToOrginalOrder()
{
    std::vector<std::int32_t> orders;
    orders.reserve(m_mapElements.size());
    for (const auto& [key, element] : m_mapElements)
        orders.push_back(element->nOrder);
    PutInOrder(PieOrder::ByInsertion(orders));
}

// Keys run from 0 without gaps, so the records change places and the map stays as it is.
void CPieChartWnd::PutInOrder(const std::vector<std::size_t>& positions)
{
    std::vector<std::unique_ptr<SPieElement>> elements;
    elements.reserve(m_mapElements.size());
    for (auto& [key, element] : m_mapElements)
        elements.push_back(std::move(element));
    auto next = positions.begin();
    for (auto& [key, element] : m_mapElements)
        element = std::move(elements[*next++]);
    m_KeptPicture.Reset();
    Repaint();
}

// After a removal: each element behind the gap moves up to the key before its own.
void CPieChartWnd::RenumberElements() noexcept
{
    std::int32_t key = 0;
    for (auto position = m_mapElements.begin(); position != m_mapElements.end(); ++key) {
        const auto next = std::next(position);
        if (position->first != key) {
            auto node = m_mapElements.extract(position);
            node.key() = key;
            m_mapElements.insert(next, std::move(node));
        }
        position = next;
    }
}

// The first of the longest labels, where pItem has strLabel.
CString CPieChartWnd::LongestLabelWith(const SPieElement* pItem, const CString& strLabel) const
{
    std::wstring_view longest;
    for (const auto& [key, element] : m_mapElements) {
        const CString& label = element.get() == pItem ? strLabel : element->strLabel;
        if (label.View().size() > longest.size())
            longest = label.View();
    }
    return CString(longest);
}

void CPieChartWnd::RecalcPercents() noexcept
{
    if (!(m_dTotal > 0))
        return;
    for (const auto& [key, element] : m_mapElements) {
        element->fPercent = PieShares::ShareOf(element->dValue, m_dTotal);
        element->fSweep = element->fPercent * 360.0f;
        element->fDrawSweep = element->fSweep;
    }
}

SPieElement* CPieChartWnd::GetPieChartItem(const CString& strElement) const noexcept
{
    const auto found = m_Names.find(strElement.GetString()); // as Compare, up to a null unit
    return found != m_Names.end() ? found->second : nullptr;
}

std::int32_t CPieChartWnd::GetElementID(const CString& strElement) const noexcept
{
    const SPieElement* const element = GetPieChartItem(strElement);
    return element ? element->nOrder : -1;
}

SPieElement* CPieChartWnd::GetSelectedElement() const noexcept
{
    const auto found = std::find_if(m_mapElements.begin(), m_mapElements.end(),
                                    [](const auto& entry) { return entry.second->bSelected != FALSE; });
    return found != m_mapElements.end() ? found->second.get() : nullptr;
}

float CPieChartWnd::GetElementGrLight(const SPieElement* pItem) const noexcept
{
    return pItem ? pItem->fGradientLight : -1.0f;
}

float CPieChartWnd::GetElementGrDark(const SPieElement* pItem) const noexcept
{
    return pItem ? pItem->fGradientDark : -1.0f;
}
