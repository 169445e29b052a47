// Labels: their defaults, their picture and their bytes.

#include "FrameRecording.h"
#include "NativeGraph.h"
#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace
{

class GraphLabel : public GraphTest
{
protected:
    GraphLabel()
    {
        graph.m_bShowLegend = false;
        label = graph.InsertLabel(CRect(100, 100, 200, 150), L"");
        label->m_crFillColor = 0x00FF00;
    }
    CXGraphLabel* label;
};

class TemporaryFile
{
public:
    TemporaryFile()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"lab", 0, m_path);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { ::DeleteFileW(m_path); }

    wchar_t m_path[MAX_PATH];
};

} // namespace

TEST_F(GraphLabel, DefaultsAreThoseOfAFreshLabel)
{
    const CXGraphLabel fresh;
    EXPECT_EQ(fresh.m_cText, L" ");
    EXPECT_EQ(fresh.m_crFillColor, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(fresh.m_crTextColor, 0u);
    EXPECT_TRUE(fresh.m_bBorder && fresh.m_bCanEdit && fresh.m_bCanMove && fresh.m_bCanResize);
    EXPECT_FALSE(fresh.m_bTransparent || fresh.m_bEditing);
    EXPECT_EQ(fresh.m_nAlignment, 0u);
    EXPECT_EQ(fresh.m_nCurve, -1);
    LOGFONTW font = {};
    fresh.m_Font.GetLogFont(&font);
    EXPECT_STREQ(font.lfFaceName, L"Arial");
    EXPECT_EQ(font.lfHeight, 14);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfCharSet, 1);
    EXPECT_EQ(font.lfClipPrecision, 1);
    EXPECT_EQ(font.lfQuality, 4);
}

TEST_F(GraphLabel, ItIsAFilledBoxWithABlackBorder)
{
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count(label->m_rcObject, 0x00FF00), 98 * 48);
    EXPECT_EQ(picture.Count(label->m_rcObject, 0x000000), 100 * 50 - 98 * 48);
}

TEST_F(GraphLabel, WithoutABorderTheFillCoversTheWholeBox)
{
    label->m_bBorder = false;
    EXPECT_EQ(Shoot().Count(label->m_rcObject, 0x00FF00), 100 * 50);
}

TEST_F(GraphLabel, ATransparentLabelShowsWhatLiesBeneath)
{
    label->m_bTransparent = true;
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count(0x00FF00), 0);
    EXPECT_EQ(picture.At(150, 125), graph.m_crInnerColor);
    EXPECT_EQ(picture.At(100, 125), 0x000000u);
}

TEST_F(GraphLabel, AHiddenLabelIsNotDrawn)
{
    label->m_bVisible = false;
    EXPECT_EQ(Shoot().Count(0x00FF00), 0);
}

TEST_F(GraphLabel, ALineFeedMakesTwoLines)
{
    label->m_cText = L"HHH";
    label->m_crTextColor = 0x0000FF;
    label->m_bBorder = false;
    auto inkRows = [&] {
        const Picture picture = Shoot();
        int nRows = 0;
        for (int y = 100; y < 150; ++y)
            nRows += picture.Count({100, y, 200, y + 1}, 0x00FF00) < 100 ? 1 : 0;
        return nRows;
    };
    const int nOneLine = inkRows();
    label->m_cText = L"HHH\nHHH";
    EXPECT_EQ(inkRows(), 2 * nOneLine);
}

TEST_F(GraphLabel, AlignmentMovesTheText)
{
    label->m_cText = L"H";
    label->m_bBorder = false;
    label->m_nAlignment = DT_RIGHT;
    const Picture picture = Shoot();
    EXPECT_EQ(picture.Count({100, 100, 150, 150}, 0x00FF00), 50 * 50);
    EXPECT_LT(picture.Count({150, 100, 200, 150}, 0x00FF00), 50 * 50);
}

TEST_F(GraphLabel, ATiedLabelIsJoinedToTheMiddleOfItsCurve)
{
    AddLine(); // its middle point lies in the middle of the plot
    label->m_nCurve = 0;
    label->m_rcObject = CRect(80, 20, 120, 40);
    const Picture tied = Shoot();
    label->m_nCurve = -1;
    const Picture loose = Shoot();
    EXPECT_GT(tied.CountDifferences(loose), 40);
    // The inner part of the line lies behind the box.
    EXPECT_EQ(tied.Count(label->m_rcObject, 0x00FF00), loose.Count(label->m_rcObject, 0x00FF00));
}

TEST_F(GraphLabel, TieFillFrameTrackerAndTextAreDrawnInThisOrder)
{
    AddLine();
    label->m_nCurve = 0;
    label->m_cText = L"!text";
    label->m_bSizing = true;
    label->m_Tracker.m_rect = label->m_rcObject;
    Paint();
    const Recording recording = Recorded([&](CDCEx& dc) { label->Draw(&dc); });
    const std::string order = recording.Order([](const ENHMETARECORD& record) {
        if (record.iType == EMR_LINETO)
            return 'L';
        if (record.iType == EMR_RECTANGLE)
            return 'R';
        if (record.iType == EMR_EXTTEXTOUTW)
            return Recording::IsFill(record) ? 'F' : 'T';
        return record.iType == EMR_SAVEDC ? 'S' : '\0'; // of the tracker
    });
    EXPECT_EQ(order.substr(0, 4), "LFRS") << order;
    EXPECT_EQ(order.back(), 'T') << order;
    EXPECT_EQ(std::count(order.begin(), order.end(), 'T'), 1) << order;
}

TEST_F(GraphLabel, ItIsWrittenFieldByField)
{
    label->m_cText = L"ab";
    label->m_crTextColor = 0x665544;
    label->m_nAlignment = 0x25;
    label->m_nCurve = 3;
    label->m_bTransparent = true;
    const TemporaryFile temporary;
    {
        CFile file(temporary.m_path, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        label->Serialize(ar);
    }
    CFile file(temporary.m_path, CFile::modeRead);
    std::vector<unsigned char> bytes(300);
    bytes.resize(file.Read(bytes.data(), 300));
    // Base 27; prefix FF FE FF and a length byte, two units; font 92; colours, flags, ints.
    ASSERT_EQ(bytes.size(), 27u + 4 + 4 + 92 + 4 + 4 + 1 + 1 + 4 + 4);
    const unsigned char text[] = {0xFF, 0xFE, 0xFF, 2, 'a', 0, 'b', 0};
    EXPECT_EQ(std::memcmp(&bytes[27], text, sizeof text), 0);
    LONG nHeight = 0;
    std::memcpy(&nHeight, &bytes[35], 4);
    EXPECT_EQ(nHeight, 14);
    const unsigned char tail[] = {0, 0xFF, 0, 0, 0x44, 0x55, 0x66, 0, 1, 1, 0x25, 0, 0, 0, 3, 0, 0, 0};
    EXPECT_EQ(std::memcmp(&bytes[127], tail, sizeof tail), 0);
}

TEST_F(GraphLabel, WhatIsWrittenIsReadBack)
{
    label->m_cText = L"two\nlines";
    label->m_crTextColor = 0x010203;
    label->m_bBorder = false;
    label->m_nCurve = 5;
    LOGFONTW font = {};
    font.lfHeight = 33;
    ::lstrcpyW(font.lfFaceName, L"Courier New");
    label->SetFont(font);
    const TemporaryFile temporary;
    {
        CFile file(temporary.m_path, CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        label->Serialize(ar);
    }
    CXGraphLabel copy;
    CFile file(temporary.m_path, CFile::modeRead);
    CArchive ar(&file, CArchive::load);
    copy.Serialize(ar);
    EXPECT_EQ(copy.m_cText, L"two\nlines");
    EXPECT_EQ(copy.m_rcObject, CRect(100, 100, 200, 150));
    EXPECT_EQ(copy.m_crFillColor, 0x00FF00u);
    EXPECT_EQ(copy.m_crTextColor, 0x010203u);
    EXPECT_FALSE(copy.m_bBorder);
    EXPECT_EQ(copy.m_nCurve, 5);
    LOGFONTW read = {};
    copy.m_Font.GetLogFont(&read);
    EXPECT_EQ(read.lfHeight, 33);
    EXPECT_STREQ(read.lfFaceName, L"Courier New");
}

TEST_F(GraphLabel, ItDrawsTheTieTheBoxTheBorderTheFrameAndLastTheText)
{
    AddLine();
    Paint();
    CXGraphLabel* tied = graph.InsertLabel(CRect(60, 60, 160, 120), L"text");
    tied->m_nCurve = 0;
    tied->BeginSize();
    const Recording recording = Recorded([&](CDCEx& dc) { tied->Draw(&dc); });
    // Tie, box, border, anything else as '.', text.
    const std::string drawn = recording.Order([](const ENHMETARECORD& record) {
        if (record.iType == EMR_LINETO)
            return 'l';
        if (record.iType == EMR_RECTANGLE)
            return 'r';
        if (record.iType == EMR_EXTTEXTOUTW)
            return Recording::IsFill(record) ? 'f' : 't';
        return record.iType == EMR_BITBLT ? '.' : '\0';
    });
    ASSERT_GT(drawn.size(), 4u) << "the sizing frame lies between border and text";
    EXPECT_EQ(drawn.substr(0, 3), "lfr");
    EXPECT_EQ(drawn.find('t'), drawn.size() - 1);
}

TEST_F(GraphLabel, ATransparentOneLeavesTheBrushThatWasSelected)
{
    CXGraphLabel* clear = graph.InsertLabel(CRect(60, 60, 160, 120), L"text");
    clear->m_bTransparent = true;
    CDCEx dc;
    dc.Attach(::CreateCompatibleDC(nullptr));
    const HBRUSH hBrush = ::CreateSolidBrush(0x123456);
    const HGDIOBJ hOld = ::SelectObject(dc.m_hDC, hBrush);
    clear->Draw(&dc);
    EXPECT_EQ(::SelectObject(dc.m_hDC, hOld), hBrush);
    ::DeleteObject(hBrush);
}
