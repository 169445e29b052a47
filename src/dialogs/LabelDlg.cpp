#include "dialogs/LabelDlg.h"

#include "framework/windowing/CommonDialogs.h"
#include "graph/XGraph.h"

BEGIN_MESSAGE_MAP(CLabelDlg, CDialog)
ON_BN_CLICKED(IDC_BORDER, OnChange)
ON_BN_CLICKED(IDC_TRANSPARENT, OnChange)
ON_CBN_SELCHANGE(IDC_ALIGNMENT, OnChange)
ON_CBN_SELCHANGE(IDC_CURVE, OnChange)
ON_MESSAGE(CBM_COLORCHANGE, OnColorChange)
ON_BN_CLICKED(IDC_APPLY, OnApply)
ON_BN_CLICKED(IDC_FONT, OnFont)
END_MESSAGE_MAP()

CLabelDlg::CLabelDlg(CXGraphLabel& label, CWnd* pParent)
    : CDialog(IDD, pParent), m_pLabel(&label), m_pGraph(label.m_pGraph), m_Entry(&label)
{
}

void CLabelDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_CURVE, m_CurveList);
    DDX_Control(pDX, IDC_COLOR, m_ColorButton);
    DDX_Check(pDX, IDC_BORDER, m_bBorder);
    DDX_CBIndex(pDX, IDC_ALIGNMENT, m_nAlignment);
    DDX_CBIndex(pDX, IDC_CURVE, m_nCurve);
    DDX_Check(pDX, IDC_TRANSPARENT, m_bTransparent);
}

BOOL CLabelDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    FillLists();
    if (IsLabelThere()) {
        m_bBorder = m_pLabel->m_bBorder;
        m_ColorButton.SetColor(m_pLabel->m_crColor);
        m_nAlignment = static_cast<int>(m_pLabel->m_nAlignment);
        m_bTransparent = m_pLabel->m_bTransparent;
        m_nCurve = m_pLabel->m_nCurve;
    }
    UpdateData(FALSE);
    return TRUE;
}

void CLabelDlg::FillLists()
{
    // The rows' numbers are DT_LEFT, DT_CENTER and DT_RIGHT.
    CComboBox alignments;
    alignments.Attach(::GetDlgItem(m_hWnd, IDC_ALIGNMENT));
    for (const LPCWSTR pszRow : {L"左", L"中", L"右"})
        alignments.AddString(pszRow);
    alignments.Detach();

    int nNumber = 0;
    for (const CXGraphDataSerie& curve : m_pGraph->m_Curves) {
        CString row;
        row.Format(L"%02d %s", ++nNumber, curve.m_cLabel);
        m_CurveList.AddString(row);
    }
}

bool CLabelDlg::IsLabelThere() const
{
    return m_pGraph->Owns(m_Entry);
}

void CLabelDlg::EnableApply(bool bEnable)
{
    ::EnableWindow(::GetDlgItem(m_hWnd, IDC_APPLY), bEnable);
}

void CLabelDlg::OnChange()
{
    EnableApply(true);
}

LRESULT CLabelDlg::OnColorChange(WPARAM, LPARAM)
{
    EnableApply(true);
    return 0;
}

void CLabelDlg::OnApply()
{
    Apply();
}

bool CLabelDlg::Apply()
{
    if (!UpdateData(TRUE))
        return false;
    if (IsLabelThere()) {
        m_pLabel->m_bBorder = m_bBorder != 0;
        m_pLabel->m_crColor = m_ColorButton.GetColor();
        m_pLabel->m_nAlignment = static_cast<UINT>(m_nAlignment);
        m_pLabel->m_nCurve = m_nCurve;
        m_pLabel->m_bTransparent = m_bTransparent != 0;
    }
    m_pGraph->Invalidate();
    EnableApply(false);
    return true;
}

void CLabelDlg::OnOK()
{
    if (Apply())
        CDialog::OnOK();
}

// The font takes effect at once and isn't undone by Cancel.
void CLabelDlg::OnFont()
{
    CFontDialog dialog(nullptr, CF_EFFECTS | CF_SCREENFONTS, this);
    if (dialog.DoModal() != IDOK || !IsLabelThere())
        return;
    LOGFONTW font = {};
    dialog.GetCurrentFont(&font);
    m_pLabel->SetFont(font);
    m_pLabel->m_crTextColor = dialog.GetColor();
    EnableApply(true);
}
