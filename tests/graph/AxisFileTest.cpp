// The file forms of axes and curves, byte by byte.

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "objects/XGraphAxis.h"
#include "objects/XGraphDataSerie.h"
#include "objects/XGraphLogAxis.h"
#include "windowing/TempFile.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace
{

// Puts expected bytes together, little-endian without padding.
class CBytes
{
public:
    template <class Value> CBytes& Add(Value value)
    {
        m_bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    CBytes& Text(const std::wstring& text)
    {
        m_bytes += "\xFF\xFE\xFF";
        m_bytes += static_cast<char>(text.size());
        m_bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * 2);
        return *this;
    }
    CBytes& Zeros(std::size_t count)
    {
        m_bytes.append(count, '\0');
        return *this;
    }

    std::string m_bytes;
};

std::string Stored(CObject& object)
{
    const CTempFile temp;
    {
        CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        object.Serialize(ar);
    }
    return temp.Read();
}

// The cause of the archive's exception; 0 for none.
int Load(CObject& object, const std::string& bytes)
{
    const CTempFile temp(bytes);
    CFile file(temp.Path(), CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    try {
        object.Serialize(ar);
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CArchiveException::none;
}

LOGFONTW FontOf(const CFont& font)
{
    LOGFONTW look = {};
    font.GetLogFont(&look);
    return look;
}

void Fill(CXGraphAxis& axis)
{
    axis.SetRange(1.5, 9.5);
    axis.SetCurrentRange(2, 3, 0.25);
    axis.m_bAutoScale = false;
    axis.m_cLabel = L"Zeit";
    axis.m_cDisplayFmt = L"%g";
    axis.m_nOriginY = 11;
    axis.m_nOriginX = 12;
    axis.m_AxisKind = akYAxis;
    axis.m_nArcSize = 13;
    axis.m_nTickSize = 14;
    axis.m_crColor = 0x010203;
    axis.m_crGridColor = 0x040506;
    axis.m_nGridStyle = 3;
    axis.m_fEndMargin = 1.25;
    axis.m_bDateTime = true;
    axis.m_fKeySpace = 2.25;
    axis.m_fRange = 3.25;
    axis.m_nLength = 15;
    axis.m_nMarkerSize = 16;
    axis.m_Placement = apRight;
    axis.m_bShowMarker = false;
}

CBytes FieldsOf()
{
    CBytes bytes;
    bytes.Add<BYTE>(0).Add<BYTE>(1).Add<BYTE>(1).Text(L"%g").Text(L"Zeit");
    bytes.Add(9.5).Add(1.5).Add(3.0).Add(2.0).Add(0.25);
    bytes.Add(11).Add(12).Add(1).Add(13).Add(14).Add(0x010203).Add(0x040506).Add(3);
    bytes.Add(1.25).Add<BYTE>(1).Add(2.25).Add(3.25).Add(15).Add(16).Add(1).Add<BYTE>(0);
    return bytes;
}

CBytes FontsOf(const CXGraphAxis& axis)
{
    return CBytes().Add(FontOf(axis.m_LabelFont)).Add(FontOf(axis.m_TitleFont));
}

} // namespace

TEST(AxisFile, FieldsStandInTheirOrder)
{
    CXGraphAxis axis;
    Fill(axis);
    EXPECT_EQ(Stored(axis), FieldsOf().Zeros(16).m_bytes + FontsOf(axis).m_bytes);
}

TEST(AxisFile, CountsTakeEightBytesAndRecordsTheirSize)
{
    CXGraphAxis axis;
    Fill(axis);
    axis.SetColorRange(0, 1, 2, 3, 4, L"ok", 5);
    axis.SetAxisMarker(0, 7, 8, 2);
    axis.SetMaskerLabel(0, L"not in the file");
    CBytes expected = FieldsOf();
    expected.Add<ULONGLONG>(1).Add(1.0).Add(2.0).Add(3).Add(4).Add(5).Add(L'o').Add(L'k').Zeros(552 -
                                                                                                32);
    expected.Add<ULONGLONG>(1)
        .Add(7.0)
        .Add(8)
        .Add<BYTE>(1)
        .Add<BYTE>(1)
        .Zeros(2)
        .Add(2)
        .Add<short>(1)
        .Zeros(2);
    expected.Add(axis.m_AxisMarkers[0].lfFont).Zeros(12);
    EXPECT_EQ(Stored(axis), expected.m_bytes + FontsOf(axis).m_bytes);
}

TEST(AxisFile, AMarkerThatIsHiddenWithoutItsValueIsStoredSo)
{
    CXGraphAxis axis;
    axis.SetAxisMarker(0, 7, 8, 2);
    axis.m_AxisMarkers[0].bVisible = false;
    axis.m_AxisMarkers[0].bShowValue = false;
    const std::string stored = Stored(axis);
    const std::string record = stored.substr(stored.size() - 2 * sizeof(LOGFONTW) - 128, 128);
    EXPECT_EQ(record.substr(8, 8), CBytes().Add(axis.m_AxisMarkers[0].crColor).Zeros(4).m_bytes);
}

TEST(AxisFile, TheReaderTakesFourBytesOfACount)
{
    CXGraphAxis source;
    Fill(source);
    LOGFONTW font = FontOf(source.m_LabelFont);
    font.lfHeight = 40;
    source.SetLabelFont(font);
    // The form that the reader understands: 4-byte counts.
    CBytes bytes = FieldsOf();
    bytes.Add(1).Add(1.0).Add(2.0).Add(3).Add(4).Add(5).Add(L'o').Add(L'k').Zeros(552 - 32);
    bytes.Add(1).Add(7.0).Add(8).Add<BYTE>(2).Add<BYTE>(0).Zeros(2).Add(2).Add<short>(3).Zeros(2);
    bytes.Add(font).Zeros(12);
    bytes.m_bytes += FontsOf(source).m_bytes;

    CXGraphAxis axis;
    axis.m_ZoomHistory.push_back({1, 2});
    axis.m_AxisType = atLog;
    axis.SetAxisMarker(0, 99, 0, 0);
    ASSERT_EQ(Load(axis, bytes.m_bytes), CArchiveException::none);
    EXPECT_EQ(axis.m_fMin, 1.5);
    EXPECT_EQ(axis.m_fCurMax, 3);
    EXPECT_EQ(axis.m_AxisKind, akYAxis);
    EXPECT_EQ(axis.m_Placement, apRight);
    EXPECT_TRUE(axis.m_cLabel == L"Zeit");
    ASSERT_EQ(axis.m_ColorRanges.size(), 1u);
    EXPECT_STREQ(axis.m_ColorRanges[0].szLabel, L"ok");
    ASSERT_EQ(axis.m_AxisMarkers.size(), 1u);
    EXPECT_EQ(axis.m_AxisMarkers[0].fValue, 7);
    EXPECT_TRUE(axis.m_AxisMarkers[0].bVisible);
    EXPECT_FALSE(axis.m_AxisMarkers[0].bShowValue);
    EXPECT_EQ(axis.m_AxisMarkers[0].nSize, 3);
    EXPECT_TRUE(axis.m_AxisMarkers[0].cLabel.IsEmpty());
    EXPECT_EQ(FontOf(axis.m_LabelFont).lfHeight, 40);
    EXPECT_EQ(axis.m_ZoomHistory.size(), 1u);
    EXPECT_EQ(axis.m_AxisType, atLog);
}

TEST(AxisFile, AWrittenAxisWithoutElementsReadsTheUpperHalvesNext)
{
    CXGraphAxis source;
    Fill(source);
    CXGraphAxis axis;
    ASSERT_EQ(Load(axis, Stored(source)), CArchiveException::none);
    EXPECT_EQ(axis.m_fCurMin, 2);
    EXPECT_TRUE(axis.m_ColorRanges.empty());
    EXPECT_TRUE(axis.m_AxisMarkers.empty());
}

TEST(AxisFile, CountsThatTheFileCantFillEndItBeforeAnythingIsMade)
{
    CXGraphAxis source;
    Fill(source);
    for (const int nCount : {1, 1000, INT_MAX}) {
        CXGraphAxis axis;
        CBytes bytes = FieldsOf();
        bytes.Add(nCount).Zeros(500);
        EXPECT_EQ(Load(axis, bytes.m_bytes), CArchiveException::endOfFile);
        EXPECT_EQ(axis.m_fMax, 9.5);
        EXPECT_TRUE(axis.m_ColorRanges.empty());
    }
    CXGraphAxis axis;
    CBytes bytes = FieldsOf();
    bytes.Add(-5).Add(INT_MIN);
    EXPECT_EQ(Load(axis, bytes.m_bytes + FontsOf(source).m_bytes), CArchiveException::none);
}

TEST(AxisFile, EveryShorterFileEndsWithTheSameCause)
{
    CXGraphAxis source;
    Fill(source);
    // The reader leaves the upper halves of the counts, 8 bytes, at the end.
    const std::string whole = Stored(source);
    for (std::size_t length = 0; length + 8 < whole.size(); ++length) {
        CXGraphAxis axis;
        ASSERT_EQ(Load(axis, whole.substr(0, length)), CArchiveException::endOfFile) << length;
    }
}

TEST(AxisFile, AnUnterminatedLabelIsCutAtItsRecord)
{
    CXGraphAxis source;
    Fill(source);
    CBytes bytes = FieldsOf();
    bytes.Add(1).Zeros(28);
    bytes.m_bytes.append(524, 'A');
    bytes.Zeros(4);
    CXGraphAxis axis;
    ASSERT_EQ(Load(axis, bytes.m_bytes + FontsOf(source).m_bytes), CArchiveException::none);
    EXPECT_EQ(std::wcslen(axis.m_ColorRanges[0].szLabel), 261u);
}

TEST(AxisFile, ALogAxisAddsNothing)
{
    CXGraphLogAxis source;
    CXGraphAxis plain;
    Fill(source);
    Fill(plain);
    source.m_LogType = atLinear;
    EXPECT_EQ(Stored(source), Stored(plain));
    CXGraphLogAxis axis;
    ASSERT_EQ(Load(axis, Stored(source)), CArchiveException::none);
    EXPECT_EQ(axis.m_LogType, 0);
}

TEST(ObjectFile, TwentySevenBytesAndAnyByteIsAFlag)
{
    CXGraphObject object;
    object.m_rcObject = CRect(1, 2, 3, 4);
    object.m_bSelected = true;
    object.m_bCanMove = true;
    object.m_crColor = 0x112233;
    CBytes expected;
    expected.Add<BYTE>(1).Add<BYTE>(0).Add<BYTE>(1).Add<BYTE>(0).Add<BYTE>(0).Add<BYTE>(1).Add<BYTE>(1);
    expected.Add(1).Add(2).Add(3).Add(4).Add(0x112233);
    ASSERT_EQ(expected.m_bytes.size(), 27u);
    EXPECT_EQ(Stored(object), expected.m_bytes);

    CXGraphObject loaded;
    expected.m_bytes[4] = 2;
    ASSERT_EQ(Load(loaded, expected.m_bytes), CArchiveException::none);
    EXPECT_TRUE(loaded.m_bEditing);
    EXPECT_EQ(Stored(loaded)[4], 1);
    EXPECT_EQ(Load(loaded, expected.m_bytes.substr(0, 20)), CArchiveException::endOfFile);
}

TEST(CurveFile, FieldsStandInTheirOrderAndComeBack)
{
    TDataPoint points[] = {{1, 2}, {3, 4}};
    CXGraphDataSerie curve;
    curve.ReplaceData(points, 2, false);
    curve.m_nXAxis = 1;
    curve.m_nYAxis = 2;
    curve.m_nIndex = 3;
    curve.m_nReserved1 = -1;
    curve.m_nFillCurve = 65535;
    curve.m_bFillBeneath = true;
    curve.m_cLabel = L"c";
    curve.m_nType = gtScatter;
    CBytes expected;
    expected.m_bytes = Stored(static_cast<CXGraphObject&>(curve)).substr(0, 27);
    expected.Add(2)
        .Add(points[0])
        .Add(points[1])
        .Add(-1)
        .Add(0)
        .Add(1)
        .Add(2)
        .Add(3)
        .Add(1)
        .Add(6)
        .Add(0)
        .Add(0);
    expected.Add(10)
        .Add(0)
        .Add<BYTE>(0)
        .Add<BYTE>(1)
        .Add<BYTE>(1)
        .Add<WORD>(65535)
        .Add(0xFFFFFF)
        .Text(L"c")
        .Add(1);
    EXPECT_EQ(Stored(curve), expected.m_bytes);

    CXGraphDataSerie loaded;
    ASSERT_EQ(Load(loaded, expected.m_bytes), CArchiveException::none);
    ASSERT_EQ(loaded.m_nCount, 2);
    EXPECT_EQ(loaded.m_pData[1].fYVal, 4);
    EXPECT_TRUE(loaded.m_bAutoDelete);
    EXPECT_EQ(loaded.m_nFillCurve, 65535);
    EXPECT_EQ(loaded.m_nType, gtScatter);
    EXPECT_EQ(Stored(loaded), expected.m_bytes);
}

TEST(CurveFile, CountsThatTheFileCantFillEndIt)
{
    CXGraphDataSerie source;
    const std::string base = Stored(source).substr(0, 27);
    for (const int nCount : {1, 7, INT_MAX, -1, INT_MIN}) {
        CXGraphDataSerie curve;
        EXPECT_EQ(Load(curve, base + CBytes().Add(nCount).Zeros(15).m_bytes),
                  CArchiveException::endOfFile)
            << nCount;
        EXPECT_TRUE(curve.Points().empty());
    }
}

TEST(CurveFile, EveryShorterFileEndsWithTheSameCause)
{
    CXGraphDataSerie source;
    const TDataPoint points[] = {{1, 2}, {3, 4}, {5, 6}};
    source.CopyData(points, 3);
    const std::string whole = Stored(source);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        CXGraphDataSerie curve;
        ASSERT_EQ(Load(curve, whole.substr(0, length)), CArchiveException::endOfFile) << length;
    }
}
