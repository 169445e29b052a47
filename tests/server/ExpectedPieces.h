#pragma once
// What the type library must hold, interface by interface: number, name and parameters of each
// method, in the order of the method table.

#include <span>

struct ExpectedMethod {
    int id;
    const char* name;
    const char* parameters;
};

struct ExpectedInterface {
    const char* name;
    const char* base;
    const char* iid;
    std::span<const ExpectedMethod> methods;
};

inline constexpr ExpectedMethod MethodsOfISObject[] = {
    {1, "SetObjectHandle", "in uint* hObj"},
    {2, "GetObjectHandle", "out uint** hObj"},
};

inline constexpr ExpectedMethod MethodsOfISGraphObject[] = {
    {5, "SetRect", "in tagRECT* pRect"},        {6, "GetRect", "out tagRECT* pRect"},
    {7, "SetSelected", "in long bValue"},       {8, "GetSelected", "out long* pbValue"},
    {9, "SetVisible", "in long bValue"},        {10, "GetVisible", "out long* pbValue"},
    {11, "SetColor", "in ulong color"},         {12, "GetColor", "out ulong* pColor"},
    {13, "GetGraph", "out IDispatch** pGraph"},
};

inline constexpr ExpectedMethod MethodsOfISGraphAxis[] = {
    {21, "SetAxisType", "in EAxisType type"},
    {22, "GetAxisType", "out EAxisType* pType"},
    {23, "SetShowMarker", "in long bValue"},
    {24, "GetShowMarker", "out long* pbValue"},
    {25, "SetDateTime", "in long bValue"},
    {26, "GetDateTime", "out long* pbValue"},
    {27, "SetShowGrid", "in long bValue"},
    {28, "GetShowGrid", "out long* pbValue"},
    {29, "SetAutoScale", "in long bValue"},
    {30, "GetAutoScale", "out long* pbValue"},
    {31, "SetArcSize", "in int nValue"},
    {32, "GetArcSize", "out int* pnValue"},
    {33, "SetMarkerSize", "in int nValue"},
    {34, "GetMarkerSize", "out int* pnValue"},
    {35, "SetTickSize", "in int nValue"},
    {36, "GetTickSize", "out int* pnValue"},
    {37, "SetGridStyle", "in uint nValue"},
    {38, "GetGridStyle", "out uint* pnValue"},
    {39, "SetLabel", "in BSTR bstrValue"},
    {40, "GetLabel", "out BSTR* pbstrValue"},
    {41, "SetDisplayFmt", "in BSTR bstrValue"},
    {42, "GetDisplayFmt", "out BSTR* pbstrValue"},
    {43, "SetGridColor", "in ulong color"},
    {44, "GetGridColor", "out ulong* pColor"},
    {45, "SetPlacement", "in EAxisPlacement placement"},
    {46, "GetPlacement", "out EAxisPlacement* pPlacement"},
    {47, "GetAxisMarkerCount", "out long* pValue"},
    {48, "GetValueForPos", "in int nPos, out double* pValue"},
    {49, "SetAxisMarker", "in int nMarker, in double fValue, in ulong crColor, in uint nStyle"},
    {50, "SetMaskerLabel", "in int nPos, in BSTR bstrValue"},
    {51, "SetColorRange",
     "in int nRange, in double fMin, in double fMax, in ulong crMinColor, in ulong crMaxColor, "
     "in BSTR bstrLabel, in uint nStyle"},
    {52, "DeleteColorRange", "in int nRange"},
    {53, "DeleteAllColorRanges", ""},
};

inline constexpr ExpectedMethod MethodsOfISGraphLogAxis[] = {
    {60, "SetRange", "in double fMin, in double fMax"},
    {61, "GetValueForPos", "in int nPos, out double* pValue"},
    {62, "SetAxisType", "in EAxisType type"},
};

inline constexpr ExpectedMethod MethodsOfISGraphDataSerie[] = {
    {20, "GetGraph", "out IDispatch** pRef"},
    {21, "GetLinearTrend", "out TDataPoint** pRef, in long nPoints"},
    {22, "GetCubicTrend", "out TDataPoint** pRef, in long nPoints"},
    {23, "GetPolynomialTrend", "out TDataPoint** pRef, in int nDegree, in int nPoints"},
    {24, "GetSimpleMovingAverage", "out TDataPoint** pRef, in int span"},
    {25, "GetExponentialMovingAverage", "out TDataPoint** pRef, in int span"},
    {26, "GetLinearMovingAverage", "out TDataPoint** pRef, in int span"},
    {27, "GetTriangularMovingAverage", "out TDataPoint** pRef, in int span"},
    {28, "GetSineWeightedMovingAverage", "out TDataPoint** pRef, in int span"},
    {29, "SetLineSize", "in int nValue"},
    {30, "SetFillStyle", "in int nValue"},
    {31, "SetMarkerType", "in int nValue"},
    {32, "SetMarker", "in int nValue"},
    {33, "SetMarkerSize", "in int nValue"},
    {34, "SetShowMarker", "in long bValue"},
    {35, "SetFillColor", "in ulong color"},
    {36, "SetFillCurve", "in int nValue"},
    {37, "SetFillBeneath", "in long bValue, in int nValue"},
    {38, "SetFillTransparent", "in long bValue"},
    {39, "SetLabel", "in BSTR bstrText"},
    {40, "SetType", "in EGraphType type"},
    {41, "GetCount", "out long* pnValue"},
    {42, "GetIndex", "out int* pnValue"},
    {43, "GetXAxis", "out int* pnValue"},
    {44, "GetYAxis", "out int* pnValue"},
    {45, "GetLineSize", "out int* pnValue"},
    {46, "GetFillStyle", "out int* pnValue"},
    {47, "GetMarkerType", "out int* pnValue"},
    {48, "GetMarker", "out int* pnValue"},
    {49, "GetMarkerSize", "out int* pnValue"},
    {50, "GetLineStyle", "out uint* pnValue"},
    {51, "GetShowMarker", "out long* pnValue"},
    {52, "GetFillBeneath", "out long* pnValue"},
    {53, "GetFillCurve", "out int* pnValue"},
    {54, "GetFillTransparent", "out long* pnValue"},
    {55, "GetLabel", "out BSTR* psVale"},
    {56, "GetType", "out EGraphType* pType"},
    {57, "SetLineStyle", "in uint nValue"},
};

inline constexpr ExpectedMethod MethodsOfISGraphLabel[] = {
    {80, "SetFont", "in uint* pLogFontw"},       {81, "SetText", "in BSTR pText"},
    {82, "GetText", "out BSTR* pText"},          {83, "SetColor", "in ulong color"},
    {84, "GetColor", "out ulong* pColor"},       {85, "SetTextColor", "in ulong color"},
    {86, "GetTextColor", "out ulong* pColor"},   {87, "SetBorder", "in long bValue"},
    {88, "GetBorder", "out long* bpValue"},      {89, "SetTransparent", "in long bValue"},
    {90, "GetTransparent", "out long* bpValue"}, {91, "SetAlignment", "in uint value"},
    {92, "GetAlignment", "out uint* pValue"},    {93, "SetCurve", "in int value"},
    {94, "GetCurve", "out int* pValue"},
};

inline constexpr ExpectedMethod MethodsOfISGraphBitmap[] = {
    {20, "SetBorder", "in long bValue"},
    {21, "SetBitmap", "in uint* hBitmap"},
    {22, "GetBorder", "out long* pbValue"},
    {23, "GetBitmap", "out uint** hBitmap"},
};
