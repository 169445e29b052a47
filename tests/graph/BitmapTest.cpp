// Image export.

#include "NativeGraph.h"
#include "framework/windowing/DeviceContexts.h"
#include "graph/BitmapPacking.h"

#include <cstring>

namespace
{

class BitmapExport : public GraphTest
{
protected:
    BitmapExport()
    {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"bmp", 0, m_file);
    }
    ~BitmapExport() override { ::DeleteFileW(m_file); }

    std::vector<unsigned char> Bytes() const
    {
        std::vector<unsigned char> bytes;
        const HANDLE hFile = ::CreateFileW(m_file, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        bytes.resize(::GetFileSize(hFile, nullptr));
        DWORD nRead = 0;
        ::ReadFile(hFile, bytes.data(), static_cast<DWORD>(bytes.size()), &nRead, nullptr);
        ::CloseHandle(hFile);
        return bytes;
    }

    wchar_t m_file[MAX_PATH];
};

template <class Value> Value At(const std::vector<unsigned char>& bytes, std::size_t nOffset)
{
    Value value = 0;
    std::memcpy(&value, &bytes.at(nOffset), sizeof value);
    return value;
}

} // namespace

TEST_F(BitmapExport, TheFileHoldsTheWindowAsItStandsOnTheScreen)
{
    AddLine();
    const Picture picture = Shoot();
    ASSERT_TRUE(graph.SaveBitmap(m_file));
    const auto bytes = Bytes();
    ASSERT_GE(bytes.size(), 54u + Width * Height * 4);
    EXPECT_EQ(bytes[0], 'B');
    EXPECT_EQ(bytes[1], 'M');
    EXPECT_EQ(At<DWORD>(bytes, 2), bytes.size());
    EXPECT_EQ(At<DWORD>(bytes, 6), 0u);
    EXPECT_EQ(At<DWORD>(bytes, 14), 40u);
    EXPECT_EQ(At<LONG>(bytes, 18), Width);
    EXPECT_EQ(At<LONG>(bytes, 22), Height);
    EXPECT_EQ(At<WORD>(bytes, 26), 1);
    ASSERT_EQ(At<WORD>(bytes, 28), 32);
    EXPECT_EQ(At<DWORD>(bytes, 30), static_cast<DWORD>(BI_RGB));
    EXPECT_EQ(At<DWORD>(bytes, 10), 58u); // the result of the formula with 32 bits; the bits start at 54
    int nWrong = 0;
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            const auto pixel = At<DWORD>(bytes, 54 + ((Height - 1 - y) * Width + x) * 4);
            nWrong +=
                RGB((pixel >> 16) & 255, (pixel >> 8) & 255, pixel & 255) != picture.At(x, y) ? 1 : 0;
        }
    }
    EXPECT_EQ(nWrong, 0);
}

TEST_F(BitmapExport, TheResultSpeaksOfThePictureNotOfTheFile)
{
    Paint();
    EXPECT_TRUE(graph.SaveBitmap(L"Z:\\no such folder\\at all\\picture.bmp"));
    EXPECT_TRUE(graph.SaveBitmap(L""));
}

TEST_F(BitmapExport, AnOlderFileIsReplaced)
{
    Paint();
    ASSERT_TRUE(graph.SaveBitmap(m_file));
    const auto first = Bytes();
    ::SetWindowPos(graph.m_hWnd, nullptr, 0, 0, 20, 10, SWP_NOZORDER);
    Paint();
    ASSERT_TRUE(graph.SaveBitmap(m_file));
    EXPECT_EQ(At<LONG>(Bytes(), 18), 20);
    EXPECT_LT(Bytes().size(), first.size());
}

TEST_F(BitmapExport, WithoutAWindowThereIsNoPicture)
{
    CXGraph unborn;
    EXPECT_FALSE(unborn.SaveBitmap(m_file));
    EXPECT_TRUE(Bytes().empty());
}

TEST_F(BitmapExport, AWindowWithoutAreaGivesThePlatformsSmallestBitmap)
{
    ::SetWindowPos(graph.m_hWnd, nullptr, 0, 0, 0, 0, SWP_NOZORDER);
    ASSERT_TRUE(graph.SaveBitmap(m_file));
    EXPECT_EQ(At<LONG>(Bytes(), 18), 1);
    EXPECT_EQ(At<LONG>(Bytes(), 22), 1);
}

TEST(BitmapPacking, AMonochromeBitmapComesWithItsTable)
{
    // Two rows of ten pixels: 1010101010 and 0000000011, rows of 16 bits in the source.
    const unsigned char rows[] = {0xAA, 0x80, 0x00, 0xC0};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(10, 2, 1, 1, rows));
    const CPalette none;
    const BitmapPacking::Block block = BitmapPacking::Pack(bitmap, none);
    ASSERT_TRUE(block);
    ASSERT_GE(block.GetSize(), 40u + 8u + 8u);
    EXPECT_EQ(block.GetHeader().biBitCount, 1);
    EXPECT_EQ(block.GetHeader().biSizeImage, 8u);
    const auto* pData = reinterpret_cast<const unsigned char*>(block.GetData());
    // Table: black, white. Bits: the lower row first, each padded to four bytes.
    const unsigned char table[] = {0, 0, 0, 0, 255, 255, 255, 0};
    EXPECT_EQ(std::memcmp(pData + 40, table, sizeof table), 0);
    EXPECT_EQ(pData[48], 0x00);
    EXPECT_EQ(pData[49] & 0xC0, 0xC0);
    EXPECT_EQ(pData[52], 0xAA);
    EXPECT_EQ(pData[53] & 0xC0, 0x80);
}

TEST(BitmapPacking, NoBitmapGivesNoBlock)
{
    const CBitmap bitmap;
    const CPalette none;
    EXPECT_FALSE(BitmapPacking::Pack(bitmap, none));
}

TEST(BitmapPacking, APaletteOfTheHostIsSelectedAndGivenBack)
{
    struct {
        WORD palVersion;
        WORD palNumEntries;
        PALETTEENTRY entries[2];
    } entries = {0x300, 2, {{1, 2, 3, 0}, {4, 5, 6, 0}}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&entries)));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, nullptr));
    EXPECT_TRUE(BitmapPacking::Pack(bitmap, palette));
    EXPECT_TRUE(palette.DeleteObject()); // it is selected nowhere any more
}
