// The lines of the cursor's box.

#include "graph/CursorText.h"
#include "NativeGraph.h"

namespace
{

CXGraphAxis Axis(const wchar_t* pszFormat, const wchar_t* pszLabel, bool bDateTime = false)
{
    CXGraphAxis axis;
    axis.m_cDisplayFmt = pszFormat;
    axis.m_cLabel = pszLabel;
    axis.m_bDateTime = bDateTime;
    return axis;
}

constexpr double Noon = 43831.5; // 2020-01-01 12:00

class CursorTextBox : public GraphTest
{
};

} // namespace

TEST(CursorText, NumbersStandBetweenTheAxissPlaceAndItsTitle)
{
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%5.1f", L"mm"), 2.5), L" X[01] :   2.5 mm\r\n");
    EXPECT_EQ(CursorText::XAxisLine(123, Axis(L"%.2e", L" "), -1e9), L" X[123] : -1.00e+09  \r\n");
    EXPECT_EQ(CursorText::YAxisLine(12, Axis(L"%g", L"50 %s"), 0.25), L" Y[12] : 0.25 50 %s\r\n");
}

TEST(CursorText, ADateTakesOneLine)
{
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%Y-%m-%d\r\n%H:%M", L"UTC", true), Noon),
              L" X[01] : 2020-01-01  12:00 UTC\r\n");
    EXPECT_EQ(CursorText::XAxisLine(2, Axis(L"%Y", L"t", true), 1e300),
              L" X[02] : Invalid DateTime t\r\n");
}

TEST(CursorText, APercentSignInADateIsTakenForAFormat)
{
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%%s %Y", L"t", true), Noon), L" X[01] : t 2020 %s\r\n");
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"100%%%%", L"t", true), Noon), L" X[01] : 100% t\r\n");
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%%n%%d%%f", L"t", true), Noon), L" X[01] : %n%d%f t\r\n");
}

TEST(CursorText, YAxesHaveNoDates)
{
    EXPECT_EQ(CursorText::YAxisLine(1, Axis(L"%5.1f", L"t", true), Noon), L" Y[01] : 43831.5 t\r\n");
    EXPECT_EQ(CursorText::YAxisLine(1, Axis(L"%Y-%m", L"t", true), Noon), L" Y[01] : %Y-%m t\r\n");
}

TEST(CursorText, FormatsFromOutsideTakeOneNumberAndReadNothingElse)
{
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%n%s%d %.1f %f %p", L"%n"), 2.5),
              L" X[01] : %n%s%d 2.5 %f %p %n\r\n");
    EXPECT_LT(CursorText::YAxisLine(1, Axis(L"%999999999.999999999f", L""), 1.5).GetLength(), 200);
    EXPECT_EQ(CursorText::YAxisLine(1, Axis(L"", L"t"), 1.5), L" Y[01] :  t\r\n");
}

TEST(CursorText, TheCurvesLineHasBothValues)
{
    EXPECT_EQ(
        CursorText::CurveLine(L"speed", 3, Axis(L"%.1f\r\nm", L"x"), 1.5, Axis(L"%.2f\n", L"y"), 2.5),
        L" speed[03] : 1.5  m, 2.50\n\r\n");
    EXPECT_EQ(CursorText::CurveLine(L"%s%n", 1, Axis(L"%.1f", L"x"), 1.5, Axis(L"%.2f", L"y"), 2.5),
              L" %s%n[01] : 1.5, 2.50\r\n");
}

TEST(CursorText, TheCurvesLineWithADateHandsYToTheWholeOfIt)
{
    EXPECT_EQ(
        CursorText::CurveLine(L"c", 1, Axis(L"%d.%m.\n%Y", L"x", true), Noon, Axis(L"%.2f", L"y"), 2.5),
        L" c[01] : 01.01. 2020, 2.50\r\n");
    EXPECT_EQ(CursorText::CurveLine(L"c", 1, Axis(L"%%.1f", L"x", true), Noon, Axis(L"%.2f", L"y"), 2.5),
              L" c[01] : 2.5, %.2f\r\n");
}

TEST(CursorText, LongTitlesStayWhole)
{
    const std::wstring title(100000, L'%');
    EXPECT_EQ(CursorText::XAxisLine(1, Axis(L"%.0f", title.c_str()), 1).GetLength(), 100000 + 13);
    EXPECT_EQ(
        CursorText::CurveLine(title.c_str(), 1, Axis(L"1", L""), 1, Axis(L"2", L""), 1).GetLength(),
        100000 + 14);
}

TEST_F(CursorTextBox, HasALineForEveryAxisAndOneForTheCurve)
{
    AddLine(0, 0)->m_cLabel = L"first";
    AddLine(1, 1)->m_cLabel = L"second";
    for (int i = 0; i < 2; ++i) {
        graph.GetXAxis(i)->m_cDisplayFmt = L"%.6f";
        graph.GetXAxis(i)->m_cLabel = i == 0 ? L"a" : L"b";
        graph.GetYAxis(i)->m_cDisplayFmt = L"%.6f";
        graph.GetYAxis(i)->m_cLabel = i == 0 ? L"c" : L"d";
    }
    graph.GetXAxis(1)->SetRange(100, 200);
    graph.Cursor();
    Paint();
    graph.m_nForcedSnapCurve = 1;
    graph.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(200, 120));
    auto number = [](double fValue) {
        CString text;
        text.Format(L"%.6f", fValue);
        return text;
    };
    const CPoint at = graph.m_ptCurrent;
    const CString expected = L" X[01] : " + number(graph.GetXAxis(0)->GetValueForPos(at.x)) +
                             L" a\r\n X[02] : " + number(graph.GetXAxis(1)->GetValueForPos(at.x)) +
                             L" b\r\n Y[01] : " + number(graph.GetYAxis(0)->GetValueForPos(at.y)) +
                             L" c\r\n Y[02] : " + number(graph.GetYAxis(1)->GetValueForPos(at.y)) +
                             L" d\r\n second[02] : " + number(graph.m_CursorTool.m_fCursorX) + L", " +
                             number(graph.m_CursorTool.m_fCursorY) + L"\r\n";
    EXPECT_EQ(graph.m_CursorLabel.m_cText, expected);
    EXPECT_EQ(graph.m_CursorLabel.m_rcObject.Size(), CSize(149, 50)); // whatever the text's length
}
