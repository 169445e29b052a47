// Trends and moving averages that the curve page adds to the graph.

#include "CurvePageHost.h"

#include <cmath>

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurveAnalysis : public CurvePageTest
{
protected:
    void AddAverage(int nKind, const wchar_t* pszSpan, int nCurve = 0)
    {
        OpenAnd(
            [=, this](HWND hPage) {
                Ask(hPage, average, AverageDialog, [=](HWND hDialog) {
                    Choose(hDialog, type, nKind);
                    Paste(hDialog, span, pszSpan);
                });
            },
            nCurve);
    }
    void AddTrend(int nButton, const wchar_t* pszExpand, const wchar_t* pszDegree, int nCurve = 0)
    {
        OpenAnd(
            [=, this](HWND hPage) {
                Ask(hPage, nButton, Trend, [=](HWND hDialog) {
                    Paste(hDialog, expand, pszExpand);
                    Paste(hDialog, degree, pszDegree);
                });
            },
            nCurve);
    }
    template <class Get> std::vector<TDataPoint> Expected(int nCount, Get get, int nCurve = 0)
    {
        TDataPoint* pPoints = nullptr;
        get(Curve(nCurve).Get(), &pPoints);
        return Taken(pPoints, nCount);
    }
    // As a file holds a text: its mark, its length, its units.
    static std::string Stored(const std::wstring& text)
    {
        std::string bytes = "\xFF\xFE\xFF";
        bytes += static_cast<char>(text.size());
        return bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * 2);
    }
};

// The average over a half sine wave of weights, as its definition says it.
std::vector<TDataPoint> SineWeighted(const std::vector<TDataPoint>& points, int nSpan)
{
    std::vector<TDataPoint> result = points;
    const double b = 3.14159265358979 / (nSpan + 1);
    for (int i = 1; i < static_cast<int>(points.size()); ++i) {
        const int w = std::min(i, nSpan);
        double sum = 0, weights = 0;
        for (int j = w; j > 0; --j) {
            sum += std::sin(j * b) * points[static_cast<std::size_t>(i - (w - j))].fYVal;
            weights += std::sin(j * b);
        }
        result[static_cast<std::size_t>(i)].fYVal = sum / weights;
    }
    return result;
}

} // namespace

TEST_F(CurveAnalysis, EachKindOfAverageBecomesACurveNamedForIt)
{
    const wchar_t* names[] = {L"T1 AVG, simple", L"T1 AVG, linear", L"T1 AVG, exponential",
                              L"T1 AVG, triangular", L"T1 AVG, sine weighted"};
    using Average = HRESULT (STDMETHODCALLTYPE ISGraphDataSerie::*)(TDataPoint**, int);
    const Average averages[] = {
        &ISGraphDataSerie::GetSimpleMovingAverage, &ISGraphDataSerie::GetLinearMovingAverage,
        &ISGraphDataSerie::GetExponentialMovingAverage, &ISGraphDataSerie::GetTriangularMovingAverage};
    for (int nKind = 0; nKind < 5; ++nKind) {
        AddAverage(nKind, L"3");
        ASSERT_EQ(CurveCount(), 4 + nKind);
        EXPECT_EQ(LabelOf(3 + nKind), names[nKind]);
        EXPECT_EQ(LabelOf(0), L"T1");
        if (nKind == 4)
            continue;
        EXPECT_EQ(PointsOf(3 + nKind),
                  Expected(11, [&](ISGraphDataSerie* pCurve,
                                   TDataPoint** ppPoints) { (pCurve->*averages[nKind])(ppPoints, 3); }))
            << nKind;
    }
    const auto sine = PointsOf(7), expected = SineWeighted(PointsOf(0), 3);
    ASSERT_EQ(sine.size(), expected.size());
    for (std::size_t i = 0; i < sine.size(); ++i)
        EXPECT_DOUBLE_EQ(sine[i].fYVal, expected[i].fYVal) << i;
}

TEST_F(CurveAnalysis, ALinearTrendContinuesByThePointsAskedFor)
{
    AddTrend(linearTrend, L"4", L"2", 1);
    ASSERT_EQ(CurveCount(), 4);
    EXPECT_EQ(LabelOf(3), L"T2 Trend (lin.)");
    const auto points = PointsOf(3);
    EXPECT_EQ(points, Expected(
                          15,
                          [](ISGraphDataSerie* pCurve, TDataPoint** ppPoints) {
                              pCurve->GetLinearTrend(ppPoints, 4);
                          },
                          1));
    EXPECT_DOUBLE_EQ(points.back().fXVal, 14);
    EXPECT_NEAR(points.back().fYVal, -4, 1e-9);
}

TEST_F(CurveAnalysis, ACubicTrendIsNamedForItAndAsksNothingOfTheDegree)
{
    AddTrend(cubicTrend, L"0", L"20");
    AddTrend(cubicTrend, L"0", L"2");
    ASSERT_EQ(CurveCount(), 5);
    EXPECT_EQ(LabelOf(3), L"T1 Trend (cub.)");
    EXPECT_EQ(PointsOf(3), PointsOf(4));
    EXPECT_EQ(PointsOf(3), Expected(11, [](ISGraphDataSerie* pCurve, TDataPoint** ppPoints) {
                  pCurve->GetCubicTrend(ppPoints, 0);
              }));
}

TEST_F(CurveAnalysis, APolynomialTrendBringsItsFormulaAsALabel)
{
    const std::string before = ObjectBytes();
    AddTrend(polynomialTrend, L"2", L"3", 1);
    ASSERT_EQ(CurveCount(), 4);
    EXPECT_EQ(LabelOf(3), L"T2 Trend (poly.) ");
    EXPECT_EQ(PointsOf(3), Expected(
                               13,
                               [](ISGraphDataSerie* pCurve, TDataPoint** ppPoints) {
                                   pCurve->GetPolynomialTrend(ppPoints, 3, 2);
                               },
                               1));

    const std::string after = ObjectBytes();
    std::string head = Stored(L"f(x)=");
    head.erase(0, 4); // whatever the length is
    const std::size_t nText = after.find(head);
    ASSERT_NE(nText, std::string::npos);
    EXPECT_EQ(before.find(head), std::string::npos);
    const auto nLength = static_cast<unsigned char>(after[nText - 1]);
    std::wstring formula(nLength, L'\0');
    std::memcpy(formula.data(), after.data() + nText, nLength * 2u);
    int nLines = 1;
    for (const wchar_t unit : formula)
        nLines += unit == L'\n' ? 1 : 0;
    EXPECT_EQ(nLines, 3) << "a line for each term";
    EXPECT_NE(formula.find(L"f(x)=1.0000e+01*X^0+\n-1.0000e+00*X^1"), std::wstring::npos)
        << std::string(formula.begin(), formula.end());

    // The box is the text's own in the window's font, from (200, 200) on.
    RECT box;
    std::memcpy(&box, after.data() + nText - 4 - 4 - 16, 16);
    RECT measured = {200, 200, 210, 210};
    const HDC hDC = ::GetDC(Handle());
    ::DrawTextW(hDC, formula.c_str(), -1, &measured, DT_CALCRECT);
    ::ReleaseDC(Handle(), hDC);
    EXPECT_TRUE(::EqualRect(&box, &measured)) << box.right << ", " << box.bottom;
}

TEST_F(CurveAnalysis, APolynomialThatCannotBeFittedIsToldAndAddsNothing)
{
    std::vector<TDataPoint> upright = {{0, 0}, {0, 10}}; // one x alone
    const std::string before = ObjectBytes();
    std::wstring box;
    OpenAnd([&](HWND hPage) {
        graph->SetData(nullptr, upright.data(), 2, 0, 0, 0, 0);
        Ask(hPage, polynomialTrend, Trend, [&](HWND hDialog) {
            Paste(hDialog, degree, L"2");
            script.When(Box, [&](HWND hBox) {
                box = TextOf(hBox, 0xFFFF);
                ::PostMessageW(hBox, WM_COMMAND, IDOK, 0);
            });
        });
    });
    EXPECT_EQ(box, L"Could not create polynomial trend for the selected curve.");
    EXPECT_EQ(CurveCount(), 3);
    EXPECT_EQ(ObjectBytes(), before);
    graph->ResetAll(); // the curve reads the array above
}

TEST_F(CurveAnalysis, CancelAddsNothing)
{
    for (const int nButton : {linearTrend, cubicTrend, polynomialTrend, average}) {
        OpenAnd([&](HWND hPage) {
            Ask(
                hPage, nButton, nButton == average ? AverageDialog : Trend,
                [](HWND hDialog) { Click(hDialog, cancel); }, false);
        });
    }
    EXPECT_EQ(CurveCount(), 3);
}

TEST_F(CurveAnalysis, TheNewCurveLiesOnTheAxesOfItsSource)
{
    std::vector<TDataPoint> points = Line();
    graph->SetData(nullptr, points.data(), 11, 3, 1, 1, 1);
    graph->SetData(nullptr, points.data(), 11, 4, 1, 1, 1);
    graph->DeleteCurve(3); // the last one now has an index of its own past its place
    graph->ResetAll();
    graph->SetData(nullptr, points.data(), 11, 0, 0, 0, 1);
    graph->SetData(nullptr, points.data(), 11, 1, 1, 1, 1);
    ShowAsTold();
    Curve(0)->SetVisible(0);
    Frame();
    Work([this](HWND hPage) { Ask(hPage, linearTrend, Trend, [](HWND) {}); });
    DoubleClick(At(5, 5, 1, 1));
    ASSERT_EQ(CurveCount(), 3);
    EXPECT_EQ(Got(2, &ISGraphDataSerie::GetXAxis), 1);
    EXPECT_EQ(Got(2, &ISGraphDataSerie::GetYAxis), 1);
}

TEST_F(CurveAnalysis, ThePageStaysWithItsCurveAndItsPartnerListAsItWas)
{
    OpenAnd([this](HWND hPage) {
        for (int i = 0; i < 5; ++i)
            Ask(hPage, linearTrend, Trend, [](HWND) {});
        EXPECT_EQ(RowsOf(hPage, fillCurve), (std::vector<std::wstring>{L"2 T2", L"3 T3"}));
        Paste(hPage, label, L"still T1");
        Click(hPage, apply);
    });
    EXPECT_EQ(CurveCount(), 8);
    EXPECT_EQ(LabelOf(0), L"still T1");
    EXPECT_EQ(LabelOf(7), L"T1 Trend (lin.)");
}

TEST_F(CurveAnalysis, TheNewCurveIsSeenWhenTheSheetHasClosed)
{
    AddTrend(cubicTrend, L"0", L"5");
    const Picture with = Shoot();
    ULONG color = 0;
    Curve(3)->GetColor(&color);
    EXPECT_EQ(color, 0x00FFFFu) << "the fourth colour of the table";
    EXPECT_GT(with.Count(color), 20);
}

// An index that a curve was given once is not renumbered when an earlier curve goes: the page
// then finds another one by it, here the new curve itself.
TEST_F(CurveAnalysis, ACurveWhoseIndexIsNotItsPlaceNamesTheNewOneForWhatStandsAtThatIndex)
{
    graph->DeleteCurve(0);
    Frame();
    Work([this](HWND hPage) {
        EXPECT_EQ(TextOf(hPage, label), L"T3");
        Ask(hPage, linearTrend, Trend, [](HWND) {});
    });
    DoubleClick(At(8.5, 7));
    ASSERT_EQ(CurveCount(), 3);
    EXPECT_EQ(LabelOf(2), L"  Trend (lin.)");
    EXPECT_EQ(LabelOf(1), L"T3");
}
