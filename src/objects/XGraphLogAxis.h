#pragma once
// A logarithmic axis as a class of its own, with a type field and operations that hide
// those of the plain axis. They are not virtual: only who holds this very class calls them.

#include "objects/XGraphAxis.h"

class CXGraphLogAxis : public CXGraphAxis
{
    DECLARE_SERIAL(CXGraphLogAxis)

public:
    CXGraphLogAxis() = default;
    CXGraphLogAxis(const CXGraphLogAxis&) = default;
    CXGraphLogAxis& operator=(const CXGraphLogAxis&) = default;
    ~CXGraphLogAxis() override;

    int m_LogType = 0; // atLinear hands everything to the base class; all else is logarithmic

    bool SetRange(double fMin, double fMax);
    void AutoScale(CDCEx* pDC);
    double GetValueForPos(int nPos);
    CPoint GetPointForValue(const TDataPoint& point);
    void Draw(CDCEx* pDC) override;
};
