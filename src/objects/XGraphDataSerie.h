#pragma once
// One curve: an array of points, the indexes of the axes that it is drawn against, and its
// looks. Curves live by value in a vector of the graph, in index order.

#include "base/Vocabulary.h"
#include "framework/windowing/Strings.h"
#include "objects/DataExtent.h"
#include "objects/PolynomialSolver.h"
#include "objects/SegmentHit.h"
#include "objects/XGraphObject.h"

#include <span>
#include <vector>

// What a curve is made of. Copying this shares the array.
struct TCurveFields {
    TDataPoint* m_pData = nullptr;
    int m_nCount = 0;
    int m_nReserved1 = 0;
    int m_nReserved2 = 0;
    int m_nXAxis = 0;
    int m_nYAxis = 0;
    int m_nIndex = 0;
    int m_nLineSize = 1;    // pen width, and radius of scatter points
    int m_nFillStyle = 6;   // hatch style 0 to 5, or 6 for solid
    int m_nMarkerType = 0;  // 0 square with the curve's position, 1 symbol, else square with m_nMarker
    int m_nMarker = 0;      // symbol 0 to 7, or the number shown less 1
    int m_nMarkerSize = 10; // pixels
    UINT m_nLineStyle = 0;  // pen style
    bool m_bAutoDelete = false; // the curve owns m_pData
    bool m_bShowMarker = false;
    bool m_bFillBeneath = false;
    bool m_bFillTransparent = true;
    COLORREF m_crFillColor = 0xFFFFFF;
    CString m_cLabel{L" "};
    EGraphType m_nType = gtLine;
    unsigned short m_nFillCurve = 1;  // partner of the fill; 65535 for the plot's bottom edge
    std::vector<TSegment> m_Segments; // on screen after the last Draw; what the mouse can hit
    CPolynomialSolver m_Solver;       // the last polynomial fit
};

class CXGraphDataSerie : public CXGraphObject, public TCurveFields
{
    DECLARE_SERIAL(CXGraphDataSerie)

public:
    CXGraphDataSerie() = default;
    // With m_bAutoDelete the copy has an array of its own, else it shares the pointer.
    CXGraphDataSerie(const CXGraphDataSerie& other);
    CXGraphDataSerie(CXGraphDataSerie&& other) noexcept;
    CXGraphDataSerie& operator=(const CXGraphDataSerie& other);
    CXGraphDataSerie& operator=(CXGraphDataSerie&& other) noexcept;
    ~CXGraphDataSerie() override;

    static constexpr unsigned short FillToBottom = 65535;

    // Colour of a new curve by its position.
    [[nodiscard]] static COLORREF CreationColor(int nPosition) noexcept;

    // Gives the curve a private copy of the points and ownership of it, and returns their extent.
    // A copy that it made before is freed.
    TDataExtent CopyData(const TDataPoint* pData, int nCount);
    // Takes the caller's array without copying it; with bAutoDelete it is freed with the
    // curve. A private copy held before is freed, a caller's array never.
    void ReplaceData(TDataPoint* pData, int nCount, bool bAutoDelete) noexcept;

    // The points; none where the pointer is null.
    [[nodiscard]] std::span<const TDataPoint> Points() const noexcept;
    // Whether x is known to be a number everywhere and never to fall. Known of the curve's
    // private copy alone: nobody else can write to it.
    [[nodiscard]] bool IsAscending() const noexcept;

    // Trends of m_nCount + nPoints points (Trends.h): a new array, which the caller owns and
    // frees with delete[]. Null where that is no point at all; the polynomial of nDegree terms
    // is null too where it can't be fitted, and leaves its coefficients in m_Solver.
    [[nodiscard]] TDataPoint* GetLinearTrend(int nPoints) const;
    [[nodiscard]] TDataPoint* GetCubicTrend(int nPoints) const;
    [[nodiscard]] TDataPoint* GetPolynomialTrend(int nDegree, int nPoints);

    // Moving averages of m_nCount points (MovingAverages.h), owned and freed like the trends;
    // null for a curve without points.
    [[nodiscard]] TDataPoint* GetSimpleMovingAverage(int span) const;
    [[nodiscard]] TDataPoint* GetExponentialMovingAverage(int span) const;
    [[nodiscard]] TDataPoint* GetLinearMovingAverage(int span) const;
    [[nodiscard]] TDataPoint* GetTriangularMovingAverage(int span) const;
    [[nodiscard]] TDataPoint* GetSineWeightedMovingAverage(int span) const;

    void SetFillBeneath(bool bValue, int nValue) noexcept;
    void AddSegment(CPoint from, CPoint to);
    [[nodiscard]] static bool HitTestSegment(CPoint from, CPoint to, CPoint point,
                                             int nTolerance) noexcept;
    [[nodiscard]] static double PointLineDistance(CPoint from, CPoint to, CPoint point) noexcept;
    // Whether the mouse is on the curve as the last frame showed it.
    [[nodiscard]] bool HitTestCurve(CPoint point, int nTolerance) const noexcept;

    void Serialize(CArchive& ar) override;
    void Draw(CDCEx* pDC) override;
    void DrawMarkers(CDCEx* pDC);

private:
    void DrawShape(CDCEx* pDC, std::vector<TPoint>& polygon);
    void DrawFill(CDCEx* pDC, std::vector<TPoint>& polygon);
    void AppendPartner(std::vector<TPoint>& polygon, int nReach) const;
    [[nodiscard]] int LineSize() const noexcept; // as drawn
    [[nodiscard]] int PenReach() const noexcept;
    void StoreFields(CArchive& ar) const;
    void LoadFields(CArchive& ar);
    void Adopt(TDataPoint* pCopy, int nCount, bool bAscending) noexcept;
    void FreeData() noexcept;

    const TDataPoint* m_pPrivateCopy = nullptr; // the array that this curve made, if m_pData is it
    bool m_bAscending = false;                  // of the private copy
};
