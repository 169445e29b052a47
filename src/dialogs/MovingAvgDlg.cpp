#include "dialogs/MovingAvgDlg.h"

CMovingAvgDlg::CMovingAvgDlg(CWnd* pParent) : CDialog(IDD, pParent) {}

void CMovingAvgDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPAN_SPIN, m_SpanSpin);
    DDX_CBIndex(pDX, IDC_TYPE, m_nAverageType);
    DDX_Text(pDX, IDC_SPAN, m_nSpan);
    DDV_MinMaxUInt(pDX, m_nSpan, 1, m_nMaxSpan);
}

BOOL CMovingAvgDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_SpanSpin.SetRange(1, static_cast<short>(m_nMaxSpan)); // the message has 16 bits for it
    return TRUE;
}
