// The buttons of the curve page that add a trend or a moving average as a curve of its own.
//
// Each asks by a dialog first, whose loop gives the host the word: the curve may have gone by
// the time it closes, or lie elsewhere. Adding a curve moves the others in memory, and the page finds
// its own again by the index that the curve was given when it was made.

#include "dialogs/AnalysisTexts.h"
#include "dialogs/CurveDlg.h"
#include "dialogs/MovingAvgDlg.h"
#include "dialogs/TrendDlg.h"
#include "draw/WindowCanvas.h"
#include "framework/windowing/App.h"
#include "graph/XGraph.h"

#include <array>
#include <memory>
#include <span>

namespace
{

using Points = std::unique_ptr<TDataPoint[]>;
using Average = TDataPoint* (CXGraphDataSerie::*)(int) const;

// In the order of the dialog's list.
constexpr std::array<Average, AnalysisTexts::AverageKinds> Averages = {
    &CXGraphDataSerie::GetSimpleMovingAverage, &CXGraphDataSerie::GetLinearMovingAverage,
    &CXGraphDataSerie::GetExponentialMovingAverage, &CXGraphDataSerie::GetTriangularMovingAverage,
    &CXGraphDataSerie::GetSineWeightedMovingAverage};

} // namespace

void CCurveDlg::OnMovingAverage()
{
    if (!FindCurve())
        return;
    CMovingAvgDlg dialog(this);
    dialog.m_nMaxSpan = static_cast<UINT>(m_pCurve->m_nCount / 2);
    if (dialog.DoModal() != IDOK || !FindCurve())
        return;
    const int nKind = dialog.m_nAverageType;
    if (nKind < 0 || nKind >= AnalysisTexts::AverageKinds)
        return;
    const Average average = Averages[static_cast<std::size_t>(nKind)];
    const Points points((m_pCurve->*average)(static_cast<int>(dialog.m_nSpan)));
    AddCurve(points.get(), m_pCurve->m_nCount, CString(AnalysisTexts::Average(nKind)));
}

void CCurveDlg::OnLinearTrend()
{
    AddTrend(&CXGraphDataSerie::GetLinearTrend, CString(AnalysisTexts::LinearTrend));
}

void CCurveDlg::OnCubicTrend()
{
    AddTrend(&CXGraphDataSerie::GetCubicTrend, CString(AnalysisTexts::CubicTrend));
}

void CCurveDlg::AddTrend(Trend trend, const CString& strSuffix)
{
    CTrendDlg dialog(this);
    if (dialog.DoModal() != IDOK || !FindCurve())
        return;
    const int nExpand = static_cast<int>(dialog.m_nExpand);
    const Points points((m_pCurve->*trend)(nExpand));
    AddCurve(points.get(), m_pCurve->m_nCount + nExpand, strSuffix);
}

void CCurveDlg::OnPolynomialTrend()
{
    CTrendDlg dialog(this);
    if (dialog.DoModal() != IDOK || !FindCurve())
        return;
    const int nExpand = static_cast<int>(dialog.m_nExpand);
    const Points points(m_pCurve->GetPolynomialTrend(static_cast<int>(dialog.m_nDegree), nExpand));
    if (!points) {
        AfxMessageBox(IDS_NO_POLYNOMIAL_TREND);
        return;
    }
    const CPolynomialSolver& solver = m_pCurve->m_Solver;
    const CString formula(AnalysisTexts::Formula(
        std::span(solver.m_fCoeffs).first(static_cast<std::size_t>(solver.m_nDegree))));
    if (!AddCurve(points.get(), m_pCurve->m_nCount + nExpand, CString(AnalysisTexts::PolynomialTrend)))
        return;
    CRect rect(200, 200, 210, 210);
    CWindowCanvas(m_pGraph->m_hWnd).Get()->DrawText(formula, &rect, DT_CALCRECT);
    m_pGraph->InsertLabel(rect, formula);
}

bool CCurveDlg::AddCurve(TDataPoint* pPoints, int nCount, const CString& strSuffix)
{
    const int nIndex = m_pCurve->m_nIndex;
    CXGraphDataSerie* pAdded =
        m_pGraph->SetData(pPoints, nCount, static_cast<int>(m_pGraph->m_Curves.size()),
                          m_pCurve->m_nXAxis, m_pCurve->m_nYAxis, true);
    if (!pAdded)
        return false;
    SetCurve(*m_pGraph->GetCurve(nIndex));
    pAdded->m_cLabel = m_pCurve->m_cLabel + strSuffix;
    return true;
}
