// Graph files: what is saved byte for byte, what a well-formed file brings back, and what the
// caller sees of each failure.

#include "FileBytes.h"
#include "NativeGraph.h"

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "objects/XGraphBitmap.h"
#include "objects/XGraphDataNotation.h"
#include "support/CountedMemory.h"
#include "windowing/TempFile.h"

using namespace FileBytes;

namespace
{
class GraphFile : public GraphTest
{
protected:
    std::string Saved(UINT nFlags)
    {
        const CTempFile file;
        EXPECT_TRUE(graph.Save(file.Path(), nFlags));
        return file.Read();
    }
    bool Load(const std::string& bytes)
    {
        const CTempFile file(bytes);
        return graph.Load(file.Path());
    }
    // The exception's cause, where loading raises one; else none.
    int CauseOf(const std::string& bytes)
    {
        const CTempFile temp(bytes);
        CFile file(temp.Path(), CFile::modeRead);
        CArchive ar(&file, CArchive::load);
        try {
            graph.Serialize(ar, 0);
        } catch (CArchiveException* exception) {
            const int cause = exception->m_cause;
            exception->Delete();
            return cause;
        }
        return CArchiveException::none;
    }
};

TSettings OtherSettings()
{
    return {0x010203, 0x040506, 0x070809, false, false, 3, false, 11, 12, 13, 14, 15, 16, 17};
}

std::string ReadableData()
{
    TCurve first;
    first.points = {{1, 2}, {3, 4}};
    first.label = L"first";
    first.base.crColor = 0x123456;
    TCurve second = first;
    second.points = {{5, 6}};
    second.label = L"second";
    TAxis xAxis;
    xAxis.label = L"x";
    xAxis.ranges.push_back({1, 2, 3, 4, 5, L"band"});
    xAxis.markers.push_back({7, 8, 1});
    TAxis yAxis;
    yAxis.nKind = 1;
    yAxis.label = L"y";
    CBytes bytes;
    bytes.Add(2).Raw(Bytes(first)).Raw(Bytes(second));
    bytes.Add(1).Raw(Bytes(xAxis, EForm::Readable));
    return bytes.Add(1).Raw(Bytes(yAxis, EForm::Readable)).m_bytes;
}

std::string ReadableObjects()
{
    TLabel label;
    label.text = L"one";
    TLabel last;
    last.text = L"two\nlines";
    TNotation notation;
    notation.fX = 1.5;
    notation.nIndex = 3;
    notation.text = L"note";
    TBitmap bitmap;
    bitmap.nWidth = 2;
    bitmap.nHeight = 1;
    bitmap.nWidthBytes = 8;
    bitmap.nPlanes = 1;
    bitmap.nBitsPixel = 32;
    bitmap.bits = "ABC0DEF0";
    CBytes bytes;
    bytes.Add(1).Add(0).Add(1).Add(1).Add(0).Add(4);
    bytes.Raw(NewClass("CXGraphLabel")).Raw(Bytes(label));           // numbers 1, 2
    bytes.Raw(NewClass("CXGraphDataNotation")).Raw(Bytes(notation)); // 3, 4
    bytes.Raw(NewClass("CXGraphBitmap")).Raw(Bytes(bitmap));         // 5, 6
    return bytes.Raw(KnownClass(1)).Raw(Bytes(last)).m_bytes;
}
} // namespace

TEST_F(GraphFile, PropertiesAreFiftyOneBytesInTheirOrder)
{
    EXPECT_EQ(Saved(PERSIST_PROPERTIES),
              Flags(1) + Bytes(TSettings{.crBack = 0x102030, .crGraph = 0x405060, .crInner = 0x708090}));
    EXPECT_EQ(Saved(PERSIST_PROPERTIES).size(), 51u);
}

TEST_F(GraphFile, LoadedPropertiesReplaceAllThirteenFieldsAndEmptyTheGraph)
{
    AddLine();
    graph.InsertLabel(CRect(1, 2, 3, 4), L"label");
    graph.m_bInteraction = false;
    ::ValidateRect(graph.m_hWnd, nullptr);

    ASSERT_TRUE(Load(Flags(1) + Bytes(OtherSettings())));

    EXPECT_EQ(Saved(PERSIST_PROPERTIES), Flags(1) + Bytes(OtherSettings()));
    EXPECT_EQ(graph.m_nLegendAlignment, EAlignment::bottom);
    EXPECT_EQ(graph.m_nSelectedCurve, 17);
    EXPECT_FALSE(graph.m_bInteraction);
    EXPECT_TRUE(graph.m_Curves.empty() && graph.m_XAxes.empty() && graph.m_YAxes.empty());
    EXPECT_EQ(graph.m_Objects.GetCount(), 1);
    EXPECT_TRUE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
}

TEST_F(GraphFile, AnyByteButZeroReadsAsASetFlag)
{
    std::string bytes = Flags(1) + Bytes(OtherSettings());
    bytes[4 + 12] = '\x80';
    ASSERT_TRUE(Load(bytes));
    EXPECT_TRUE(graph.m_bDoubleBuffer);
    EXPECT_EQ(Saved(PERSIST_PROPERTIES)[4 + 12], 1);
}

TEST_F(GraphFile, AnEmptyGraphsSectionsAreZeroCountsOfEightBytes)
{
    EXPECT_EQ(Saved(PERSIST_DATA), Flags(2) + std::string(24, '\0'));
    EXPECT_EQ(Saved(PERSIST_OBJECTS), Flags(4) + std::string(16, '\0'));
    EXPECT_EQ(Saved(PERSIST_DATA | PERSIST_OBJECTS), Flags(6) + std::string(40, '\0'));
}

TEST_F(GraphFile, OfThreeWrittenZeroCountsTheReaderTakesTwelveBytes)
{
    EXPECT_TRUE(Load(Saved(PERSIST_DATA)));
    EXPECT_TRUE(Load(Flags(2) + std::string(12, '\0')));
    EXPECT_FALSE(Load(Flags(2) + std::string(11, '\0')));
    EXPECT_TRUE(Load(Saved(7)));
}

TEST_F(GraphFile, UnknownFlagsAreKeptInTheHeadAndIgnoredOnReading)
{
    EXPECT_EQ(Saved(8), Flags(8));
    EXPECT_EQ(Saved(0x80000009).substr(0, 4), Flags(0x80000009));
    EXPECT_TRUE(Load(Flags(0xFFFFFFF8)));
    EXPECT_TRUE(Load(Flags(0)));
}

TEST_F(GraphFile, CurvesAndAxesAreWrittenWithCountsOfEightBytesAndNoTags)
{
    TDataPoint points[] = {{1, 2}, {3, 4}};
    for (int n = 0; n < 2; ++n)
        graph.SetData(points, 2, n, 0, 0, true);
    graph.m_XAxes[0].SetRange(0, 10);
    graph.m_YAxes[0].SetRange(-5, 5);
    graph.m_XAxes[0].m_fStep = graph.m_YAxes[0].m_fStep = 1;

    TCurve first{.points = {{1, 2}, {3, 4}}};
    first.base.crColor = 0x000080;
    TCurve second{.points = first.points, .nIndex = 1};
    second.base.crColor = 0x0000FF;
    TAxis xAxis;
    TAxis yAxis{.fMax = 5, .fMin = -5, .fCurMax = 5, .fCurMin = -5};
    yAxis.nKind = 1;
    CBytes expected;
    expected.Raw(Flags(2)).Count(EForm::Saved, 2).Raw(Bytes(first)).Raw(Bytes(second));
    expected.Count(EForm::Saved, 1).Raw(Bytes(xAxis, EForm::Saved));
    expected.Count(EForm::Saved, 1).Raw(Bytes(yAxis, EForm::Saved));
    EXPECT_EQ(Saved(PERSIST_DATA), expected.m_bytes);
}

TEST_F(GraphFile, ObjectsAreWrittenBehindTheHeadWithTheirClassOnceAndItsNumberAfterwards)
{
    graph.m_Measures.push_back({1, 2, 3, 4});
    graph.InsertLabel(CRect(10, 20, 30, 40), L"one")->m_crFillColor = 0x010203;
    graph.InsertLabel(CRect(50, 60, 70, 80), std::wstring(300, L'x').c_str())->m_crFillColor = 0x010203;

    TLabel one{.text = L"one", .crFill = 0x010203};
    one.base.nLeft = 10, one.base.nTop = 20, one.base.nRight = 30, one.base.nBottom = 40;
    TLabel two{.text = std::wstring(300, L'x'), .crFill = 0x010203};
    two.base.nLeft = 50, two.base.nTop = 60, two.base.nRight = 70, two.base.nBottom = 80;
    CBytes expected;
    expected.Raw(Flags(4)).Count(EForm::Saved, 1).Add(1).Add(2).Add(3).Add(4);
    expected.Count(EForm::Saved, 2).Raw(NewClass("CXGraphLabel")).Raw(Bytes(one));
    expected.Raw(KnownClass(1)).Raw(Bytes(two));
    EXPECT_EQ(Saved(PERSIST_OBJECTS), expected.m_bytes);
}

TEST_F(GraphFile, AFileInTheReadersFormLoadsItemForItem)
{
    ASSERT_TRUE(Load(Flags(7) + Bytes(OtherSettings()) + ReadableData() + ReadableObjects()));

    ASSERT_EQ(graph.m_Curves.size(), 2u);
    EXPECT_TRUE(graph.m_Curves[0].m_cLabel == L"first");
    EXPECT_EQ(graph.m_Curves[0].m_crColor, 0x123456u);
    EXPECT_EQ(graph.m_Curves[0].m_pData[1].fYVal, 4);
    EXPECT_EQ(graph.m_Curves[1].m_nCount, 1);
    EXPECT_TRUE(graph.m_Curves[1].m_bAutoDelete);
    EXPECT_EQ(graph.m_Curves[1].m_pGraph, &graph);
    ASSERT_EQ(graph.m_XAxes.size(), 1u);
    EXPECT_EQ(graph.m_XAxes[0].m_ColorRanges.size(), 1u);
    EXPECT_EQ(graph.m_XAxes[0].m_AxisMarkers[0].fValue, 7);
    ASSERT_EQ(graph.m_YAxes.size(), 1u);
    EXPECT_TRUE(graph.m_YAxes[0].m_cLabel == L"y");
    EXPECT_EQ(graph.m_YAxes[0].m_pGraph, &graph);
    ASSERT_EQ(graph.m_Measures.size(), 1u);
    EXPECT_EQ(graph.m_Measures[0].nIndex1, 1);
    ASSERT_EQ(graph.m_Objects.GetCount(), 5);
    EXPECT_EQ(ObjectAt(graph, 0), &graph.m_CursorLabel);
    EXPECT_TRUE(ObjectAt<CXGraphLabel>(graph, 1)->m_cText == L"one");
    EXPECT_EQ(ObjectAt<CXGraphDataNotation>(graph, 2)->m_fXVal, 1.5);
    EXPECT_NE(ObjectAt<CXGraphBitmap>(graph, 3)->m_pBitmap, nullptr);
    EXPECT_TRUE(ObjectAt<CXGraphLabel>(graph, 4)->m_cText == L"two\nlines");
    EXPECT_EQ(ObjectAt(graph, 4)->m_pGraph, &graph);
    Paint();
}

TEST_F(GraphFile, ACurveKeepsTheArrayThatItWasReadInto)
{
    TCurve curve;
    for (int i = 0; i < 50000; ++i)
        curve.points.push_back({static_cast<double>(i), 1.0});
    const CTempFile file(Flags(2) + CBytes().Add(1).Raw(Bytes(curve)).Add(0).Add(0).m_bytes);
    const CountedMemory memory;
    ASSERT_TRUE(graph.Load(file.Path()));
    const std::size_t nArray = curve.points.size() * sizeof(TDataPoint);
    EXPECT_GE(memory.Bytes(), nArray);
    EXPECT_LT(memory.Bytes(), nArray * 3 / 2);
    EXPECT_TRUE(graph.m_Curves[0].IsAscending());
    EXPECT_EQ(graph.m_Curves[0].m_pData[49999].fXVal, 49999);
}

TEST_F(GraphFile, ReadMeasuresComeOnTopOfThosePresent)
{
    graph.m_Measures.push_back({9, 9, 9, 9});
    ASSERT_TRUE(Load(Flags(4) + CBytes().Add(1).Add(1).Add(2).Add(3).Add(4).Add(0).m_bytes));
    ASSERT_EQ(graph.m_Measures.size(), 2u);
    EXPECT_EQ(graph.m_Measures[0].nCurve1, 9);
    EXPECT_EQ(graph.m_Measures[1].nIndex2, 4);
}

TEST_F(GraphFile, AFileThatHoldsElementsDoesNotReadBackItemForItem)
{
    graph.InsertLabel(CRect(0, 0, 9, 9), L"lost");
    const std::string objects = Saved(PERSIST_OBJECTS);
    // The reader takes the upper half of the measures' count for the number of objects.
    EXPECT_TRUE(Load(objects));
    EXPECT_EQ(graph.m_Objects.GetCount(), 1);

    AddLine();
    EXPECT_FALSE(Load(Saved(PERSIST_DATA)));
}

TEST_F(GraphFile, FlagsOfZeroTouchNoFile)
{
    const CTempFile file("kept");
    EXPECT_FALSE(graph.Save(file.Path(), 0));
    EXPECT_EQ(file.Read(), "kept");
}

TEST_F(GraphFile, SavingForgetsTheActiveTrackerAndThePressedObject)
{
    graph.m_ObjectTracker.m_pCurrentObject = &graph.m_CursorLabel;
    graph.m_ObjectTracker.m_pTracker = &graph.m_CursorLabel.m_Tracker;
    const CTempFile file;
    EXPECT_FALSE(graph.Save(file.Path(), 0));
    EXPECT_NE(graph.m_ObjectTracker.m_pTracker, nullptr);
    EXPECT_TRUE(graph.Save(file.Path(), 1));
    EXPECT_EQ(graph.m_ObjectTracker.m_pTracker, nullptr);
    EXPECT_EQ(graph.m_ObjectTracker.m_pCurrentObject, nullptr);
}

TEST_F(GraphFile, AFileThatCantBeOpenedLeavesTheGraphAsItIs)
{
    AddLine();
    EXPECT_FALSE(graph.Load(L"C:\\no such folder\\graph.bin"));
    EXPECT_EQ(graph.m_Curves.size(), 1u);
    EXPECT_FALSE(graph.Save(L"C:\\no such folder\\graph.bin", 7));
    EXPECT_FALSE(graph.Load(L""));
    EXPECT_FALSE(graph.Load(L"C:\\windows"));
}

TEST_F(GraphFile, AFailedLoadLeavesAnEmptiedGraphWithWhatWasReadUpToThere)
{
    AddLine();
    EXPECT_FALSE(Load(""));
    EXPECT_TRUE(graph.m_Curves.empty());

    const std::string whole = Flags(2) + ReadableData();
    EXPECT_FALSE(Load(whole.substr(0, whole.size() - 1)));
    EXPECT_EQ(graph.m_Curves.size(), 2u);
    EXPECT_EQ(graph.m_XAxes.size(), 1u);
    EXPECT_TRUE(graph.m_YAxes.empty());
}

TEST_F(GraphFile, ACurveWithoutItsAxesStaysUnseenSoTheNextFrameIsPainted)
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    EXPECT_FALSE(Load(Flags(2) + CBytes().Add(1).Raw(Bytes(curve)).m_bytes));
    ASSERT_EQ(graph.m_Curves.size(), 1u);
    EXPECT_EQ(graph.m_Curves[0].m_nCount, 2);
    EXPECT_FALSE(graph.m_Curves[0].m_bVisible);
    Paint();
}

TEST_F(GraphFile, AFileThatCantBeOpenedHidesNoCurve)
{
    AddLine()->m_nXAxis = 7; // its host may still put that right
    EXPECT_FALSE(graph.Load(L"C:\\no such folder\\graph.bin"));
    EXPECT_TRUE(graph.m_Curves[0].m_bVisible);
}

TEST_F(GraphFile, AFileReadWholeLeavesEveryCurveAsItHasIt)
{
    TCurve astray;
    astray.points = {{1, 2}, {3, 4}};
    TCurve hidden = astray;
    hidden.base.bVisible = false;
    TCurve alone = astray;
    alone.bFillBeneath = true;
    alone.nFillCurve = 9;
    CBytes bytes;
    bytes.Raw(Flags(2)).Add(3).Raw(Bytes(astray)).Raw(Bytes(hidden)).Raw(Bytes(alone)).Add(0).Add(0);
    ASSERT_TRUE(Load(bytes.m_bytes));
    EXPECT_TRUE(graph.m_Curves[0].m_bVisible);
    EXPECT_FALSE(graph.m_Curves[1].m_bVisible);
    EXPECT_TRUE(graph.m_Curves[2].m_bVisible);
}

using GraphFileDeathTest = GraphFile;

TEST_F(GraphFileDeathTest, TheFrameAfterAFileWithoutTheAxesOfItsCurveEndsTheProcess)
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    ASSERT_TRUE(Load(Flags(2) + CBytes().Add(1).Raw(Bytes(curve)).Add(0).Add(0).m_bytes));
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(static_cast<int>(0xC0000417)), "");
    graph.m_Curves[0].m_bVisible = false;
    Paint();
}

TEST_F(GraphFileDeathTest, ASymbolKeyOfAFileWithoutAYAxisEndsTheProcess)
{
    TCurve curve;
    curve.points = {{1, 2}, {3, 4}};
    curve.nMarkerType = 1;
    CBytes bytes;
    bytes.Raw(Flags(2)).Add(1).Raw(Bytes(curve)).Add(1).Raw(Bytes(TAxis(), EForm::Readable)).Add(0);
    ASSERT_TRUE(Load(bytes.m_bytes));
    EXPECT_EXIT(Paint(), testing::ExitedWithCode(static_cast<int>(0xC0000417)), "");
}

TEST_F(GraphFile, EachFailureHasItsCause)
{
    const std::string head = Flags(4) + CBytes().Add(0).Add(1).m_bytes;
    const std::string label = Bytes(TLabel());
    EXPECT_EQ(CauseOf(Flags(1)), CArchiveException::endOfFile);
    EXPECT_EQ(CauseOf(head + NewClass("CXGraphNothing") + label), CArchiveException::badClass);
    EXPECT_EQ(CauseOf(head + NewClass("CXGraphLabel", 2) + label), CArchiveException::badSchema);
    EXPECT_EQ(CauseOf(head + NewClass("CBitmapEx") + label), CArchiveException::badClass);
    EXPECT_EQ(CauseOf(head + NewClass("CXGraph") + label), CArchiveException::badClass);
    EXPECT_EQ(CauseOf(head + NewClass("") + label), CArchiveException::badClass);
    EXPECT_EQ(CauseOf(head + NewClass(std::string(60000, 'C')) + label), CArchiveException::badClass);
    EXPECT_EQ(CauseOf(head + NewClass("CXGraphLabel") + label), CArchiveException::none);
}
