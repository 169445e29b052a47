#pragma once
// Graph files put together byte by byte from their documented fields: little-endian, without
// padding. Nothing here calls the code under test.
//
// A count is written in 8 bytes and read in 4, so files come in two forms: as they are saved,
// and as the reader understands them item for item.

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace FileBytes
{
enum class EForm { Saved, Readable };

class CBytes
{
public:
    template <class Value> CBytes& Add(Value value)
    {
        m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    CBytes& Raw(std::string_view bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    CBytes& Zeros(std::size_t nCount)
    {
        m_bytes.append(nCount, '\0');
        return *this;
    }
    CBytes& Flag(bool bValue) { return Add<std::uint8_t>(bValue ? 1 : 0); }
    CBytes& Count(EForm form, std::size_t nCount)
    {
        return form == EForm::Saved ? Add<std::uint64_t>(nCount)
                                    : Add<std::uint32_t>(static_cast<std::uint32_t>(nCount));
    }
    // The mark of UTF-16, the length in units, the units.
    CBytes& Text(std::wstring_view text)
    {
        Raw("\xFF\xFE\xFF");
        if (text.size() < 0xFF)
            Add(static_cast<std::uint8_t>(text.size()));
        else if (text.size() < 0xFFFE)
            Raw("\xFF").Add(static_cast<std::uint16_t>(text.size()));
        else
            Raw("\xFF\xFF\xFF").Add(static_cast<std::uint32_t>(text.size()));
        return Raw({reinterpret_cast<const char*>(text.data()), text.size() * 2});
    }
    // 92 bytes.
    CBytes& Font(std::int32_t nHeight, std::int32_t nWeight, std::wstring_view face,
                 std::uint8_t nClipPrecision = 1)
    {
        Add(nHeight).Zeros(12).Add(nWeight).Zeros(3);
        Add<std::uint8_t>(1).Zeros(1).Add(nClipPrecision).Add<std::uint8_t>(4).Zeros(1);
        Raw({reinterpret_cast<const char*>(face.data()), face.size() * 2});
        return Zeros((32 - face.size()) * 2);
    }

    std::string m_bytes;
};

struct TSettings {
    COLORREF crBack = 0xFFFFFF;
    COLORREF crGraph = 0xFFFFFF;
    COLORREF crInner = 0xF0F0F0;
    bool bDoubleBuffer = true;
    bool bShowLegend = true;
    std::int32_t nLegendAlignment = 1;
    bool bSnapCursor = true;
    std::int32_t nSnapRange = 10;
    std::int32_t nLeft = 5;
    std::int32_t nTop = 5;
    std::int32_t nRight = 5;
    std::int32_t nBottom = 5;
    std::int32_t nAxisSpace = 5;
    std::int32_t nSelectedCurve = -1;
};

struct TObject {
    bool bSelected = false;
    bool bCanResize = false;
    bool bCanMove = false;
    bool bSizing = false;
    bool bEditing = false;
    bool bVisible = true;
    bool bCanEdit = true;
    std::int32_t nLeft = 0;
    std::int32_t nTop = 0;
    std::int32_t nRight = 0;
    std::int32_t nBottom = 0;
    COLORREF crColor = 0;
};

struct TCurve {
    TObject base{};
    std::vector<std::pair<double, double>> points{}; // x, y
    std::int32_t nReserved1 = 0;
    std::int32_t nReserved2 = 0;
    std::int32_t nXAxis = 0;
    std::int32_t nYAxis = 0;
    std::int32_t nIndex = 0;
    std::int32_t nLineSize = 1;
    std::int32_t nFillStyle = 6;
    std::int32_t nMarkerType = 0;
    std::int32_t nMarker = 0;
    std::int32_t nMarkerSize = 10;
    std::uint32_t nLineStyle = 0;
    bool bShowMarker = false;
    bool bFillBeneath = false;
    bool bFillTransparent = true;
    std::uint16_t nFillCurve = 1;
    COLORREF crFill = 0xFFFFFF;
    std::wstring label = L" ";
    std::int32_t nType = 0;
};

struct TRange {
    double fMin = 0;
    double fMax = 0;
    COLORREF crMin = 0;
    COLORREF crMax = 0;
    std::uint32_t nStyle = 6;
    std::wstring label{};
};

struct TMarker {
    double fValue = 0;
    COLORREF crColor = 0;
    std::uint32_t nStyle = 0;
};

struct TAxis {
    bool bAutoScale = true;
    bool bVisible = true;
    bool bShowGrid = true;
    std::wstring displayFormat = L"%5.1f";
    std::wstring label = L" ";
    double fMax = 10;
    double fMin = 0;
    double fCurMax = 10;
    double fCurMin = 0;
    double fStep = 1;
    std::int32_t nOriginY = 0;
    std::int32_t nOriginX = 0;
    std::int32_t nKind = 0;
    std::int32_t nArcSize = 5;
    std::int32_t nTickSize = 5;
    COLORREF crColor = 0;
    COLORREF crGrid = 0x969696;
    std::uint32_t nGridStyle = 2;
    double fEndMargin = 0;
    bool bDateTime = false;
    double fKeySpace = 0;
    double fRange = 1;
    std::int32_t nLength = 1;
    std::int32_t nMarkerSize = 10;
    std::int32_t nPlacement = 2;
    bool bShowMarker = true;
    std::vector<TRange> ranges{};
    std::vector<TMarker> markers{};
};

struct TLabel {
    TObject base{.bCanResize = true, .bCanMove = true};
    std::wstring text = L" ";
    COLORREF crFill = 0xFFFFFF;
    COLORREF crText = 0;
    bool bBorder = true;
    bool bTransparent = false;
    std::uint32_t nAlignment = 0;
    std::int32_t nCurve = -1;
};

struct TNotation {
    TObject base{.bCanEdit = false};
    double fX = 0;
    double fY = 0;
    std::int32_t nCurve = 0;
    std::int32_t nIndex = 0;
    std::wstring text{};
};

struct TBitmap {
    TObject base{.bCanResize = true, .bCanMove = true};
    bool bBorder = true;
    std::int32_t nType = 0;
    std::int32_t nWidth = 0;
    std::int32_t nHeight = 0;
    std::int32_t nWidthBytes = 0;
    std::uint16_t nPlanes = 0;
    std::uint16_t nBitsPixel = 0;
    std::string bits{};
};

// 47 bytes.
inline std::string Bytes(const TSettings& settings)
{
    CBytes bytes;
    bytes.Add(settings.crBack).Add(settings.crGraph).Add(settings.crInner);
    bytes.Flag(settings.bDoubleBuffer).Flag(settings.bShowLegend).Add(settings.nLegendAlignment);
    bytes.Flag(settings.bSnapCursor).Add(settings.nSnapRange);
    bytes.Add(settings.nLeft).Add(settings.nTop).Add(settings.nRight).Add(settings.nBottom);
    bytes.Add(settings.nAxisSpace).Add(settings.nSelectedCurve);
    return bytes.m_bytes;
}

// 27 bytes.
inline std::string Bytes(const TObject& object)
{
    CBytes bytes;
    bytes.Flag(object.bSelected).Flag(object.bCanResize).Flag(object.bCanMove).Flag(object.bSizing);
    bytes.Flag(object.bEditing).Flag(object.bVisible).Flag(object.bCanEdit);
    bytes.Add(object.nLeft).Add(object.nTop).Add(object.nRight).Add(object.nBottom);
    return bytes.Add(object.crColor).m_bytes;
}

// The number of points has 4 bytes in both forms.
inline std::string Bytes(const TCurve& curve)
{
    CBytes bytes;
    bytes.Raw(Bytes(curve.base)).Add(static_cast<std::int32_t>(curve.points.size()));
    for (const auto& [x, y] : curve.points)
        bytes.Add(x).Add(y);
    bytes.Add(curve.nReserved1).Add(curve.nReserved2).Add(curve.nXAxis).Add(curve.nYAxis);
    bytes.Add(curve.nIndex).Add(curve.nLineSize).Add(curve.nFillStyle).Add(curve.nMarkerType);
    bytes.Add(curve.nMarker).Add(curve.nMarkerSize).Add(curve.nLineStyle);
    bytes.Flag(curve.bShowMarker).Flag(curve.bFillBeneath).Flag(curve.bFillTransparent);
    bytes.Add(curve.nFillCurve).Add(curve.crFill).Text(curve.label).Add(curve.nType);
    return bytes.m_bytes;
}

// 552 bytes.
inline std::string Bytes(const TRange& range)
{
    CBytes bytes;
    bytes.Add(range.fMin).Add(range.fMax).Add(range.crMin).Add(range.crMax).Add(range.nStyle);
    bytes.Raw({reinterpret_cast<const char*>(range.label.data()), range.label.size() * 2});
    return bytes.Zeros(552 - bytes.m_bytes.size()).m_bytes;
}

// 128 bytes; the font is that of new tick labels.
inline std::string Bytes(const TMarker& marker)
{
    CBytes bytes;
    bytes.Add(marker.fValue).Add(marker.crColor).Flag(true).Flag(true).Zeros(2);
    bytes.Add(marker.nStyle).Add<std::uint16_t>(1).Zeros(2).Font(13, 400, L"Arial").Zeros(12);
    return bytes.m_bytes;
}

inline std::string Bytes(const TAxis& axis, EForm form)
{
    CBytes bytes;
    bytes.Flag(axis.bAutoScale).Flag(axis.bVisible).Flag(axis.bShowGrid);
    bytes.Text(axis.displayFormat).Text(axis.label);
    bytes.Add(axis.fMax).Add(axis.fMin).Add(axis.fCurMax).Add(axis.fCurMin).Add(axis.fStep);
    bytes.Add(axis.nOriginY).Add(axis.nOriginX).Add(axis.nKind).Add(axis.nArcSize);
    bytes.Add(axis.nTickSize).Add(axis.crColor).Add(axis.crGrid).Add(axis.nGridStyle);
    bytes.Add(axis.fEndMargin).Flag(axis.bDateTime).Add(axis.fKeySpace).Add(axis.fRange);
    bytes.Add(axis.nLength).Add(axis.nMarkerSize).Add(axis.nPlacement).Flag(axis.bShowMarker);
    bytes.Count(form, axis.ranges.size());
    for (const TRange& range : axis.ranges)
        bytes.Raw(Bytes(range));
    bytes.Count(form, axis.markers.size());
    for (const TMarker& marker : axis.markers)
        bytes.Raw(Bytes(marker));
    return bytes.Font(13, 400, L"Arial").Font(14, 700, L"Arial").m_bytes;
}

inline std::string Bytes(const TLabel& label)
{
    CBytes bytes;
    bytes.Raw(Bytes(label.base)).Text(label.text).Font(14, 400, L"Arial");
    bytes.Add(label.crFill).Add(label.crText).Flag(label.bBorder).Flag(label.bTransparent);
    return bytes.Add(label.nAlignment).Add(label.nCurve).m_bytes;
}

inline std::string Bytes(const TNotation& notation)
{
    CBytes bytes;
    bytes.Raw(Bytes(notation.base)).Add(notation.fX).Add(notation.fY);
    return bytes.Add(notation.nCurve).Add(notation.nIndex).Text(notation.text).m_bytes;
}

inline std::string Bytes(const TBitmap& bitmap)
{
    CBytes bytes;
    bytes.Raw(Bytes(bitmap.base)).Flag(bitmap.bBorder).Add(bitmap.nType).Add(bitmap.nWidth);
    bytes.Add(bitmap.nHeight).Add(bitmap.nWidthBytes).Add(bitmap.nPlanes).Add(bitmap.nBitsPixel);
    return bytes.Raw(bitmap.bits).m_bytes;
}

// What comes before the first object of a class.
inline std::string NewClass(std::string_view name, std::uint16_t nSchema = 1)
{
    CBytes bytes;
    bytes.Add<std::uint16_t>(0xFFFF).Add(nSchema).Add(static_cast<std::uint16_t>(name.size()));
    return bytes.Raw(name).m_bytes;
}

// In front of a later object of the class of that number.
inline std::string KnownClass(std::uint16_t nNumber)
{
    return CBytes().Add(static_cast<std::uint16_t>(0x8000 + nNumber)).m_bytes;
}

inline std::string Flags(std::uint32_t nFlags)
{
    return CBytes().Add(nFlags).m_bytes;
}
} // namespace FileBytes
