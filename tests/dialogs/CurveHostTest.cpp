// A host that takes curve, graph or window away while the curve page or a dialog of it is open.

#include "CurvePageHost.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{

class CurveHost : public CurvePageTest
{
protected:
    void TearDown() override
    {
        EXPECT_EQ(ModalScript::FindAny(), nullptr);
        EXPECT_EQ(::GetCapture(), nullptr);
        if (host.m_hWnd != nullptr) {
            EXPECT_TRUE(::IsWindowEnabled(host.m_hWnd));
            EXPECT_TRUE(::IsWindowEnabled(Handle()));
        }
    }
    // Works the page when its curve has gone.
    static void WorkOn(HWND hPage)
    {
        Paste(hPage, label, L"gone");
        Click(hPage, fill);
        Click(hPage, apply);
        EXPECT_FALSE(IsEnabled(hPage, apply));
    }
};

} // namespace

TEST_F(CurveHost, DeletesTheCurveUnderThePage)
{
    OpenAnd(
        [this](HWND hPage) {
            graph->DeleteCurve(2);
            WorkOn(hPage);
            Click(hPage, average); // no dialog: there is nothing to average
            EXPECT_EQ(ModalScript::Find(AverageDialog), nullptr);
            Ask(hPage, linearTrend, Trend, [](HWND) {});
            Ask(hPage, polynomialTrend, Trend, [](HWND) {});
        },
        2);
    EXPECT_EQ(CurveCount(), 2);
    EXPECT_EQ(LabelOf(0), L"T1");
    EXPECT_EQ(LabelOf(1), L"T2");
}

TEST_F(CurveHost, ResetsTheGraphUnderThePageAndOkStillEndsTheSheet)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        const HWND hPage = PageOf(hSheet);
        graph->ResetAll();
        WorkOn(hPage);
        Click(hPage, ok);
    });
    Open();
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(CurveHost, ResetsTheGraphWhileADialogOfThePageIsOpen)
{
    for (const int nButton : {linearTrend, cubicTrend, polynomialTrend, average}) {
        OpenAnd([&](HWND hPage) {
            Ask(hPage, nButton, nButton == average ? AverageDialog : Trend, [&](HWND hDialog) {
                if (nButton == average)
                    Paste(hDialog, span, L"2");
                graph->ResetAll();
            });
        });
        EXPECT_EQ(CurveCount(), 0);
        AddLine(0);
        ShowAsTold();
        Frame();
    }
}

TEST_F(CurveHost, AddsCurvesWhileADialogOfThePageIsOpenAndThePageFollowsItsCurve)
{
    OpenAnd(
        [this](HWND hPage) {
            Ask(hPage, linearTrend, Trend, [this](HWND) {
                for (int nCurve = 3; nCurve < 40; ++nCurve)
                    Add(Line(), nCurve); // the curves move in memory
            });
        },
        1);
    ASSERT_EQ(CurveCount(), 41);
    EXPECT_EQ(LabelOf(40), L"T2 Trend (lin.)");
}

// The curves lie by value in a list, and the one behind moves to the place of a removed one.
TEST_F(CurveHost, RemovesAnEarlierCurveAndThePageFollowsItsOwn)
{
    OpenAnd(
        [this](HWND hPage) {
            graph->DeleteCurve(0);
            Paste(hPage, label, L"applied");
            Click(hPage, apply);
            EXPECT_FALSE(IsEnabled(hPage, apply));
        },
        1);
    ASSERT_EQ(CurveCount(), 2);
    EXPECT_EQ(LabelOf(0), L"applied");
    EXPECT_EQ(LabelOf(1), L"T3");
}

TEST_F(CurveHost, RemovesTheCurveAndItsSuccessorIsLeftAlone)
{
    OpenAnd(
        [this](HWND hPage) {
            graph->DeleteCurve(1);
            WorkOn(hPage);
            Click(hPage, average);
            EXPECT_EQ(ModalScript::Find(AverageDialog), nullptr);
            Ask(hPage, linearTrend, Trend, [](HWND) {});
        },
        1);
    ASSERT_EQ(CurveCount(), 2);
    EXPECT_EQ(LabelOf(0), L"T1");
    EXPECT_EQ(LabelOf(1), L"T3");
}

TEST_F(CurveHost, ResetsTheGraphWhileAMessageBoxIsOpen)
{
    OpenAnd([this](HWND hPage) {
        script.When(Box, [this](HWND hBox) {
            graph->ResetAll();
            ::PostMessageW(hBox, WM_COMMAND, IDOK, 0);
        });
        Paste(hPage, lineSize, L"77");
        Paste(hPage, lineSize, L"2");
        Click(hPage, apply);
    });
    EXPECT_EQ(CurveCount(), 0);
}

TEST_F(CurveHost, DestroysTheParentUnderThePage)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        host.Destroy();
        EXPECT_FALSE(::IsWindow(hSheet));
    });
    Open();
    EXPECT_EQ(CurveCount(), 3);
}

TEST_F(CurveHost, DestroysTheParentUnderATrendDialog)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        script.When(Trend, [this](HWND hDialog) {
            host.Destroy();
            EXPECT_FALSE(::IsWindow(hDialog));
        });
        Click(PageOf(hSheet), cubicTrend);
    });
    Open();
    EXPECT_EQ(CurveCount(), 3);
}

TEST_F(CurveHost, DestroysTheParentUnderAMessageBox)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        script.When(Box, [this](HWND) { host.Destroy(); });
        Paste(PageOf(hSheet), markerSize, L"x");
    });
    Open();
    EXPECT_EQ(CurveCount(), 3);
}

TEST_F(CurveHost, DestroysTheParentWhileTheColoursAreOpen)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        Click(PageOf(hSheet), color);
        EXPECT_NE(::GetCapture(), nullptr);
        host.Destroy();
    });
    Open();
    EXPECT_EQ(CurveCount(), 3);
}
