#include "graph/DibFormat.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

std::vector<int> Bytes(const std::array<std::byte, DibFormat::FileHeaderSize>& header)
{
    std::vector<int> bytes;
    for (const std::byte byte : header)
        bytes.push_back(std::to_integer<int>(byte));
    return bytes;
}

} // namespace

TEST(DibFormat, PaletteDepthsHaveOneColourPerPixelValue)
{
    EXPECT_EQ(DibFormat::ColorCount(1), 2u);
    EXPECT_EQ(DibFormat::ColorCount(4), 16u);
    EXPECT_EQ(DibFormat::ColorCount(8), 256u);
}

TEST(DibFormat, DeeperPicturesHaveNoColourTable)
{
    for (const std::uint32_t nBitCount : {16u, 24u, 32u})
        EXPECT_EQ(DibFormat::HeadSize(nBitCount), 40u) << nBitCount;
    EXPECT_EQ(DibFormat::HeadSize(8), 40u + 1024u);
}

TEST(DibFormat, RowsAreRoundedUpToWholeWords)
{
    EXPECT_EQ(DibFormat::ImageSize(1, 1, 1), 4u);
    EXPECT_EQ(DibFormat::ImageSize(33, 2, 1), 16u);
    EXPECT_EQ(DibFormat::ImageSize(5, 3, 8), 24u);
    EXPECT_EQ(DibFormat::ImageSize(3, 10, 24), 120u);
    EXPECT_EQ(DibFormat::ImageSize(800, 600, 32), 1920000u);
}

TEST(DibFormat, SizesBeyondThirtyTwoBitsAreReported)
{
    EXPECT_EQ(DibFormat::ImageSize(0x7FFFFFFF, 0x7FFFFFFF, 32), 0x7FFFFFFFull * 4 * 0x7FFFFFFFull);
}

TEST(DibFormat, TheOffsetIsRightForEightBitsAndKeepsItsFormulaBeyond)
{
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 1), 62u);
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 4), 118u);
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 8), 1078u);
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 16), 54u + 262144u);
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 24), 54u + 67108864u);
    EXPECT_EQ(DibFormat::OffsetOfBits(40, 32), 58u);
}

TEST(DibFormat, TheFileHeaderIsFourteenLittleEndianBytes)
{
    // 0x00010203 + 14 = 0x00010211, 58 = 0x3A
    const std::vector<int> expected{'B', 'M', 0x11, 0x02, 0x01, 0x00, 0, 0, 0, 0, 0x3A, 0, 0, 0};
    EXPECT_EQ(Bytes(DibFormat::FileHeader(0x00010203, 40, 32)), expected);
}

TEST(DibFormat, AnEightBitFileHeaderPointsBehindItsTable)
{
    const std::vector<int> expected{'B', 'M', 0x36, 0x04, 0, 0, 0, 0, 0, 0, 0x36, 0x04, 0, 0};
    EXPECT_EQ(Bytes(DibFormat::FileHeader(1064, 40, 8)), expected);
}
