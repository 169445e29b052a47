#pragma once
// One value scale of a graph: whole and visible range, tick step, the mapping between
// values and pixels in both directions, colour ranges, axis markers, and its painting.
//
// Pixels are those of the last frame: between paints every conversion uses the graph's
// m_rcInner and the m_nLength of the last Draw. With P = m_rcInner:
//   linear  x = Trunc(m_nLength / (m_fCurMax - m_fCurMin) * (v - m_fCurMin) + P.left)
//           y = Trunc(P.bottom - m_nLength / (m_fCurMax - m_fCurMin) * (v - m_fCurMin))
//   log     the same with t = (lg v - lg m_fCurMin) / (lg m_fCurMax - lg m_fCurMin)
// The values of a date-time axis are days in the OLE date form and map as linear ones.

#include "base/Vocabulary.h"
#include "framework/windowing/CheckedVector.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Strings.h"
#include "objects/AxisMapping.h"
#include "objects/KeptLabels.h"
#include "objects/XGraphObject.h"

enum EAxisKind : int { akXAxis = 0, akYAxis = 1 };

// An earlier visible range.
struct TRangeEntry {
    double fMin;
    double fMax;
};

// A band behind the curves. The record goes to files as it is: 552 bytes.
struct TColorRange {
    double fMin;
    double fMax;
    COLORREF crMinColor;
    COLORREF crMaxColor;
    UINT nStyle;        // hatch style 0 to 5, or 6 for solid
    WCHAR szLabel[262]; // zero-terminated; longer text is cut at 261 units
};
static_assert(sizeof(TColorRange) == 552);

// A line across the plot at a value.
struct TAxisMarker {
    double fValue = 0;
    COLORREF crColor = 0;
    bool bVisible = true;
    bool bShowValue = true;
    UINT nStyle = 0; // pen style
    short nSize = 1; // pen width
    LOGFONTW lfFont = {};
    CString cLabel;
};

class CXGraphAxis : public CXGraphObject
{
    DECLARE_SERIAL(CXGraphAxis)

public:
    CXGraphAxis();
    CXGraphAxis(const CXGraphAxis& other);            // all fields but m_rcArea, fonts made anew
    CXGraphAxis& operator=(const CXGraphAxis& other); // the same
    ~CXGraphAxis() override;

    CCheckedVector<TColorRange> m_ColorRanges;
    CCheckedVector<TRangeEntry> m_ZoomHistory; // pushed and popped by the zoom; never stored
    CCheckedVector<TAxisMarker> m_AxisMarkers;
    double m_fMin; // whole range; starts inverted, at DBL_MAX and -DBL_MAX
    double m_fMax;
    double m_fCurMin; // visible range; starts inverted too
    double m_fCurMax;
    double m_fStep = 0.1;    // value distance between ticks; 0 in log mode
    double m_fEndMargin = 0; // pixels kept free at the far end; set while drawing
    double m_fKeySpace = 0;  // pixels of the band of curve keys; set while drawing
    double m_fRange = 1.0;   // last visible span
    int m_nOriginY = 0;      // pixel of the axis's start, set by every paint
    int m_nOriginX = 0;
    int m_nLength = 1;          // pixels of the mapped range
    CRect m_rcArea{0, 0, 0, 0}; // the graph rectangle, set by every paint
    CFont m_LabelFont;          // Arial 13
    CFont m_TitleFont;          // Arial 14, bold
    EAxisKind m_AxisKind = akXAxis;
    EAxisType m_AxisType = atLinear;
    EAxisPlacement m_Placement = apAutomatic; // side of a Y axis; painting resolves apAutomatic
    bool m_bShowMarker = true;                // the band of curve keys is drawn
    bool m_bDateTime = false;
    bool m_bShowGrid = true;
    bool m_bAutoScale = true; // Draw rounds the visible range to whole steps
    CString m_cLabel;         // the title; " " at first
    CString m_cDisplayFmt;    // for one double ("%5.1f"), or a wcsftime format
    int m_nArcSize = 5;       // arrowhead
    int m_nMarkerSize = 10;   // side of a curve key
    int m_nTickSize = 5;      // tick length, and gap to the label
    COLORREF m_crGridColor = 0x969696;
    UINT m_nGridStyle = 2; // pen style

    // Whole and visible range. False, and nothing changed, for fMin > fMax or a bound that
    // is not a number. Equal bounds are widened: by 1 (linear), by a decade (log).
    bool SetRange(double fMin, double fMax);
    // Visible range and step alone; a step of 0 is computed. Same tests.
    bool SetCurrentRange(double fMin, double fMax, double fStep);
    void ResetRange();
    void GetRange(double& fMin, double& fMax, double& fStep) const;
    double GetValueForPos(int nPos);
    // Of the result only this axis's own coordinate means anything.
    CPoint GetPointForValue(const TDataPoint& point);
    void RecalcStep();          // one label size between ticks
    void AutoScale(CDCEx* pDC); // rounds the visible range to whole steps
    // Index of a point of the curve near fX (IndexSearch.h); it may equal the curve's count.
    void FindIndexForX(int& nIndex, double fX, int nCurve);

    int GetMaxLabelWidth(CDCEx* pDC); // of the labels at the visible bounds, plus m_nTickSize
    int GetLabelHeight(CDCEx* pDC);   // of the label at m_fMin, plus m_nTickSize
    CSize GetTitleSize(CDCEx* pDC);
    // The labels that this axis keeps for a buffer of the screen, fit for its present font and format;
    // null for any other canvas, which measures for itself.
    CKeptLabels* KeptLabels(const CDCEx* pDC);
    [[nodiscard]] CString FormatValue(double fValue) const;
    // The text of a tick label: that of the value, as far as any screen could show it.
    [[nodiscard]] CString LabelText(double fValue) const { return LabelText(m_cDisplayFmt, fValue); }
    // The same by a format that LabelFormat made ready for many labels.
    [[nodiscard]] CString LabelText(const CString& strFormat, double fValue) const;
    [[nodiscard]] CString LabelFormat() const;
    static constexpr int LongestLabel = 1024; // units
    // A date-time by a wcsftime format; "Invalid DateTime" for what is none.
    [[nodiscard]] static CString FormatDate(const CString& strFormat, double fValue);

    // Adding at the count appends; a smaller index replaces; any other ends the process.
    void SetAxisMarker(int nMarker, double fValue, COLORREF crColor, UINT nStyle);
    void SetMaskerLabel(int nPos, LPCWSTR bstrValue);
    [[nodiscard]] long GetAxisMarkerCount() const;
    void DeleteAxisMarker(int nMarker); // an index out of range is ignored
    void SetColorRange(int nRange, double fMin, double fMax, COLORREF crMinColor, COLORREF crMaxColor,
                       LPCWSTR bstrLabel, UINT nStyle);
    void DeleteColorRange(int nRange); // an index out of range is ignored
    void DeleteAllColorRanges();
    void SetLabelFont(const LOGFONTW& font);
    void SetTitleFont(const LOGFONTW& font);

    void Serialize(CArchive& ar) override;
    void Draw(CDCEx* pDC) override;
    void DrawAxisMarkers(CDCEx* pDC);
    void DrawColorRanges(CDCEx* pDC);
    int DrawCurveKeys(CDCEx* pDC, bool bDraw); // the room that the band takes
    void DrawCurveKey(CDCEx* pDC, CPoint point, int nKey, int nSize, COLORREF crColor, bool bSymbol);
    void DrawAxisArrow(CDCEx* pDC, CPoint point, int nDirection,
                       int nSize); // 0 left, 1 up, 2 right, 3 down

    [[nodiscard]] bool IsVertical() const noexcept { return m_AxisKind == akYAxis; }
    // The mapping of the last frame.
    [[nodiscard]] AxisMapping::TScale GetScale(bool bLog) const;
    [[nodiscard]] AxisMapping::TScale GetScale() const { return GetScale(m_AxisType == atLog); }
    [[nodiscard]] CRect PlotRect() const;

protected:
    CPoint MapPoint(const TDataPoint& point, bool bLog);

private:
    CSize GetLabelSize(CDCEx* pDC, double fValue);
    void CopyFields(const CXGraphAxis& other);
    void WidenBounds(double& fMin, double& fMax) const;
    void ComputeStep();
    int PixelOf(double fValue);             // this axis's own coordinate
    [[nodiscard]] int RoomForTicks() const; // pixels along the plot, less the margins
    void DrawAxisMarker(CDCEx* pDC, const TAxisMarker& marker, int nPixel);
    void Store(CArchive& ar) const;
    void Load(CArchive& ar);

    CKeptLabels m_KeptLabels; // neither of them is copied
    CKeptTitle m_KeptTitle;
};
