// Fields, ranges, mapping, markers and colour ranges of an axis. Its painting is in
// AxisDrawing.cpp and AxisBands.cpp, its file form in AxisFile.cpp.

#include "objects/XGraphAxis.h"

#include "base/NumberFormat.h"
#include "framework/windowing/Window.h"
#include "objects/DateFormat.h"
#include "objects/IndexSearch.h"
#include "objects/LogDecades.h"
#include "objects/ObjectFont.h"
#include "objects/PlotHost.h"
#include "objects/TickSteps.h"
#include "objects/XGraphDataSerie.h"

#include <cfloat>
#include <cmath>
#include <utility>

IMPLEMENT_SERIAL(CXGraphAxis, CXGraphObject, 1)

namespace
{

constexpr double LargestPlain = 1e6; // beyond it labels take the exponential format

void MakeFont(CFont& font, const LOGFONTW& look)
{
    font.DeleteObject();
    font.CreateFontIndirect(&look);
}

void CopyFont(CFont& font, const CFont& source)
{
    LOGFONTW look = {};
    if (source.GetLogFont(&look) != 0)
        MakeFont(font, look);
    else
        font.DeleteObject();
}

void Repaint(CXGraph* pGraph)
{
    if (pGraph)
        PlotHost::Repaint(*pGraph);
}

bool IsOnScreen(CXGraph* pGraph)
{
    return pGraph && ::IsWindowVisible(PlotHost::Window(*pGraph).m_hWnd);
}

// An element at the end is appended; one before it is replaced; no other index exists.
template <class Element> void PutAt(CCheckedVector<Element>& elements, int nIndex, Element element)
{
    if (std::cmp_equal(nIndex, elements.size()))
        elements.push_back(std::move(element));
    else
        elements[nIndex] = std::move(element);
}

} // namespace

CXGraphAxis::CXGraphAxis()
    : m_fMin(DBL_MAX), m_fMax(-DBL_MAX), m_fCurMin(DBL_MAX), m_fCurMax(-DBL_MAX), m_cLabel(L" "),
      m_cDisplayFmt(L"%5.1f")
{
    MakeFont(m_LabelFont, ObjectFont::Arial(13, FW_NORMAL));
    MakeFont(m_TitleFont, ObjectFont::Arial(14, FW_BOLD));
}

CXGraphAxis::CXGraphAxis(const CXGraphAxis& other) : CXGraphObject(other)
{
    CopyFields(other);
}

CXGraphAxis& CXGraphAxis::operator=(const CXGraphAxis& other)
{
    if (this != &other) {
        CXGraphObject::operator=(other);
        CopyFields(other);
    }
    return *this;
}

CXGraphAxis::~CXGraphAxis() = default;

void CXGraphAxis::CopyFields(const CXGraphAxis& other)
{
    m_ColorRanges = other.m_ColorRanges;
    m_ZoomHistory = other.m_ZoomHistory;
    m_AxisMarkers = other.m_AxisMarkers;
    m_fMin = other.m_fMin;
    m_fMax = other.m_fMax;
    m_fCurMin = other.m_fCurMin;
    m_fCurMax = other.m_fCurMax;
    m_fStep = other.m_fStep;
    m_fEndMargin = other.m_fEndMargin;
    m_fKeySpace = other.m_fKeySpace;
    m_fRange = other.m_fRange;
    m_nOriginY = other.m_nOriginY;
    m_nOriginX = other.m_nOriginX;
    m_nLength = other.m_nLength;
    CopyFont(m_LabelFont, other.m_LabelFont);
    CopyFont(m_TitleFont, other.m_TitleFont);
    m_AxisKind = other.m_AxisKind;
    m_AxisType = other.m_AxisType;
    m_Placement = other.m_Placement;
    m_bShowMarker = other.m_bShowMarker;
    m_bDateTime = other.m_bDateTime;
    m_bShowGrid = other.m_bShowGrid;
    m_bAutoScale = other.m_bAutoScale;
    m_cLabel = other.m_cLabel;
    m_cDisplayFmt = other.m_cDisplayFmt;
    m_nArcSize = other.m_nArcSize;
    m_nMarkerSize = other.m_nMarkerSize;
    m_nTickSize = other.m_nTickSize;
    m_crGridColor = other.m_crGridColor;
    m_nGridStyle = other.m_nGridStyle;
}

bool CXGraphAxis::SetRange(double fMin, double fMax)
{
    if (!(fMin <= fMax))
        return false;
    const bool bLog = m_AxisType == atLog;
    WidenBounds(fMin, fMax);
    if (!m_bDateTime && (std::fabs(fMin) > LargestPlain || std::fabs(fMax) > LargestPlain))
        m_cDisplayFmt = L"%5.2e";
    m_fMin = m_fCurMin = fMin;
    m_fMax = m_fCurMax = fMax;
    if (bLog)
        m_fStep = 0;
    else
        ComputeStep();
    return true;
}

bool CXGraphAxis::SetCurrentRange(double fMin, double fMax, double fStep)
{
    if (!(fMin <= fMax))
        return false;
    WidenBounds(fMin, fMax);
    m_fCurMin = fMin;
    m_fCurMax = fMax;
    if (m_AxisType == atLog)
        m_fStep = 0;
    else if (fStep != 0)
        m_fStep = fStep;
    else
        ComputeStep();
    return true;
}

void CXGraphAxis::WidenBounds(double& fMin, double& fMax) const
{
    if (m_AxisType == atLog) {
        LogDecades::FloorBounds(fMin, fMax);
    } else if (fMin == fMax) {
        fMin -= 1;
        fMax += 1;
    }
}

void CXGraphAxis::ComputeStep()
{
    if (IsOnScreen(m_pGraph))
        RecalcStep();
    else
        m_fStep = (m_fCurMax - m_fCurMin) / 10.0;
}

void CXGraphAxis::ResetRange()
{
    m_fCurMin = m_fMin;
    m_fCurMax = m_fMax;
    m_fStep = (m_fMax - m_fMin) / 10.0;
}

void CXGraphAxis::GetRange(double& fMin, double& fMax, double& fStep) const
{
    fMin = m_fCurMin;
    fMax = m_fCurMax;
    fStep = m_fStep;
}

CRect CXGraphAxis::PlotRect() const
{
    return m_pGraph ? PlotHost::InnerRect(*m_pGraph) : CRect();
}

AxisMapping::TScale CXGraphAxis::GetScale(bool bLog) const
{
    const CRect plot = PlotRect();
    return {.fMin = m_fCurMin,
            .fMax = m_fCurMax,
            .nLength = m_nLength,
            .nOrigin = static_cast<std::int32_t>(IsVertical() ? plot.bottom : plot.left),
            .bVertical = IsVertical(),
            .bLog = bLog};
}

double CXGraphAxis::GetValueForPos(int nPos)
{
    const bool bLog = m_AxisType == atLog;
    if (!bLog)
        m_fRange = m_fCurMax - m_fCurMin;
    return AxisMapping::ToValue(GetScale(bLog), nPos);
}

CPoint CXGraphAxis::GetPointForValue(const TDataPoint& point)
{
    return MapPoint(point, m_AxisType == atLog);
}

CPoint CXGraphAxis::MapPoint(const TDataPoint& point, bool bLog)
{
    m_fRange = m_fCurMax - m_fCurMin;
    const AxisMapping::TScale scale = GetScale(bLog);
    return IsVertical() ? CPoint(0, AxisMapping::ToPixel(scale, point.fYVal))
                        : CPoint(AxisMapping::ToPixel(scale, point.fXVal), 0);
}

int CXGraphAxis::PixelOf(double fValue)
{
    const CPoint point = GetPointForValue({fValue, fValue});
    return IsVertical() ? point.y : point.x;
}

void CXGraphAxis::FindIndexForX(int& nIndex, double fX, int nCurve)
{
    const CXGraphDataSerie& curve = PlotHost::Curve(*m_pGraph, nCurve);
    nIndex = curve.IsAscending() ? IndexSearch::FindIndexForXAscending(curve.Points(), fX)
                                 : IndexSearch::FindIndexForX(curve.Points(), fX);
}

CString CXGraphAxis::FormatValue(double fValue) const
{
    if (m_bDateTime)
        return FormatDate(m_cDisplayFmt, fValue);
    return AfxFormatNumber(m_cDisplayFmt, fValue);
}

CString CXGraphAxis::LabelText(const CString& strFormat, double fValue) const
{
    return (m_bDateTime ? FormatDate(strFormat, fValue) : AfxFormatNumber(strFormat, fValue))
        .Left(LongestLabel);
}

CString CXGraphAxis::LabelFormat() const
{
    if (m_bDateTime || m_cDisplayFmt.GetLength() <= LongestLabel)
        return m_cDisplayFmt;
    return CString(NumberFormat::Shortened(m_cDisplayFmt.ToU16(), LongestLabel));
}

CString CXGraphAxis::FormatDate(const CString& strFormat, double fValue)
{
    UDATE date = {};
    if (!std::isfinite(fValue) || FAILED(::VarUdateFromDate(fValue, 0, &date)))
        return CString(DateFormat::InvalidText);
    const DateFormat::TDateFields fields{date.st.wYear,      date.st.wMonth,  date.st.wDay,
                                         date.st.wHour,      date.st.wMinute, date.st.wSecond,
                                         date.st.wDayOfWeek, date.wDayOfYear};
    return CString(DateFormat::FormatDate(strFormat.ToU16(), fields));
}

void CXGraphAxis::SetAxisMarker(int nMarker, double fValue, COLORREF crColor, UINT nStyle)
{
    TAxisMarker marker;
    marker.fValue = fValue;
    marker.crColor = crColor;
    marker.nStyle = nStyle;
    m_LabelFont.GetLogFont(&marker.lfFont);
    if (!IsVertical()) {
        // The text runs upward along the line.
        marker.lfFont.lfEscapement = 900;
        marker.lfFont.lfOrientation = 900;
        marker.lfFont.lfClipPrecision = CLIP_LH_ANGLES;
    }
    PutAt(m_AxisMarkers, nMarker, std::move(marker));
    Repaint(m_pGraph);
}

void CXGraphAxis::SetMaskerLabel(int nPos, LPCWSTR bstrValue)
{
    m_AxisMarkers[nPos].cLabel = bstrValue;
}

long CXGraphAxis::GetAxisMarkerCount() const
{
    return static_cast<long>(m_AxisMarkers.size());
}

void CXGraphAxis::DeleteAxisMarker(int nMarker)
{
    m_AxisMarkers.EraseAt(nMarker);
}

void CXGraphAxis::SetColorRange(int nRange, double fMin, double fMax, COLORREF crMinColor,
                                COLORREF crMaxColor, LPCWSTR bstrLabel, UINT nStyle)
{
    TColorRange range = {.fMin = fMin,
                         .fMax = fMax,
                         .crMinColor = crMinColor,
                         .crMaxColor = crMaxColor,
                         .nStyle = nStyle,
                         .szLabel = {}};
    if (bstrLabel)
        ::lstrcpynW(range.szLabel, bstrLabel, ARRAYSIZE(range.szLabel));
    PutAt(m_ColorRanges, nRange, range);
    Repaint(m_pGraph);
}

void CXGraphAxis::DeleteColorRange(int nRange)
{
    m_ColorRanges.EraseAt(nRange);
}

void CXGraphAxis::DeleteAllColorRanges()
{
    m_ColorRanges.clear();
}

void CXGraphAxis::SetLabelFont(const LOGFONTW& font)
{
    MakeFont(m_LabelFont, font);
}

void CXGraphAxis::SetTitleFont(const LOGFONTW& font)
{
    MakeFont(m_TitleFont, font);
}
