// The file form of an axis: little-endian fields without padding, in the order below.
//
// The two counts are written in 8 bytes and read in 4. A reader that meets elements goes on
// in the middle of the count; files whose counts are zero read back whole.

#include "objects/ArchiveCounts.h"
#include "objects/XGraphAxis.h"

#include <array>
#include <cstring>

namespace
{

constexpr std::size_t MarkerSize = 128;
constexpr std::size_t MarkerFont = 24; // offset of the font in a marker's record

static_assert(sizeof(LOGFONTW) == 92);

using TMarkerRecord = std::array<BYTE, MarkerSize>;

template <class Value> void Put(TMarkerRecord& record, std::size_t nOffset, const Value& value)
{
    std::memcpy(record.data() + nOffset, &value, sizeof value);
}

template <class Value> void Get(const TMarkerRecord& record, std::size_t nOffset, Value& value)
{
    std::memcpy(&value, record.data() + nOffset, sizeof value);
}

// The label's text has no place in the record.
TMarkerRecord ToRecord(const TAxisMarker& marker)
{
    TMarkerRecord record = {};
    Put(record, 0, marker.fValue);
    Put(record, 8, marker.crColor);
    record[12] = marker.bVisible ? 1 : 0;
    record[13] = marker.bShowValue ? 1 : 0;
    Put(record, 16, marker.nStyle);
    Put(record, 20, marker.nSize);
    Put(record, MarkerFont, marker.lfFont);
    return record;
}

TAxisMarker FromRecord(const TMarkerRecord& record)
{
    TAxisMarker marker;
    Get(record, 0, marker.fValue);
    Get(record, 8, marker.crColor);
    marker.bVisible = record[12] != 0;
    marker.bShowValue = record[13] != 0;
    Get(record, 16, marker.nStyle);
    Get(record, 20, marker.nSize);
    Get(record, MarkerFont, marker.lfFont);
    marker.lfFont.lfFaceName[LF_FACESIZE - 1] = 0;
    return marker;
}

void WriteFont(CArchive& ar, const CFont& font)
{
    LOGFONTW look = {};
    font.GetLogFont(&look);
    ar.Write(&look, sizeof look);
}

void ReadFont(CArchive& ar, CFont& font)
{
    LOGFONTW look = {};
    ar.ReadExactly(&look, sizeof look);
    look.lfFaceName[LF_FACESIZE - 1] = 0;
    font.DeleteObject();
    font.CreateFontIndirect(&look);
}

template <class Enumeration> void ReadEnumeration(CArchive& ar, Enumeration& value)
{
    int nValue = 0;
    ar >> nValue;
    value = static_cast<Enumeration>(nValue);
}

} // namespace

void CXGraphAxis::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        Store(ar);
    else
        Load(ar);
}

void CXGraphAxis::Store(CArchive& ar) const
{
    ar << m_bAutoScale << m_bVisible << m_bShowGrid << m_cDisplayFmt << m_cLabel;
    ar << m_fMax << m_fMin << m_fCurMax << m_fCurMin << m_fStep;
    ar << m_nOriginY << m_nOriginX << static_cast<int>(m_AxisKind) << m_nArcSize << m_nTickSize;
    ar << m_crColor << m_crGridColor << m_nGridStyle << m_fEndMargin << m_bDateTime << m_fKeySpace
       << m_fRange;
    ar << m_nLength << m_nMarkerSize << static_cast<int>(m_Placement) << m_bShowMarker;

    ar << static_cast<ULONGLONG>(m_ColorRanges.size());
    for (const TColorRange& range : m_ColorRanges)
        ar.Write(&range, sizeof range);
    ar << static_cast<ULONGLONG>(m_AxisMarkers.size());
    for (const TAxisMarker& marker : m_AxisMarkers)
        ar.Write(ToRecord(marker).data(), MarkerSize);
    WriteFont(ar, m_LabelFont);
    WriteFont(ar, m_TitleFont);
}

void CXGraphAxis::Load(CArchive& ar)
{
    ar >> m_bAutoScale >> m_bVisible >> m_bShowGrid >> m_cDisplayFmt >> m_cLabel;
    ar >> m_fMax >> m_fMin >> m_fCurMax >> m_fCurMin >> m_fStep;
    ar >> m_nOriginY >> m_nOriginX;
    ReadEnumeration(ar, m_AxisKind);
    ar >> m_nArcSize >> m_nTickSize;
    ar >> m_crColor >> m_crGridColor >> m_nGridStyle >> m_fEndMargin >> m_bDateTime >> m_fKeySpace >>
        m_fRange;
    ar >> m_nLength >> m_nMarkerSize;
    ReadEnumeration(ar, m_Placement);
    ar >> m_bShowMarker;

    m_ColorRanges.clear();
    for (int nLeft = ArchiveCounts::ReadCount(ar, sizeof(TColorRange)); nLeft > 0; --nLeft) {
        TColorRange range = {};
        ar.ReadExactly(&range, sizeof range);
        range.szLabel[ARRAYSIZE(range.szLabel) - 1] = 0;
        m_ColorRanges.push_back(range);
    }
    m_AxisMarkers.clear();
    for (int nLeft = ArchiveCounts::ReadCount(ar, MarkerSize); nLeft > 0; --nLeft) {
        TMarkerRecord record = {};
        ar.ReadExactly(record.data(), MarkerSize);
        m_AxisMarkers.push_back(FromRecord(record));
    }
    ReadFont(ar, m_LabelFont);
    ReadFont(ar, m_TitleFont);
}
