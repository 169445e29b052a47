#pragma once
// The page of the graph as a whole: its colours and switches, and the choice of the axis and
// the curve that the other two pages show.

#include "dialogs/ColorButton.h"
#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "resources/DialogIds.h"

class CChartPage;
class CXGraph;

class CChartDlg : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    enum { IDD = IDD_CHART };
    CChartDlg() = default;

    CSpinButtonCtrl m_SnapRangeSpin;
    CComboBox m_LegendAlignmentList; // has no rows: no alignment can be chosen
    CComboBox m_XAxisList;
    CComboBox m_YAxisList;
    CComboBox m_CurveList;
    CColorButton m_BackColorButton;
    CColorButton m_GraphColorButton;
    CColorButton m_InnerColorButton;
    int m_bShowLegend = 0;
    int m_bDoubleBuffer = 0;
    int m_nXAxis = -1;
    int m_nYAxis = -1;
    int m_nCurve = -1;
    int m_bSnapCursor = 0;
    UINT m_nSnapRange = 0;       // pixels
    CXGraph* m_pGraph = nullptr; // outlives the page, with or without its window

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg void OnChange();
    afx_msg LRESULT OnColorChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnApply();
    afx_msg void OnXAxis();
    afx_msg void OnYAxis();
    afx_msg void OnCurve();

private:
    [[nodiscard]] CChartPage& Sheet() const;
    void LoadFields();
    void FillLists();
    bool Apply(); // false if a control's value was refused
};
