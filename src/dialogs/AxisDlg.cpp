#include "dialogs/AxisDlg.h"

#include "dialogs/CurveRows.h"
#include "dialogs/SheetPage.h"
#include "framework/windowing/CommonDialogs.h"
#include "graph/XGraph.h"

#include <cfloat>

BEGIN_MESSAGE_MAP(CAxisDlg, CDialog)
ON_BN_CLICKED(IDC_APPLY, OnApply)
ON_BN_CLICKED(IDC_SCALEFONT, OnLabelFont)
ON_BN_CLICKED(IDC_TITLEFONT, OnTitleFont)
ON_BN_CLICKED(IDC_AUTOSCALE, UpdateControls)
ON_BN_CLICKED(IDC_DATETIME, UpdateControls)
ON_BN_CLICKED(IDC_SHOWGRID, UpdateControls)
ON_BN_CLICKED(IDC_VISIBLE, UpdateControls)
ON_BN_CLICKED(IDC_SHOWKEYS, UpdateControls)
ON_EN_CHANGE(IDC_ARCSIZE, UpdateControls)
ON_EN_CHANGE(IDC_DATEFORMAT, UpdateControls)
ON_EN_CHANGE(IDC_MARKERSIZE, UpdateControls)
ON_EN_CHANGE(IDC_MAX, UpdateControls)
ON_EN_CHANGE(IDC_MIN, UpdateControls)
ON_EN_CHANGE(IDC_LABEL, UpdateControls)
ON_EN_CHANGE(IDC_DECIMALS, UpdateControls)
ON_EN_CHANGE(IDC_STEP, UpdateControls)
ON_EN_CHANGE(IDC_TICKSIZE, UpdateControls)
ON_EN_CHANGE(IDC_TIMESTEP, UpdateControls)
ON_CBN_SELCHANGE(IDC_PLACEMENT, UpdateControls)
ON_CBN_SELCHANGE(IDC_GRIDSTYLE, UpdateControls)
ON_CBN_SELCHANGE(IDC_TIMEUNIT, UpdateControls)
ON_NOTIFY(DTN_DATETIMECHANGE, IDC_MAXDATE, OnDateTimeChange)
ON_NOTIFY(DTN_DATETIMECHANGE, IDC_MAXTIME, OnDateTimeChange)
ON_NOTIFY(DTN_DATETIMECHANGE, IDC_MINDATE, OnDateTimeChange)
ON_NOTIFY(DTN_DATETIMECHANGE, IDC_MINTIME, OnDateTimeChange)
ON_MESSAGE(CBM_COLORCHANGE, OnColorChange)
ON_WM_MEASUREITEM()
ON_WM_DRAWITEM()
END_MESSAGE_MAP()

namespace
{
constexpr int GridStyleHeight = 16;
} // namespace

void CAxisDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MARKERSIZE_SPIN, m_MarkerSizeSpin);
    DDX_Control(pDX, IDC_ARCSIZE_SPIN, m_ArcSizeSpin);
    DDX_Control(pDX, IDC_TICKSIZE_SPIN, m_TickSizeSpin);
    DDX_Control(pDX, IDC_GRIDCOLOR, m_GridColorButton);
    DDX_Control(pDX, IDC_COLOR, m_ColorButton);
    DDX_Control(pDX, IDC_DECIMALS_SPIN, m_DecimalsSpin);
    DDX_Text(pDX, IDC_LABEL, m_strLabel);
    DDX_Check(pDX, IDC_AUTOSCALE, m_bAutoScale);
    DDX_Text(pDX, IDC_MIN, m_fMin);
    DDV_MinMaxDouble(pDX, m_fMin, -DBL_MAX, DBL_MAX);
    DDX_Text(pDX, IDC_MAX, m_fMax);
    DDV_MinMaxDouble(pDX, m_fMax, -DBL_MAX, DBL_MAX);
    DDX_Check(pDX, IDC_SHOWGRID, m_bShowGrid);
    DDX_Check(pDX, IDC_DATETIME, m_bDateTime);
    DDX_Check(pDX, IDC_VISIBLE, m_bVisible);
    DDX_Text(pDX, IDC_DECIMALS, m_nDecimals);
    DDV_MinMaxUInt(pDX, m_nDecimals, 0, MaxDecimals);
    DDX_Text(pDX, IDC_ARCSIZE, m_nArcSize);
    DDV_MinMaxUInt(pDX, m_nArcSize, 1, MaxArcSize);
    DDX_Text(pDX, IDC_TICKSIZE, m_nTickSize);
    DDV_MinMaxUInt(pDX, m_nTickSize, 1, MaxTickSize);
    DDX_Text(pDX, IDC_MARKERSIZE, m_nMarkerSize);
    DDV_MinMaxUInt(pDX, m_nMarkerSize, 1, MaxMarkerSize);
    DDX_Text(pDX, IDC_STEP, m_fStep);
    DDX_DateTimeCtrl(pDX, IDC_MAXDATE, m_dtMaxDate);
    DDX_DateTimeCtrl(pDX, IDC_MAXTIME, m_dtMaxTime);
    DDX_DateTimeCtrl(pDX, IDC_MINDATE, m_dtMinDate);
    DDX_DateTimeCtrl(pDX, IDC_MINTIME, m_dtMinTime);
    DDX_Text(pDX, IDC_DATEFORMAT, m_strDateFmt);
    DDX_Check(pDX, IDC_SHOWKEYS, m_bShowMarker);
    DDX_CBIndex(pDX, IDC_PLACEMENT, m_nPlacement);
    DDX_CBIndex(pDX, IDC_GRIDSTYLE, m_nGridStyle);
    DDX_CBIndex(pDX, IDC_TIMEUNIT, m_nTimeUnit);
    DDX_Text(pDX, IDC_TIMESTEP, m_nTimeStep);
    DDV_MinMaxUInt(pDX, m_nTimeStep, 1, MaxTimeStep);
}

BOOL CAxisDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    FillLists();
    FillControls();
    return TRUE;
}

// The axis lies by value in a list that the host may change at any message. What lies at its old
// address then may be another axis.
bool CAxisDlg::FindAxis()
{
    if (!m_pGraph)
        return false;
    for (auto* pAxes : {&m_pGraph->m_XAxes, &m_pGraph->m_YAxes}) {
        for (CXGraphAxis& axis : *pAxes) {
            if (axis.m_nIdentity == m_nIdentity) {
                m_pAxis = &axis;
                return true;
            }
        }
    }
    return false;
}

void CAxisDlg::UpdateControls()
{
    if (!SheetPage::IsLive(*this) || !UpdateData(TRUE))
        return;
    EnableByKind();
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
}

void CAxisDlg::EnableByKind()
{
    const bool bAuto = m_bAutoScale != 0;
    const bool bDate = m_bDateTime != 0;
    SheetPage::EnableControls(*this, {IDC_MIN, IDC_MAX, IDC_STEP}, !bAuto && !bDate);
    SheetPage::EnableControls(
        *this, {IDC_MINDATE, IDC_MINTIME, IDC_MAXDATE, IDC_MAXTIME, IDC_TIMESTEP, IDC_TIMEUNIT},
        bDate && !bAuto);
    SheetPage::EnableControls(*this, {IDC_DECIMALS, IDC_DECIMALS_SPIN, IDC_PLACEMENT}, !bDate);
    SheetPage::EnableControls(*this, {IDC_DATEFORMAT}, bDate);
}

void CAxisDlg::OnDateTimeChange(NMHDR*, LRESULT* pResult)
{
    UpdateControls();
    *pResult = 0;
}

LRESULT CAxisDlg::OnColorChange(WPARAM, LPARAM)
{
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
    return 0;
}

void CAxisDlg::OnLabelFont()
{
    AskForFont(&CXGraphAxis::SetLabelFont);
}

void CAxisDlg::OnTitleFont()
{
    AskForFont(&CXGraphAxis::SetTitleFont);
}

// The font is the axis's at once, whatever ends the sheet.
void CAxisDlg::AskForFont(SetFontOf set)
{
    CFontDialog dialog(nullptr, CF_SCREENFONTS | CF_EFFECTS, this);
    if (dialog.DoModal() != IDOK)
        return;
    LOGFONTW font = {};
    dialog.GetCurrentFont(&font);
    if (FindAxis())
        (m_pAxis->*set)(font);
    UpdateControls();
}

void CAxisDlg::OnApply()
{
    Apply();
}

void CAxisDlg::OnOK()
{
    if (Apply())
        SheetPage::EndSheet(*this, IDOK);
}

void CAxisDlg::OnCancel()
{
    SheetPage::EndSheet(*this, IDCANCEL);
}

BOOL CAxisDlg::PreTranslateMessage(MSG* pMsg)
{
    return SheetPage::Swallows(*pMsg) || CDialog::PreTranslateMessage(pMsg);
}

void CAxisDlg::OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct)
{
    if (nIDCtl != IDC_GRIDSTYLE) {
        CDialog::OnMeasureItem(nIDCtl, lpMeasureItemStruct);
        return;
    }
    lpMeasureItemStruct->itemWidth = GridStyleHeight;
    lpMeasureItemStruct->itemHeight = GridStyleHeight;
}

void CAxisDlg::OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* lpDrawItemStruct)
{
    if (nIDCtl == IDC_GRIDSTYLE)
        CurveRows::DrawLineStyle(*lpDrawItemStruct);
    else
        CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}
