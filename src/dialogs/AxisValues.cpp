// The values of the axis page: what it shows of its axis, and what Apply makes of them.

#include "dialogs/AxisDlg.h"
#include "dialogs/CurveRows.h"
#include "dialogs/SheetPage.h"
#include "dialogs/TimeUnits.h"
#include "graph/XGraph.h"

#include <cmath>
#include <ctime>
#include <cwchar>

namespace
{
constexpr LPCWSTR Placements[] = {L"左", L"右", L"自动"};
constexpr LPCWSTR UnitNames[] = {L"秒", L"分", L"时", L"天"};

void AddRow(const CWnd& page, int nID, LPCWSTR pszText)
{
    ::SendDlgItemMessageW(page.m_hWnd, nID, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(pszText));
}

// What decimals alone would show badly.
bool NeedsExponent(double fValue)
{
    const double fSize = std::fabs(fValue);
    return fSize > 1e6 || (fValue != 0 && fSize < 1e-6);
}

COleDateTime Combine(const COleDateTime& date, const COleDateTime& time)
{
    return {date.GetYear(), date.GetMonth(),  date.GetDay(),
            time.GetHour(), time.GetMinute(), time.GetSecond()};
}
} // namespace

// The lists without which the page couldn't set what its axis has.
void CAxisDlg::FillLists()
{
    for (int nStyle = 0; nStyle < CurveRows::LineStyles; ++nStyle)
        AddRow(*this, IDC_GRIDSTYLE, L""); // drawn by its number
    for (const LPCWSTR pszPlacement : Placements)
        AddRow(*this, IDC_PLACEMENT, pszPlacement);
    for (const LPCWSTR pszUnit : UnitNames)
        AddRow(*this, IDC_TIMEUNIT, pszUnit);
}

void CAxisDlg::FillControls()
{
    m_pGraph = m_pAxis->m_pGraph;
    m_nIdentity = m_pAxis->m_nIdentity;
    LoadFields();
    SetSpins();
    EnableByKind();
    m_nTimeStep = 1;
    if (m_bDateTime)
        LoadDateTime();
    else
        LoadDecimals();
    UpdateData(FALSE);
}

void CAxisDlg::LoadFields()
{
    m_strLabel = m_pAxis->m_cLabel;
    m_pAxis->GetRange(m_fMin, m_fMax, m_fStep);
    m_bAutoScale = m_pAxis->m_bAutoScale;
    m_bDateTime = m_pAxis->m_bDateTime;
    m_bShowGrid = m_pAxis->m_bShowGrid;
    m_bVisible = m_pAxis->m_bVisible;
    m_ColorButton.SetColor(m_pAxis->m_crColor);
    m_GridColorButton.SetColor(m_pAxis->m_crGridColor);
    m_bShowMarker = m_pAxis->m_bShowMarker;
    m_nPlacement = m_pAxis->m_Placement;
    m_nArcSize = static_cast<UINT>(m_pAxis->m_nArcSize);
    m_nTickSize = static_cast<UINT>(m_pAxis->m_nTickSize);
    m_nMarkerSize = static_cast<UINT>(m_pAxis->m_nMarkerSize);
    m_nGridStyle = static_cast<int>(m_pAxis->m_nGridStyle);
}

// The tick size's spin starts from the arrow's size; its edit shows the right one.
void CAxisDlg::SetSpins()
{
    m_DecimalsSpin.SetRange(0, MaxDecimals);
    m_ArcSizeSpin.SetRange(1, MaxArcSize);
    m_TickSizeSpin.SetRange(1, MaxTickSize);
    m_MarkerSizeSpin.SetRange(1, MaxMarkerSize);
    m_MarkerSizeSpin.SetPos(static_cast<int>(m_nMarkerSize));
    m_ArcSizeSpin.SetPos(static_cast<int>(m_nArcSize));
    m_TickSizeSpin.SetPos(static_cast<int>(m_nArcSize));
}

void CAxisDlg::LoadDateTime()
{
    m_strDateFmt = m_pAxis->m_cDisplayFmt;
    m_strDateFmt.Replace(L"\n", L"\\n");
    m_nDecimals = 1;
    const TimeUnits::TStep step = TimeUnits::Split(m_fStep);
    m_nTimeStep = step.nCount;
    m_nTimeUnit = step.nUnit;
    m_dtMinDate = m_dtMinTime = COleDateTime(m_fMin);
    m_dtMaxDate = m_dtMaxTime = COleDateTime(m_fMax);
}

void CAxisDlg::LoadDecimals()
{
    m_dtMinDate = m_dtMinTime = m_dtMaxDate = m_dtMaxTime = COleDateTime(::_time64(nullptr));
    const int nPoint = m_pAxis->m_cDisplayFmt.Find(L'.');
    if (nPoint == -1)
        return;
    const int nDecimals = ::_wtoi(m_pAxis->m_cDisplayFmt.Mid(nPoint + 1));
    m_nDecimals = static_cast<UINT>(nDecimals);
    m_DecimalsSpin.SetPos(nDecimals);
}

bool CAxisDlg::Apply()
{
    if (!UpdateData(TRUE))
        return false;
    if (FindAxis()) {
        StoreFields();
        m_pGraph->Invalidate();
    }
    SheetPage::EnableControls(*this, {IDC_APPLY}, false);
    return true;
}

void CAxisDlg::StoreFields()
{
    m_pAxis->m_nGridStyle = static_cast<UINT>(m_nGridStyle);
    m_pAxis->m_cLabel = m_strLabel;
    m_pAxis->m_bAutoScale = m_bAutoScale != 0;
    m_pAxis->m_bVisible = m_bVisible != 0;
    StoreRange();
    m_pAxis->m_bShowGrid = m_bShowGrid != 0;
    m_pAxis->m_Placement = static_cast<EAxisPlacement>(m_nPlacement);
    m_pAxis->m_cDisplayFmt = DisplayFormat();
    m_pAxis->m_crColor = m_ColorButton.GetColor();
    m_pAxis->m_crGridColor = m_GridColorButton.GetColor();
    m_pAxis->m_nArcSize = static_cast<int>(m_nArcSize);
    m_pAxis->m_nTickSize = static_cast<int>(m_nTickSize);
    m_pAxis->m_nMarkerSize = static_cast<int>(m_nMarkerSize);
    m_pAxis->m_bDateTime = m_bDateTime != 0;
    m_pAxis->m_bShowMarker = m_bShowMarker != 0;
}

// A range upside down is refused by the axis, and the rest is applied all the same.
void CAxisDlg::StoreRange()
{
    if (m_bAutoScale)
        return;
    if (!m_bDateTime) {
        m_pAxis->SetCurrentRange(m_fMin, m_fMax, m_fStep);
        return;
    }
    m_fMin = Combine(m_dtMinDate, m_dtMinTime);
    m_fMax = Combine(m_dtMaxDate, m_dtMaxTime);
    m_pAxis->SetCurrentRange(m_fMin, m_fMax, TimeUnits::InDays({m_nTimeStep, m_nTimeUnit}));
}

CString CAxisDlg::DisplayFormat() const
{
    if (m_bDateTime) {
        CString strFormat = m_strDateFmt;
        strFormat.Replace(L"\\n", L"\n");
        return strFormat;
    }
    double fLow = 0, fHigh = 0, fStep = 0;
    m_pAxis->GetRange(fLow, fHigh, fStep);
    const bool bExponent = NeedsExponent(fLow) || NeedsExponent(fHigh);
    CString strFormat;
    strFormat.Format(bExponent ? L"%%5.%de" : L"%%5.%df", m_nDecimals);
    return strFormat;
}
