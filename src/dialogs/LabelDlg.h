#pragma once
// The properties of one label. The host may remove the label while the dialog is open; the
// dialog then stays and changes nothing.

#include "dialogs/ColorButton.h"
#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "objects/XGraphObject.h"
#include "resources/DialogIds.h"

class CXGraph;
class CXGraphLabel;

class CLabelDlg : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    enum { IDD = IDD_LABEL };
    explicit CLabelDlg(CXGraphLabel& label, CWnd* pParent = nullptr);

    CComboBox m_CurveList;
    CColorButton m_ColorButton;
    int m_bBorder = 0;
    int m_nAlignment = -1; // row of the list: left, centre, right, as DrawText counts them
    int m_nCurve = -1;     // row of the list, -1 for none
    int m_bTransparent = 0;
    CXGraphLabel* m_pLabel;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    afx_msg void OnChange();
    afx_msg LRESULT OnColorChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnApply();
    afx_msg void OnFont();

private:
    [[nodiscard]] bool IsLabelThere() const;
    bool Apply(); // false if a control's value was refused
    void EnableApply(bool bEnable);
    void FillLists();

    CXGraph* m_pGraph;        // outlives the dialog, with or without its window
    const TObjectRef m_Entry; // of the label, to know whether it is still there
};
