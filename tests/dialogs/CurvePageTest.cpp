// The page of a curve: what it shows, what it enables, what it stores.

#include "CurvePageHost.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurvePageFields : public CurvePageTest
{
protected:
    static void ExpectFillControls(HWND hPage, bool bEnabled)
    {
        for (const int nID : FillStyles)
            EXPECT_EQ(IsEnabled(hPage, nID), bEnabled) << nID;
        EXPECT_EQ(IsEnabled(hPage, fillCurve), bEnabled);
    }
};

} // namespace

TEST_F(CurvePageFields, ADoubleClickOnACurveOpensTheSheetOnIt)
{
    OpenAnd(
        [](HWND hPage) {
            EXPECT_EQ(::SendDlgItemMessageW(::GetAncestor(hPage, GA_ROOT), tabs, TCM_GETCURSEL, 0, 0),
                      2);
            EXPECT_EQ(TextOf(hPage, label), L"T2");
            EXPECT_FALSE(IsEnabled(hPage, apply));
        },
        1);
    EXPECT_EQ(ModalScript::FindAny(), nullptr);
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(CurvePageFields, EveryFieldOfTheCurveIsShown)
{
    auto curve = Curve(1);
    curve->SetLineSize(3);
    curve->SetShowMarker(1);
    curve->SetVisible(1);
    curve->SetFillBeneath(1, 1);
    curve->SetFillStyle(4);
    curve->SetFillTransparent(0);
    curve->SetMarkerType(1);
    curve->SetMarker(6);
    curve->SetMarkerSize(17);
    OpenAnd(
        [](HWND hPage) {
            EXPECT_EQ(TextOf(hPage, lineSize), L"3");
            EXPECT_EQ(TextOf(hPage, markerSize), L"17");
            EXPECT_TRUE(IsChecked(hPage, showMarker));
            EXPECT_TRUE(IsChecked(hPage, visible));
            EXPECT_TRUE(IsChecked(hPage, fill));
            EXPECT_FALSE(IsChecked(hPage, transparent));
            EXPECT_TRUE(IsChecked(hPage, symbol));
            EXPECT_FALSE(IsChecked(hPage, numbered));
            for (int nStyle = 0; nStyle < 7; ++nStyle)
                EXPECT_EQ(IsChecked(hPage, FillStyles[nStyle]), nStyle == 4) << nStyle;
            EXPECT_EQ(RowOf(hPage, marker), 6);
            EXPECT_EQ(RowOf(hPage, fillCurve), 1);
        },
        1);
}

TEST_F(CurvePageFields, ThePartnerListNumbersAllOtherCurvesAndIsNotSeen)
{
    OpenAnd(
        [](HWND hPage) {
            EXPECT_EQ(RowsOf(hPage, fillCurve), (std::vector<std::wstring>{L"1 T1", L"3 T3"}));
            EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(hPage, fillCurve)));
        },
        1);
}

TEST_F(CurvePageFields, TypeAndLineStyleHaveNoRows)
{
    OpenAnd([](HWND hPage) {
        EXPECT_TRUE(RowsOf(hPage, type).empty());
        EXPECT_EQ(::SendDlgItemMessageW(hPage, lineStyle, CB_GETCOUNT, 0, 0), 0);
    });
}

TEST_F(CurvePageFields, ApplyWithTheEmptyListsStoresMinusOne)
{
    OpenAnd([](HWND hPage) {
        Click(hPage, visible);
        Click(hPage, visible);
        Click(hPage, apply);
        EXPECT_FALSE(IsEnabled(hPage, apply));
    });
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetType), static_cast<EGraphType>(-1));
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetLineStyle), 0xFFFFFFFFu);
}

TEST_F(CurvePageFields, ASecondFillingAddsAnotherEightSymbolsAndTheCurveItself)
{
    OpenAnd([](HWND hPage) {
        EXPECT_EQ(::SendDlgItemMessageW(hPage, marker, CB_GETCOUNT, 0, 0), 8);
        const HWND hSheet = ::GetAncestor(hPage, GA_ROOT);
        const HWND hChart = OpenTab(hSheet, 0);
        Choose(hChart, 6057, 2);
        EXPECT_EQ(OpenTab(hSheet, 2), hPage);
        EXPECT_EQ(::SendDlgItemMessageW(hPage, marker, CB_GETCOUNT, 0, 0) % 8, 0);
        EXPECT_GE(::SendDlgItemMessageW(hPage, marker, CB_GETCOUNT, 0, 0), 16);
        EXPECT_EQ(TextOf(hPage, label), L"T3");
        EXPECT_EQ(RowsOf(hPage, fillCurve), (std::vector<std::wstring>{L"1 T1", L"2 T2"}));
    });
}

TEST_F(CurvePageFields, TheFillsControlsFollowItsCheckBox)
{
    OpenAnd([](HWND hPage) {
        ExpectFillControls(hPage, false);
        EXPECT_FALSE(IsEnabled(hPage, transparent));
        Click(hPage, fill);
        ExpectFillControls(hPage, true);
        EXPECT_TRUE(IsEnabled(hPage, transparent));
        Click(hPage, fill);
        ExpectFillControls(hPage, false);
        EXPECT_FALSE(IsEnabled(hPage, transparent));
    });
}

TEST_F(CurvePageFields, AFilledCurveOpensWithItsStylesEnabledAndTransparencyNot)
{
    Curve(0)->SetFillBeneath(1, 65535);
    OpenAnd([](HWND hPage) {
        ExpectFillControls(hPage, true);
        EXPECT_FALSE(IsEnabled(hPage, transparent)) << "until the first change";
    });
}

TEST_F(CurvePageFields, MarkersEnableTheirKindsAndTheSymbolItsList)
{
    OpenAnd([](HWND hPage) {
        EXPECT_FALSE(IsEnabled(hPage, numbered));
        EXPECT_FALSE(IsEnabled(hPage, marker));
        Click(hPage, showMarker);
        EXPECT_TRUE(IsEnabled(hPage, numbered));
        EXPECT_TRUE(IsEnabled(hPage, symbol));
        EXPECT_FALSE(IsEnabled(hPage, marker));
        Click(hPage, symbol);
        EXPECT_TRUE(IsEnabled(hPage, marker));
        Click(hPage, showMarker);
        EXPECT_FALSE(IsEnabled(hPage, symbol));
        EXPECT_FALSE(IsEnabled(hPage, marker));
    });
}

TEST_F(CurvePageFields, ASymbolsListIsOpenAtFirstEvenWithoutMarkers)
{
    Curve(0)->SetMarkerType(1);
    OpenAnd([](HWND hPage) {
        EXPECT_TRUE(IsEnabled(hPage, marker));
        EXPECT_FALSE(IsEnabled(hPage, symbol));
    });
}

TEST_F(CurvePageFields, EachChangeEnablesApply)
{
    const std::vector<std::function<void(HWND)>> changes = {
        [](HWND hPage) { Click(hPage, visible); },
        [](HWND hPage) { Click(hPage, showMarker); },
        [](HWND hPage) { Click(hPage, fill); },
        [](HWND hPage) { Paste(hPage, label, L"new"); },
        [](HWND hPage) { Paste(hPage, lineSize, L"2"); },
        [](HWND hPage) { Paste(hPage, markerSize, L"12"); },
        [](HWND hPage) { Spin(hPage, lineSizeSpin, true); },
        [](HWND hPage) { Spin(hPage, markerSizeSpin, false); },
        [](HWND hPage) { Choose(hPage, marker, 3); },
        [](HWND hPage) {
            ::SendDlgItemMessageW(hPage, marker, CB_SHOWDROPDOWN, TRUE, 0);
            ::SendDlgItemMessageW(hPage, marker, CB_SHOWDROPDOWN, FALSE, 0);
        },
    };
    Curve(0)->SetMarkerType(1); // opens the list of symbols
    for (std::size_t i = 0; i < changes.size(); ++i) {
        OpenAnd([&](HWND hPage) {
            EXPECT_FALSE(IsEnabled(hPage, apply)) << i;
            changes[i](hPage);
            EXPECT_TRUE(IsEnabled(hPage, apply)) << i;
        });
    }
}

TEST_F(CurvePageFields, ApplyStoresEveryField)
{
    OpenAnd([](HWND hPage) {
        Click(hPage, fill);
        Click(hPage, fill2);
        Click(hPage, transparent);
        Click(hPage, showMarker);
        Click(hPage, symbol);
        Choose(hPage, marker, 5);
        Click(hPage, visible);
        Paste(hPage, label, L"renamed");
        Paste(hPage, lineSize, L"4");
        Paste(hPage, markerSize, L"20");
        Click(hPage, apply);
    });
    EXPECT_EQ(LabelOf(0), L"renamed");
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetLineSize), 4);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetMarkerSize), 20);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetMarkerType), 1);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetMarker), 5);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetShowMarker), 1);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillBeneath), 1);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillStyle), 2);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillTransparent), 0);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillCurve), 1) << "the row, since the curve had that number";
    long bVisible = -1;
    Curve(0)->GetVisible(&bVisible);
    EXPECT_EQ(bVisible, 0);
    EXPECT_EQ(LabelOf(1), L"T2");
}

TEST_F(CurvePageFields, WithoutAFillItsFieldsAreStoredAllTheSame)
{
    Curve(0)->SetFillStyle(3);
    Curve(0)->SetFillTransparent(0);
    Curve(0)->SetFillCurve(65535);
    OpenAnd([](HWND hPage) {
        EXPECT_EQ(RowOf(hPage, fillCurve), -1);
        Paste(hPage, label, L"T1 again");
        Click(hPage, apply);
    });
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillStyle), 3);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillTransparent), 0);
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetFillCurve), -1) << "no row: the plot's bottom edge";
}

TEST_F(CurvePageFields, AnAppliedPartnerIsAPlaceInTheListAndNotACurvesNumber)
{
    Curve(2)->SetFillCurve(0);
    OpenAnd(
        [](HWND hPage) {
            EXPECT_EQ(RowsOf(hPage, fillCurve), (std::vector<std::wstring>{L"1 T1", L"2 T2"}));
            Click(hPage, fill);
            Choose(hPage, fillCurve, 1);
            Click(hPage, apply);
        },
        2);
    EXPECT_EQ(Got(2, &ISGraphDataSerie::GetFillCurve), 1);
}

TEST_F(CurvePageFields, NothingIsStoredBeforeApply)
{
    OpenAnd([](HWND hPage) {
        Paste(hPage, label, L"never");
        Paste(hPage, lineSize, L"5");
        Click(hPage, visible);
    });
    EXPECT_EQ(LabelOf(0), L"T1");
    EXPECT_EQ(Got(0, &ISGraphDataSerie::GetLineSize), 1);
}

TEST_F(CurvePageFields, ApplyRepaintsTheGraphAndTheLineIsWider)
{
    const Picture before = Shoot();
    ULONG color = 0;
    Curve(0)->GetColor(&color);
    OpenAnd([this](HWND hPage) {
        Paste(hPage, lineSize, L"5");
        Clean();
        Click(hPage, apply);
        EXPECT_TRUE(IsDirty());
    });
    // The empty list of line styles has left no style that is drawn solid in any width.
    Curve(0)->SetLineStyle(0);
    Curve(0)->SetType(gtLine);
    Curve(0)->SetSelected(0);
    EXPECT_GT(Shoot().Count(color), 2 * before.Count(color));
}

TEST_F(CurvePageFields, TheColourGoesFromTheCurveToTheButtonAndBack)
{
    Curve(0)->SetColor(0x002AA5);
    OpenAnd([](HWND hPage) {
        Click(hPage, color);
        const HWND hPopup = ::GetCapture();
        ASSERT_NE(hPopup, nullptr);
        ::SendMessageW(hPopup, WM_KEYDOWN, VK_DOWN, 1);  // black
        ::SendMessageW(hPopup, WM_KEYDOWN, VK_RIGHT, 1); // brown, which the curve has
        ::SendMessageW(hPopup, WM_KEYDOWN, VK_RIGHT, 1);
        ::SendMessageW(hPopup, WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(IsEnabled(hPage, apply));
        EXPECT_EQ(::GetCapture(), nullptr);
        Click(hPage, apply);
    });
    ULONG crStored = 0;
    Curve(0)->GetColor(&crStored);
    EXPECT_EQ(crStored, 0x404000u);
}

TEST_F(CurvePageFields, OkAppliesAndEndsTheSheet)
{
    script.When(SheetCaption, [](HWND hSheet) {
        const HWND hPage = PageOf(hSheet);
        Paste(hPage, label, L"by OK");
        Click(hPage, ok);
    });
    Open();
    EXPECT_EQ(LabelOf(0), L"by OK");
    EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
}

TEST_F(CurvePageFields, CancelEndsTheSheetAndStoresNothing)
{
    script.When(SheetCaption, [](HWND hSheet) {
        const HWND hPage = PageOf(hSheet);
        Paste(hPage, label, L"never");
        Click(hPage, cancel);
    });
    Open();
    EXPECT_EQ(LabelOf(0), L"T1");
}

TEST_F(CurvePageFields, EnterAndEscapeDoNothing)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        const HWND hPage = PageOf(hSheet);
        ::SetFocus(::GetDlgItem(hPage, label));
        Paste(hPage, label, L"kept");
        PostKey(VK_RETURN);
        PostKey(VK_ESCAPE);
        // The keys have been through the loop when this step comes.
        script.When(SheetCaption, [](HWND hStill) {
            EXPECT_EQ(TextOf(PageOf(hStill), label), L"kept");
            EXPECT_TRUE(IsEnabled(PageOf(hStill), apply));
            ::PostMessageW(hStill, WM_CLOSE, 0, 0);
        });
    });
    Open();
    EXPECT_EQ(LabelOf(0), L"T1");
}

TEST_F(CurvePageFields, ADoubleClickOnThePageDoesNothing)
{
    OpenAnd([](HWND hPage) {
        EXPECT_EQ(::SendMessageW(hPage, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 3)), 0);
        EXPECT_FALSE(IsEnabled(hPage, apply));
    });
}
