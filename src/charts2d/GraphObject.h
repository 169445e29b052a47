#pragma once
// The window of the business chart: a child of the host's window that holds one chart (bar,
// flat pie or line), and paints it with title, subtitle and legend through a frame bitmap.
//
//   +--------------------------------+
//   | Title                          |   title and subtitle: the upper 0.35 of the height
//   | Subtitle                       |
//   | +--------------+  +--------+   |
//   | | graph area   |  | legend |   |
//   | |              |  +--------+   |
//   +--------------------------------+
//
// With a solid background a paint clears and draws the graph area alone; title, subtitle and
// legend stay on the frame until m_bRedraw asks for them. With a gradient all is drawn anew.
//
// The order of calls is Create, CreateGraph, everything else. A call that needs a chart that is
// not there does nothing; what it would read is 0. Data operations don't repaint.

#include <memory>

#include "base/Geometry.h"
#include "charts2d/BarGraph.h"
#include "charts2d/FlatPieGraph.h"
#include "charts2d/LineGraph.h"
#include "charts2d/WindowLayout.h"
#include "framework/windowing/DeviceContexts.h"
#include "framework/windowing/GdiObjects.h"
#include "framework/windowing/Window.h"

class CGraphObject : public CWnd
{
public:
    enum EFillType { solidFill = 10, gradientFill = 11 };
    enum EGradientType { horizontalGradient = 20, verticalGradient = 21 };

    CGraphObject();
    ~CGraphObject() override;

    // Window. Of the arguments only rectangle, parent and identifier count; sides under 200
    // are raised to it.
    BOOL Create(LPCWSTR lpszClassName, LPCWSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, void* pContext = nullptr) override;
    void CreateGraph(int type); // 0 bar, 1 flat pie, 2 line
    void SetGraphPosition(CPoint position);
    void SetGraphSize(CSize size);

    // Looks. Those of legend and labels, texts and background repaint; the others don't.
    void ShowGraphLegend(BOOL legend) noexcept { m_bLegend = legend; }
    [[nodiscard]] COLORREF GetGraphLegendTextColor() const noexcept;
    void SetGraphLegendTextColor(COLORREF color);
    [[nodiscard]] COLORREF GetGraphLegendBackgroundColor() const noexcept;
    void SetGraphLegendBackgroundColor(COLORREF color);
    [[nodiscard]] COLORREF GetGraphLabelsColor() const noexcept;
    void SetGraphLabelsColor(COLORREF color);
    [[nodiscard]] COLORREF GetGraphSubtitleColor() const noexcept { return m_crSubtitle; }
    void SetGraphSubtitleColor(COLORREF color) noexcept { m_crSubtitle = color; }
    [[nodiscard]] COLORREF GetGraphTitleColor() const noexcept { return m_crTitle; }
    void SetGraphTitleColor(COLORREF color) noexcept { m_crTitle = color; }
    [[nodiscard]] BOOL GetGraphSubtitleShadow() const noexcept { return m_bSubtitleShadow; }
    void SetGraphSubtitleShadow(BOOL shadow) noexcept { m_bSubtitleShadow = shadow; }
    [[nodiscard]] BOOL GetGraphTitleShadow() const noexcept { return m_bTitleShadow; }
    void SetGraphTitleShadow(BOOL shadow) noexcept { m_bTitleShadow = shadow; }
    // Returns the mode that is stored, 0 or 1, not the 20 or 21 that the setter takes.
    [[nodiscard]] int GetGradientFillType() const noexcept { return m_nGradientMode; }
    void SetGradientFillType(int nType);
    void SetGraphGradientColors(COLORREF col1, COLORREF col2);
    [[nodiscard]] int GetGraphFillType() const noexcept { return m_nFillType; }
    void SetGraphFillType(int nType) noexcept
    {
        m_nFillType = nType == gradientFill ? gradientFill : solidFill;
    }
    void SetGraphTitle(const CString& text);
    void SetGraphSubtitle(const CString& text);
    [[nodiscard]] COLORREF GetGraphBackgroundColor() const noexcept { return m_crBackground; }
    void SetGraphBackgroundColor(COLORREF color);

    // Animation: 20, 21, 22, 25, 26 for bars, 30, 31 for lines, 10, 11 for the flat pie.
    [[nodiscard]] BOOL GetGraphAnimation() const noexcept { return m_bAnimation; }
    void SetGraphAnimation(BOOL animation, int type);

    // Data, whatever the kind that is shown.
    void Add2DBarGraphSegment(const CString& text);
    void Delete2DBarGraphSegment(int index);
    void Add2DBarGraphSeries(const CString& text, COLORREF color);
    void Detele2DBarGraphSeries(int index);
    void Set2DBarGraphValue(int segment, int series, int value);
    void Add2DLineGraphSegment(const CString& text);
    void Delete2DLineGraphSegment(int index);
    void Add2DLineGraphSeries(const CString& text, COLORREF color);
    void Delete2DLineGraphSeries(int index);
    void Set2DLineGraphValue(int segment, int series, int value);
    void Add2DPieGraphSegment(double percent, COLORREF color, const CString& text);
    void Update2DPieGraphSegment(int index, int percent, COLORREF color, const CString& text);
    void Delete2DPieGraphSegment(int index);
    void Clear2DPieGraph();

    // Marks the whole window for painting, if there is one.
    void Repaint(BOOL bErase = FALSE);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnTimer(UINT_PTR nIDEvent);

private:
    template <class Action> void WithChart(Action action);
    template <class Chart> std::unique_ptr<Chart> NewChart() const;
    [[nodiscard]] bool HasChart() const noexcept;
    // A colour of the bar or line chart that is shown, else 0.
    [[nodiscard]] COLORREF SeriesChartColor(COLORREF C2DBarGraph::*ofBars,
                                            COLORREF C2DLineGraph::*ofLines) const noexcept;
    [[nodiscard]] WindowLayout::EKind Kind() const noexcept;

    void MakeTitleFonts();
    void MakeFrame();
    void FillGradient();
    void MoveWindowToGraph();
    void StopTimer();
    void RestartTimer();

    void PaintBackgroundAlone(CDC& dc);
    void PaintFrame();
    void DrawTexts();
    void DrawCaption(const WindowLayout::TTextPlace& place, const CString& text, CFont* pFont,
                     bool bShadow, COLORREF color);

    BOOL m_bLegend = TRUE;
    COLORREF m_crSubtitle = 0;
    COLORREF m_crTitle = 0;
    BOOL m_bSubtitleShadow = FALSE;
    BOOL m_bTitleShadow = FALSE;
    int m_nGradientMode = GRADIENT_FILL_RECT_V;
    COLORREF m_crGradient2 = 0xD80000; // lower right
    COLORREF m_crGradient1 = 0x400000; // upper left
    int m_nFillType = solidFill;
    BOOL m_bAnimation = FALSE;
    std::unique_ptr<CFont> m_pSubtitleFont;
    CString m_strSubtitle;
    // Each bitmap is declared before the context that holds it, so the context is freed first.
    std::unique_ptr<CBitmap> m_pGradientBitmap;
    std::unique_ptr<CDC> m_pGradientDC;
    std::unique_ptr<CBitmap> m_pBitmap; // the frame
    std::unique_ptr<CDC> m_pMemDC;
    bool m_bRedraw = false; // title, subtitle and legend are due on the next paint
    std::unique_ptr<CFont> m_pTitleFont;
    CString m_strTitle;
    COLORREF m_crBackground = 0xFFFFFF;
    int m_nGraphType = WindowLayout::none;
    TSize m_szGraph;
    TPoint m_ptGraph;
    std::unique_ptr<C2DLineGraph> m_pLineGraph;
    std::unique_ptr<C2DBarGraph> m_pBarGraph;
    std::unique_ptr<C2DPieGraph> m_pPieGraph;
};
