// A page on a canvas of another resolution than the screen's, and what the job leaves behind.

#include "NativeGraph.h"

#include "draw/QuickFont.h"
#include "draw/Selectors.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

// Where the program's calls of the printer go.
extern "C" {
extern void* __imp_StartDocW;
extern void* __imp_StartPage;
extern void* __imp_EndPage;
extern void* __imp_EndDoc;
}

namespace
{
// Takes the printer's calls for its lifetime, since no printer is here to take them, and notes
// with each whether the page's frame was laid out by then.
class PrinterCalls
{
public:
    using List = std::vector<std::pair<std::string, bool>>;

    explicit PrinterCalls(const CXGraph& graph)
        : m_startDoc(__imp_StartDocW, reinterpret_cast<void*>(&TakeStartDoc)),
          m_startPage(__imp_StartPage, reinterpret_cast<void*>(&TakeStartPage)),
          m_endPage(__imp_EndPage, reinterpret_cast<void*>(&TakeEndPage)),
          m_endDoc(__imp_EndDoc, reinterpret_cast<void*>(&TakeEndDoc))
    {
        Graph() = &graph;
        Calls().clear();
    }

    [[nodiscard]] static const List& Seen() { return Calls(); }

private:
    class Slot
    {
    public:
        Slot(void*& slot, void* procedure) : m_slot(slot), m_before(slot) { Put(procedure); }
        Slot(const Slot&) = delete;
        Slot& operator=(const Slot&) = delete;
        ~Slot() { Put(m_before); }

    private:
        void Put(void* procedure)
        {
            DWORD nProtection = 0;
            ::VirtualProtect(&m_slot, sizeof m_slot, PAGE_READWRITE, &nProtection);
            m_slot = procedure;
            ::VirtualProtect(&m_slot, sizeof m_slot, nProtection, &nProtection);
        }
        void*& m_slot;
        void* m_before;
    };

    static const CXGraph*& Graph()
    {
        static const CXGraph* pGraph = nullptr;
        return pGraph;
    }
    static List& Calls()
    {
        static List calls;
        return calls;
    }
    static int Note(const std::string& name)
    {
        Calls().emplace_back(name, Graph()->m_rcPrint.Width() > 0);
        return 1;
    }
    static int WINAPI TakeStartDoc(HDC, const DOCINFOW* pInfo)
    {
        const std::wstring name = pInfo->lpszDocName;
        return Note("StartDoc " + std::string(name.begin(), name.end()));
    }
    static int WINAPI TakeStartPage(HDC) { return Note("StartPage"); }
    static int WINAPI TakeEndPage(HDC) { return Note("EndPage"); }
    static int WINAPI TakeEndDoc(HDC) { return Note("EndDoc"); }

    Slot m_startDoc;
    Slot m_startPage;
    Slot m_endPage;
    Slot m_endDoc;
};

// A page of memory: the screen's size in its own units, shown at a coarser scale.
class Page
{
public:
    static constexpr float Scale = 2.0f;

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
        canvas.m_fScaleX = canvas.m_fScaleY = Scale;
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

    [[nodiscard]] int CountDifferences(const Page& other) const
    {
        int count = 0;
        for (int i = 0; i < m_size.cx * m_size.cy; ++i)
            count += ((m_pixels[i] ^ other.m_pixels[i]) & 0xFFFFFF) != 0 ? 1 : 0;
        return count;
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

class GraphPrint : public GraphTest
{
protected:
    void Send(UINT message, WPARAM keys, int x, int y)
    {
        graph.SendMessage(message, keys, MAKELPARAM(x, y));
    }
    // A curve, and the mouse held in the plot's lower half.
    void PressAndDrag()
    {
        AddLine();
        graph.m_bShowLegend = false;
        Paint();
        const CPoint from = graph.m_rcInner.CenterPoint();
        Send(WM_MOUSEMOVE, 0, from.x, from.y);
        Send(WM_LBUTTONDOWN, MK_LBUTTON, from.x, from.y);
        Send(WM_MOUSEMOVE, MK_LBUTTON, from.x + 60, from.y + 40);
    }
};
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

TEST_F(GraphPrint, APageHasTheCursorWhereverTheWindowDrewItLast)
{
    AddLine();
    graph.Cursor();
    Paint();
    Send(WM_MOUSEMOVE, 0, 200, 100);
    Page untouched;
    graph.m_CursorTool.m_ptLastCursor = CPoint(-1, -1);
    untouched.Show(graph);
    for (const CPoint& last : {CPoint(200, 100), CPoint(60, 60), graph.m_ptCurrent}) {
        graph.m_CursorTool.m_ptLastCursor = last;
        Page page;
        page.Show(graph);
        EXPECT_EQ(page.CountDifferences(untouched), 0) << last.x << ", " << last.y;
    }
    graph.NoOp();
    Page without;
    without.Show(graph);
    EXPECT_GT(untouched.CountDifferences(without), 200);
}

// A page leaves the cursor's point, curve and values as they were: a decision of ours.
TEST_F(GraphPrint, APageLeavesTheCursorAsItWas)
{
    AddLine();
    Paint();
    graph.m_nSnapRange = 1000; // the page's frame snaps somewhere else
    graph.Cursor();
    graph.m_ptCurrent = CPoint(123, 77);
    graph.m_nCursorCurve = -1;
    graph.m_CursorTool.m_fCursorX = 1.5;
    graph.m_CursorTool.m_fCursorY = 2.5;
    Page page;
    page.Show(graph);
    EXPECT_EQ(graph.m_ptCurrent, CPoint(123, 77));
    EXPECT_EQ(graph.m_nCursorCurve, -1);
    EXPECT_EQ(graph.m_CursorTool.m_fCursorX, 1.5);
    EXPECT_EQ(graph.m_CursorTool.m_fCursorY, 2.5);
}

TEST_F(GraphPrint, APageShowsWhatTheOperationHolds)
{
    PressAndDrag();
    graph.m_CursorLabel.m_bVisible = false;
    const auto enter = [&](EOperation operation) { graph.m_opOperation = operation; };
    Page plain;
    plain.Show(graph);
    for (const EOperation operation :
         {opNone, opReset, opPan, opMoveObject, opEditObject, opEditCurve}) {
        enter(operation);
        Page page;
        page.Show(graph);
        EXPECT_EQ(page.CountDifferences(plain), 0) << operation;
        EXPECT_EQ(graph.m_opOperation, operation);
    }
    for (const EOperation operation : {opZoom, opMeasure, opCursor}) {
        enter(operation);
        Page first;
        first.Show(graph);
        EXPECT_GT(first.CountDifferences(plain), 100) << operation;
        Page second;
        second.Show(graph);
        EXPECT_EQ(second.CountDifferences(first), 0) << operation;
        EXPECT_EQ(graph.m_opOperation, operation);
        EXPECT_TRUE(graph.m_bLButtonDown);
    }
}

TEST_F(GraphPrint, TheJobIsOnePageWithTheFrameBetweenItsStartAndItsEnd)
{
    AddLine();
    Paint();
    const PrinterCalls calls(graph);
    graph.PrintTo(::CreateCompatibleDC(nullptr));
    const PrinterCalls::List expected = {
        {"StartDoc Graph", false}, {"StartPage", false}, {"EndPage", true}, {"EndDoc", true}};
    EXPECT_EQ(calls.Seen(), expected);
    EXPECT_EQ(graph.m_pPrintDC, nullptr);
}
