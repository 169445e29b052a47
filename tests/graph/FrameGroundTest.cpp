// What a frame leaves out shows nowhere: a window's picture is that of whole rectangles filled one
// over the other, on a canvas whose device is asked for all that it knows.

#include "NativeGraph.h"
#include "WatchedCanvas.h"

#include <random>

namespace
{

class FrameGround : public GraphTest
{
protected:
    FrameGround() : m_random(20261121) {}

    int Pick(int nFrom, int nTo)
    {
        return nFrom + static_cast<int>(m_random() % static_cast<unsigned>(nTo - nFrom + 1));
    }
    bool Flip() { return Pick(0, 1) == 1; }
    COLORREF PickColor() { return m_random() & 0xFFFFFF; }

    void Arrange()
    {
        graph.m_crBackColor = PickColor();
        graph.m_crGraphColor = PickColor();
        graph.m_crInnerColor = PickColor();
        const bool bWild = Pick(0, 3) == 0;
        const auto margin = [&] { return bWild ? Pick(-60, 300) : Pick(0, 40); };
        graph.m_nLeftMargin = margin();
        graph.m_nTopMargin = margin();
        graph.m_nRightMargin = margin();
        graph.m_nBottomMargin = margin();
        graph.m_nAxisSpace = Pick(0, 12);
        graph.m_bDoubleBuffer = Pick(0, 3) != 0;
        graph.m_bShowLegend = Flip();
        graph.m_nLegendAlignment = static_cast<EAlignment>(Pick(0, 3));
        m_size = CSize(Pick(1, 10) == 1 ? Pick(1, 60) : Pick(150, 500),
                       Pick(1, 10) == 1 ? Pick(1, 60) : Pick(120, 400));
        ::MoveWindow(graph.m_hWnd, 0, 0, m_size.cx, m_size.cy, TRUE);
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bVisible = Pick(0, 3) != 0;
            pAxis->m_Placement = Flip() ? apLeft : apRight;
            pAxis->m_cLabel = Flip() ? L"" : L"Title";
            pAxis->m_cDisplayFmt = Flip() ? L"%5.1f" : L"%g units";
            pAxis->m_AxisType = Pick(0, 4) == 0 ? atLog : atLinear;
            pAxis->m_bSelected = Pick(0, 4) == 0;
            pAxis->m_bAutoScale = Flip();
            pAxis->SetRange(Pick(1, 50) / 7.0, Pick(60, 900) / 7.0);
        }
        for (CXGraphDataSerie& curve : graph.m_Curves) {
            curve.m_crColor = PickColor();
            curve.m_bVisible = Pick(0, 3) != 0;
            curve.m_bSelected = Pick(0, 4) == 0;
            curve.m_nMarkerType = Pick(0, 2);
            curve.m_bShowMarker = Flip();
        }
    }

    std::mt19937 m_random;
    CSize m_size;
};

} // namespace

TEST_F(FrameGround, AWindowShowsWhatWholeFillsShow)
{
    AddLine();
    AddLine();
    for (int i = 0; i < 150; ++i) {
        Arrange();
        Paint(); // rounds the ranges
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)})
            pAxis->m_bAutoScale = false;
        const Picture window = Shoot();
        WatchedCanvas canvas(m_size.cx, m_size.cy);
        graph.m_pDrawDC = &canvas.dc;
        Paint();
        graph.m_pDrawDC = nullptr;
        const std::vector<DWORD> pixels = canvas.Pixels();
        int nDifferent = 0;
        for (int y = 0; y < m_size.cy; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                const DWORD pixel = pixels[static_cast<std::size_t>(y) * m_size.cx + x];
                const COLORREF color = RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
                nDifferent += window.At(x, y) != color ? 1 : 0;
            }
        }
        EXPECT_EQ(nDifferent, 0) << "frame " << i << ", " << m_size.cx << " by " << m_size.cy;
    }
}

TEST_F(FrameGround, LabelsAndTitlesFollowTheirFontsAtOnce)
{
    AddLine();
    CXGraphAxis& axis = *graph.GetYAxis(0);
    axis.m_bAutoScale = false;
    axis.SetCurrentRange(0, 10, 2);
    Paint();
    const int nBefore = axis.m_nOriginX;
    LOGFONTW look = {};
    look.lfHeight = 40;
    ::lstrcpyW(look.lfFaceName, L"Arial");
    axis.SetLabelFont(look);
    Paint();
    EXPECT_GT(axis.m_nOriginX, nBefore);
    axis.m_cDisplayFmt = L"%5.1f and more";
    const int nLarge = axis.m_nOriginX;
    Paint();
    EXPECT_GT(axis.m_nOriginX, nLarge);
    look.lfHeight = 13;
    axis.SetLabelFont(look);
    axis.m_cDisplayFmt = L"%5.1f";
    Paint();
    EXPECT_EQ(axis.m_nOriginX, nBefore);
}
