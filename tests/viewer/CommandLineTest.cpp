#include "viewer/CommandLine.h"

#include "viewer/HelpText.h"
#include "viewer/ViewerError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Viewer::Options;
using Viewer::ParseCommandLine;

namespace
{

using Arguments = std::vector<std::u16string>;

Viewer::ExitCode Refusal(const Arguments& arguments)
{
    try {
        (void)ParseCommandLine(arguments);
    } catch (const Viewer::Error& error) {
        EXPECT_FALSE(error.text.empty());
        return error.exitCode;
    }
    return Viewer::ExitCode::Done;
}

TEST(CommandLine, NothingAsksForAFile)
{
    const Options options = ParseCommandLine(Arguments{});

    EXPECT_TRUE(options.file.empty());
    EXPECT_EQ(800, options.width);
    EXPECT_EQ(600, options.height);
    EXPECT_TRUE(options.legend);
    EXPECT_FALSE(options.registered);
}

TEST(CommandLine, TakesValuesBehindABlankOrAnEqualsSign)
{
    const Options options = ParseCommandLine(Arguments{
        u"a.csv", u"--x", u"date", u"--y=wind", u"--y", u"temp=max", u"--y2=rain", u"--png", u"o.png",
        u"--size=1024x768", u"--group", u"source", u"--points", u"--no-legend", u"--registered"});

    EXPECT_EQ(u"a.csv", options.file);
    EXPECT_EQ(u"date", options.x);
    EXPECT_EQ((Arguments{u"wind", u"temp=max"}), options.y);
    EXPECT_EQ((Arguments{u"rain"}), options.y2);
    EXPECT_EQ(u"source", options.group);
    EXPECT_EQ(u"o.png", options.png);
    EXPECT_EQ(1024, options.width);
    EXPECT_EQ(768, options.height);
    EXPECT_TRUE(options.points);
    EXPECT_FALSE(options.legend);
    EXPECT_TRUE(options.registered);
}

TEST(CommandLine, TwoDashesEndTheOptions)
{
    EXPECT_EQ(u"--x", ParseCommandLine(Arguments{u"--", u"--x"}).file);
}

TEST(CommandLine, HelpNeedsNothingElse)
{
    EXPECT_TRUE(ParseCommandLine(Arguments{u"--help"}).help);
    EXPECT_TRUE(ParseCommandLine(Arguments{u"/?"}).help);
    EXPECT_TRUE(ParseCommandLine(Arguments{u"--version"}).version);
    EXPECT_NE(std::u16string_view::npos, Viewer::HelpText().find(u"--registered"));
}

TEST(CommandLine, RefusesSizesOutsideSense)
{
    for (const char16_t* size :
         {u"", u"800", u"x", u"800x", u"x600", u"63x600", u"800x8193", u"-800x600", u"800x600x2",
          u"8e2x600", u"99999999999x1", u"800 x600", u"0x0"}) {
        EXPECT_EQ(Viewer::ExitCode::BadCommandLine,
                  Refusal({u"a.csv", std::u16string(u"--size=") + size}));
    }
}

TEST(CommandLine, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"--nonsense"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"-"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"a.csv", u"b.csv"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"a.csv", u"--x"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"a.csv", u"--y="}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"--png", u"o.png"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u""}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"--help=yes"}));
}

TEST(CommandLine, TakesTheKindsOfChartAndTheirLooks)
{
    const Options options = ParseCommandLine(
        Arguments{u"a.csv", u"--chart", u"pie3d", u"--style=doughnut", u"--tilt=30", u"--start", u"359",
                  u"--depth=0", u"--sort=ascending", u"--pick=2017", u"--title=T", u"--gradient"});

    EXPECT_EQ(Viewer::ChartKind::Pie3d, options.chart);
    EXPECT_EQ(Viewer::PieStyle::Doughnut, options.style);
    EXPECT_EQ(Viewer::PieOrder::Ascending, options.order);
    EXPECT_EQ(30, options.tilt);
    EXPECT_EQ(359, options.start);
    EXPECT_EQ(0, options.depth);
    EXPECT_EQ(u"2017", options.pick);
    EXPECT_EQ(u"T", options.title);
    EXPECT_TRUE(options.gradient);
}

TEST(CommandLine, AnAnimationBelongsToItsKindOfChart)
{
    const Options options = ParseCommandLine(
        Arguments{u"a.csv", u"--animation", u"sweep", u"--tick", u"70", u"--chart", u"pie"});

    EXPECT_EQ(u"sweep", options.animation);
    EXPECT_EQ(70, options.tick);
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine,
              Refusal({u"a.csv", u"--chart", u"bar", u"--animation", u"sweep"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"a.csv", u"--chart=pie", u"--tick=5"}));
}

TEST(CommandLine, RefusesChartsAndNumbersThatDoNotExist)
{
    for (const char16_t* option : {u"--chart=donut", u"--style=round", u"--sort=up", u"--tilt=86",
                                   u"--tilt=-1", u"--start=360", u"--tick=10001", u"--depth=1e2"}) {
        EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"a.csv", option}));
    }
}

TEST(CommandLine, AScriptNeedsAFileAndTakesItsOwnPictures)
{
    EXPECT_EQ(u"s.txt", ParseCommandLine(Arguments{u"a.csv", u"--script", u"s.txt"}).script);
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine, Refusal({u"--script", u"s.txt"}));
    EXPECT_EQ(Viewer::ExitCode::BadCommandLine,
              Refusal({u"a.csv", u"--script", u"s.txt", u"--png", u"o.png"}));
}

TEST(CommandLine, TheHelpNamesEveryAnimation)
{
    for (const Viewer::Animation& animation : Viewer::Animations()) {
        EXPECT_NE(std::u16string_view::npos, Viewer::HelpText().find(animation.word));
        EXPECT_EQ(&animation, Viewer::FindAnimation(animation.kind, animation.word));
    }
}

} // namespace
