#include "framework/windowing/ArchiveEncoding.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

using namespace ArchiveEncoding;

namespace
{

using Bytes = std::vector<std::uint8_t>;

Bytes BytesOf(const CBytes& bytes)
{
    return {bytes.View().begin(), bytes.View().end()};
}

// A stream of given bytes that throws at its end.
class CStream
{
public:
    explicit CStream(Bytes bytes) : m_bytes(std::move(bytes)) {}

    ReadInteger Reader()
    {
        return [this](int width) {
            std::uint64_t value = 0;
            for (int i = 0; i < width; ++i)
                value |= static_cast<std::uint64_t>(Next()) << (8 * i);
            return value;
        };
    }
    [[nodiscard]] std::size_t Left() const { return m_bytes.size() - m_pos; }

private:
    std::uint8_t Next()
    {
        if (m_pos == m_bytes.size())
            throw std::out_of_range("end of the stream");
        return m_bytes[m_pos++];
    }

    Bytes m_bytes;
    std::size_t m_pos = 0;
};

TTextLength LengthIn(const Bytes& bytes)
{
    CStream stream(bytes);
    const TTextLength length = ReadTextLength(stream.Reader());
    EXPECT_EQ(stream.Left(), 0u);
    return length;
}

TTag TagIn(const Bytes& bytes)
{
    CStream stream(bytes);
    const TTag tag = ReadTag(stream.Reader());
    EXPECT_EQ(stream.Left(), 0u);
    return tag;
}

} // namespace

TEST(TextLength, UnicodeLengthsWidenAt255AndAt65534)
{
    EXPECT_EQ(BytesOf(UnicodeLength(0)), (Bytes{0xFF, 0xFE, 0xFF, 0x00}));
    EXPECT_EQ(BytesOf(UnicodeLength(254)), (Bytes{0xFF, 0xFE, 0xFF, 0xFE}));
    EXPECT_EQ(BytesOf(UnicodeLength(255)), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0x00}));
    EXPECT_EQ(BytesOf(UnicodeLength(0xFFFD)), (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFD, 0xFF}));
    EXPECT_EQ(BytesOf(UnicodeLength(0xFFFE)),
              (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}));
    EXPECT_EQ(BytesOf(UnicodeLength(0x12345678)),
              (Bytes{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0x78, 0x56, 0x34, 0x12}));
}

TEST(TextLength, WhatWasWrittenReadsBack)
{
    for (const std::uint32_t units :
         {0u, 1u, 254u, 255u, 256u, 0xFFFDu, 0xFFFEu, 0xFFFFu, 0x10000u, 0x7FFFFFFFu}) {
        const TTextLength length = LengthIn(BytesOf(UnicodeLength(units)));
        EXPECT_EQ(length.count, units);
        EXPECT_TRUE(length.isUnicode);
    }
}

TEST(TextLength, WithoutTheMarkATextIsOfSingleBytes)
{
    EXPECT_FALSE(LengthIn({0x05}).isUnicode);
    EXPECT_EQ(LengthIn({0x05}).count, 5u);
    EXPECT_FALSE(LengthIn({0xFF, 0x00, 0x01}).isUnicode);
    EXPECT_EQ(LengthIn({0xFF, 0x00, 0x01}).count, 256u);
    EXPECT_EQ(LengthIn({0xFF, 0xFF, 0xFF, 0x04, 0x03, 0x02, 0x01}).count, 0x01020304u);
}

TEST(TextLength, EightByteFormIsRead)
{
    const TTextLength length =
        LengthIn({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 1, 0, 0, 0, 0, 0, 0, 0x80});
    EXPECT_EQ(length.count, 0x8000000000000001u);
}

TEST(TextLength, EveryTruncationReachesTheEndOfTheStream)
{
    const Bytes whole{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0x78, 0x56, 0x34, 0x12};
    for (std::size_t size = 0; size < whole.size(); ++size) {
        CStream stream(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_THROW((void)ReadTextLength(stream.Reader()), std::out_of_range) << size;
    }
}

TEST(ObjectTag, EachKindIsTold)
{
    EXPECT_EQ(TagIn({0x00, 0x00}).kind, ETagKind::Null);
    EXPECT_EQ(TagIn({0xFF, 0xFF}).kind, ETagKind::NewClass);
    EXPECT_EQ(TagIn({0x03, 0x80}).kind, ETagKind::Class);
    EXPECT_EQ(TagIn({0x03, 0x80}).number, 3u);
    EXPECT_EQ(TagIn({0xFE, 0xFF}).number, 0x7FFEu);
    EXPECT_EQ(TagIn({0x04, 0x00}).kind, ETagKind::Object);
    EXPECT_EQ(TagIn({0x04, 0x00}).number, 4u);
    EXPECT_EQ(TagIn({0xFE, 0x7F}).number, 0x7FFEu);
}

TEST(ObjectTag, BigFormHoldsTheClassMarkInItsTopBit)
{
    EXPECT_EQ(TagIn({0xFF, 0x7F, 0x00, 0x00, 0x01, 0x00}).kind, ETagKind::Object);
    EXPECT_EQ(TagIn({0xFF, 0x7F, 0x00, 0x00, 0x01, 0x00}).number, 0x10000u);
    EXPECT_EQ(TagIn({0xFF, 0x7F, 0x00, 0x00, 0x01, 0x80}).kind, ETagKind::Class);
    EXPECT_EQ(TagIn({0xFF, 0x7F, 0x00, 0x00, 0x01, 0x80}).number, 0x10000u);
}

TEST(ObjectTag, ReferencesWidenWhereTheSmallFormEnds)
{
    EXPECT_EQ(BytesOf(ReferenceTag(true, 1)), (Bytes{0x01, 0x80}));
    EXPECT_EQ(BytesOf(ReferenceTag(false, 1)), (Bytes{0x01, 0x00}));
    EXPECT_EQ(BytesOf(ReferenceTag(true, 0x7FFE)), (Bytes{0xFE, 0xFF}));
    EXPECT_EQ(BytesOf(ReferenceTag(true, 0x7FFF)), (Bytes{0xFF, 0x7F, 0xFF, 0x7F, 0x00, 0x80}));
    EXPECT_EQ(BytesOf(ReferenceTag(false, 0x7FFF)), (Bytes{0xFF, 0x7F, 0xFF, 0x7F, 0x00, 0x00}));
}

TEST(ObjectTag, ReferencesReadBack)
{
    for (const std::uint32_t number : {1u, 0x7FFEu, 0x7FFFu, 0x8000u, 0xFFFFu, MaxNumber}) {
        for (const bool isClass : {false, true}) {
            const TTag tag = TagIn(BytesOf(ReferenceTag(isClass, number)));
            EXPECT_EQ(tag.kind, isClass ? ETagKind::Class : ETagKind::Object);
            EXPECT_EQ(tag.number, number);
        }
    }
}
