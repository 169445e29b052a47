// What the edits of the curve page, of the trend's and of the average's dialog take and refuse.

#include "CurvePageHost.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurveLimits : public CurvePageTest
{
protected:
    // Pastes each text into the edit and presses OK: the dialog says `box` each time, stays, and
    // has the focus back in the edit with all of its text selected.
    void ExpectRefused(HWND hDialog, int nID, const std::vector<const wchar_t*>& texts,
                       const wchar_t* pszBox)
    {
        for (const wchar_t* pszText : texts) {
            Paste(hDialog, nID, pszText);
            ::SetFocus(::GetDlgItem(hDialog, ok));
            EXPECT_EQ(BoxFrom([=] { Click(hDialog, ok); }), pszBox) << Narrow(pszText);
            ASSERT_TRUE(::IsWindow(hDialog));
            EXPECT_TRUE(IsOffered(hDialog, nID)) << Narrow(pszText);
        }
    }
    static std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
    static void ExpectRange(HWND hDialog, int nSpin, int nLower, int nUpper)
    {
        int nLow = -1, nHigh = -1;
        ::SendDlgItemMessageW(hDialog, nSpin, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&nLow),
                              reinterpret_cast<LPARAM>(&nHigh));
        EXPECT_EQ(nLow, nLower);
        EXPECT_EQ(nHigh, nUpper);
    }

    const std::vector<const wchar_t*> noNumbers = {L"", L" ", L"abc", L"-1", L"1,5", L"1.5", L"٣"};
    static constexpr const wchar_t* NoNumber = L"Please enter a positive integer.";
};

} // namespace

TEST_F(CurveLimits, APagesNumberIsCheckedAtEachChangeAndNothingIsEnabledByABadOne)
{
    OpenAnd([this](HWND hPage) {
        for (const int nID : {lineSize, markerSize}) {
            for (const wchar_t* pszText : noNumbers) {
                EXPECT_EQ(BoxFrom([=] { Paste(hPage, nID, pszText); }), NoNumber) << Narrow(pszText);
                EXPECT_TRUE(IsOffered(hPage, nID)) << Narrow(pszText);
                EXPECT_FALSE(IsEnabled(hPage, apply));
            }
            const wchar_t* pszRange = nID == lineSize ? L"Please enter an integer between 1 and 5."
                                                      : L"Please enter an integer between 1 and 20.";
            for (const wchar_t* pszText : {L"0", L"21", L"4294967295", L"99999999999999999999"})
                EXPECT_EQ(BoxFrom([=] { Paste(hPage, nID, pszText); }), pszRange) << Narrow(pszText);
            EXPECT_FALSE(IsEnabled(hPage, apply));
            Paste(hPage, nID, L"1");
            ::EnableWindow(::GetDlgItem(hPage, apply), FALSE);
        }
    });
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetLineSize), 1);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetMarkerSize), 10);
}

TEST_F(CurveLimits, OkWithABadNumberStoresNothingAndTheSheetStays)
{
    OpenAnd([this](HWND hPage) {
        Paste(hPage, label, L"never");
        EXPECT_EQ(BoxFrom([=] { Paste(hPage, markerSize, L"0"); }),
                  L"Please enter an integer between 1 and 20.");
        EXPECT_EQ(BoxFrom([=] { Click(hPage, ok); }), L"Please enter an integer between 1 and 20.");
        EXPECT_TRUE(::IsWindow(hPage));
        EXPECT_EQ(BoxFrom([=] { Click(hPage, apply); }), L"Please enter an integer between 1 and 20.");
        EXPECT_TRUE(IsEnabled(hPage, apply)) << "the label's change is still pending";
    });
    EXPECT_EQ(LabelOf(0), L"T1");
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetMarkerSize), 10);
}

TEST_F(CurveLimits, ACurveFromElsewhereWithAWiderLineIsShownAndRefusedAtTheFirstChange)
{
    Curve(0)->SetLineSize(9);
    Frame();
    OpenAnd([this](HWND hPage) {
        EXPECT_EQ(TextOf(hPage, lineSize), L"9");
        EXPECT_EQ(BoxFrom([=] { Click(hPage, visible); }), L"Please enter an integer between 1 and 5.");
        EXPECT_FALSE(IsEnabled(hPage, apply));
    });
}

TEST_F(CurveLimits, AnyTextIsALabel)
{
    const std::wstring text = std::wstring(3000, L'x') + L" %s %n 曲线 ";
    OpenAnd([&](HWND hPage) {
        Paste(hPage, label, text.c_str());
        Click(hPage, apply);
    });
    EXPECT_EQ(LabelOf(0), text);
    OpenAnd([](HWND hPage) {
        Paste(hPage, label, L"");
        Click(hPage, apply);
    });
    EXPECT_EQ(LabelOf(0), L"");
}

TEST_F(CurveLimits, ThePagesSpinsHaveTheRangesOfTheirEdits)
{
    OpenAnd([](HWND hPage) {
        ExpectRange(hPage, lineSizeSpin, 1, 5);
        ExpectRange(hPage, markerSizeSpin, 1, 20);
        for (int nStep = 0; nStep < 7; ++nStep)
            Spin(hPage, lineSizeSpin, true);
        EXPECT_EQ(TextOf(hPage, lineSize), L"5");
    });
}

TEST_F(CurveLimits, ATrendAsksForPointsAndDegree)
{
    OpenAnd([this](HWND hPage) {
        Ask(
            hPage, linearTrend, Trend,
            [this](HWND hDialog) {
                EXPECT_EQ(TextOf(hDialog, expand), L"0");
                EXPECT_EQ(TextOf(hDialog, degree), L"5");
                ExpectRange(hDialog, expandSpin, 0, 100000000);
                ExpectRange(hDialog, degreeSpin, 2, 20);
                Spin(hDialog, expandSpin, true);
                EXPECT_EQ(TextOf(hDialog, expand), L"1");
                Spin(hDialog, degreeSpin, false);
                EXPECT_EQ(TextOf(hDialog, degree), L"4");

                ExpectRefused(hDialog, expand, noNumbers, NoNumber);
                ExpectRefused(hDialog, expand, {L"100000001", L"4294967295", L"99999999999999999999"},
                              L"Please enter an integer between 0 and 100000000.");
                Paste(hDialog, expand, L"0");
                ExpectRefused(hDialog, degree, noNumbers, NoNumber);
                ExpectRefused(hDialog, degree, {L"0", L"1", L"21", L"99999999999999999999"},
                              L"Please enter an integer between 2 and 20.");
            },
            false);
    });
    EXPECT_EQ(CurveCount(), 3);
}

TEST_F(CurveLimits, AnAverageAsksForItsKindAndAWindowUpToHalfOfTheCurve)
{
    std::vector<TDataPoint> points;
    for (int i = 0; i < 100; ++i)
        points.push_back({i * 0.1, i * 0.1});
    graph->ResetAll();
    Add(points, 0);
    ShowAsTold();
    Frame();
    OpenAnd([this](HWND hPage) {
        Ask(
            hPage, average, AverageDialog,
            [this](HWND hDialog) {
                EXPECT_EQ(RowsOf(hDialog, type),
                          (std::vector<std::wstring>{L"Simple", L"Linear", L"Exponential", L"Triangular",
                                                     L"Sine-weighted"}));
                EXPECT_EQ(RowOf(hDialog, type), 0);
                EXPECT_EQ(TextOf(hDialog, span), L"10");
                ExpectRange(hDialog, spanSpin, 1, 50);
                ExpectRefused(hDialog, span, noNumbers, NoNumber);
                ExpectRefused(hDialog, span, {L"0", L"51", L"4294967295"},
                              L"Please enter an integer between 1 and 50.");
                Paste(hDialog, span, L"50");
            },
            true);
    });
    EXPECT_EQ(CurveCount(), 2);
}

TEST_F(CurveLimits, TheAverageOfASinglePointCanOnlyBeCancelled)
{
    std::vector<TDataPoint> one = {{5, 5}};
    OpenAnd([&](HWND hPage) { // while it can still be hit
        graph->SetData(nullptr, one.data(), 1, 0, 0, 0, 0);
        Ask(
            hPage, average, AverageDialog,
            [this](HWND hDialog) {
                ExpectRefused(hDialog, span, {L"0", L"1", L"10"},
                              L"Please enter an integer between 1 and 0.");
            },
            false);
    });
    EXPECT_EQ(CurveCount(), 3);
    graph->ResetAll(); // the curve reads the array above
}

TEST_F(CurveLimits, EnterPressesOkAndEscapeCancelInTheSmallDialogs)
{
    const struct {
        int nButton;
        const wchar_t* pszDialog;
        int nEdit;
    } dialogs[] = {{cubicTrend, Trend, expand}, {average, AverageDialog, span}};
    for (const auto& dialog : dialogs) {
        for (const WPARAM nKey : {VK_ESCAPE, VK_RETURN}) {
            const int nBefore = CurveCount();
            OpenAnd([&](HWND hPage) {
                script.When(dialog.pszDialog, [&, nKey](HWND hDialog) {
                    EXPECT_EQ(::GetFocus(), ::GetDlgItem(hDialog, ok)) << "the first in the order";
                    EXPECT_EQ(::SendMessageW(hDialog, DM_GETDEFID, 0, 0),
                              MAKELRESULT(IDOK, DC_HASDEFID));
                    Paste(hDialog, dialog.nEdit, L"2");
                    PostKey(nKey);
                });
                Click(hPage, dialog.nButton);
            });
            EXPECT_EQ(CurveCount(), nBefore + (nKey == VK_RETURN ? 1 : 0));
        }
    }
}
