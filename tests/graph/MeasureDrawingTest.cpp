// Measures in a frame: what they leave of the canvas, and where and when their texts are drawn.

#include "MeasureHost.h"

TEST_F(GraphMeasure, TheBackgroundStaysTransparentAndItsColourIsPutBack)
{
    Store(1, 20, 0, 70);
    CDCEx dc;
    dc.Attach(::CreateCompatibleDC(nullptr));
    dc.SetBkMode(OPAQUE);
    dc.SetBkColor(0x123456);
    graph.m_MeasureTool.DrawMeasures(&dc);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(dc.GetBkColor(), 0x123456u);
}

TEST_F(GraphMeasure, OfTwoMeasuresInOneFrameTheSecondLeavesTheGapsOfItsLinesOpen)
{
    Store(1, 20, 0, 70);
    graph.m_Measures.push_back({1, 30, 0, 80});
    std::vector<DWORD> modes; // at each dotted line's end
    DWORD nMode = OPAQUE;
    FrameRecording(graph).ForEach([&](const ENHMETARECORD& record) {
        if (record.iType == EMR_SETBKMODE)
            nMode = reinterpret_cast<const EMRSETBKMODE&>(record).iMode;
        if (record.iType == EMR_LINETO) {
            const POINTL to = reinterpret_cast<const EMRLINETO&>(record).ptl;
            if (to.x == graph.m_rcInner.right && to.y == Row(8))
                modes.push_back(nMode);
        }
    });
    ASSERT_EQ(modes.size(), 2u) << "a guide line of each";
    EXPECT_EQ(modes[1], static_cast<DWORD>(TRANSPARENT));
    EXPECT_EQ(Texts(L'x').size(), 2u);
    EXPECT_EQ(Texts(L'y').size(), 2u);
}

TEST_F(GraphMeasure, TheTextsStandAtTheTopsMiddleAndAtTheRightEdgesMiddle)
{
    Store(1, 20, 0, 70);
    const CRect span(Column(2), Row(8), Column(7), Row(2));
    for (const auto& text : FrameRecording(graph).Texts()) {
        if (IsTick(text) || (text.text[0] != L'x' && text.text[0] != L'y'))
            continue;
        const CSize size = TextSize(text.text.c_str());
        if (text.text[0] == L'x') {
            EXPECT_NEAR(text.reference.x, span.CenterPoint().x - size.cx / 2, 1);
            EXPECT_EQ(text.reference.y, span.top);
        } else {
            EXPECT_NEAR(text.reference.x, span.right - size.cx, 1);
            EXPECT_NEAR(text.reference.y, span.CenterPoint().y - size.cy / 2, 1);
        }
    }
}

TEST_F(GraphMeasure, ASpanOfExactlyTheTextsSizeShowsNoText)
{
    Store(1, 20, 0, 70);
    // Formats without a number make the same text at any width.
    graph.GetXAxis(0)->m_cDisplayFmt = L"xwide";
    graph.GetYAxis(0)->m_cDisplayFmt = L"ytall";
    const CSize sizeX = TextSize(L"xwide");
    const CSize sizeY = TextSize(L"ytall unit");
    const auto drawn = [&](int nWidth, int nHeight) {
        const Recording recording = Recorded([&](CDCEx& dc) {
            CRect rc(100, 100, 100 + nWidth, 100 + nHeight);
            graph.m_MeasureTool.DrawMeasure(&dc, rc);
        });
        std::wstring letters;
        for (const auto& text : recording.Texts())
            letters += text.text[0];
        return letters;
    };
    EXPECT_EQ(drawn(sizeX.cx, sizeY.cy), L"");
    EXPECT_EQ(drawn(sizeX.cx + 1, sizeY.cy), L"x");
    EXPECT_EQ(drawn(sizeX.cx, sizeY.cy + 1), L"y");
    EXPECT_EQ(drawn(-sizeX.cx - 1, -sizeY.cy - 1), L"xy");
}

TEST_F(GraphMeasure, HiddenCurvesAreNearToo)
{
    // The fixture's curves are hidden; a visible one that is farther away doesn't win.
    std::vector<TDataPoint> points = {{0, 5}, {10, 5}};
    graph.SetData(points.data(), 2, 2, 0, 0, true);
    graph.GetYAxis(0)->SetRange(0, 10);
    CPoint point = graph.m_ptLButtonDown = CPoint(Column(5), Row(7.5));
    graph.m_MeasureTool.FindNearestPoint(point);
    EXPECT_EQ(graph.m_MeasureTool.m_LiveMeasure.nCurve1, 1);
    EXPECT_EQ(point.y, Row(8));
}
