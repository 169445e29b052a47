#include "viewer-program/ViewerRun.h"

#include <gtest/gtest.h>

// The viewer's script in the dialogs of a graph.

using ViewerRun::Pixels;
using ViewerRun::Result;
using ViewerRun::RunViewer;
using ViewerRun::TemporaryFile;

namespace
{

class ViewerDialogs : public testing::Test
{
protected:
    ViewerDialogs() : m_data(L"line.csv", "x,y\n0,0\n1,1\n2,2\n3,3\n4,4\n5,5\n6,6\n") {}

    Result Run(const std::string& steps)
    {
        const TemporaryFile script(L"script.txt", steps);
        return RunViewer(L"\"" + m_data.Path() + L"\" --no-legend --size 700x500 --script \"" +
                         script.Path() + L"\"");
    }
    static bool Tells(const Result& result, const char* text)
    {
        return result.output.find(text) != std::string::npos;
    }

    const std::string m_open = "double-click 50% on:1\n";

private:
    TemporaryFile m_data;
};

TEST_F(ViewerDialogs, ADoubleClickOpensTheSheetOnTheCurveAndApplyStoresWhatIsSet)
{
    const Result result = Run(m_open + "read 6010\nset 6010 renamed\npress ok\n" + m_open +
                              "read 6010\npress cancel\nprint\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Tells(result, "6010: y\n")) << result.output;
    EXPECT_TRUE(Tells(result, "6010: renamed\n")) << result.output;
    EXPECT_TRUE(Tells(result, "1 curves")) << result.output;
}

TEST_F(ViewerDialogs, TheMenuOpensTheSheetOnTheGraph)
{
    const Result result =
        Run("move 40% 20%\ncommand properties\nread 6075\npage axis\nread 6009\npage chart\n"
            "set 6075 33\npress apply\npage curve\npage chart\nread 6075\npress ok\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Tells(result, "6009: on\n")) << result.output;
    EXPECT_TRUE(Tells(result, "6075: 33\n")) << result.output;
}

TEST_F(ViewerDialogs, TrendAndAverageAreAddedFromTheSheet)
{
    const Result result =
        Run(m_open + "press 6066\nset 6079 2\npress ok\npress 6065\nset 6034 5\n"
                     "set 6063 2\npress ok\npress 6080\nset 6082 2\npress ok\npress ok\nprint\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Tells(result, "4 curves")) << result.output;
}

TEST_F(ViewerDialogs, ALabelsMenuOpensItsDialog)
{
    const Result result = Run("command label\nclick 50% 50%\nright-click 50% 50%\nchoose 1\n"
                              "read 6054\nset 6054 off\nset 6056 2\npress ok\n"
                              "right-click 50% 50%\nchoose 1\nread 6054\nread 6056\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Tells(result, "6054: on\n")) << result.output;
    EXPECT_TRUE(Tells(result, "6054: off\n6056: \xE4\xB8\xAD\n")) << result.output;
}

TEST_F(ViewerDialogs, ADialogIsPicturedWithWhatIsOpenOverIt)
{
    const TemporaryFile sheet(L"sheet.png");
    const TemporaryFile colors(L"colours.png");
    const Result result =
        Run(m_open + "dialog " + sheet.PathInScript() + "\npress 6007\nkey down\ndialog " +
            colors.PathInScript() + "\nkey escape\npress cancel\n");

    ASSERT_EQ(0u, result.exitCode) << result.output;
    const Pixels alone(sheet.Path());
    const Pixels withColors(colors.Path());
    EXPECT_GT(alone.Width(), 400);
    EXPECT_GT(alone.Height(), 300);
    // Two of the popup's colours that a dialog has nowhere else.
    for (const COLORREF color : {RGB(0x8B, 0x8B, 0x00), RGB(0x3C, 0xB3, 0x71)}) {
        EXPECT_EQ(0, alone.ColumnsWith(color).count);
        EXPECT_GT(withColors.ColumnsWith(color).count, 5);
    }
}

TEST_F(ViewerDialogs, AMessageBoxIsAnsweredLikeADialog)
{
    const Result result =
        Run(m_open + "set 6035 9\npress ok\nset 6035 3\npress ok\n" + m_open + "read 6035\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Tells(result, "6035: 3\n")) << result.output;
}

TEST_F(ViewerDialogs, WhatIsNotThereEndsTheScriptAndNamesItsLine)
{
    const struct {
        const char* steps;
        const char* told;
    } rows[] = {{"press 6066\n", "line 1: no dialog is open"},
                {"choose 1\n", "line 1: no menu is open"},
                {"double-click 50% on:1\nread 6075\n", "line 2: the dialog shows no control 6075"},
                {"double-click 50% on:1\npress apply\n", "line 2: the control 5002 is disabled"},
                {"double-click 50% on:1\nset 6038 maybe\n", "line 2: a button is set on or off"},
                {"double-click 50% on:1\nset 6060 9\n", "line 2: the list has no row \"9\""},
                {"double-click 50% on:1\npress 6066\npage axis\n", "line 3: the dialog has no pages"}};
    for (const auto& row : rows) {
        const Result result = Run(row.steps);
        EXPECT_EQ(2u, result.exitCode) << row.steps;
        EXPECT_TRUE(Tells(result, row.told)) << result.output;
    }
}

TEST_F(ViewerDialogs, ADialogThatIsOpenAtTheEndIsClosed)
{
    const Result result = Run(m_open + "set 6010 never\npress 6066\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
}

} // namespace
