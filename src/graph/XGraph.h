#pragma once
// The interactive XY chart as a child window.
//
// It owns X axes, Y axes, curves and free objects, each found by a zero-based index. The
// three vectors hold their elements by value: a pointer to an element is good until the
// next insertion into or removal from that vector. All geometry is computed by OnPaint;
// between two frames every conversion of values and pixels rests on the last one.
//
// Settings store and don't repaint unless their comment says so. An index outside a list ends in
// the run-time's invalid-parameter handler, except in operations that return false.

#include "base/Vocabulary.h"
#include "draw/DCEx.h"
#include "draw/Markers.h"
#include "framework/windowing/CheckedVector.h"
#include "framework/windowing/Geometry.h"
#include "framework/windowing/ObList.h"
#include "framework/windowing/RectTracker.h"
#include "framework/windowing/Strings.h"
#include "framework/windowing/Window.h"
#include "graph/GraphRecords.h"
#include "graph/tools/CursorTool.h"
#include "graph/tools/MeasureTool.h"
#include "graph/tools/ObjectTracker.h"
#include "graph/tools/PointDrag.h"
#include "graph/tools/ZoomBand.h"
#include "objects/DataExtent.h"
#include "objects/XGraphAxis.h"
#include "objects/XGraphDataSerie.h"
#include "objects/XGraphLabel.h"

#include <memory>
#include <vector>

class CXGraph;
class CXGraphObject;
struct TFrameRoom;
struct TKeptFrame;

// Shows the modal property sheet on the graph and, where one is given, on an axis or a curve;
// the dialogs define it.
void ShowChartSheet(CXGraph& graph, CXGraphAxis* pAxis, CXGraphDataSerie* pCurve);

class CXGraph : public CWnd
{
    DECLARE_SERIAL(CXGraph)

public:
    using PFNMARKER = MarkerPainter;

    // Registers the window class "XGraph"; throws CResourceException where that fails.
    CXGraph();
    ~CXGraph() override;
    CXGraph(const CXGraph&) = delete;
    CXGraph& operator=(const CXGraph&) = delete;

    // Sets a curve's points, makes one axis of each kind where the index is one past the
    // end, widens the axes' ranges and repaints. A new curve (nCurve equals the number of
    // curves) copies the array if bAutoDelete is set, else it reads the caller's. An existing
    // curve takes the caller's array itself; bAutoDelete hands its ownership over.
    // Returns the element of m_Curves, or null with nothing changed for no points.
    CXGraphDataSerie* SetData(TDataPoint* pValues, long nCount, int nCurve, int nXAxis, int nYAxis,
                              bool bAutoDelete);

    CXGraphAxis* GetXAxis(int nAxis);
    CXGraphAxis* GetYAxis(int nAxis);
    CXGraphDataSerie* GetCurve(int nCurve);

    // False with nothing changed for an index outside the list. Nothing that refers to later
    // elements by index is renumbered; no repaint.
    bool DeleteXAxis(int nAxis);
    bool DeleteCurve(int nCurve);
    // The index is one of the Y axes, yet the last X axis, if there is one, is removed.
    bool DeleteYAxis(int nAxis);

    bool SelectXAxis(int nAxis);
    bool SelectYAxis(int nAxis);
    bool SelectCurve(int nCurve);

    // Widens both axes' whole ranges by the curve's extent; zoom and pan are undone.
    bool Autoscale(int nXAxis, int nYAxis, int nCurve);

    // Empties axes and curves and deletes all objects but the cursor's label. Measures stay.
    void ResetAll();
    void SetGraphMargins(int nLeft, int nTop, int nRight, int nBottom);

    // Position in the X axes, else in the Y axes, else -1.
    [[nodiscard]] int GetAxisIndex(const CXGraphAxis* pAxis) const;
    [[nodiscard]] int GetCurveIndex(const CXGraphDataSerie* pCurve) const;

    // The graph owns the new label; no repaint.
    CXGraphLabel* InsertLabel(const CRect& rcRect, const CString& strText);
    CXGraphLabel* InsertCenteredLabel(const CString& strText);

    // Copies the window as it is on the screen into a BMP file. True when the picture
    // could be taken, whether or not the file could be written.
    bool SaveBitmap(const CString& strFile);

    // A graph whose window is gone repaints nothing (the platform would repaint every window).
    void Invalidate(BOOL bErase = TRUE);
    // Operations. Any may follow any other; each repaints.
    void NoOp();
    void Zoom();
    void Pan(); // stops rounding the ranges of all axes
    void Cursor();
    void Edit();
    void Measure();

    // What lies under m_ptCurrent. A call that only checks returns whether something reacts
    // there; any other selects, notifies the parent window, opens the property sheet, and returns
    // false. Without m_bInteraction nothing reacts.
    bool HitTest(bool bDblClick, bool bCheckOnly);
    // Posts to the parent window, with the low half of this object's address.
    void Notify(UINT nMessage, WPARAM wParam) const;
    void NotifyOfWindow(UINT nMessage) const; // with the low half of the window's handle
    // Shows the property sheet on an axis, on a curve, or on the graph alone.
    void OpenSheet(CXGraphAxis* pAxis, CXGraphDataSerie* pCurve);

    void ZoomBack();                        // one step on every axis that has one
    void ResetZoom();                       // the histories stay
    [[nodiscard]] int GetZoomDepth() const; // of the first X axis
    void PanBy(CPoint point);               // from m_ptPan

    // The cursor's x on the curve's X axis, and y of the curve's point there.
    TDataPoint GetCursorAbsolute(int nCurve);
    // Puts the cursor on the curve's point at point.fXVal. With bForceVisible an axis that
    // doesn't show it is scrolled there; with XGC_ADJUSTSMOOTH it is centred in any case.
    void SetCursorAbsolute(int nCurve, TDataPoint point, bool bForceVisible);

    // Pins a note with the point's values to it; a point that isn't there gets none.
    void InsertDataNotation(int nCurve, int nIndex);

    // Appends the trend as a curve of its own on the same axes.
    void AddLinearTrend(CXGraphDataSerie* pCurve);
    void AddCubicTrend(CXGraphDataSerie* pCurve);

    // nFlags are XGRAPH_PERSIST; false for none, for a file that can't be opened, and for one
    // that can't be written whole.
    bool Save(const CString& strFile, UINT nFlags);
    // False, with the graph as it was, for a file that can't be opened. A file that fails later
    // leaves what was read up to there, and curves without their axes or partner hidden; one that
    // is read whole leaves every curve as it has it.
    bool Load(const CString& strFile);
    void Serialize(CArchive& ar, UINT nFlags);

    void Print(); // asks for the printer
    // One page. The context becomes the job's own and is deleted with it.
    void PrintTo(HDC hPrinter);
    // Header, footer and the frame between them on a canvas of any resolution, over its whole
    // face. Its scale is computed unless it is set already.
    void PaintPage(CDCEx& canvas);

    void DrawLegend(CDCEx* pDC, CRect& rc);

    // Destroys every graph that is left, with its window. For the end of the module.
    static void FreeAll();

    static constexpr const auto& m_pfnMarker = MarkerPainters; // by marker number

    // Settings, which show in the next frame. The host and the chart page write them; a file holds
    // the first eight, the margins and the space.
    COLORREF m_crBackColor = 0xFFFFFF;  // of the window, 0x00BBGGRR
    COLORREF m_crGraphColor = 0xFFFFFF; // inside the margins, beside the legend
    COLORREF m_crInnerColor = 0xF0F0F0; // of the plot
    bool m_bDoubleBuffer = true;        // a frame is drawn in memory first
    bool m_bShowLegend = true;
    EAlignment m_nLegendAlignment = EAlignment::right; // any value; top and bottom have no box
    bool m_bSnapCursor = true;                         // the cursor looks for a curve
    int m_nSnapRange = 10;                             // pixels; half of it is half the box
    bool m_bInteraction = true;                        // HitTest works at all
    unsigned int m_nCursorFlags = XGC_HORIZ | XGC_VERT | XGC_LEGEND; // XGRAPH_XGC
    int m_nForcedSnapCurve = -1; // a curve's index, untested; -1 for none
    CString m_strPrintHeader;    // one line on a page; empty takes no room
    CString m_strPrintFooter;
    int m_nLeftMargin = 5; // pixels between the window and the graph rectangle, any value
    int m_nTopMargin = 5;
    int m_nRightMargin = 5;
    int m_nBottomMargin = 5;
    int m_nAxisSpace = 5; // pixels added to each visible axis; only a file writes it

    // What the graph holds. Elements of the vectors move when their vector changes.
    CCheckedVector<CXGraphDataSerie> m_Curves;
    CCheckedVector<CXGraphAxis> m_XAxes;
    CCheckedVector<CXGraphAxis> m_YAxes;
    CObList m_Objects{10};      // of CXGraphObject, owned, but for the head: m_CursorLabel
    CXGraphLabel m_CursorLabel; // visible from the first frame in opCursor; the cursor writes its text
    CCheckedVector<TMeasureSpan> m_Measures; // finished ones; they outlive ResetAll
    // Rows of the last frame with a legend, in client pixels. HitTest reads them.
    CCheckedVector<TLegendEntry> m_LegendEntries;

    // Targets and results of a frame.
    CDCEx* m_pPrintDC = nullptr; // for the time of a page; nothing reads it
    CDCEx* m_pDrawDC = nullptr;  // where OnPaint draws instead of the window; nothing here sets it
    // The plot, in client pixels or in screen units of the page. Written by the layout of each
    // frame, zeros before the first, and inverted where the window has no room for it.
    CRect m_rcInner{0, 0, 0, 0};
    CRect m_rcPrint{0, 0, 0, 0}; // screen units; what header and footer leave of the last page

    // The state of mouse and keys. Points are client pixels.
    EOperation m_opOperation = opNone; // host code may change it during any message
    // A curve's index, -1 for none: under the cursor, or of a measure's first end. Both write it.
    int m_nCursorCurve = 0;
    int m_nSelectedCurve = -1; // a curve's index by the last click, or a file's, untested
    // The mouse of the last move, or the cursor: moves, the arrow keys and the host write it, and
    // each drawing of the cursor writes its y. Presses and releases don't.
    CPoint m_ptCurrent{0, 0};
    CPoint m_ptLButtonDown{0, 0}; // of the last press; in opMeasure on the curve
    CPoint m_ptLButtonUp{0, 0};   // of the last release; nothing reads it
    CPoint m_ptPan{0, 0};         // last anchor of a pan, (0, 0) for none; a left release empties it
    bool m_bLButtonDown = false;  // rewritten by every move, from its flags
    bool m_bRButtonDown = false;
    bool m_bOverObject = false; // something reacts under the mouse; of the last move

    CZoomBand m_ZoomBand{*this};
    CCursorTool m_CursorTool{*this};
    CMeasureTool m_MeasureTool{*this};
    CPointDrag m_PointDrag{*this};
    CObjectTracker m_ObjectTracker{*this};

    // By the index that a curve or a measure holds; one outside the list ends the process.
    CXGraphDataSerie& CurveAt(int nCurve) { return *GetCurve(nCurve); }
    CXGraphAxis& XAxisOf(const CXGraphDataSerie& curve) { return *GetXAxis(curve.m_nXAxis); }
    CXGraphAxis& YAxisOf(const CXGraphDataSerie& curve) { return *GetYAxis(curve.m_nYAxis); }

    // The objects of this moment, for walks in which one of them may go.
    [[nodiscard]] std::vector<TObjectRef> ListObjects() const;
    [[nodiscard]] bool Owns(const TObjectRef& entry) const;

    [[nodiscard]] TFrameRoom* FrameRoom() noexcept; // null before the first frame
    // Whether the last frame's buffer was known as the screen's (CDCEx::TakeScreen).
    [[nodiscard]] bool IsKnownScreen() const noexcept;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void PostNcDestroy() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnInsertLabel();
    afx_msg void OnProperties();
    afx_msg void OnLinearTrend();
    afx_msg void OnCubicTrend();
    afx_msg void OnPassOn();
    DECLARE_MESSAGE_MAP()

private:
    // By the extent of a curve's points.
    bool WidenAxes(int nXAxis, int nYAxis, const TDataExtent& data);

    void PaintFrame(CDCEx* pDC);
    // As PaintFrame, but it is the caller who puts the canvas's state back.
    void DrawFrame(CDCEx* pDC);
    void LayoutAxes(CDCEx* pDC, const CRect& rcGraph);
    void DrawCurves(CDCEx* pDC);
    void DrawOverlay(CDCEx* pDC);

    void MoveCursorBy(int x, int y);
    void DragTo(CPoint point);
    void BringIntoView(CXGraphAxis& axis, double fValue) const;
    // Moves the visible bounds by multiples of the key step, and back to the whole range.
    static void ShiftRanges(CCheckedVector<CXGraphAxis>& axes, double lowSteps, double highSteps);
    static void ResetRanges(CCheckedVector<CXGraphAxis>& axes);

    void AppendTrend(const CXGraphDataSerie& curve, std::unique_ptr<TDataPoint[]> points,
                     LPCWSTR pszKind);
    void HideIncompleteCurves();
    void Store(CArchive& ar, UINT nFlags);
    void ReadObjects(CArchive& ar);
    int PrintCentred(CDCEx& canvas, const CString& strText, bool bTop);
    TKeptFrame& KeptFrame(); // made by the first frame

    std::unique_ptr<TKeptFrame> m_pKeptFrame;
};
