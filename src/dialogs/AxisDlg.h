#pragma once
// The page of an axis. The host may move the axis in memory while the page is open, and the page
// follows it, or remove it: the page then stays and changes nothing.

#include "dialogs/ColorButton.h"
#include "framework/windowing/Controls.h"
#include "framework/windowing/Dialog.h"
#include "framework/windowing/OleDateTime.h"
#include "framework/windowing/Strings.h"
#include "resources/DialogIds.h"

#include <cstdint>

class CXGraph;
class CXGraphAxis;

class CAxisDlg : public CDialog
{
    DECLARE_MESSAGE_MAP()
public:
    enum { IDD = IDD_AXIS };
    CAxisDlg() = default;

    CSpinButtonCtrl m_MarkerSizeSpin;
    CSpinButtonCtrl m_ArcSizeSpin;
    CSpinButtonCtrl m_TickSizeSpin;
    CColorButton m_GridColorButton;
    CColorButton m_ColorButton;
    CSpinButtonCtrl m_DecimalsSpin;
    CString m_strLabel;
    int m_bAutoScale = 0;
    double m_fMin = 0;
    double m_fMax = 0;
    int m_bShowGrid = 0;
    int m_bDateTime = 0;
    int m_bVisible = 1;
    UINT m_nDecimals = 0;
    UINT m_nArcSize = 0;
    UINT m_nTickSize = 0;
    UINT m_nMarkerSize = 0;
    double m_fStep = 0;
    COleDateTime m_dtMaxDate;
    COleDateTime m_dtMaxTime;
    COleDateTime m_dtMinDate;
    COleDateTime m_dtMinTime;
    CString m_strDateFmt; // with "\n" for a line feed
    int m_bShowMarker = 0;
    int m_nPlacement = -1; // EAxisPlacement
    int m_nGridStyle = -1; // pen style
    int m_nTimeUnit = -1;  // TimeUnits
    UINT m_nTimeStep = 0;
    CXGraphAxis* m_pAxis = nullptr;

    // Shows m_pAxis, which is an axis of its graph at this moment.
    void FillControls();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnCancel() override;
    afx_msg void OnApply();
    afx_msg void OnLabelFont();
    afx_msg void OnTitleFont();
    afx_msg void UpdateControls();
    afx_msg void OnDateTimeChange(NMHDR* pNotify, LRESULT* pResult);
    afx_msg LRESULT OnColorChange(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMeasureItem(int nIDCtl, MEASUREITEMSTRUCT* lpMeasureItemStruct);
    afx_msg void OnDrawItem(int nIDCtl, DRAWITEMSTRUCT* lpDrawItemStruct);

private:
    static constexpr UINT MaxDecimals = 6;
    static constexpr UINT MaxArcSize = 10;
    static constexpr UINT MaxTickSize = 10;
    static constexpr UINT MaxMarkerSize = 20;
    static constexpr UINT MaxTimeStep = 22118400;

    using SetFontOf = void (CXGraphAxis::*)(const LOGFONTW&);

    [[nodiscard]] bool FindAxis();
    void FillLists();
    void EnableByKind(); // the controls that depend on autoscale and the kind of value
    void SetSpins();
    void LoadFields();
    void LoadDateTime();
    void LoadDecimals();
    void StoreFields();
    void StoreRange();
    [[nodiscard]] CString DisplayFormat() const;
    bool Apply(); // false if a control's value was refused
    void AskForFont(SetFontOf set);

    CXGraph* m_pGraph = nullptr;   // of m_pAxis; outlives the page, with or without its window
    std::uint64_t m_nIdentity = 0; // of m_pAxis
};
