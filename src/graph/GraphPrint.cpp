// A print job of one page.

#include "base/Trunc.h"
#include "draw/QuickFont.h"
#include "draw/Selectors.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/PrintDialog.h"
#include "graph/XGraph.h"

namespace
{
constexpr int TextGap = 5; // between header or footer and the page that is left

// Names the target for the time of the job, and puts back what the page's frame does to the
// cursor, whose pixels are the window's.
class CPrintTarget
{
public:
    CPrintTarget(CXGraph& graph, CDCEx& canvas)
        : m_Graph(graph), m_ptCurrent(graph.m_ptCurrent), m_nCursorCurve(graph.m_nCursorCurve),
          m_fCursorX(graph.m_CursorTool.m_fCursorX), m_fCursorY(graph.m_CursorTool.m_fCursorY)
    {
        graph.m_pPrintDC = &canvas;
    }
    ~CPrintTarget()
    {
        m_Graph.m_pPrintDC = nullptr;
        m_Graph.m_ptCurrent = m_ptCurrent;
        m_Graph.m_nCursorCurve = m_nCursorCurve;
        m_Graph.m_CursorTool.m_fCursorX = m_fCursorX;
        m_Graph.m_CursorTool.m_fCursorY = m_fCursorY;
    }
    CPrintTarget(const CPrintTarget&) = delete;
    CPrintTarget& operator=(const CPrintTarget&) = delete;

private:
    CXGraph& m_Graph;
    const CPoint m_ptCurrent;
    const int m_nCursorCurve;
    const double m_fCursorX;
    const double m_fCursorY;
};
} // namespace

void CXGraph::Print()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    CPrintDialog dialog(FALSE,
                        PD_NOPAGENUMS | PD_NOSELECTION | PD_USEDEVMODECOPIES | PD_HIDEPRINTTOFILE);
    if (dialog.DoModal() != IDOK || !dialog.GetPrinterDC())
        return;
    PrintTo(dialog.GetPrinterDC());
}

void CXGraph::PrintTo(HDC hPrinter)
{
    CDCEx canvas;
    canvas.Attach(hPrinter); // the canvas deletes the context with itself
    DOCINFOW document = {};
    document.cbSize = sizeof document;
    document.lpszDocName = L"Graph";
    if (::StartDocW(hPrinter, &document) <= 0)
        return;
    ::StartPage(hPrinter);
    PaintPage(canvas);
    ::EndPage(hPrinter);
    ::EndDoc(hPrinter);
    // The page's layout gives way to the window's again.
    Invalidate();
    if (m_hWnd)
        UpdateWindow();
}

void CXGraph::PaintPage(CDCEx& canvas)
{
    canvas.NeedScale();
    m_rcPrint.SetRect(0, 0, Trunc(canvas.GetDeviceCaps(HORZRES) / canvas.m_fScaleX),
                      Trunc(canvas.GetDeviceCaps(VERTRES) / canvas.m_fScaleY));
    canvas.m_bScaling = true;
    const CPrintTarget target(*this, canvas);
    m_rcPrint.top += PrintCentred(canvas, m_strPrintHeader, true);
    m_rcPrint.bottom -= PrintCentred(canvas, m_strPrintFooter, false);
    PaintFrame(&canvas);
}

// The height that the text takes of the page, with its gap; nothing for an empty text.
int CXGraph::PrintCentred(CDCEx& canvas, const CString& strText, bool bTop)
{
    if (strText.IsEmpty())
        return 0;
    CQuickFont font(L"Arial", 12, FW_NORMAL);
    int height = 0;
    {
        CFontSelector measure(&font, &canvas, false);
        height = canvas.GetTextExtent(strText).cy;
    }
    CFontSelector draw(&font, &canvas, true);
    CRect place = m_rcPrint;
    if (bTop)
        place.bottom = place.top + height;
    else
        place.top = place.bottom - height;
    canvas.SetBkMode(TRANSPARENT);
    canvas.DrawText(strText, &place, DT_CENTER | DT_NOPREFIX);
    return height + TextGap;
}
