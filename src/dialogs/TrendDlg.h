#pragma once
// Asks how a trend is to be made. The degree matters to a polynomial alone.

#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "resources/DialogIds.h"

class CTrendDlg : public CDialog
{
public:
    enum { IDD = IDD_TREND };
    explicit CTrendDlg(CWnd* pParent = nullptr);

    UINT m_nExpand = 0; // points to add behind the curve's last one
    UINT m_nDegree = 5; // terms of the polynomial
    CSpinButtonCtrl m_ExpandSpin;
    CSpinButtonCtrl m_DegreeSpin;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
};
