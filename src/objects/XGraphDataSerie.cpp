// The points of a curve and who owns them, and its file form. Its painting is in
// CurveDrawing.cpp.

#include "objects/XGraphDataSerie.h"

#include "objects/IndexSearch.h"
#include "objects/PointCopy.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

IMPLEMENT_SERIAL(CXGraphDataSerie, CXGraphObject, 1)

CXGraphDataSerie::CXGraphDataSerie(const CXGraphDataSerie& other)
    : CXGraphObject(other), TCurveFields(other)
{
    if (m_bAutoDelete && m_pData) {
        m_pData = nullptr; // not ours, should the copy fail
        CopyData(other.m_pData, static_cast<int>(other.Points().size()));
    }
}

CXGraphDataSerie::CXGraphDataSerie(CXGraphDataSerie&& other) noexcept
    : CXGraphObject(other), TCurveFields(static_cast<TCurveFields&&>(other)),
      m_pPrivateCopy(std::exchange(other.m_pPrivateCopy, nullptr)), m_bAscending(other.m_bAscending)
{
    other.m_pData = nullptr;
    other.m_nCount = 0;
    other.m_bAutoDelete = false;
}

CXGraphDataSerie& CXGraphDataSerie::operator=(const CXGraphDataSerie& other)
{
    if (this != &other)
        *this = CXGraphDataSerie(other);
    return *this;
}

CXGraphDataSerie& CXGraphDataSerie::operator=(CXGraphDataSerie&& other) noexcept
{
    if (this != &other) {
        FreeData();
        CXGraphObject::operator=(other);
        TCurveFields::operator=(static_cast<TCurveFields&&>(other));
        m_pPrivateCopy = std::exchange(other.m_pPrivateCopy, nullptr);
        m_bAscending = other.m_bAscending;
        other.m_pData = nullptr;
        other.m_nCount = 0;
        other.m_bAutoDelete = false;
    }
    return *this;
}

CXGraphDataSerie::~CXGraphDataSerie()
{
    FreeData();
}

COLORREF CXGraphDataSerie::CreationColor(int nPosition) noexcept
{
    static constexpr std::array<COLORREF, 12> colors = {0x000080, 0x0000FF, 0x008080, 0x00FFFF,
                                                        0x008000, 0x00FF00, 0x808000, 0xFFFF00,
                                                        0x800000, 0xFF0000, 0x800080, 0xFF00FF};
    return colors[static_cast<unsigned>(nPosition) % colors.size()];
}

void CXGraphDataSerie::FreeData() noexcept
{
    if (m_bAutoDelete)
        delete[] m_pData;
    m_pData = nullptr;
    m_nCount = 0;
    m_bAutoDelete = false;
    m_pPrivateCopy = nullptr;
}

void CXGraphDataSerie::Adopt(TDataPoint* pCopy, int nCount, bool bAscending) noexcept
{
    m_pData = pCopy;
    m_nCount = nCount;
    m_bAutoDelete = true;
    m_pPrivateCopy = pCopy;
    m_bAscending = bAscending;
}

TDataExtent CXGraphDataSerie::CopyData(const TDataPoint* pData, int nCount)
{
    const auto nPoints = static_cast<std::size_t>(nCount);
    auto copy = std::make_unique_for_overwrite<TDataPoint[]>(nPoints);
    const TPointFacts facts = PointCopy::Copy({pData, nPoints}, copy.get());
    ReplaceData(nullptr, 0, false);
    Adopt(copy.release(), nCount, facts.bAscending);
    return facts.extent;
}

void CXGraphDataSerie::ReplaceData(TDataPoint* pData, int nCount, bool bAutoDelete) noexcept
{
    // The caller that hands over the very array that the curve made keeps it alive.
    if (m_pData == m_pPrivateCopy && m_pData != pData)
        FreeData();
    if (m_pData != pData)
        m_pPrivateCopy = nullptr;
    m_pData = pData;
    m_nCount = nCount;
    m_bAutoDelete = bAutoDelete;
}

std::span<const TDataPoint> CXGraphDataSerie::Points() const noexcept
{
    if (!m_pData || m_nCount <= 0)
        return {};
    return {m_pData, static_cast<std::size_t>(m_nCount)};
}

bool CXGraphDataSerie::IsAscending() const noexcept
{
    return m_pPrivateCopy && m_pPrivateCopy == m_pData && m_bAscending;
}

void CXGraphDataSerie::SetFillBeneath(bool bValue, int nValue) noexcept
{
    m_bFillBeneath = bValue;
    m_nFillCurve = static_cast<unsigned short>(nValue);
}

void CXGraphDataSerie::AddSegment(CPoint from, CPoint to)
{
    m_Segments.push_back({from, to});
}

bool CXGraphDataSerie::HitTestSegment(CPoint from, CPoint to, CPoint point, int nTolerance) noexcept
{
    return SegmentHit::HitTestSegment(from, to, point, nTolerance);
}

double CXGraphDataSerie::PointLineDistance(CPoint from, CPoint to, CPoint point) noexcept
{
    return SegmentHit::PointLineDistance(from, to, point);
}

bool CXGraphDataSerie::HitTestCurve(CPoint point, int nTolerance) const noexcept
{
    return SegmentHit::HitsAny(m_Segments, point, nTolerance);
}

void CXGraphDataSerie::Serialize(CArchive& ar)
{
    CXGraphObject::Serialize(ar);
    if (ar.IsStoring())
        StoreFields(ar);
    else
        LoadFields(ar);
}

void CXGraphDataSerie::StoreFields(CArchive& ar) const
{
    const std::span<const TDataPoint> points = Points();
    ar << static_cast<int>(points.size());
    // In parts whose bytes an archive can count.
    constexpr std::size_t nPart = 1 << 20;
    for (std::size_t i = 0; i < points.size(); i += nPart) {
        const auto part = points.subspan(i, std::min(nPart, points.size() - i));
        ar.Write(part.data(), static_cast<UINT>(part.size_bytes()));
    }
    ar << m_nReserved1 << m_nReserved2 << m_nXAxis << m_nYAxis << m_nIndex << m_nLineSize
       << m_nFillStyle;
    ar << m_nMarkerType << m_nMarker << m_nMarkerSize << m_nLineStyle;
    ar << m_bShowMarker << m_bFillBeneath << m_bFillTransparent << static_cast<WORD>(m_nFillCurve);
    ar << m_crFillColor << m_cLabel << static_cast<int>(m_nType);
}

void CXGraphDataSerie::LoadFields(CArchive& ar)
{
    int nCount = 0;
    ar >> nCount;
    nCount = std::max(nCount, 0); // as with every count, less than none is none
    ar.EnsureRemaining(static_cast<ULONGLONG>(nCount), sizeof(TDataPoint));
    auto data = std::make_unique_for_overwrite<TDataPoint[]>(static_cast<std::size_t>(nCount));
    constexpr int nPart = 1 << 20;
    for (int i = 0; i < nCount; i += nPart)
        ar.ReadExactly(&data[i], static_cast<UINT>(std::min(nPart, nCount - i) * sizeof(TDataPoint)));
    ReplaceData(nullptr, 0, false);
    const bool bAscending = IndexSearch::IsAscending({data.get(), static_cast<std::size_t>(nCount)});
    Adopt(data.release(), nCount, bAscending);

    ar >> m_nReserved1 >> m_nReserved2 >> m_nXAxis >> m_nYAxis >> m_nIndex >> m_nLineSize >>
        m_nFillStyle;
    ar >> m_nMarkerType >> m_nMarker >> m_nMarkerSize >> m_nLineStyle;
    ar >> m_bShowMarker >> m_bFillBeneath >> m_bFillTransparent;
    WORD nFillCurve = 0;
    int nType = 0;
    ar >> nFillCurve >> m_crFillColor >> m_cLabel >> nType;
    m_nFillCurve = nFillCurve;
    m_nType = static_cast<EGraphType>(nType);
}
