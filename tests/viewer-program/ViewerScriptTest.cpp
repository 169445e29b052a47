#include "viewer-program/ViewerRun.h"

#include <gtest/gtest.h>

// A scripted session: the viewer's own mouse and keys on its graph.

using ViewerRun::Pixels;
using ViewerRun::Result;
using ViewerRun::RunViewer;
using ViewerRun::TemporaryFile;

namespace
{

constexpr COLORREF Curve = RGB(0x1F, 0x5F, 0xB4);
constexpr COLORREF Trend = RGB(0xD6, 0x27, 0x28);

class ViewerScript : public testing::Test
{
protected:
    ViewerScript() : m_data(L"line.csv", MakeData()), m_picture(L"picture.png") {}

    Result Run(const std::string& steps)
    {
        const TemporaryFile script(L"script.txt", steps);
        return RunViewer(L"\"" + m_data.Path() + L"\" --no-legend --size 700x500 --script \"" +
                         script.Path() + L"\"");
    }

    // Runs the steps, which must not fail, and takes a picture.
    Pixels Picture(const std::string& steps)
    {
        const Result result = Run(steps + "\npicture " + m_picture.PathInScript() + "\n");
        EXPECT_EQ(0u, result.exitCode) << result.output;
        return Pixels(m_picture.Path());
    }

    static int Differing(const Pixels& one, const Pixels& other)
    {
        int count = 0;
        for (int y = 0; y < one.Height(); ++y) {
            for (int x = 0; x < one.Width(); ++x)
                count += one.At(x, y) != other.At(x, y);
        }
        return count;
    }

    static bool Tells(const Result& result, const char* text)
    {
        return result.output.find(text) != std::string::npos;
    }

private:
    static std::string MakeData()
    {
        std::string text = "x,y\n";
        for (int x = 0; x <= 100; ++x)
            text += std::to_string(x) + "," + std::to_string(x * x % 37) + "\n";
        return text;
    }

    TemporaryFile m_data;
    TemporaryFile m_picture;
};

TEST_F(ViewerScript, ZoomsTwiceAndOneStepBack)
{
    const Result result = Run("print\nmode zoom\ndrag 20% 20% 80% 80%\nprint\n"
                              "drag 30% 30% 70% 70%\nprint\ncommand zoom-back\nprint\n");

    EXPECT_EQ(0u, result.exitCode);
    EXPECT_TRUE(Tells(result, "graph: select, zoom depth 0, 1 curves\n"
                              "graph: zoom, zoom depth 1, 1 curves\n"
                              "graph: zoom, zoom depth 2, 1 curves\n"
                              "graph: zoom, zoom depth 1, 1 curves\n"))
        << result.output;
}

TEST_F(ViewerScript, APannedViewComesBackByReset)
{
    const Pixels before = Picture("");
    const Pixels panned = Picture("mode pan\ndrag 50% 50% 70% 40%");
    const Pixels back = Picture("mode pan\ndrag 50% 50% 70% 40%\ncommand reset-zoom");

    EXPECT_GT(Differing(before, panned), 500);
    EXPECT_EQ(0, Differing(before, back));
}

TEST_F(ViewerScript, TheCursorCrossesTheWholePlotAndAClickLeavesANote)
{
    const Pixels plain = Picture("mode select");
    const Pixels cursor = Picture("mode cursor\nmove 40% on:1");
    const Pixels note = Picture("mode cursor\nclick 40% on:1\nmode select");

    EXPECT_GT(Differing(plain, cursor), 700);
    const int changed = Differing(plain, note);
    EXPECT_GT(changed, 100);
    EXPECT_LT(changed, 20'000);
}

TEST_F(ViewerScript, TwoMeasuresStayUntilTheyAreDeleted)
{
    const std::string two = "mode measure\ndrag 20% on:1 40% on:1\ndrag 55% on:1 80% on:1\nmode select";

    const Pixels plain = Picture("mode select");
    const Pixels measured = Picture(two);
    const Pixels deleted = Picture(two + "\ncommand delete-measures\nmove 10 10");

    EXPECT_GT(Differing(plain, measured), 500);
    EXPECT_LT(Differing(plain, deleted), Differing(plain, measured));
}

TEST_F(ViewerScript, CursorModeAfterMeasuringEndsWell)
{
    const Result result = Run("mode measure\ndrag 20% on:1 40% on:1\nmode cursor\nmove 50% 2%\n"
                              "move 50% 98%\nmode measure\nprint\n");

    EXPECT_EQ(0u, result.exitCode);
    EXPECT_TRUE(Tells(result, "graph: measure")) << result.output;
}

TEST_F(ViewerScript, ALabelIsWrittenInPlaceAndDragged)
{
    const std::string written = "command label\ndouble-click 50% 50%\ntype Peak\nclick 90% 90%";

    const Pixels empty = Picture("command label");
    const Pixels text = Picture(written);
    const Pixels moved = Picture(written + "\nclick 50% 50%\ndrag 50% 50% 30% 30%\nclick 90% 90%");

    const int letters = Differing(empty, text);
    EXPECT_GT(letters, 20);
    EXPECT_LT(letters, 3'000);
    EXPECT_GT(Differing(text, moved), 1'000);
}

TEST_F(ViewerScript, TheDeleteKeyRemovesASelectedLabel)
{
    const Pixels plain = Picture("mode select\nclick 90% 90%");
    const Pixels deleted = Picture("command label\nclick 50% 50%\nkey delete\nclick 90% 90%");

    EXPECT_EQ(0, Differing(plain, deleted));
}

TEST_F(ViewerScript, APointOfACurveIsDraggedUp)
{
    const Pixels plain = Picture("mode edit");
    const Pixels dragged = Picture("mode edit\ndrag 50% on:1 50% 4%\nmove 2 2");

    EXPECT_GT(Differing(plain, dragged), 50);
}

TEST_F(ViewerScript, TrendsAndAveragesBecomeCurvesOfTheirOwn)
{
    const Result result = Run("command linear-trend\ncommand cubic-trend\ncommand polynomial\n"
                              "command simple-average\ncommand exponential-average\n"
                              "command linear-average\ncommand triangular-average\nprint\n");

    EXPECT_EQ(0u, result.exitCode);
    EXPECT_TRUE(Tells(result, "8 curves")) << result.output;
    EXPECT_GT(Picture("command linear-trend").ColumnsWith(Trend).count, 200);
}

TEST_F(ViewerScript, AGraphFileBringsItsSettingsBack)
{
    const TemporaryFile file(L"graph.vgr");
    const std::string path = file.PathInScript();

    const Result result = Run("save " + path + "\nload " + path + "\nprint\n");

    EXPECT_EQ(0u, result.exitCode) << result.output;
    EXPECT_EQ(51u, file.Read().size());
    EXPECT_TRUE(Tells(result, "1 curves")) << result.output;
    EXPECT_EQ(0, Differing(Picture(""), Picture("load " + path)));
}

TEST_F(ViewerScript, ABrokenGraphFileEndsWithOne)
{
    const TemporaryFile file(L"graph.vgr", "\x02");

    EXPECT_EQ(1u, Run("load " + file.PathInScript() + "\n").exitCode);
}

bool ClipboardHolds(UINT format, HGDIOBJ* metafile = nullptr)
{
    if (!OpenClipboard(nullptr))
        return false;
    const HANDLE data = GetClipboardData(format);
    if (data && metafile)
        *metafile = CopyEnhMetaFileW(static_cast<HENHMETAFILE>(data), nullptr);
    CloseClipboard();
    return data != nullptr;
}

TEST_F(ViewerScript, PicturesGoToTheClipboardAsBitmapAndAsMetafile)
{
    EXPECT_EQ(0u, Run("command copy-bitmap\n").exitCode);
    EXPECT_TRUE(ClipboardHolds(CF_DIB));

    EXPECT_EQ(0u, Run("command copy-metafile\n").exitCode);
    HGDIOBJ metafile = nullptr;
    ASSERT_TRUE(ClipboardHolds(CF_ENHMETAFILE, &metafile));
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(static_cast<HENHMETAFILE>(metafile), sizeof header, &header);
    DeleteEnhMetaFile(static_cast<HENHMETAFILE>(metafile));
    EXPECT_GE(header.rclBounds.right, 690);
}

TEST_F(ViewerScript, TheWholeWindowIsPicturedWithItsBars)
{
    const TemporaryFile picture(L"window.png");

    ASSERT_EQ(0u, Run("window " + picture.PathInScript() + "\n").exitCode);

    const Pixels pixels(picture.Path());
    EXPECT_EQ(700, pixels.Width());
    // Less the menu, which the size of the client area doesn't hold.
    EXPECT_GT(pixels.Height(), 450);
    EXPECT_GT(pixels.ColumnsWith(Curve).count, 200);
}

TEST_F(ViewerScript, OtherChartsHaveNoModes)
{
    const Result result = Run("command pie\nprint\nmode zoom\n");

    EXPECT_EQ(2u, result.exitCode);
    EXPECT_TRUE(Tells(result, "pie chart")) << result.output;
    EXPECT_TRUE(Tells(result, "script, line 3:")) << result.output;
}

TEST_F(ViewerScript, ACommandThatCannotBeDoneEndsTheScriptThereWithOne)
{
    const TemporaryFile flat(L"flat.csv", "x,y\n1,5\n");
    const TemporaryFile script(L"script.txt", "command polynomial\nprint\n");
    const Result failed = RunViewer(L"\"" + flat.Path() + L"\" --script \"" + script.Path() + L"\"");
    EXPECT_EQ(1u, failed.exitCode);
    EXPECT_TRUE(Tells(failed, "script, line 1: This can't be worked out")) << failed.output;
    EXPECT_FALSE(Tells(failed, "graph:")) << failed.output;
}

TEST_F(ViewerScript, AFaultInAScriptEndsWithTwoBeforeAnythingIsDone)
{
    const Result result = Run("print\nfly 1 2\n");

    EXPECT_EQ(2u, result.exitCode);
    EXPECT_TRUE(Tells(result, "line 2")) << result.output;
    EXPECT_FALSE(Tells(result, "graph:")) << result.output;
}

} // namespace
