// Data, ranges and formats that no sound host would set are plotted without a crash and
// without a hang. A frame that hangs is ended by the test program's time limit.

#include "NativeGraph.h"

#include <cfloat>
#include <limits>

namespace
{

class GraphBadData : public GraphTest
{
protected:
    void Plot(std::vector<TDataPoint> points)
    {
        graph.SetData(points.data(), static_cast<long>(points.size()),
                      static_cast<int>(graph.m_Curves.size()), 0, 0, true);
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    }
};

constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Denormal = std::numeric_limits<double>::denorm_min();
constexpr double Odd[] = {Nan,     Infinity, -Infinity, 1e308,     -1e308,
                          DBL_MAX, -DBL_MAX, Denormal,  -Denormal, 0.0};

} // namespace

TEST_F(GraphBadData, EveryOddValueAloneIsPlotted)
{
    for (const double value : Odd) {
        graph.ResetAll();
        Plot({{value, value}});
    }
}

TEST_F(GraphBadData, OddValuesAmongSoundOnesArePlotted)
{
    for (const double value : Odd) {
        graph.ResetAll();
        Plot({{0, 0}, {1, value}, {value, 2}, {3, 3}});
    }
}

TEST_F(GraphBadData, PairsOfOddValuesArePlottedWithFillAndMarkers)
{
    for (const double first : Odd) {
        for (const double second : Odd) {
            graph.ResetAll();
            Plot({{first, first}, {second, second}, {1, 2}});
            CXGraphDataSerie* pCurve = graph.GetCurve(0);
            pCurve->m_bShowMarker = true;
            pCurve->SetFillBeneath(true, 65535);
            Paint();
        }
    }
}

TEST_F(GraphBadData, OddValuesAsDatesArePlotted)
{
    for (const double first : Odd) {
        for (const double second : Odd) {
            graph.ResetAll();
            auto points = Line();
            graph.SetData(points.data(), 11, 0, 0, 0, true);
            graph.GetXAxis(0)->m_bDateTime = true;
            graph.GetXAxis(0)->m_cDisplayFmt = L"%Y-%m-%d";
            graph.GetXAxis(0)->SetRange(first, second);
            Paint();
        }
    }
}

TEST_F(GraphBadData, LogarithmicAxesTakeOddValuesToo)
{
    for (const double first : Odd) {
        for (const double second : Odd) {
            graph.ResetAll();
            Plot({{1, 1}, {2, 100}});
            graph.GetYAxis(0)->m_AxisType = atLog;
            graph.GetYAxis(0)->SetRange(first, second);
            Paint();
        }
    }
}

TEST_F(GraphBadData, StepsThatLeadNowhereEnd)
{
    AddLine();
    for (const double step : {0.0, -1.0, 1e-300, Nan, Infinity, 1e-17}) {
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_bAutoScale = false;
            pAxis->m_fCurMin = 0;
            pAxis->m_fCurMax = 10;
            pAxis->m_fStep = step;
        }
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    }
}

TEST_F(GraphBadData, FormatsFromOutsideReadNothingThatIsNotThere)
{
    AddLine();
    for (const wchar_t* pszFormat : {L"%s", L"%n", L"%*d", L"%1000000f", L"%", L"%%%", L"%.999999999e",
                                     L"%I64d", L"%ls %p %x", L"%5.1", L""}) {
        graph.GetXAxis(0)->m_cDisplayFmt = pszFormat;
        graph.GetYAxis(0)->m_cDisplayFmt = pszFormat;
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE)) << CString(pszFormat).ToU16().size();
    }
}

TEST_F(GraphBadData, DateFormatsFromOutsideAreHarmlessToo)
{
    AddLine();
    graph.GetXAxis(0)->m_bDateTime = true;
    for (const wchar_t* pszFormat :
         {L"%", L"%Q%!%n%t", L"%#c", L"%E", L"%O%O%O", L"\xD800 %Y", L"%1000000Y"}) {
        graph.GetXAxis(0)->m_cDisplayFmt = pszFormat;
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE));
    }
}

TEST_F(GraphBadData, SettingsOfAnySizePaint)
{
    AddLine();
    for (const int value : {INT_MIN, -1, 0, 100000, INT_MAX}) {
        for (CXGraphAxis* pAxis : {graph.GetXAxis(0), graph.GetYAxis(0)}) {
            pAxis->m_nArcSize = value > 1000 ? 1000 : value; // the arrowhead is drawn line by line
            pAxis->m_nMarkerSize = value;
            pAxis->m_nTickSize = value;
        }
        graph.GetCurve(0)->m_nLineSize = value;
        graph.GetCurve(0)->m_nMarkerSize = value == 0 ? 1 : value;
        graph.GetCurve(0)->m_nMarker = value;
        graph.GetCurve(0)->m_nMarkerType = 1;
        graph.m_nAxisSpace = value;
        Paint();
        EXPECT_FALSE(::GetUpdateRect(graph.m_hWnd, nullptr, FALSE)) << value;
    }
}
