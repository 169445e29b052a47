// The frame: one routine draws a whole picture of the graph and computes all its geometry.

#include "base/Colors.h"
#include "draw/MemDC.h"
#include "draw/Selectors.h"
#include "graph/FrameLayout.h"
#include "graph/KeptFrame.h"
#include "graph/LegendBox.h"
#include "graph/XGraph.h"

#include <optional>

namespace
{

// A canvas on somebody else's handle, left again on every way out.
class AttachedCanvas
{
public:
    explicit AttachedCanvas(HDC hDC) { m_dc.Attach(hDC); }
    AttachedCanvas(const AttachedCanvas&) = delete;
    AttachedCanvas& operator=(const AttachedCanvas&) = delete;
    ~AttachedCanvas() { m_dc.Detach(); }

    CDCEx m_dc;
};

// Ends the frame of a kept buffer on every way out.
class KeptFrameEnd
{
public:
    KeptFrameEnd(CKeptBuffer& buffer, CDC& target) : m_buffer(buffer), m_target(target) {}
    KeptFrameEnd(const KeptFrameEnd&) = delete;
    KeptFrameEnd& operator=(const KeptFrameEnd&) = delete;
    ~KeptFrameEnd() { m_buffer.Finish(&m_target); }

private:
    CKeptBuffer& m_buffer;
    CDC& m_target;
};

// The state of a context, put back at the end of a frame.
class SavedState
{
public:
    explicit SavedState(CDCEx* pDC) : m_pDC(pDC), m_nState(pDC->SaveDC()) {}
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
    ~SavedState() { m_pDC->RestoreDC(m_nState); }

private:
    CDCEx* m_pDC;
    int m_nState;
};

COLORREF Shade(const CDCEx* pDC, COLORREF color)
{
    return pDC->m_bMono ? White : color;
}

// Fills a rectangle, but for the part that the caller fills right after where that lies wholly
// inside: big fills are what a frame costs most.
void FillAround(CDCEx* pDC, const CRect& outer, const CRect& inner, COLORREF color)
{
    const bool bInside = inner.left >= outer.left && inner.top >= outer.top &&
                         inner.right <= outer.right && inner.bottom <= outer.bottom;
    if (inner.IsRectEmpty() || !bInside) {
        pDC->FillSolidRect(&outer, color);
        return;
    }
    const CRect parts[] = {{outer.left, outer.top, outer.right, inner.top},
                           {outer.left, inner.bottom, outer.right, outer.bottom},
                           {outer.left, inner.top, inner.left, inner.bottom},
                           {inner.right, inner.top, outer.right, inner.bottom}};
    for (const CRect& part : parts) {
        if (!part.IsRectEmpty())
            pDC->FillSolidRect(&part, color);
    }
}

// A clip region counts in device units, which a partial buffer shifts against the client
// area and a printer scales.
void ClipTo(CDCEx* pDC, CRect rect, CRgn& region)
{
    if (pDC->m_bScaling && !pDC->m_bClipScaled)
        pDC->ScaleRect(rect);
    pDC->LPtoDP(&rect);
    region.CreateRectRgnIndirect(&rect);
    pDC->SelectClipRgn(&region);
}

// A file can put axes and curves into the list of objects, where they have no place to be drawn.
bool IsFreeObject(const CXGraphObject& object)
{
    return !object.IsKindOf(RUNTIME_CLASS(CXGraphAxis)) &&
           !object.IsKindOf(RUNTIME_CLASS(CXGraphDataSerie));
}

} // namespace

void CXGraph::Invalidate(BOOL bErase)
{
    if (m_hWnd)
        CWnd::Invalidate(bErase);
}

BOOL CXGraph::OnEraseBkgnd(CDC*)
{
    return TRUE; // every frame covers the whole client area
}

void CXGraph::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CXGraph::OnPaint()
{
    CPaintDC dcPaint(this);
    if (m_pDrawDC) {
        PaintFrame(m_pDrawDC);
        return;
    }
    // Whole frames alone: the parts of a window that others uncover have many sizes.
    CRect rcClient;
    CRect rcVisible;
    GetClientRect(&rcClient);
    dcPaint.GetClipBox(&rcVisible);
    CKeptBuffer& keptBuffer = KeptFrame().buffer;
    if (m_bDoubleBuffer && rcVisible == rcClient && keptBuffer.Start(&dcPaint, rcClient.Size())) {
        const KeptFrameEnd end(keptBuffer, dcPaint);
        AttachedCanvas canvas(keptBuffer.Canvas());
        canvas.m_dc.TakeScreen(keptBuffer.Bitmap(), &KeptFrame().fonts);
        KeptFrame().bScreen = canvas.m_dc.IsScreen();
        DrawFrame(&canvas.m_dc); // the buffer has saved its state
        return;
    }
    std::optional<CMemDC> buffer;
    if (m_bDoubleBuffer)
        buffer.emplace(&dcPaint, 0, false); // the frame covers all of it
    AttachedCanvas canvas(buffer ? buffer->GetSafeHdc() : dcPaint.GetSafeHdc());
    if (buffer)
        canvas.m_dc.TakeScreen(buffer->m_Bitmap, &KeptFrame().fonts);
    KeptFrame().bScreen = canvas.m_dc.IsScreen();
    PaintFrame(&canvas.m_dc);
}

void CXGraph::PaintFrame(CDCEx* pDC)
{
    const SavedState state(pDC);
    DrawFrame(pDC);
}

void CXGraph::DrawFrame(CDCEx* pDC)
{
    TKeptFrame& kept = KeptFrame();
    kept.fonts.StartFrame();
    CRgn region;
    m_CursorTool.Forget();

    CRect rcClient;
    if (pDC->m_bScaling)
        rcClient = m_rcPrint;
    else
        GetClientRect(&rcClient);

    // Three grounds within one another, with the legend on the outer one. All places are computed
    // before the first fill, since each fill leaves out what the next one covers; each colour is
    // that of the canvas at its own turn, which the first selection of a font can make mono.
    const COLORREF crBack = Shade(pDC, m_crBackColor);
    CRect rcGraph =
        FrameLayout::GraphRect(rcClient, {m_nLeftMargin, m_nTopMargin, m_nRightMargin, m_nBottomMargin});
    std::optional<CLegendBox> legend;
    if (m_bShowLegend)
        legend.emplace(*this, pDC, kept.legend, rcGraph);
    const COLORREF crGraph = Shade(pDC, m_crGraphColor);
    LayoutAxes(pDC, rcGraph);
    const bool bOwnCanvas = m_pDrawDC == nullptr; // others, a page for one, get whole rectangles
    FillAround(pDC, rcClient, bOwnCanvas ? rcGraph : CRect(), crBack);
    if (legend)
        legend->Draw();
    FillAround(pDC, rcGraph, bOwnCanvas ? m_rcInner : CRect(), crGraph);
    pDC->FillSolidRect(&m_rcInner, Shade(pDC, m_crInnerColor));

    for (CXGraphAxis& axis : m_YAxes) {
        axis.m_nOriginY = m_rcInner.bottom;
        axis.Draw(pDC);
    }
    for (CXGraphAxis& axis : m_XAxes)
        axis.Draw(pDC);

    ClipTo(pDC, m_rcInner, region);
    DrawCurves(pDC);
    DrawOverlay(pDC);
}

void CXGraph::LayoutAxes(CDCEx* pDC, const CRect& rcGraph)
{
    auto& yAxes = KeptFrame().yAxes;
    auto& xAxes = KeptFrame().xAxes;
    yAxes.clear();
    xAxes.clear();
    for (CXGraphAxis& axis : m_YAxes) {
        yAxes.push_back({axis.m_Placement, axis.m_bVisible, 0, 0, axis.m_nArcSize, axis.m_nOriginX});
        if (axis.m_bVisible) {
            yAxes.back().nLabelWidth = axis.GetMaxLabelWidth(pDC);
            yAxes.back().nTitleWidth = axis.GetTitleSize(pDC).cx;
        }
    }
    for (CXGraphAxis& axis : m_XAxes)
        xAxes.push_back({axis.m_bVisible, axis.m_bVisible ? axis.GetLabelHeight(pDC) : 0});

    FrameLayout::ResolvePlacement(yAxes);
    m_rcInner = FrameLayout::Stack(rcGraph, yAxes, xAxes, m_nAxisSpace);

    for (std::size_t i = 0; i < yAxes.size(); ++i) {
        m_YAxes[i].m_Placement = yAxes[i].placement;
        m_YAxes[i].m_nOriginX = yAxes[i].nOriginX;
        m_YAxes[i].m_rcArea = rcGraph;
    }
    for (std::size_t i = 0; i < xAxes.size(); ++i) {
        m_XAxes[i].m_nOriginX = xAxes[i].nOriginX;
        m_XAxes[i].m_nOriginY = xAxes[i].nOriginY;
        m_XAxes[i].m_rcArea = rcGraph;
    }
}

void CXGraph::DrawCurves(CDCEx* pDC)
{
    for (CXGraphDataSerie& curve : m_Curves) {
        if (curve.m_bVisible)
            curve.Draw(pDC);
    }
    // Markers lie above the lines of all curves.
    for (CXGraphDataSerie& curve : m_Curves) {
        if (curve.m_bVisible && curve.m_bShowMarker)
            curve.DrawMarkers(pDC);
    }
}

void CXGraph::DrawOverlay(CDCEx* pDC)
{
    m_MeasureTool.DrawMeasures(pDC);
    if (m_opOperation == opZoom && m_bLButtonDown)
        m_ZoomBand.DrawZoomRect(pDC);
    if (m_opOperation == opMeasure && m_bLButtonDown)
        m_MeasureTool.DrawLive(pDC);
    if (m_opOperation == opCursor)
        m_CursorTool.DrawCursor(pDC);
    for (POSITION pos = m_Objects.GetHeadPosition(); pos != nullptr;) {
        auto* pObject = static_cast<CXGraphObject*>(m_Objects.GetNext(pos));
        if (IsFreeObject(*pObject))
            pObject->Draw(pDC);
    }
    if (m_PointDrag.m_bPointDragged)
        m_PointDrag.DrawValue(pDC);
}
