#include "graph/CursorText.h"

#include "objects/XGraphAxis.h"

namespace CursorText
{
namespace
{
CString OneLine(CString format)
{
    format.Replace(L'\r', L' ');
    format.Replace(L'\n', L' ');
    return format;
}

CString Line(const CString& text)
{
    return L" " + text + L"\r\n";
}

CString NumberLine(LPCWSTR letter, int number, const CXGraphAxis& axis, double value)
{
    CString head;
    head.Format(L"%s[%02d] : ", letter, number);
    return Line(head + AfxFormatNumber(axis.m_cDisplayFmt, value) + L" " + axis.m_cLabel);
}
} // namespace

CString XAxisLine(int number, const CXGraphAxis& axis, double value)
{
    if (!axis.m_bDateTime)
        return NumberLine(L"X", number, axis, value);
    const CString date = axis.FormatDate(OneLine(axis.m_cDisplayFmt), value);
    CString text;
    text.Format(L"X[%02d] : " + date + L" %s", number, axis.m_cLabel);
    return Line(text);
}

CString YAxisLine(int number, const CXGraphAxis& axis, double value)
{
    return NumberLine(L"Y", number, axis, value);
}

CString CurveLine(const CString& curveLabel, int number, const CXGraphAxis& xAxis, double x,
                  const CXGraphAxis& yAxis, double y)
{
    CString head;
    head.Format(L"%s[%02d] : ", curveLabel, number);
    const CString xFormat = OneLine(xAxis.m_cDisplayFmt);
    if (!xAxis.m_bDateTime)
        return Line(head + AfxFormatNumber(xFormat, x) + L", " +
                    AfxFormatNumber(yAxis.m_cDisplayFmt, y));
    return Line(head + AfxFormatNumber(xAxis.FormatDate(xFormat, x) + L", " + yAxis.m_cDisplayFmt, y));
}
} // namespace CursorText
