#include "draw/StoredBitmap.h"

#include <gtest/gtest.h>

#include <functional>

using StoredBitmap::THeader;

namespace
{
constexpr THeader Picture{0, 10, 4, 40, 1, 32};

THeader With(const std::function<void(THeader&)>& change)
{
    THeader header = Picture;
    change(header);
    return header;
}
} // namespace

TEST(StoredBitmap, ADeepPictureIsPossible)
{
    EXPECT_TRUE(StoredBitmap::IsPossible(Picture));
    EXPECT_EQ(StoredBitmap::ByteCount(Picture), 160u);
}

TEST(StoredBitmap, RowsOfEveryDepthNeedTheirBits)
{
    struct TCase {
        std::uint16_t depth;
        std::int32_t rowBytes;
    };
    for (const TCase& one : {TCase{1, 2}, TCase{4, 6}, TCase{8, 10}, TCase{16, 20}, TCase{24, 30}}) {
        THeader header{0, 10, 4, one.rowBytes, 1, one.depth};
        EXPECT_TRUE(StoredBitmap::IsPossible(header)) << one.depth;
        header.widthBytes -= 2;
        EXPECT_FALSE(StoredBitmap::IsPossible(header)) << one.depth;
    }
}

TEST(StoredBitmap, ImpossibleSizesAreReported)
{
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.type = 1; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.width = 0; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.width = -10; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.height = 0; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.height = -1; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.widthBytes = -40; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.widthBytes = 41; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.widthBytes = 1 << 30; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.planes = 3; })));
    EXPECT_FALSE(StoredBitmap::IsPossible(With([](THeader& h) { h.bitsPixel = 13; })));
}

TEST(StoredBitmap, MoreBytesThanAnIntCountsAreImpossible)
{
    EXPECT_FALSE(StoredBitmap::IsPossible({0, 0x10000, 0x8000, 0x40000, 1, 32}));
    EXPECT_FALSE(StoredBitmap::IsPossible({0, 0x7FFFFFFF, 1, 0x7FFFFFFE, 1, 32}))
        << "the row's bits overflow";
    EXPECT_TRUE(StoredBitmap::IsPossible({0, 0x8000, 0x3FFF, 0x20000, 1, 32}));
}

TEST(StoredBitmap, OnlyZerosMeanNoBitmap)
{
    EXPECT_TRUE(StoredBitmap::IsNone(THeader{}));
    EXPECT_FALSE(StoredBitmap::IsNone(With([](THeader&) {})));
    EXPECT_FALSE(StoredBitmap::IsNone({0, 0, 0, 0, 1, 0}));
}

TEST(StoredBitmap, PaddingOfDibRowsIsTakenOut)
{
    THeader header{0, 5, 3, 8, 1, 8}; // a device-dependent row takes 6 bytes
    std::vector<std::uint8_t> bits{1,  2, 3, 4, 5,  0,  9,  9,  11, 12, 13, 14,
                                   15, 0, 9, 9, 21, 22, 23, 24, 25, 0,  9,  9};

    StoredBitmap::PackRows(header, bits);

    const std::vector<std::uint8_t> packed{1,  2,  3, 4,  5,  0,  11, 12, 13,
                                           14, 15, 0, 21, 22, 23, 24, 25, 0};
    EXPECT_EQ(bits, packed);
    EXPECT_EQ(header.widthBytes, 6);
}

TEST(StoredBitmap, PackedRowsStayAsTheyAre)
{
    THeader header = Picture;
    std::vector<std::uint8_t> bits(160, 7);

    StoredBitmap::PackRows(header, bits);

    EXPECT_EQ(header, Picture);
    EXPECT_EQ(bits, std::vector<std::uint8_t>(160, 7));
}
