// The automation object of a logarithmic axis before objects of several classes.

#include "NativeGraph.h"
#include "automation/SGraphLogAxis.h"

#include <cmath>

namespace
{

// The wrapper without a module around it: no references are counted.
class LogAxisWrapper : public CSGraphLogAxis
{
public:
    STDMETHOD_(ULONG, AddRef)() override { return 2; }
    STDMETHOD_(ULONG, Release)() override { return 1; }
    STDMETHOD(QueryInterface)(REFIID, void**) override { return E_NOINTERFACE; }

    explicit LogAxisWrapper(CXGraphObject* pObject)
    {
        SetObjectHandle(reinterpret_cast<UINT*>(pObject));
    }
};

class GraphLogAxisWrapper : public GraphTest
{
protected:
    GraphLogAxisWrapper()
    {
        AddLine();
        Paint();
    }
    CXGraphLogAxis LogAxis()
    {
        CXGraphLogAxis axis;
        axis.m_pGraph = &graph;
        axis.m_nLength = 200;
        return axis;
    }
};

} // namespace

TEST_F(GraphLogAxisWrapper, OnAPlainAxisItActsAsThePlainAxis)
{
    CXGraphAxis& axis = *graph.GetXAxis(0);
    LogAxisWrapper wrapper(&axis);
    EXPECT_EQ(wrapper.SetRange(2, 7), S_OK);
    EXPECT_EQ(axis.m_fMin, 2);
    EXPECT_EQ(axis.m_fMax, 7);
    EXPECT_EQ(wrapper.SetRange(9, 1), S_OK); // refused by the axis, which nobody learns
    EXPECT_EQ(axis.m_fMin, 2);
    double fValue = 0;
    EXPECT_EQ(wrapper.GetValueForPos(150, &fValue), S_OK);
    EXPECT_EQ(fValue, axis.GetValueForPos(150));
    EXPECT_EQ(wrapper.GetValueForPos(150, nullptr), S_FALSE);
    EXPECT_EQ(wrapper.SetAxisType(atLog), S_OK);
    EXPECT_EQ(axis.m_AxisType, atLog);
}

TEST_F(GraphLogAxisWrapper, OnATrueLogAxisItUsesTheLogAxissOwnFieldAndMapping)
{
    CXGraphLogAxis axis = LogAxis();
    LogAxisWrapper wrapper(&axis);
    EXPECT_EQ(wrapper.SetRange(1, 1000), S_OK);
    EXPECT_EQ(axis.m_fCurMax, 1000);
    double fValue = 0;
    const int nMiddle = graph.m_rcInner.left + 100;
    EXPECT_EQ(wrapper.GetValueForPos(nMiddle, &fValue), S_OK);
    EXPECT_EQ(fValue, axis.GetValueForPos(nMiddle));
    EXPECT_NEAR(fValue, std::sqrt(1000.0), 1e-9);
    EXPECT_EQ(wrapper.GetValueForPos(nMiddle, nullptr), S_FALSE);
    EXPECT_EQ(wrapper.SetAxisType(atLinear), S_OK);
    EXPECT_EQ(axis.m_LogType, atLinear);
    EAxisType type = atLog;
    EXPECT_EQ(wrapper.GetAxisType(&type), S_OK);
    EXPECT_EQ(type, atLinear); // the base's field, which nobody touched
    EXPECT_EQ(wrapper.SetAxisType(atLog), S_OK);
    EXPECT_EQ(axis.m_LogType, atLog);
    EXPECT_EQ(axis.m_AxisType, atLinear);
}

TEST_F(GraphLogAxisWrapper, OnAnyOtherObjectItDoesNothing)
{
    CXGraphLabel* pLabel = graph.InsertLabel(CRect(1, 2, 3, 4), L"label");
    LogAxisWrapper wrapper(pLabel);
    EXPECT_EQ(wrapper.SetRange(1, 2), S_OK);
    EXPECT_EQ(wrapper.SetAxisType(atLog), S_OK);
    double fValue = 5;
    EXPECT_EQ(wrapper.GetValueForPos(1, &fValue), S_OK);
    EXPECT_EQ(fValue, 5);
    EXPECT_EQ(wrapper.SetTickSize(99), S_OK);
    EXPECT_EQ(pLabel->m_rcObject, CRect(1, 2, 3, 4));
}
