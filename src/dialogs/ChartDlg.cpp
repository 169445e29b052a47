#include "dialogs/ChartDlg.h"

#include "dialogs/ChartPage.h"
#include "dialogs/SheetPage.h"
#include "graph/XGraph.h"

BEGIN_MESSAGE_MAP(CChartDlg, CDialog)
ON_BN_CLICKED(IDC_SHOWLEGEND, OnChange)
ON_CBN_SELCHANGE(IDC_LEGENDALIGNMENT, OnChange)
ON_BN_CLICKED(IDC_DOUBLEBUFFER, OnChange)
ON_BN_CLICKED(IDC_SNAPCURSOR, OnChange)
ON_EN_CHANGE(IDC_SNAPRANGE, OnChange)
ON_MESSAGE(CBM_COLORCHANGE, OnColorChange)
ON_BN_CLICKED(IDC_APPLY, OnApply)
ON_CBN_SELCHANGE(IDC_XAXES, OnXAxis)
ON_CBN_SELCHANGE(IDC_YAXES, OnYAxis)
ON_CBN_SELCHANGE(IDC_CURVES, OnCurve)
END_MESSAGE_MAP()

namespace
{
constexpr UINT MaxSnapRange = 100;
} // namespace

void CChartDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SNAPRANGE_SPIN, m_SnapRangeSpin);
    DDX_Control(pDX, IDC_LEGENDALIGNMENT, m_LegendAlignmentList);
    DDX_Control(pDX, IDC_XAXES, m_XAxisList);
    DDX_Control(pDX, IDC_YAXES, m_YAxisList);
    DDX_Control(pDX, IDC_CURVES, m_CurveList);
    DDX_Control(pDX, IDC_BACKCOLOR, m_BackColorButton);
    DDX_Control(pDX, IDC_GRAPHCOLOR, m_GraphColorButton);
    DDX_Control(pDX, IDC_INNERCOLOR, m_InnerColorButton);
    DDX_Check(pDX, IDC_SHOWLEGEND, m_bShowLegend);
    DDX_Check(pDX, IDC_DOUBLEBUFFER, m_bDoubleBuffer);
    DDX_CBIndex(pDX, IDC_XAXES, m_nXAxis);
    DDX_CBIndex(pDX, IDC_YAXES, m_nYAxis);
    DDX_CBIndex(pDX, IDC_CURVES, m_nCurve);
    DDX_Check(pDX, IDC_SNAPCURSOR, m_bSnapCursor);
    DDX_Text(pDX, IDC_SNAPRANGE, m_nSnapRange);
    DDV_MinMaxUInt(pDX, m_nSnapRange, 0, MaxSnapRange);
}

CChartPage& CChartDlg::Sheet() const
{
    return *static_cast<CChartPage*>(GetParentOwner());
}

BOOL CChartDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    LoadFields();
    m_SnapRangeSpin.SetRange(0, MaxSnapRange);
    FillLists();
    UpdateData(FALSE);
    return TRUE;
}

void CChartDlg::LoadFields()
{
    m_BackColorButton.SetColor(m_pGraph->m_crBackColor);
    m_GraphColorButton.SetColor(m_pGraph->m_crGraphColor);
    m_InnerColorButton.SetColor(m_pGraph->m_crInnerColor);
    m_bShowLegend = m_pGraph->m_bShowLegend;
    m_bDoubleBuffer = m_pGraph->m_bDoubleBuffer;
    m_LegendAlignmentList.SetCurSel(static_cast<int>(m_pGraph->m_nLegendAlignment));
    m_bSnapCursor = m_pGraph->m_bSnapCursor;
    m_nSnapRange = static_cast<UINT>(m_pGraph->m_nSnapRange);
}

namespace
{
// Adds a numbered row for each element; the position of the one at pCurrent goes to nSelected.
template <class Elements, class Element>
void AddRows(CComboBox& list, const Elements& elements, const Element* pCurrent, int& nSelected)
{
    int nNumber = 0;
    for (const Element& element : elements) {
        CString strRow;
        strRow.Format(L"%d %s", nNumber + 1, element.m_cLabel);
        list.AddString(strRow);
        if (&element == pCurrent)
            nSelected = nNumber;
        ++nNumber;
    }
}
} // namespace

void CChartDlg::FillLists()
{
    const CChartPage& sheet = Sheet();
    AddRows(m_CurveList, m_pGraph->m_Curves, sheet.m_pCurve, m_nCurve);
    AddRows(m_XAxisList, m_pGraph->m_XAxes, sheet.m_pAxis, m_nXAxis);
    AddRows(m_YAxisList, m_pGraph->m_YAxes, sheet.m_pAxis, m_nYAxis);
}

void CChartDlg::OnXAxis()
{
    if (!UpdateData(TRUE))
        return;
    Sheet().SetXAxis(m_nXAxis);
    m_nYAxis = -1;
    UpdateData(FALSE);
    m_pGraph->SelectXAxis(m_nXAxis);
}

void CChartDlg::OnYAxis()
{
    if (!UpdateData(TRUE))
        return;
    Sheet().SetYAxis(m_nYAxis);
    m_nXAxis = -1;
    UpdateData(FALSE);
    m_pGraph->SelectYAxis(m_nYAxis);
}

void CChartDlg::OnCurve()
{
    if (!UpdateData(TRUE))
        return;
    Sheet().SetCurve(m_nCurve);
    m_pGraph->SelectCurve(m_nCurve);
}

void CChartDlg::OnChange()
{
    if (!SheetPage::IsLive(*this) || !UpdateData(TRUE))
        return;
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
    SheetPage::EnableControls(*this, {IDC_LEGENDALIGNMENT}, m_bShowLegend != 0);
}

LRESULT CChartDlg::OnColorChange(WPARAM, LPARAM)
{
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
    return 0;
}

void CChartDlg::OnApply()
{
    Apply();
}

bool CChartDlg::Apply()
{
    if (!UpdateData(TRUE))
        return false;
    m_pGraph->m_crBackColor = m_BackColorButton.GetColor();
    m_pGraph->m_crGraphColor = m_GraphColorButton.GetColor();
    m_pGraph->m_crInnerColor = m_InnerColorButton.GetColor();
    m_pGraph->m_bShowLegend = m_bShowLegend != 0;
    m_pGraph->m_bDoubleBuffer = m_bDoubleBuffer != 0;
    // -1, since the list has no rows.
    m_pGraph->m_nLegendAlignment = static_cast<EAlignment>(m_LegendAlignmentList.GetCurSel());
    m_pGraph->m_bSnapCursor = m_bSnapCursor != 0;
    m_pGraph->m_nSnapRange = static_cast<int>(m_nSnapRange);
    m_pGraph->Invalidate();
    SheetPage::EnableControls(*this, {IDC_APPLY}, false);
    return true;
}

void CChartDlg::OnOK()
{
    if (Apply())
        SheetPage::EndSheet(*this, IDOK);
}

void CChartDlg::OnCancel()
{
    SheetPage::EndSheet(*this, IDCANCEL);
}

BOOL CChartDlg::PreTranslateMessage(MSG* pMsg)
{
    return SheetPage::Swallows(*pMsg) || CDialog::PreTranslateMessage(pMsg);
}
