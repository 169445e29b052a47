#pragma once
// The interactive XY chart as a child window.
//
// It owns X axes, Y axes, curves and free objects, each found by a zero-based index. The
// three vectors hold their elements by value: a pointer to an element is good until the
// next insertion into or removal from that vector. All geometry is computed by OnPaint;
// between two frames every conversion of values and pixels rests on the last one.
//
// Settings store and don't repaint unless told otherwise. An index outside a list ends in
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
#include "objects/XGraphAxis.h"
#include "objects/XGraphDataSerie.h"
#include "objects/XGraphLabel.h"

class CXGraphObject;

class CXGraph : public CWnd
{
    DECLARE_SERIAL(CXGraph)

public:
    using PFNMARKER = decltype(&DrawSquare);

    // Registers the window class "XGraph"; throws CResourceException where that fails.
    CXGraph();
    ~CXGraph() override;
    CXGraph(const CXGraph&) = delete;
    CXGraph& operator=(const CXGraph&) = delete;

    // Gives a curve its points, makes one axis of each kind where the index is one past the
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

    // Copies the window as it stands on the screen into a BMP file. True when the picture
    // could be taken, whether or not the file could be written.
    bool SaveBitmap(const CString& strFile);

    // A graph whose window is gone repaints nothing (the platform would repaint every window).
    void Invalidate(BOOL bErase = TRUE);
    void DrawLegend(CDCEx* pDC, CRect& rc);
    void DrawZoomRect(CDCEx* pDC);

    // Destroys every graph that is left, with its window. For the end of the module.
    static void FreeAll();
    [[nodiscard]] static int GetLiveCount(); // graphs alive in this module

    PFNMARKER m_pfnMarker[8];
    COLORREF m_crBackColor = 0xFFFFFF;
    COLORREF m_crGraphColor = 0xFFFFFF;
    COLORREF m_crInnerColor = 0xF0F0F0;
    bool m_bDoubleBuffer = true;
    bool m_bShowLegend = true;
    bool m_bInteraction = true;
    bool m_bTmpDC = false;
    EAlignment m_nLegendAlignment = EAlignment::right;
    bool m_bSnapCursor = true;
    int m_nSnapRange = 10;
    unsigned int m_nCursorFlags = XGC_HORIZ | XGC_VERT | XGC_LEGEND;
    CDCEx* m_pPrintDC = nullptr;
    CDCEx* m_pDrawDC = nullptr;
    CRectTracker* m_pTracker = nullptr;
    CRect m_rcInner{0, 0, 0, 0};
    CRect m_rcMeasure{0, 0, 0, 0};
    CRect m_rcPrint{0, 0, 0, 0};
    CPoint m_ptPan{0, 0};
    EOperation m_opOperation = opNone;
    int m_nCursorCurve = 0;
    int m_nMeasureCurve2 = 0;
    int m_nLeftMargin = 5;
    int m_nTopMargin = 5;
    int m_nRightMargin = 5;
    int m_nBottomMargin = 5;
    int m_nAxisSpace = 5;
    int m_nForcedSnapCurve = -1;
    CRect m_rcZoom{0, 0, 0, 0};
    CPoint m_ptLButtonDown{0, 0};
    CPoint m_ptLastCursor{0, 0};
    CPoint m_ptLButtonUp{0, 0};
    CPoint m_ptCurrent{0, 0};
    bool m_bLButtonDown = false;
    bool m_bRButtonDown = false;
    bool m_bOverObject = false;
    double m_fEditValue = 0.0;
    bool m_bPointDragged = false;
    int m_nSelectedCurve = -1;
    double m_fCursorX = 0.0;
    double m_fCursorY = 0.0;
    CString m_strPrintHeader;
    CString m_strPrintFooter;
    CXGraphLabel m_CursorLabel;
    TMeasureSpan m_LiveMeasure;
    CCheckedVector<TMeasureSpan> m_Measures;
    CCheckedVector<TLegendEntry> m_LegendEntries;
    CCheckedVector<CXGraphDataSerie> m_Curves;
    CCheckedVector<CXGraphAxis> m_XAxes;
    CCheckedVector<CXGraphAxis> m_YAxes;
    CObList m_Objects{10}; // of CXGraphObject, owned, but for the head: m_CursorLabel
    CXGraphObject* m_pCurrentObject = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    DECLARE_MESSAGE_MAP()

private:
    void PaintFrame(CDCEx* pDC);
    void LayoutAxes(CDCEx* pDC, const CRect& rcGraph);
    void DrawCurves(CDCEx* pDC);
    void DrawOverlay(CDCEx* pDC);
    void DrawPointValue(CDCEx* pDC);
};
