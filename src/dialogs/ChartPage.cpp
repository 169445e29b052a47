#include "dialogs/ChartPage.h"

#include "dialogs/AxisDlg.h"
#include "dialogs/ChartDlg.h"
#include "dialogs/CurveDlg.h"
#include "graph/XGraph.h"

BEGIN_MESSAGE_MAP(CChartPage, CDialog)
ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, OnSelChange)
END_MESSAGE_MAP()

namespace
{
constexpr CPoint PagePlace(8, 25); // in the tab control's coordinates
} // namespace

CChartPage::CChartPage(CWnd* pParent)
    : CDialog(IDD, pParent), m_pChartDlg(std::make_unique<CChartDlg>()),
      m_pCurveDlg(std::make_unique<CCurveDlg>()), m_pAxisDlg(std::make_unique<CAxisDlg>())
{
}

CChartPage::~CChartPage() = default;

void CChartPage::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TABS, m_TabCtrl);
}

BOOL CChartPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    int nTab = ChartTab;
    // None was given, or the host removed it as its window was disabled for the sheet.
    if (m_pGraph->GetAxisIndex(m_pAxis) == -1)
        m_pAxis = m_pGraph->GetYAxis(0);
    else
        nTab = AxisTab;
    if (m_pGraph->GetCurveIndex(m_pCurve) == -1)
        m_pCurve = m_pGraph->GetCurve(0);
    else
        nTab = CurveTab;
    m_pChartDlg->m_pGraph = m_pGraph;
    m_pCurveDlg->m_pCurve = m_pCurve;
    m_pAxisDlg->m_pAxis = m_pAxis;

    AddPage(ChartTab, L"Chart", *m_pChartDlg, CChartDlg::IDD);
    AddPage(AxisTab, L"Axis", *m_pAxisDlg, CAxisDlg::IDD);
    AddPage(CurveTab, L"Curve", *m_pCurveDlg, CCurveDlg::IDD);
    ShowPage(nTab);
    m_TabCtrl.SetCurSel(nTab);
    return TRUE;
}

void CChartPage::AddPage(int nTab, LPCWSTR pszText, CDialog& page, UINT nIDTemplate)
{
    page.Create(nIDTemplate, &m_TabCtrl);
    m_TabCtrl.InsertItem(TCIF_TEXT | TCIF_PARAM, nTab, pszText, 0, reinterpret_cast<LPARAM>(&page));
}

CDialog& CChartPage::PageOf(int nTab) const
{
    if (nTab == AxisTab)
        return *m_pAxisDlg;
    if (nTab == CurveTab)
        return *m_pCurveDlg;
    return *m_pChartDlg;
}

void CChartPage::ShowPage(int nTab)
{
    CDialog& page = PageOf(nTab);
    page.SetWindowPos(&wndTop, PagePlace.x, PagePlace.y, 0, 0, SWP_NOSIZE);
    page.ShowWindow(SW_SHOW);
    page.EnableWindow();
    page.ModifyStyle(WS_CAPTION, 0);
}

void CChartPage::OnSelChange(NMHDR*, LRESULT* pResult)
{
    for (const int nTab : {ChartTab, AxisTab, CurveTab}) {
        PageOf(nTab).ShowWindow(SW_HIDE);
        PageOf(nTab).EnableWindow(FALSE);
    }
    ShowPage(m_TabCtrl.GetCurSel());
    *pResult = 0;
}

void CChartPage::SetAxis(CXGraphAxis* pAxis)
{
    m_pAxisDlg->m_pAxis = pAxis;
    m_pAxisDlg->FillControls();
}

void CChartPage::SetXAxis(int nAxis)
{
    if (m_pGraph->m_XAxes.IsInside(nAxis))
        SetAxis(m_pGraph->GetXAxis(nAxis));
}

void CChartPage::SetYAxis(int nAxis)
{
    if (m_pGraph->m_YAxes.IsInside(nAxis))
        SetAxis(m_pGraph->GetYAxis(nAxis));
}

void CChartPage::SetCurve(int nCurve)
{
    if (!m_pGraph->m_Curves.IsInside(nCurve))
        return;
    m_pCurveDlg->m_pCurve = m_pGraph->GetCurve(nCurve);
    m_pCurveDlg->FillControls();
}

// The pages are dialogs of their own, which Tab would never reach from the tabs.
BOOL CChartPage::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && pMsg->hwnd == m_TabCtrl.m_hWnd) {
        const HWND hPage = PageOf(m_TabCtrl.GetCurSel()).m_hWnd;
        const BOOL bBack = ::GetKeyState(VK_SHIFT) < 0;
        ::SetFocus(::GetNextDlgTabItem(hPage, nullptr, bBack));
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}
