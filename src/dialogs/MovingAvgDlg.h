#pragma once
// Asks for the kind and the window of a moving average.

#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "resources/DialogIds.h"

class CMovingAvgDlg : public CDialog
{
public:
    enum { IDD = IDD_MOVINGAVG };
    explicit CMovingAvgDlg(CWnd* pParent = nullptr);

    int m_nAverageType = 0; // row of the list; -1 for none
    UINT m_nSpan = 10;      // points that one average is made of
    UINT m_nMaxSpan = 100;  // to be set before DoModal; with 0 no span is right
    CSpinButtonCtrl m_SpanSpin;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};
