#include "viewer/ScriptText.h"

#include "viewer/HelpText.h"
#include "viewer/ViewerError.h"

#include <gtest/gtest.h>

using Viewer::Coordinate;
using Viewer::ParseScript;
using Viewer::Step;
using Viewer::Verb;

namespace
{

std::u16string Refusal(std::u16string_view text)
{
    try {
        (void)ParseScript(text);
    } catch (const Viewer::Error& error) {
        EXPECT_EQ(Viewer::ExitCode::BadCommandLine, error.exitCode);
        return error.text;
    }
    return u"accepted";
}

TEST(ScriptText, LeavesOutEmptyLinesAndRemarksAndKeepsLineNumbers)
{
    const std::vector<Step> steps = ParseScript(u"# a session\r\n\r\n  mode zoom\r\nprint");

    ASSERT_EQ(2u, steps.size());
    EXPECT_EQ(Verb::Mode, steps[0].verb);
    EXPECT_EQ(u"zoom", steps[0].text);
    EXPECT_EQ(3u, steps[0].line);
    EXPECT_EQ(Verb::Print, steps[1].verb);
    EXPECT_EQ(4u, steps[1].line);
}

TEST(ScriptText, ReadsPlacesInPixelsPercentAndOnCurves)
{
    const std::vector<Step> steps = ParseScript(u"drag 10 -20 37.5% on:2");

    ASSERT_EQ(1u, steps.size());
    ASSERT_EQ(2u, steps[0].places.size());
    EXPECT_EQ(Coordinate::Unit::Pixels, steps[0].places[0].x.unit);
    EXPECT_EQ(-20, steps[0].places[0].y.value);
    EXPECT_EQ(Coordinate::Unit::Percent, steps[0].places[1].x.unit);
    EXPECT_EQ(37.5, steps[0].places[1].x.value);
    EXPECT_EQ(Coordinate::Unit::OnCurve, steps[0].places[1].y.unit);
    EXPECT_EQ(1, steps[0].places[1].y.value);
}

TEST(ScriptText, TextRunsToTheEndOfItsLine)
{
    EXPECT_EQ(u"a note, in place", ParseScript(u"type a note, in place ")[0].text);
    EXPECT_EQ(u"C:\\my pictures\\a.png", ParseScript(u"picture C:\\my pictures\\a.png")[0].text);
}

TEST(ScriptText, ControlsAreNumbersOrTheButtonsThatAllDialogsHave)
{
    const std::vector<Step> steps =
        ParseScript(u"press ok\npress cancel\npress apply\nread 6010\nset 6035 1,5 \nset 6010");

    ASSERT_EQ(6u, steps.size());
    const int numbers[] = {1, 2, 5002, 6010, 6035, 6010};
    for (std::size_t at = 0; at < steps.size(); ++at)
        EXPECT_EQ(numbers[at], steps[at].number) << at;
    EXPECT_EQ(Verb::Press, steps[0].verb);
    EXPECT_EQ(Verb::Read, steps[3].verb);
    EXPECT_EQ(Verb::Set, steps[4].verb);
    EXPECT_EQ(u"1,5", steps[4].text);
    EXPECT_EQ(u"", steps[5].text);
}

TEST(ScriptText, DialogStepsWithoutTheirWordsAreRefused)
{
    for (const std::u16string_view text :
         {u"press", u"press fast", u"press 0", u"press -3", u"press 1.5", u"press 70000", u"set",
          u"set label x", u"page", u"page two", u"choose", u"choose first", u"dialog", u"read",
          u"press 1 2"}) {
        EXPECT_NE(u"accepted", Refusal(text));
    }
}

TEST(ScriptText, PagesHaveNames)
{
    for (const std::u16string_view page : {u"chart", u"axis", u"curve"}) {
        const Step step = ParseScript(u"page " + std::u16string(page))[0];
        EXPECT_EQ(Verb::Page, step.verb);
        EXPECT_EQ(page, step.text);
    }
}

TEST(ScriptText, CommandsAreNamesOrNumbers)
{
    EXPECT_EQ(u"zoom-back", ParseScript(u"command zoom-back")[0].text);
    EXPECT_EQ(40013, ParseScript(u"command 40013")[0].number);
    EXPECT_TRUE(ParseScript(u"command 40013")[0].text.empty());
    EXPECT_EQ(-3, ParseScript(u"wheel -3")[0].number);
}

TEST(ScriptText, NamesTheLineOfAFault)
{
    EXPECT_EQ(u"script, line 2: unknown step \"jump\"", Refusal(u"print\njump 1 2"));
    for (const char16_t* line :
         {u"mode",         u"mode fly",     u"command",      u"command fly", u"command 70000",
          u"click",        u"click 1",      u"click a 2",    u"click 1e9 2", u"click 1 2 3",
          u"click on:1 2", u"click 1 on:0", u"click 1 on:x", u"click 1 2%%", u"click 1 nan%",
          u"drag 1 2 3",   u"key f5",       u"type",         u"wheel",       u"wheel 1.5",
          u"print now",    u"picture "}) {
        EXPECT_TRUE(Refusal(line).starts_with(u"script, line 1: "));
    }
}

TEST(ScriptText, TheHelpNamesEveryStep)
{
    for (const char16_t* word :
         {u"mode", u"command", u"click", u"double-click", u"right-click", u"move", u"drag", u"hold",
          u"release", u"wheel", u"key", u"type", u"save", u"load", u"picture", u"window", u"print"}) {
        EXPECT_NE(std::u16string_view::npos, Viewer::HelpText().find(word));
    }
}

} // namespace
