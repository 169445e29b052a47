#pragma once
// The property sheet of a graph: a dialog with a tab control and three pages, made by hand. The
// pages are children of the tab control, and all live as long as the sheet. It is made on the
// stack for one modal run; m_pGraph, and m_pAxis or m_pCurve to open on, are set before.

#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "resources/DialogIds.h"

#include <memory>

class CAxisDlg;
class CChartDlg;
class CCurveDlg;
class CXGraph;
class CXGraphAxis;
class CXGraphDataSerie;

class CChartPage : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    enum { IDD = IDD_CHARTPAGE };
    explicit CChartPage(CWnd* pParent = nullptr);
    ~CChartPage() override;

    CTabCtrl m_TabCtrl;
    std::unique_ptr<CChartDlg> m_pChartDlg;
    std::unique_ptr<CCurveDlg> m_pCurveDlg;
    std::unique_ptr<CAxisDlg> m_pAxisDlg;
    CXGraph* m_pGraph = nullptr;
    CXGraphAxis* m_pAxis = nullptr;       // null: the first Y axis
    CXGraphDataSerie* m_pCurve = nullptr; // null: the first curve

    // The page of the axis or of the curve shows another one. An index that the host has taken
    // out of its list since changes nothing.
    void SetXAxis(int nAxis);
    void SetYAxis(int nAxis);
    void SetCurve(int nCurve);

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    afx_msg void OnSelChange(NMHDR* pNotify, LRESULT* pResult);

private:
    enum { ChartTab, AxisTab, CurveTab };

    void AddPage(int nTab, LPCWSTR pszText, CDialog& page, UINT nIDTemplate);
    [[nodiscard]] CDialog& PageOf(int nTab) const;
    void ShowPage(int nTab);
    void SetAxis(CXGraphAxis* pAxis);
};
