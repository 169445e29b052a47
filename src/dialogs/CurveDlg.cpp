#include "dialogs/CurveDlg.h"

#include "dialogs/CurveRows.h"
#include "dialogs/SheetPage.h"
#include "graph/XGraph.h"

BEGIN_MESSAGE_MAP(CCurveDlg, CDialog)
ON_CBN_SELCHANGE(IDC_TYPE, OnChange)
ON_CBN_SELCHANGE(IDC_LINESTYLE, OnChange)
ON_CBN_SELCHANGE(IDC_MARKER, OnChange)
ON_CBN_SELCHANGE(IDC_FILLCURVE, OnChange)
ON_CBN_CLOSEUP(IDC_MARKER, OnChange)
ON_EN_CHANGE(IDC_LINESIZE, OnChange)
ON_EN_CHANGE(IDC_LABEL, OnChange)
ON_EN_CHANGE(IDC_MARKERSIZE, OnChange)
ON_BN_CLICKED(IDC_COLOR, OnChange)
ON_BN_CLICKED(IDC_VISIBLE, OnChange)
ON_BN_CLICKED(IDC_SHOWMARKER, OnChange)
ON_BN_CLICKED(IDC_FILLBENEATH, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE0, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE1, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE2, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE3, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE4, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE5, OnChange)
ON_BN_CLICKED(IDC_FILLSTYLE6, OnChange)
ON_BN_CLICKED(IDC_FILLTRANSPARENT, OnChange)
ON_BN_CLICKED(IDC_MARKER_NUMBERED, OnChange)
ON_BN_CLICKED(IDC_MARKER_SYMBOL, OnChange)
ON_MESSAGE(CBM_COLORCHANGE, OnColorChange)
ON_BN_CLICKED(IDC_APPLY, OnApply)
ON_BN_CLICKED(IDC_MOVINGAVG, OnMovingAverage)
ON_BN_CLICKED(IDC_LINEARTREND, OnLinearTrend)
ON_BN_CLICKED(IDC_CUBICTREND, OnCubicTrend)
ON_BN_CLICKED(IDC_POLYNOMIALTREND, OnPolynomialTrend)
ON_WM_MEASUREITEM()
ON_WM_DRAWITEM()
ON_WM_LBUTTONDBLCLK()
ON_MESSAGE(WM_DESTROY, OnDestroy)
END_MESSAGE_MAP()

namespace
{
constexpr UINT MaxLineSize = 5;
constexpr UINT MaxMarkerSize = 20;
constexpr int Symbol = 1; // of m_nMarkerType

// Takes the picture that a static control has loaded by its template.
BOOL CALLBACK FreeTile(HWND hWnd, LPARAM)
{
    WCHAR className[8] = {};
    ::GetClassNameW(hWnd, className, 8);
    const LONG_PTR style = ::GetWindowLongPtrW(hWnd, GWL_STYLE);
    if (::lstrcmpiW(className, WC_STATICW) == 0 && (style & SS_TYPEMASK) == SS_BITMAP)
        ::DeleteObject(reinterpret_cast<HGDIOBJ>(::SendMessageW(hWnd, STM_SETIMAGE, IMAGE_BITMAP, 0)));
    return TRUE;
}
} // namespace

void CCurveDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FILLCURVE, m_FillCurveList);
    DDX_Control(pDX, IDC_LINESIZE_SPIN, m_LineSizeSpin);
    DDX_Control(pDX, IDC_MARKERSIZE_SPIN, m_MarkerSizeSpin);
    DDX_Control(pDX, IDC_MARKER, m_MarkerList);
    DDX_Control(pDX, IDC_COLOR, m_ColorButton);
    DDX_CBIndex(pDX, IDC_TYPE, m_nType);
    DDX_Text(pDX, IDC_LINESIZE, m_nLineSize);
    DDV_MinMaxUInt(pDX, m_nLineSize, 1, MaxLineSize);
    DDX_CBIndex(pDX, IDC_LINESTYLE, m_nLineStyle);
    DDX_Check(pDX, IDC_SHOWMARKER, m_bShowMarker);
    DDX_Check(pDX, IDC_VISIBLE, m_bVisible);
    DDX_Check(pDX, IDC_FILLBENEATH, m_bFillBeneath);
    DDX_Radio(pDX, IDC_FILLSTYLE0, m_nFillStyle);
    DDX_Check(pDX, IDC_FILLTRANSPARENT, m_bFillTransparent);
    DDX_Text(pDX, IDC_LABEL, m_strLabel);
    DDX_Radio(pDX, IDC_MARKER_NUMBERED, m_nMarkerType);
    DDX_CBIndex(pDX, IDC_MARKER, m_nMarker);
    DDX_Text(pDX, IDC_MARKERSIZE, m_nMarkerSize);
    DDV_MinMaxUInt(pDX, m_nMarkerSize, 1, MaxMarkerSize);
    DDX_CBIndex(pDX, IDC_FILLCURVE, m_nFillCurve);
}

BOOL CCurveDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    FillControls();
    return TRUE;
}

void CCurveDlg::FillControls()
{
    if (!m_pCurve)
        return;
    SetCurve(*m_pCurve);
    m_pGraph = m_pCurve->m_pGraph;
    FillCurveList();
    // Rows of an earlier filling stay; nothing is drawn in them past the eighth.
    for (int nSymbol = 0; nSymbol < CurveRows::Symbols; ++nSymbol)
        m_MarkerList.AddString(L"");
    m_MarkerSizeSpin.SetRange(1, MaxMarkerSize);
    m_LineSizeSpin.SetRange(1, MaxLineSize);
    LoadFields();
    SheetPage::EnableControls(*this,
                              {IDC_FILLSTYLE0, IDC_FILLCURVE, IDC_FILLSTYLE1, IDC_FILLSTYLE2,
                               IDC_FILLSTYLE3, IDC_FILLSTYLE4, IDC_FILLSTYLE5, IDC_FILLSTYLE6},
                              m_bFillBeneath != 0);
    SheetPage::EnableControls(*this, {IDC_MARKER}, m_nMarkerType == Symbol);
    UpdateData(FALSE);
}

void CCurveDlg::FillCurveList()
{
    while (m_FillCurveList.GetCount() > 0)
        m_FillCurveList.DeleteString(0);
    int nNumber = 0;
    for (const CXGraphDataSerie& curve : m_pGraph->m_Curves) {
        ++nNumber;
        if (&curve == m_pCurve)
            continue;
        CString row;
        row.Format(L"%d %s", nNumber, curve.m_cLabel);
        m_FillCurveList.AddString(row);
    }
}

void CCurveDlg::LoadFields()
{
    m_nType = m_pCurve->m_nType;
    m_nLineSize = static_cast<UINT>(m_pCurve->m_nLineSize);
    m_nLineStyle = static_cast<int>(m_pCurve->m_nLineStyle);
    m_bShowMarker = m_pCurve->m_bShowMarker;
    m_bVisible = m_pCurve->m_bVisible;
    m_bFillBeneath = m_pCurve->m_bFillBeneath;
    m_nFillStyle = m_pCurve->m_nFillStyle;
    m_bFillTransparent = m_pCurve->m_bFillTransparent;
    m_strLabel = m_pCurve->m_cLabel;
    m_nMarkerType = m_pCurve->m_nMarkerType;
    m_nMarker = m_pCurve->m_nMarker;
    m_nMarkerSize = static_cast<UINT>(m_pCurve->m_nMarkerSize);
    m_nFillCurve = m_pCurve->m_nFillCurve;
    m_ColorButton.SetColor(m_pCurve->m_crColor);
}

void CCurveDlg::StoreFields()
{
    m_pCurve->m_nType = static_cast<EGraphType>(m_nType);
    m_pCurve->m_nLineSize = static_cast<int>(m_nLineSize);
    m_pCurve->m_crColor = m_ColorButton.GetColor();
    m_pCurve->m_nLineStyle = static_cast<UINT>(m_nLineStyle);
    m_pCurve->m_bVisible = m_bVisible != 0;
    m_pCurve->m_bShowMarker = m_bShowMarker != 0;
    m_pCurve->m_bFillBeneath = m_bFillBeneath != 0;
    m_pCurve->m_nFillStyle = m_nFillStyle;
    m_pCurve->m_bFillTransparent = m_bFillTransparent != 0;
    m_pCurve->m_cLabel = m_strLabel;
    m_pCurve->m_nMarkerType = m_nMarkerType;
    m_pCurve->m_nMarkerSize = static_cast<int>(m_nMarkerSize);
    m_pCurve->m_nMarker = m_nMarker;
    m_pCurve->m_nFillCurve = static_cast<unsigned short>(m_nFillCurve);
}

// The curve lies by value in a list that the host may change at any message. What lies at its old
// address then may be another curve.
bool CCurveDlg::FindCurve()
{
    if (!m_pGraph)
        return false;
    for (CXGraphDataSerie& curve : m_pGraph->m_Curves) {
        if (curve.m_nIdentity == m_nIdentity) {
            m_pCurve = &curve;
            return true;
        }
    }
    return false;
}

void CCurveDlg::SetCurve(CXGraphDataSerie& curve)
{
    m_pCurve = &curve;
    m_nIdentity = curve.m_nIdentity;
}

void CCurveDlg::OnChange()
{
    if (!SheetPage::IsLive(*this) || !UpdateData(TRUE))
        return;
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
    SheetPage::EnableControls(*this,
                              {IDC_FILLSTYLE0, IDC_FILLTRANSPARENT, IDC_FILLSTYLE1, IDC_FILLSTYLE2,
                               IDC_FILLSTYLE3, IDC_FILLSTYLE4, IDC_FILLSTYLE5, IDC_FILLSTYLE6,
                               IDC_FILLCURVE},
                              m_bFillBeneath != 0);
    SheetPage::EnableControls(*this, {IDC_MARKER_SYMBOL, IDC_MARKER_NUMBERED}, m_bShowMarker != 0);
    SheetPage::EnableControls(*this, {IDC_MARKER}, m_nMarkerType == Symbol && m_bShowMarker != 0);
}

LRESULT CCurveDlg::OnColorChange(WPARAM, LPARAM)
{
    SheetPage::EnableControls(*this, {IDC_APPLY}, true);
    return 0;
}

void CCurveDlg::OnApply()
{
    Apply();
}

bool CCurveDlg::Apply()
{
    if (!UpdateData(TRUE))
        return false;
    if (FindCurve()) {
        StoreFields();
        m_pGraph->Invalidate();
    }
    SheetPage::EnableControls(*this, {IDC_APPLY}, false);
    return true;
}

void CCurveDlg::OnOK()
{
    if (Apply())
        SheetPage::EndSheet(*this, IDOK);
}

void CCurveDlg::OnCancel()
{
    SheetPage::EndSheet(*this, IDCANCEL);
}

BOOL CCurveDlg::PreTranslateMessage(MSG* pMsg)
{
    return SheetPage::Swallows(*pMsg) || CDialog::PreTranslateMessage(pMsg);
}

// The sheet has no use for it.
void CCurveDlg::OnLButtonDblClk(UINT, CPoint) {}

// Not every platform's control frees the picture of its template.
LRESULT CCurveDlg::OnDestroy(WPARAM, LPARAM)
{
    ::EnumChildWindows(m_hWnd, &FreeTile, 0);
    return Default();
}

void CCurveDlg::OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct)
{
    if (nIDCtl == IDC_LINESTYLE)
        CurveRows::MeasureLineStyle(*lpMeasureItemStruct);
    else if (nIDCtl == IDC_MARKER)
        CurveRows::MeasureSymbol(*lpMeasureItemStruct);
    else
        CDialog::OnMeasureItem(nIDCtl, lpMeasureItemStruct);
}

void CCurveDlg::OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* lpDrawItemStruct)
{
    if (nIDCtl == IDC_LINESTYLE)
        CurveRows::DrawLineStyle(*lpDrawItemStruct);
    else if (nIDCtl == IDC_MARKER && m_pGraph)
        CurveRows::DrawSymbol(*lpDrawItemStruct, m_pGraph->m_pfnMarker);
    else
        CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
}
