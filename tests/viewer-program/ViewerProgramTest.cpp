#include "viewer-program/ViewerRun.h"

#include <gtest/gtest.h>

#include <optional>

using ViewerRun::Beside;
using ViewerRun::Pixels;
using ViewerRun::Process;
using ViewerRun::Result;
using ViewerRun::RunViewer;
using ViewerRun::TemporaryFile;

namespace
{

constexpr COLORREF FirstCurve = RGB(0x1F, 0x5F, 0xB4);
constexpr COLORREF SecondCurve = RGB(0xD6, 0x27, 0x28);

constexpr std::string_view Weather = "date,temp,wind\n"
                                     "2012-01-01,12.8,4.7\n"
                                     "2012-01-02,10.6,\n"
                                     "2012-01-03,11.7,2.3\n"
                                     "2012-01-04,12.2,4.7\n";

std::wstring Quoted(const std::wstring& path)
{
    return L"\"" + path + L"\"";
}

bool Contains(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

TEST(ViewerProgram, HelpNamesTheOptionsAndEndsWithZero)
{
    const Result result = RunViewer(L"--help");

    EXPECT_EQ(0u, result.exitCode);
    for (const char* option : {"--x", "--y", "--y2", "--png", "--size", "--registered", "Exit codes"})
        EXPECT_TRUE(Contains(result.output, option)) << option;
}

TEST(ViewerProgram, AnUnknownOptionEndsWithTwo)
{
    const Result result = RunViewer(L"--nonsense");

    EXPECT_EQ(2u, result.exitCode);
    EXPECT_TRUE(Contains(result.output, "--nonsense")) << result.output;
}

TEST(ViewerProgram, AFileThatIsNotThereEndsWithOne)
{
    const Result result = RunViewer(L"no-such-file.csv --png x.png");

    EXPECT_EQ(1u, result.exitCode);
    EXPECT_TRUE(Contains(result.output, "no-such-file.csv")) << result.output;
}

TEST(ViewerProgram, AFileWithoutNumbersEndsWithOne)
{
    const TemporaryFile words(L"words.csv", "a,b\nx,y\n");

    const Result result = RunViewer(Quoted(words.Path()) + L" --png x.png");

    EXPECT_EQ(1u, result.exitCode);
    EXPECT_TRUE(Contains(result.output, "no column holds numbers")) << result.output;
}

TEST(ViewerProgram, DrawsAPictureOfTheSizeAskedForAndTellsWhatItSkipped)
{
    const TemporaryFile data(L"weather.csv", Weather);
    const TemporaryFile picture(L"weather.png");

    const Result result = RunViewer(Quoted(data.Path()) + L" --png " + Quoted(picture.Path()) +
                                    L" --size 500x300 --y temp --y2 wind");

    ASSERT_EQ(0u, result.exitCode) << result.output;
    EXPECT_TRUE(Contains(result.output, "temp: 4 points\n")) << result.output;
    EXPECT_TRUE(Contains(result.output, "wind: 3 points, 1 row skipped (line 3)")) << result.output;
    const Pixels pixels(picture.Path());
    EXPECT_EQ(500, pixels.Width());
    EXPECT_EQ(300, pixels.Height());
    EXPECT_GT(pixels.ColumnsWith(FirstCurve).count, 100);
    EXPECT_GT(pixels.ColumnsWith(SecondCurve).count, 100);
}

TEST(ViewerProgram, DrawsDatesBefore1970AcrossTheWholePlot)
{
    const TemporaryFile data(L"old.csv", "date,v\n1958-03-01,315\n1980-01-01,338\n2020-04-01,416\n");
    const TemporaryFile picture(L"old.png");

    const Result result = RunViewer(Quoted(data.Path()) + L" --png " + Quoted(picture.Path()) +
                                    L" --size 800x400 --no-legend");

    ASSERT_EQ(0u, result.exitCode) << result.output;
    const Pixels::Columns columns = Pixels(picture.Path()).ColumnsWith(FirstCurve);
    EXPECT_GT(columns.last - columns.first, 500);
}

TEST(ViewerProgram, ASingleRowShowsItsPoint)
{
    const TemporaryFile data(L"one.csv", "x,y\n3,4\n");
    const TemporaryFile picture(L"one.png");

    const Result result =
        RunViewer(Quoted(data.Path()) + L" --png " + Quoted(picture.Path()) + L" --no-legend");

    ASSERT_EQ(0u, result.exitCode) << result.output;
    EXPECT_GE(Pixels(picture.Path()).ColumnsWith(FirstCurve).count, 7);
}

TEST(ViewerProgram, DrawsPicturesLargerThanTheScreen)
{
    const TemporaryFile data(L"line.csv", "x,y\n0,0\n1,1\n");
    const TemporaryFile picture(L"line.png");
    const int width = GetSystemMetrics(SM_CXSCREEN) + 400;
    const int height = GetSystemMetrics(SM_CYSCREEN) + 300;

    const Result result =
        RunViewer(Quoted(data.Path()) + L" --png " + Quoted(picture.Path()) + L" --no-legend --size " +
                  std::to_wstring(width) + L"x" + std::to_wstring(height));

    ASSERT_EQ(0u, result.exitCode) << result.output;
    const Pixels pixels(picture.Path());
    EXPECT_EQ(width, pixels.Width());
    EXPECT_EQ(height, pixels.Height());
    // The line rises from the lower left: a column for every pixel of its way, without a gap.
    const Pixels::Columns columns = pixels.ColumnsWith(FirstCurve);
    EXPECT_GT(columns.last, width - 300);
    EXPECT_EQ(columns.last - columns.first + 1, columns.count);
    EXPECT_NE(RGB(0, 0, 0), pixels.At(width - 1, height - 1));
}

TEST(ViewerProgram, APictureThatCannotBeWrittenEndsWithFour)
{
    const TemporaryFile data(L"line.csv", "x,y\n0,0\n1,1\n");

    const Result result = RunViewer(Quoted(data.Path()) + L" --png C:\\no\\such\\folder\\x.png");

    EXPECT_EQ(4u, result.exitCode);
    EXPECT_TRUE(Contains(result.output, "can't write")) << result.output;
}

std::optional<DWORD> Register(const wchar_t* options)
{
    std::wstring command = L"regsvr32 " + std::wstring(options) + L" " + Beside(L"Vantoplex.dll");
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process)) {
        return std::nullopt;
    }
    WaitForSingleObject(process.hProcess, 60'000);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

TEST(ViewerProgram, UsesTheRegisteredServerOnlyWhenAsked)
{
    const TemporaryFile data(L"line.csv", "x,y\n0,0\n1,1\n");
    const TemporaryFile picture(L"line.png");
    const std::wstring arguments =
        Quoted(data.Path()) + L" --registered --png " + Quoted(picture.Path());

    ASSERT_EQ(0u, Register(L"/s"));
    const Result registered = RunViewer(arguments);
    ASSERT_EQ(0u, Register(L"/s /u"));
    const Result unregistered = RunViewer(arguments);

    EXPECT_EQ(0u, registered.exitCode) << registered.output;
    EXPECT_EQ(3u, unregistered.exitCode);
    EXPECT_TRUE(Contains(unregistered.output, "regsvr32")) << unregistered.output;
}

} // namespace
