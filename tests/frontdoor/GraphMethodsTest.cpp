// No method refuses for want of a native side: each answers with one of the two results that
// automation methods have.

#include "FrontDoorGraph.h"

namespace
{

using GraphMethods = FrontDoorGraph;

// Counts calls and keeps the names of the methods that refuse.
class Calls
{
public:
    void Add(const char* pszName, HRESULT result)
    {
        ++m_nCalls;
        if (result == E_NOTIMPL)
            m_pending.push_back(pszName);
        else
            EXPECT_TRUE(result == S_OK || result == S_FALSE) << pszName;
    }

    int m_nCalls = 0;
    std::vector<std::string> m_pending;
};

} // namespace

#define CALL(object, method, ...) calls.Add(#method, object->method(__VA_ARGS__))

TEST_F(GraphMethods, OfTheGraph)
{
    AddLine(0);
    Calls calls;
    Holder<ISGraphDataSerie> curve;
    Holder<ISGraphAxis> axis;
    Holder<ISGraphLabel> label;
    auto points = Line();
    int nValue = 0;
    LONG lValue = 0;
    ULONG color = 0;
    EAlignment align = left;
    EOperation operation = opNone;
    TDataPoint point = {5, 5};
    RECT rect = {0, 0, 10, 10};
    wireHWND hWnd = nullptr;
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring file = std::wstring(folder) + L"pending.bin";
    const Text path(file.c_str());

    CALL(graph, SetData, curve.Out(), points.data(), 11, 0, 0, 0, 0);
    CALL(graph, GetXAxis, axis.Out(), 0);
    CALL(graph, GetYAxis, axis.Out(), 0);
    CALL(graph, GetCurve, curve.Out(), 0);
    CALL(graph, DeleteXAxis, 5);
    CALL(graph, DeleteYAxis, 5);
    CALL(graph, DeleteCurve, 5);
    CALL(graph, InsertDataNotation, 0, 1);
    CALL(graph, AddLinearTrend, nullptr);
    CALL(graph, AddCubicTrend, nullptr);
    CALL(graph, GetXAxisCount, &nValue);
    CALL(graph, GetYAxisCount, &nValue);
    CALL(graph, GetCurveCount, &nValue);
    CALL(graph, SelectXAxis, 0);
    CALL(graph, SelectYAxis, 0);
    CALL(graph, SelectCurve, 0);
    CALL(graph, SetGraphMargins, 5, 5, 5, 5);
    CALL(graph, SaveBitmap, path);
    CALL(graph, Edit);
    CALL(graph, Zoom);
    CALL(graph, ResetZoom);
    CALL(graph, Pan);
    CALL(graph, NoOp);
    CALL(graph, Cursor);
    CALL(graph, Measure);
    CALL(graph, GetZoomDepth, &nValue);
    CALL(graph, SetBackgroundBitmap, nullptr, 0);
    CALL(graph, InsertLabel, Text(L""), &rect, label.Out());
    CALL(graph, InsertBitmap, nullptr, nullptr, nullptr);
    CALL(graph, SetBackColor, 1);
    CALL(graph, SetGraphColor, 1);
    CALL(graph, SetInnerColor, 1);
    CALL(graph, SetDoubleBuffer, 1);
    CALL(graph, SetShowLegend, 1);
    CALL(graph, SetInteraction, 1);
    CALL(graph, SetSnapCursor, 1);
    CALL(graph, SetLegendAlignment, right);
    CALL(graph, SetSnapRange, 1);
    CALL(graph, SetPrintHeader, Text(L""));
    CALL(graph, SetPrintFooter, Text(L""));
    CALL(graph, SetCursor, 1, 1);
    CALL(graph, SetCursorFlags, 7);
    CALL(graph, Autoscale, 0, 0, 0);
    CALL(graph, DeleteMeasures);
    CALL(graph, ForceSnap, -1);
    CALL(graph, GetBackColor, &color);
    CALL(graph, GetGraphColor, &color);
    CALL(graph, GetInnerColor, &color);
    CALL(graph, GetDoubleBuffer, &lValue);
    CALL(graph, GetShowLegend, &lValue);
    CALL(graph, GetInteraction, &lValue);
    CALL(graph, GetSnapCursor, &lValue);
    CALL(graph, GetLegendAlignment, &align);
    CALL(graph, GetSnapRange, &nValue);
    CALL(graph, GetCursor, &lValue, &lValue);
    CALL(graph, GetOperation, &operation);
    CALL(graph, GetCursorAbsolute, 0, &point);
    CALL(graph, SetCursorAbsolute, 0, &point, 0);
    CALL(graph, Save, path, 7);
    CALL(graph, Load, path);
    CALL(graph, Create, nullptr, &rect, nullptr, 1);
    CALL(graph, Invalidate, 1);
    CALL(graph, PostMessage, WM_NULL, 0, 0);
    CALL(graph, SendMessage, WM_NULL, 0, 0);
    CALL(graph, GetHandle, &hWnd);
    CALL(graph, GetXGraphMsgInfo, XG_CURVECLICK, nullptr);
    CALL(graph, GetXGraphPersistInfo, PERSIST_DATA, nullptr);
    CALL(graph, GetXGraphXgcInfo, XGC_HORIZ, nullptr);
    CALL(graph, ResetAll);
    ::DeleteFileW(file.c_str());

    EXPECT_EQ(calls.m_nCalls, 69);
    EXPECT_EQ(calls.m_pending, std::vector<std::string>());
}

TEST_F(GraphMethods, OfTheCurve)
{
    auto curve = AddLine(0);
    Calls calls;
    TDataPoint* arrays[8] = {};
    CALL(curve, GetLinearTrend, &arrays[0], 1);
    CALL(curve, GetCubicTrend, &arrays[1], 1);
    CALL(curve, GetPolynomialTrend, &arrays[2], 2, 1);
    CALL(curve, GetSimpleMovingAverage, &arrays[3], 3);
    CALL(curve, GetExponentialMovingAverage, &arrays[4], 3);
    CALL(curve, GetLinearMovingAverage, &arrays[5], 3);
    CALL(curve, GetTriangularMovingAverage, &arrays[6], 3);
    CALL(curve, GetSineWeightedMovingAverage, &arrays[7], 3);
    EXPECT_EQ(calls.m_nCalls, 8);
    EXPECT_EQ(calls.m_pending, std::vector<std::string>());
    for (TDataPoint* pArray : arrays) {
        EXPECT_NE(pArray, nullptr);
        ::CoTaskMemFree(pArray); // the host's way to free what it is given
    }
}
