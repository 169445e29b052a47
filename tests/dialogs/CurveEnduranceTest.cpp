// Many openings of the sheet, of the dialogs of its curve page and of the fonts.

#include "CurvePageHost.h"
#include "support/Openings.h"

using namespace CurvePage;
using namespace DialogHands;

namespace
{
class CurveEndurance : public CurvePageTest
{
};
} // namespace

TEST_F(CurveEndurance, TheSheetAndItsPages)
{
    Openings::ExpectNothingLeft([this] {
        OpenAnd([](HWND hPage) {
            Click(hPage, visible);
            Click(hPage, visible);
            Click(hPage, apply);
            const HWND hSheet = ::GetAncestor(hPage, GA_ROOT);
            OpenTab(hSheet, 0);
            OpenTab(hSheet, 1);
        });
        Curve(0)->SetLineStyle(0);
        Curve(0)->SetType(gtLine);
    });
}

TEST_F(CurveEndurance, TrendAndAverageAndTheirMessageBox)
{
    OpenAnd([this](HWND hPage) {
        Openings::ExpectNothingLeft([=, this] {
            Ask(
                hPage, linearTrend, Trend,
                [this](HWND hDialog) {
                    Paste(hDialog, degree, L"1");
                    EXPECT_NE(BoxFrom([=] { DialogHands::Click(hDialog, ok); }), L"");
                    DialogHands::Click(hDialog, cancel);
                },
                false);
            Ask(
                hPage, average, AverageDialog, [](HWND hDialog) { DialogHands::Click(hDialog, cancel); },
                false);
        });
    });
}

TEST_F(CurveEndurance, TheFontsOfAnAxis)
{
    script.When(SheetCaption, [this](HWND hSheet) {
        const HWND hPage = OpenTab(hSheet, 1);
        Openings::ExpectNothingLeft([=, this] {
            script.When(ModalScript::FontDialog,
                        [](HWND hFonts) { ::PostMessageW(hFonts, WM_COMMAND, IDOK, 0); });
            DialogHands::Click(hPage, 6001);
        });
        ::PostMessageW(hSheet, WM_CLOSE, 0, 0);
    });
    Open();
}
