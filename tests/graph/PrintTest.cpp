// A page on a canvas of another resolution than the screen's, and what the job leaves behind.

#include "GraphHost.h"

#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <algorithm>

namespace
{
// A page of memory: the screen's size in its own units, shown at a coarser scale.
class Page
{
public:
    static constexpr float kScale = 2.0f;

    Page()
    {
        const HDC hDC = ::CreateCompatibleDC(nullptr);
        m_size = CSize(::GetDeviceCaps(hDC, HORZRES), ::GetDeviceCaps(hDC, VERTRES));
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), m_size.cx, -m_size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* pBits = nullptr;
        m_hBitmap = ::CreateDIBSection(hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
        m_pixels = static_cast<DWORD*>(pBits);
        std::fill_n(m_pixels, m_size.cx * m_size.cy, 0xFFFFFF);
        ::SelectObject(hDC, m_hBitmap);
        canvas.Attach(hDC);
        canvas.m_fScaleX = canvas.m_fScaleY = kScale;
        canvas.m_bScaleReady = true;
    }
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
    ~Page()
    {
        canvas.DeleteDC();
        ::DeleteObject(m_hBitmap);
    }

    [[nodiscard]] COLORREF At(int x, int y) const
    {
        const DWORD pixel = m_pixels[y * m_size.cx + x];
        return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
    }
    // What encloses all pixels that are not of the colour, among the rows from nTop to nBottom.
    CRect Inked(int nTop, int nBottom, COLORREF crPaper)
    {
        CRect rect(m_size.cx, nBottom, 0, nTop);
        for (int y = nTop; y < nBottom; ++y) {
            for (int x = 0; x < m_size.cx; ++x) {
                if (At(x, y) == crPaper)
                    continue;
                rect.left = std::min<LONG>(rect.left, x);
                rect.right = std::max<LONG>(rect.right, x);
                rect.top = std::min<LONG>(rect.top, y);
                rect.bottom = std::max<LONG>(rect.bottom, y);
            }
        }
        return rect;
    }
    // In screen units, in the font of header and footer.
    int TextHeight(const CString& text)
    {
        CQuickFont font(L"Arial", 12, FW_NORMAL);
        const CFontSelector select(&font, &canvas, false);
        return canvas.GetTextExtent(text).cy;
    }

    void Show(CXGraph& graph)
    {
        graph.PaintPage(canvas);
        ::GdiFlush(); // the pixels are read from memory
    }

    CSize m_size;
    CDCEx canvas;

private:
    HBITMAP m_hBitmap = nullptr;
    DWORD* m_pixels = nullptr;
};

using GraphPrint = GraphTest;
} // namespace

TEST_F(GraphPrint, TheFrameReachesThePrintersCanvasInItsResolution)
{
    AddLine();
    graph.m_bShowLegend = false;
    Page page;
    page.Show(graph);

    EXPECT_EQ(graph.m_rcPrint, CRect(0, 0, page.m_size.cx / 2, page.m_size.cy / 2));
    EXPECT_EQ(graph.m_pPrintDC, nullptr);
    EXPECT_EQ(page.At(0, 0), graph.m_crBackColor);
    EXPECT_EQ(page.At(page.m_size.cx - 1, page.m_size.cy - 1), graph.m_crBackColor);
    EXPECT_EQ(page.At(10, 10), graph.m_crGraphColor); // behind a margin of 5 screen pixels
    const CRect inner = graph.m_rcInner;
    EXPECT_EQ(page.At(inner.right * 2 - 40, inner.bottom * 2 - 21), graph.m_crInnerColor);
    int nCurve = 0;
    for (int y = inner.top * 2; y < inner.bottom * 2; ++y)
        nCurve += page.At(inner.CenterPoint().x * 2, y) == 0x000080 ? 1 : 0;
    EXPECT_GT(nCurve, 0);
}

TEST_F(GraphPrint, HeaderAndFooterStandCentredAndTakeTheirHeightAndFiveFromThePage)
{
    AddLine();
    graph.m_strPrintHeader = L"Header & title";
    graph.m_strPrintFooter = L"Footer";
    Page page;
    page.Show(graph);

    const int header = page.TextHeight(graph.m_strPrintHeader) + 5;
    const int footer = page.TextHeight(graph.m_strPrintFooter) + 5;
    const CSize size(page.m_size.cx / 2, page.m_size.cy / 2);
    EXPECT_EQ(graph.m_rcPrint, CRect(0, header, size.cx, size.cy - footer));
    EXPECT_EQ(page.At(0, header * 2), graph.m_crBackColor);
    EXPECT_EQ(page.At(0, header * 2 - 1), 0xFFFFFFu);
    EXPECT_EQ(page.At(10, header * 2 + 10), graph.m_crGraphColor); // the margins, in what is left
    for (const CRect& ink : {page.Inked(0, header * 2, 0xFFFFFF),
                             page.Inked(page.m_size.cy - footer * 2, page.m_size.cy, 0xFFFFFF)}) {
        ASSERT_GT(ink.Width(), 0);
        EXPECT_NEAR(ink.CenterPoint().x, size.cx, 3);
        EXPECT_GT(ink.Height(), 10); // scaled
    }
}

TEST_F(GraphPrint, EmptyTextsTakeNothing)
{
    graph.m_strPrintFooter = L"x";
    Page page;
    page.Show(graph);
    EXPECT_EQ(graph.m_rcPrint.top, 0);
    EXPECT_LT(graph.m_rcPrint.bottom, page.m_size.cy / 2);
}

TEST_F(GraphPrint, AJobThatCantStartLeavesTheWindowAlone)
{
    AddLine();
    const Picture before = Shoot();
    const CRect inner = graph.m_rcInner;
    graph.PrintTo(::CreateCompatibleDC(nullptr)); // no printer
    EXPECT_EQ(graph.m_pPrintDC, nullptr);
    EXPECT_EQ(graph.m_rcInner, inner);
    EXPECT_EQ(Shoot().CountDifferences(before), 0);
}

TEST_F(GraphPrint, TheWindowsOwnLayoutComesBackWithItsNextFrame)
{
    AddLine();
    Paint();
    const CRect inner = graph.m_rcInner;
    Page page;
    page.Show(graph);
    EXPECT_NE(graph.m_rcInner, inner);
    Paint();
    EXPECT_EQ(graph.m_rcInner, inner);
}
