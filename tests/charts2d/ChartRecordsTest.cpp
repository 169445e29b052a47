// What the charts draw, and in which order, as the records of a metafile; and that a context is
// given back as it came.

#include "charts2d/BarGraph.h"
#include "charts2d/FlatPieGraph.h"
#include "charts2d/LineGraph.h"
#include "support/Recording.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr TPoint Position{10, 20};
constexpr TSize Size{200, 100};
constexpr TSize Window{300, 200};

std::string Number(long value)
{
    return std::to_string(value);
}

std::string Describe(const ENHMETARECORD& record)
{
    switch (record.iType) {
    case EMR_MOVETOEX: {
        const auto& to = reinterpret_cast<const EMRMOVETOEX&>(record).ptl;
        return "from " + Number(to.x) + "," + Number(to.y);
    }
    case EMR_LINETO: {
        const auto& to = reinterpret_cast<const EMRLINETO&>(record).ptl;
        return "to " + Number(to.x) + "," + Number(to.y);
    }
    case EMR_RECTANGLE: {
        const auto& box = reinterpret_cast<const EMRRECTANGLE&>(record).rclBox;
        return "box " + Number(box.left) + "," + Number(box.top) + " " + Number(box.right + 1) + "," +
               Number(box.bottom + 1);
    }
    case EMR_PIE: {
        const auto& pie = reinterpret_cast<const EMRPIE&>(record);
        return "pie " + Number(pie.ptlStart.x) + "," + Number(pie.ptlStart.y) + " " +
               Number(pie.ptlEnd.x) + "," + Number(pie.ptlEnd.y);
    }
    case EMR_EXTTEXTOUTW: {
        const auto& text = reinterpret_cast<const EMREXTTEXTOUTW&>(record).emrtext;
        const auto* units =
            reinterpret_cast<const WCHAR*>(reinterpret_cast<const BYTE*>(&record) + text.offString);
        return "'" + std::string(units, units + text.nChars) + "' " + Number(text.ptlReference.x) + "," +
               Number(text.ptlReference.y);
    }
    default:
        return {};
    }
}

// The drawing records alone, one a line.
template <class Drawing> std::string Record(Drawing drawing)
{
    std::string lines;
    Recording(drawing).ForEach([&](const ENHMETARECORD& record) {
        const std::string line = Describe(record);
        if (!line.empty())
            lines += line + "\n";
    });
    return lines;
}

template <class Chart> void Fill(Chart& chart)
{
    chart.SetWindowSize(Window);
    for (const wchar_t* name : {L"one", L"two", L"three"})
        chart.AddSegment(name);
    chart.AddSeries(L"red", 0x0000FF);
    chart.AddSeries(L"blue", 0xFF0000);
    for (int segment = 1; segment <= 3; ++segment) {
        chart.SetValue(segment, 1, 10 * segment);
        chart.SetValue(segment, 2, 20);
    }
}

const std::string axes = "from 40,115\nto 200,115\nfrom 200,115\nto 196,113\nfrom 200,115\nto 196,117\n"
                         "from 40,115\nto 40,25\nfrom 40,25\nto 37,28\nfrom 40,25\nto 43,28\n";
const std::string valueLabels = "'20' 36,29\n'10' 36,69\n'0' 36,109\n";

// Attributes of a context that a drawing may change.
struct TState {
    explicit TState(HDC hDC)
        : hPen(::GetCurrentObject(hDC, OBJ_PEN)), hBrush(::GetCurrentObject(hDC, OBJ_BRUSH)),
          hFont(::GetCurrentObject(hDC, OBJ_FONT)), crText(::GetTextColor(hDC)),
          nAlign(::GetTextAlign(hDC)), nMode(::GetBkMode(hDC)), crBack(::GetBkColor(hDC))
    {
    }
    HGDIOBJ hPen;
    HGDIOBJ hBrush;
    HGDIOBJ hFont;
    COLORREF crText;
    UINT nAlign;
    int nMode;
    COLORREF crBack;
    bool operator==(const TState&) const = default;
};

class MemoryContext
{
public:
    MemoryContext() : m_hDC(::CreateCompatibleDC(nullptr))
    {
        const HDC hScreen = ::GetDC(nullptr);
        m_hBitmap = ::CreateCompatibleBitmap(hScreen, Window.cx, Window.cy);
        ::ReleaseDC(nullptr, hScreen);
        m_hOld = ::SelectObject(m_hDC, m_hBitmap);
        ::SetTextColor(m_hDC, 0x123456);
    }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;
    ~MemoryContext()
    {
        ::SelectObject(m_hDC, m_hOld);
        ::DeleteObject(m_hBitmap);
        ::DeleteDC(m_hDC);
    }
    HDC m_hDC;

private:
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

template <class Chart> void ExpectStateKept(Chart& chart)
{
    const MemoryContext context;
    const TState before(context.m_hDC);
    chart.Draw(context.m_hDC);
    EXPECT_EQ(TState(context.m_hDC), before);
    chart.DrawLegend(context.m_hDC);
    EXPECT_EQ(TState(context.m_hDC), before);
}

} // namespace

TEST(ChartRecords, BarsComeAfterAxesAndValueLabelsGroupByGroup)
{
    C2DBarGraph chart(Position, Size);
    Fill(chart);
    EXPECT_EQ(Record([&](HDC hDC) { chart.Draw(hDC); }),
              axes + valueLabels +
                  "'one' 62,116\nbox 44,74 60,114\nbox 61,34 77,114\n"
                  "'two' 105,116\nbox 87,34 103,114\nbox 104,34 120,114\n"
                  "'three' 148,116\nbox 130,-6 146,114\nbox 147,34 163,114\n");
}

TEST(ChartRecords, LinesComeAfterAllLabelsSeriesBySeries)
{
    C2DLineGraph chart(Position, Size);
    Fill(chart);
    EXPECT_EQ(Record([&](HDC hDC) { chart.Draw(hDC); }),
              axes + valueLabels +
                  "'one' 63,116\n'two' 110,116\n'three' 157,116\n"
                  "from 62,73\nto 109,33\nfrom 109,33\nto 156,-7\n"
                  "from 62,33\nto 109,33\nfrom 109,33\nto 156,33\n");
}

TEST(ChartRecords, EmptyChartsDrawTheirAxesAlone)
{
    C2DBarGraph bars(Position, Size);
    C2DLineGraph lines(Position, Size);
    C2DPieGraph pie(Position, Size);
    EXPECT_EQ(Record([&](HDC hDC) { bars.Draw(hDC); }), axes);
    EXPECT_EQ(Record([&](HDC hDC) { lines.Draw(hDC); }), axes);
    EXPECT_EQ(Record([&](HDC hDC) { pie.Draw(hDC); }), "");
}

TEST(ChartRecords, SlicesComeInTheOrderOfTheList)
{
    C2DPieGraph chart(Position, Size);
    chart.AddSegment(25, 0, L"a");
    chart.AddSegment(50, 0, L"b");
    EXPECT_EQ(Record([&](HDC hDC) { chart.Draw(hDC); }), "pie 210,70 110,20\npie 110,20 110,120\n");
}

TEST(ChartRecords, LegendRowsFollowTheirBoxAndTellPercentAndName)
{
    C2DPieGraph chart(Position, Size);
    chart.AddSegment(60, 0, L"first");
    chart.AddSegment(12.25, 0, L"");
    const std::string records = Record([&](HDC hDC) { chart.DrawLegend(hDC); });
    const auto box = records.find("box 230,");
    const auto first = records.find("'(60.0%)  first' 261,");
    const auto second = records.find("'(12.");
    ASSERT_NE(box, std::string::npos) << records;
    ASSERT_NE(first, std::string::npos) << records;
    ASSERT_NE(second, std::string::npos) << records;
    EXPECT_LT(box, first);
    EXPECT_LT(first, second);
}

TEST(ChartRecords, ContextIsGivenBackAsItCame)
{
    C2DBarGraph bars(Position, Size);
    C2DLineGraph lines(Position, Size);
    C2DPieGraph pie(Position, Size);
    Fill(bars);
    Fill(lines);
    pie.SetWindowSize(Window);
    pie.AddSegment(25, 0, L"a");
    for (const int type : {0, 20, 21, 22, 25, 26}) {
        bars.SetAnimation(type != 0, type);
        bars.Animate();
        ExpectStateKept(bars);
    }
    for (const int type : {0, 30, 31}) {
        lines.SetAnimation(type != 0, type);
        lines.Animate();
        ExpectStateKept(lines);
    }
    for (const int type : {0, 10, 11}) {
        pie.SetAnimation(type != 0, type);
        pie.Animate();
        ExpectStateKept(pie);
    }
}

TEST(ChartRecords, FadeOfEqualColoursIsKeyedOut)
{
    // A white bar on a white picture: its inside has the key colour and stays as it is, its
    // outline fades in.
    const MemoryContext context;
    const RECT all{0, 0, Window.cx, Window.cy};
    ::FillRect(context.m_hDC, &all, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    C2DBarGraph chart(Position, Size);
    chart.SetWindowSize(Window);
    chart.AddSegment(L"one");
    chart.AddSeries(L"white", 0xFFFFFF);
    chart.SetValue(1, 1, 10);
    chart.SetAnimation(1, 25);
    for (int tick = 0; tick < 25; ++tick)
        chart.Animate();
    chart.Draw(context.m_hDC);
    EXPECT_EQ(::GetPixel(context.m_hDC, 100, 80), 0xFFFFFFu);
    const COLORREF outline = ::GetPixel(context.m_hDC, 100, 34); // y = 114 - 80
    EXPECT_NEAR(static_cast<int>(GetRValue(outline)), 128, 2);
}
