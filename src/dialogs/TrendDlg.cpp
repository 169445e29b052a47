#include "dialogs/TrendDlg.h"

namespace
{
constexpr int MaxExpand = 100000000;
constexpr int MinDegree = 2;
constexpr int MaxDegree = 20;
} // namespace

CTrendDlg::CTrendDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

void CTrendDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_EXPAND_SPIN, m_ExpandSpin);
    DDX_Control(pDX, IDC_DEGREE_SPIN, m_DegreeSpin);
    DDX_Text(pDX, IDC_EXPAND, m_nExpand);
    DDV_MinMaxUInt(pDX, m_nExpand, 0, MaxExpand);
    DDX_Text(pDX, IDC_DEGREE, m_nDegree);
    DDV_MinMaxUInt(pDX, m_nDegree, MinDegree, MaxDegree);
}

BOOL CTrendDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_ExpandSpin.SetRange32(0, MaxExpand);
    m_DegreeSpin.SetRange(MinDegree, MaxDegree);
    return TRUE;
}
