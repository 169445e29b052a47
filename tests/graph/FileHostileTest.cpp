// Graph files that mean harm: cut, flipped, with impossible counts, tags, texts and pictures.
// Loading ends by its result, and what it takes of memory is bounded by the file.

#include "FileBytes.h"
#include "NativeGraph.h"

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "support/FailingMemory.h"
#include "support/GdiCount.h"
#include "windowing/TempFile.h"

#include <climits>
#include <cstring>

using namespace FileBytes;

namespace
{
class CMemoryFile : public CFile
{
public:
    explicit CMemoryFile(std::string bytes) : m_bytes(std::move(bytes)) {}
    UINT Read(void* lpBuf, UINT nCount) override
    {
        nCount = static_cast<UINT>(std::min<std::size_t>(nCount, m_bytes.size() - m_nAt));
        std::memcpy(lpBuf, m_bytes.data() + m_nAt, nCount);
        m_nAt += nCount;
        return nCount;
    }
    ULONGLONG Seek(LONGLONG lOff, UINT) override { return m_nAt += static_cast<std::size_t>(lOff); }
    [[nodiscard]] ULONGLONG GetPosition() const override { return m_nAt; }
    [[nodiscard]] ULONGLONG GetLength() const override { return m_bytes.size(); }
    void Close() override {}

private:
    std::string m_bytes;
    std::size_t m_nAt = 0;
};

class HostileFile : public GraphTest
{
protected:
    // The cause of the exception that loading raises; none where it raises none.
    int Load(const std::string& bytes)
    {
        CMemoryFile file(bytes);
        graph.ResetAll();
        graph.m_Measures.clear();
        CArchive ar(&file, CArchive::load);
        try {
            graph.Serialize(ar, 0);
        } catch (CArchiveException* exception) {
            const int cause = exception->m_cause;
            exception->Delete();
            return cause;
        } catch (CException* exception) {
            exception->Delete();
            return CArchiveException::genericException;
        }
        return CArchiveException::none;
    }
    int LoadObjects(int nCount, const std::string& objects)
    {
        return Load(Flags(4) + CBytes().Add(0).Add(nCount).Raw(objects).m_bytes);
    }
};

std::string WholeFile()
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    TAxis xAxis;
    xAxis.ranges.push_back({1, 2, 3, 4, 5, L"band"});
    xAxis.markers.push_back({7, 8, 1});
    TAxis yAxis;
    yAxis.nKind = 1;
    TBitmap bitmap;
    bitmap.nWidth = 2;
    bitmap.nHeight = 1;
    bitmap.nWidthBytes = 8;
    bitmap.nPlanes = 1;
    bitmap.nBitsPixel = 32;
    bitmap.bits = "ABC0DEF0";
    CBytes bytes;
    bytes.Raw(Flags(7)).Raw(Bytes(TSettings()));
    bytes.Add(1).Raw(Bytes(curve)).Add(1).Raw(Bytes(xAxis, EForm::Readable));
    bytes.Add(1).Raw(Bytes(yAxis, EForm::Readable));
    bytes.Add(1).Add(0).Add(1).Add(0).Add(1).Add(4);
    bytes.Raw(NewClass("CXGraphLabel")).Raw(Bytes(TLabel()));
    bytes.Raw(NewClass("CXGraphDataNotation")).Raw(Bytes(TNotation{.text = L"note"}));
    bytes.Raw(NewClass("CXGraphBitmap")).Raw(Bytes(bitmap));
    return bytes.Raw(KnownClass(1)).Raw(Bytes(TLabel())).m_bytes;
}

TBitmap Picture32(std::int32_t nWidth, std::int32_t nHeight, std::int32_t nWidthBytes)
{
    TBitmap bitmap;
    bitmap.nWidth = nWidth;
    bitmap.nHeight = nHeight;
    bitmap.nWidthBytes = nWidthBytes;
    bitmap.nPlanes = 1;
    bitmap.nBitsPixel = 32;
    bitmap.bits.assign(64, 'b');
    return bitmap;
}
} // namespace

TEST_F(HostileFile, AnObjectIsFreedThatMemoryIsTooShortToTakeIn)
{
    const std::string file = Flags(4) + CBytes().Add(0).Add(2).m_bytes + NewClass("CXGraphLabel") +
                             Bytes(TLabel()) + KnownClass(1) + Bytes(TLabel());
    EXPECT_EQ(Load(file), CArchiveException::none);
    graph.ResetAll();
    const int fonts = GdiCount::OfType(OBJ_FONT);
    int failures = 0;
    for (int number = 0; number < 60; ++number) {
        try {
            const FailingMemory failing(number);
            Load(file);
        } catch (const std::bad_alloc&) {
            ++failures;
        }
        graph.ResetAll();
        ASSERT_EQ(GdiCount::OfType(OBJ_FONT), fonts) << "allocation " << number;
    }
    EXPECT_GT(failures, 2);
}

// The exception passes on to the host, whose loop then repaints: an axis that is missing would end it.
TEST_F(HostileFile, AfterMemoryRanOutTheNextFrameIsPainted)
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    CBytes bytes;
    bytes.Raw(Flags(2)).Add(1).Raw(Bytes(curve));
    bytes.Add(1).Raw(Bytes(TAxis(), EForm::Readable)).Add(1).Raw(Bytes(TAxis(), EForm::Readable));
    const CTempFile file(bytes.m_bytes);
    int withoutAxes = 0;
    FailingMemory::Exhaust([&] { graph.Load(file.Path()); },
                           [&] {
                               if (graph.m_Curves.empty() || !graph.m_YAxes.empty())
                                   return;
                               ++withoutAxes;
                               EXPECT_FALSE(graph.m_Curves[0].m_bVisible);
                               Paint();
                           });
    EXPECT_GT(withoutAxes, 0);
}

TEST_F(HostileFile, CutAtAnyByteItEndsThere)
{
    const std::string whole = WholeFile();
    ASSERT_EQ(Load(whole), CArchiveException::none);
    for (std::size_t length = 0; length < whole.size(); ++length)
        ASSERT_EQ(Load(whole.substr(0, length)), CArchiveException::endOfFile) << length;
}

TEST_F(HostileFile, WithAnyByteFlippedItLoadsOrIsRefused)
{
    const std::string whole = WholeFile();
    int loaded = 0;
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const int bits : {0xFF, 0x01}) {
            std::string file = whole;
            file[place] = static_cast<char>(file[place] ^ bits);
            loaded += Load(file) == CArchiveException::none ? 1 : 0;
        }
    }
    EXPECT_GT(loaded, 0);
    EXPECT_EQ(Load(whole), CArchiveException::none);
    EXPECT_EQ(graph.m_Objects.GetCount(), 5);
}

TEST_F(HostileFile, CountsThatTheFileCantFillEndItAndNegativeOnesAreNone)
{
    for (const int nCount : {INT_MAX, 100000, 1}) {
        const std::string count = CBytes().Add(nCount).m_bytes;
        EXPECT_EQ(Load(Flags(2) + count), CArchiveException::endOfFile);
        EXPECT_EQ(Load(Flags(2) + CBytes().Add(0).m_bytes + count), CArchiveException::endOfFile);
        EXPECT_EQ(Load(Flags(4) + count), CArchiveException::endOfFile);
        EXPECT_EQ(LoadObjects(nCount, ""), CArchiveException::endOfFile);
    }
    EXPECT_EQ(Load(Flags(6) + CBytes().Add(-1).Add(INT_MIN).Add(-7).Add(-1).Add(INT_MIN).m_bytes),
              CArchiveException::none);
    EXPECT_TRUE(graph.m_Curves.empty() && graph.m_Measures.empty());
}

TEST_F(HostileFile, ObjectTagsThatLeadNowhereOrBackAreABadIndex)
{
    const std::string label = NewClass("CXGraphLabel") + Bytes(TLabel()); // numbers 1 and 2
    const auto reference = [](WORD number) { return CBytes().Add(number).m_bytes; };
    const auto big = [](DWORD number) { return CBytes().Add<WORD>(0x7FFF).Add(number).m_bytes; };
    EXPECT_EQ(LoadObjects(1, reference(1)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(1, KnownClass(1)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(2, label + reference(7)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(2, label + reference(1)), CArchiveException::badIndex); // a class's number
    EXPECT_EQ(LoadObjects(2, label + KnownClass(2)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(2, label + big(0x80000002)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(2, label + big(0x7FFFFFFF)), CArchiveException::badIndex);
    EXPECT_EQ(LoadObjects(2, label + big(0x80000001) + Bytes(TLabel())), CArchiveException::none);
    EXPECT_EQ(LoadObjects(2, label + reference(0)), CArchiveException::badClass);
}

TEST_F(HostileFile, NoObjectComesIntoTheListTwice)
{
    const std::string label = NewClass("CXGraphLabel") + Bytes(TLabel());
    EXPECT_EQ(LoadObjects(2, label + CBytes().Add<WORD>(2).m_bytes), CArchiveException::badIndex);
    EXPECT_EQ(graph.m_Objects.GetCount(), 2);
    graph.ResetAll(); // frees each once
}

TEST_F(HostileFile, AnAxisOrACurveAmongTheObjectsIsKeptAndHarmless)
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    curve.nXAxis = 99;
    CBytes objects;
    objects.Raw(NewClass("CXGraphAxis")).Raw(Bytes(TAxis(), EForm::Readable));
    objects.Raw(NewClass("CXGraphDataSerie")).Raw(Bytes(curve));
    objects.Raw(NewClass("CXGraphLogAxis")).Raw(Bytes(TAxis(), EForm::Readable));
    objects.Raw(NewClass("CXGraphObject")).Raw(Bytes(TObject()));
    ASSERT_EQ(LoadObjects(4, objects.m_bytes), CArchiveException::none);
    EXPECT_EQ(graph.m_Objects.GetCount(), 5);
    Paint();
    AddLine();
    Paint();
    graph.m_ptCurrent = CPoint(200, 150);
    graph.HitTest(false, false);
    Paint();
}

TEST_F(HostileFile, TextsThatClaimGigabytesEndIt)
{
    TLabel label;
    const std::string base = Bytes(label.base);
    for (const std::string& length :
         {std::string("\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F", 10),
          std::string("\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 10),
          std::string("\xFF\xFF\xFF\xFF\xFF\xFF\x7F", 7), std::string("\xFF\xFD\xFF", 3)})
        EXPECT_EQ(LoadObjects(1, NewClass("CXGraphLabel") + base + length + std::string(500, 'x')),
                  CArchiveException::endOfFile);
}

TEST_F(HostileFile, PicturesOfImpossibleSizeEndIt)
{
    for (const TBitmap& bitmap :
         {Picture32(INT_MAX, INT_MAX, INT_MAX), Picture32(-2, 1, 8), Picture32(2, -1, 8),
          Picture32(2, 1, -8), Picture32(2, INT_MAX, 8), Picture32(0x40000001, 1, 4), Picture32(2, 1, 4),
          Picture32(0, 5, 0), Picture32(65536, 65536, 262144)})
        EXPECT_EQ(LoadObjects(1, NewClass("CXGraphBitmap") + Bytes(bitmap)),
                  CArchiveException::endOfFile)
            << bitmap.nWidth << " x " << bitmap.nHeight;
    TBitmap none;
    EXPECT_EQ(LoadObjects(1, NewClass("CXGraphBitmap") + Bytes(none)), CArchiveException::none);
    Paint();
}

TEST_F(HostileFile, FontsWithoutTerminatorAreCutAtTheirRecord)
{
    std::string label = Bytes(TLabel());
    for (std::size_t unit = 0; unit < 32; ++unit)
        label.replace(27 + 6 + 28 + unit * 2, 2, std::string("A\0", 2)); // base, text " ", to the face
    ASSERT_EQ(LoadObjects(1, NewClass("CXGraphLabel") + label), CArchiveException::none);
    LOGFONTW font = {};
    auto* loaded = LastObject<CXGraphLabel>(graph);
    loaded->m_Font.GetLogFont(&font);
    EXPECT_LT(std::wcslen(std::wstring(font.lfFaceName, 32).c_str()), 32u);
    EXPECT_EQ(font.lfFaceName[0], L'A');
    Paint();
}

TEST_F(HostileFile, ManyObjectsLoadInOneStroke)
{
    constexpr int nObjects = 20000;
    CBytes objects;
    objects.Raw(NewClass("CXGraphObject")).Raw(Bytes(TObject()));
    for (int n = 1; n < nObjects; ++n)
        objects.Raw(KnownClass(1)).Raw(Bytes(TObject()));
    ASSERT_EQ(LoadObjects(nObjects, objects.m_bytes), CArchiveException::none);
    EXPECT_EQ(graph.m_Objects.GetCount(), nObjects + 1);
}
