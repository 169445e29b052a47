// The picture file, and frames of odd data, through the front door.

#include "FrontDoorGraph.h"

#include <cfloat>
#include <cstring>
#include <limits>

using GraphPicture = FrontDoorGraph;

namespace
{

std::vector<unsigned char> ReadFile(const std::wstring& path)
{
    const HANDLE hFile =
        ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    std::vector<unsigned char> bytes;
    if (hFile == INVALID_HANDLE_VALUE)
        return bytes;
    bytes.resize(::GetFileSize(hFile, nullptr));
    DWORD nRead = 0;
    ::ReadFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &nRead, nullptr);
    ::CloseHandle(hFile);
    return bytes;
}

} // namespace

TEST_F(GraphPicture, SaveBitmapWritesTheWindow)
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"frontdoor.bmp";
    AddLine(0);
    const Picture picture = Shoot();
    EXPECT_EQ(graph->SaveBitmap(Text(path.c_str())), S_OK);
    const auto bytes = ReadFile(path);
    ::DeleteFileW(path.c_str());
    ASSERT_GE(bytes.size(), 54u + Width * Height * 4);
    EXPECT_EQ(std::memcmp(bytes.data(), "BM", 2), 0);
    DWORD pixel = 0;
    std::memcpy(&pixel, &bytes[54 + ((Height - 1 - 100) * Width + 120) * 4], 4);
    EXPECT_EQ(RGB((pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255), picture.At(120, 100));
}

TEST_F(GraphPicture, AFileThatCanNotBeWrittenIsNotTold)
{
    EXPECT_EQ(graph->SaveBitmap(Text(L"Z:\\no such folder\\picture.bmp")), S_OK);
}

TEST_F(GraphPicture, OddDataIsPlotted)
{
    const double odd[] = {std::numeric_limits<double>::quiet_NaN(),
                          std::numeric_limits<double>::infinity(),
                          -std::numeric_limits<double>::infinity(),
                          DBL_MAX,
                          -1e308,
                          std::numeric_limits<double>::denorm_min()};
    for (const double value : odd) {
        TDataPoint points[] = {{0, 0}, {1, value}, {value, 1}, {2, 2}};
        graph->ResetAll();
        EXPECT_EQ(graph->SetData(nullptr, points, 4, 0, 0, 0, 1), S_OK);
        Shoot();
        EXPECT_FALSE(::GetUpdateRect(Handle(), nullptr, FALSE));
    }
}

TEST_F(GraphPicture, FormatsOfTheHostPrintSomethingHarmless)
{
    AddLine(0);
    for (const wchar_t* pszFormat : {L"%s", L"%n", L"%*d", L"%1000000f", L"%s%s%s%s%n", L"%", L""}) {
        EXPECT_EQ(YAxis()->SetDisplayFmt(Text(pszFormat)), S_OK);
        Shoot();
        EXPECT_FALSE(::GetUpdateRect(Handle(), nullptr, FALSE));
    }
}

TEST_F(GraphPicture, TheLegendAndTheAxesShowTheirTexts)
{
    auto curve = AddLine(0);
    graph->SetShowLegend(0);
    const Picture bare = Shoot();
    graph->SetShowLegend(1);
    curve->SetLabel(Text(L"A rather long label"));
    EXPECT_GT(Shoot().CountDifferences(bare), 500);
}
