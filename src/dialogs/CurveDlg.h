#pragma once
// The page of a curve: its looks, and the buttons that add a trend or a moving average of it
// to the graph. The host may move the curve in memory while the page is open, and the page follows
// it, or remove it: the page then stays and changes nothing.

#include "dialogs/ColorButton.h"
#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "framework/windowing/Strings.h"
#include "resources/DialogIds.h"

#include <cstdint>

class CXGraph;
class CXGraphDataSerie;
struct TDataPoint;

class CCurveDlg : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    enum { IDD = IDD_CURVE };
    CCurveDlg() = default;

    CComboBox m_FillCurveList;
    CSpinButtonCtrl m_LineSizeSpin;
    CSpinButtonCtrl m_MarkerSizeSpin;
    CComboBox m_MarkerList;
    CColorButton m_ColorButton;
    int m_nType = -1;
    UINT m_nLineSize = 0;
    int m_nLineStyle = -1;
    int m_bShowMarker = 0;
    int m_bVisible = 0;
    int m_bFillBeneath = 0;
    int m_nFillStyle = -1;
    int m_bFillTransparent = 0;
    CString m_strLabel;
    int m_nMarkerType = -1;
    int m_nMarker = -1;
    UINT m_nMarkerSize = 0;
    int m_nFillCurve = -1; // row of the list, which leaves m_pCurve out
    CXGraphDataSerie* m_pCurve = nullptr;

    // Shows m_pCurve, which is a curve of its graph at this moment. Null changes nothing.
    void FillControls();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg void OnChange();
    afx_msg LRESULT OnColorChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnApply();
    afx_msg void OnMovingAverage();
    afx_msg void OnLinearTrend();
    afx_msg void OnCubicTrend();
    afx_msg void OnPolynomialTrend();
    afx_msg void OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct);
    afx_msg void OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* lpDrawItemStruct);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnDestroy(WPARAM wParam, LPARAM lParam);

private:
    using Trend = TDataPoint* (CXGraphDataSerie::*)(int) const;

    [[nodiscard]] bool FindCurve();
    void SetCurve(CXGraphDataSerie& curve);
    void FillCurveList();
    void LoadFields();
    void StoreFields();
    bool Apply(); // false if a control's value was refused
    void AddTrend(Trend trend, const CString& strSuffix);
    // Adds the points as a curve on the axes of m_pCurve, which is found again by its index, and
    // labels it. False if there is no point.
    bool AddCurve(TDataPoint* pPoints, int nCount, const CString& strSuffix);

    CXGraph* m_pGraph = nullptr;   // of m_pCurve; outlives the page, with or without its window
    std::uint64_t m_nIdentity = 0; // of m_pCurve
};
