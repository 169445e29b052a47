#include "framework/windowing/Archive.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "windowing/ArchiveTestClasses.h"

using ArchiveTest::Bytes;
using ArchiveTest::Load;
using ArchiveTest::Stored;

TEST(Archive, NumbersAreLittleEndianWithoutPadding)
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar << BYTE{0x01} << WORD{0x0302} << DWORD{0x07060504} << LONG{-2} << int{0x0B0A0908}
           << LONGLONG{0x1122334455667788} << ULONGLONG{1} << 1.0f << 2.0 << true << false;
    });
    EXPECT_EQ(bytes, Bytes("\x01\x02\x03\x04\x05\x06\x07\xFE\xFF\xFF\xFF\x08\x09\x0A\x0B"
                           "\x88\x77\x66\x55\x44\x33\x22\x11\x01\0\0\0\0\0\0\0"
                           "\0\0\x80\x3F\0\0\0\0\0\0\0\x40\x01\0"));
}

TEST(Archive, NumbersReadBack)
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar << BYTE{200} << WORD{60000} << DWORD{4000000000} << LONG{-5} << int{-6} << unsigned{7}
           << short{-8} << LONGLONG{-9} << ULONGLONG{10} << 0.5f << -0.25 << true;
    });
    EXPECT_EQ(Load(bytes,
                   [](CArchive& ar) {
                       BYTE byte = 0;
                       WORD word = 0;
                       DWORD dword = 0;
                       LONG longer = 0;
                       int integer = 0;
                       unsigned natural = 0;
                       short small = 0;
                       LONGLONG large = 0;
                       ULONGLONG larger = 0;
                       float single = 0;
                       double number = 0;
                       bool flag = false;
                       ar >> byte >> word >> dword >> longer >> integer >> natural >> small >> large >>
                           larger >> single >> number >> flag;
                       EXPECT_EQ(byte, 200);
                       EXPECT_EQ(word, 60000);
                       EXPECT_EQ(dword, 4000000000u);
                       EXPECT_EQ(longer, -5);
                       EXPECT_EQ(integer, -6);
                       EXPECT_EQ(natural, 7u);
                       EXPECT_EQ(small, -8);
                       EXPECT_EQ(large, -9);
                       EXPECT_EQ(larger, 10u);
                       EXPECT_EQ(single, 0.5f);
                       EXPECT_EQ(number, -0.25);
                       EXPECT_TRUE(flag);
                       EXPECT_EQ(ar.GetRemaining(), 0u);
                   }),
              CArchiveException::none);
}

TEST(Archive, AnyByteButZeroReadsAsTrue)
{
    Load(Bytes("\0\x01\xFE"), [](CArchive& ar) {
        bool flag = true;
        ar >> flag;
        EXPECT_FALSE(flag);
        ar >> flag;
        EXPECT_TRUE(flag);
        flag = false;
        ar >> flag;
        EXPECT_TRUE(flag);
    });
}

TEST(Archive, TextIsTheUnicodeMarkTheLengthAndTheUnits)
{
    EXPECT_EQ(Stored([](CArchive& ar) { ar << CString(L"Aé\u6E29"); }), Bytes("\xFF\xFE\xFF\x03"
                                                                              "A\0\xE9\0\x29\x6E"));
    EXPECT_EQ(Stored([](CArchive& ar) { ar << CString(); }), Bytes("\xFF\xFE\xFF\0"));
}

TEST(Archive, TextsOfEveryLengthFormReadBack)
{
    for (const int length : {0, 1, 254, 255, 256, 0xFFFD, 0xFFFE, 0xFFFF, 0x10000, 200000}) {
        std::wstring units(static_cast<size_t>(length), L'\u5EA6');
        if (length > 0)
            units.back() = L'!';
        const CString text(units.c_str());
        const std::string bytes = Stored([&](CArchive& ar) { ar << text << WORD{0x4242}; });
        const size_t prefix = length < 255 ? 4 : length < 0xFFFE ? 6 : 10;
        EXPECT_EQ(bytes.size(), prefix + static_cast<size_t>(length) * 2 + 2);
        EXPECT_EQ(Load(bytes,
                       [&](CArchive& ar) {
                           CString read;
                           WORD mark = 0;
                           ar >> read >> mark;
                           EXPECT_TRUE(read == text) << length;
                           EXPECT_EQ(mark, 0x4242);
                       }),
                  CArchiveException::none);
    }
}

TEST(Archive, TextWithZerosInsideKeepsThem)
{
    const CString text(std::wstring_view(L"a\0b", 3));
    const std::string bytes = Stored([&](CArchive& ar) { ar << text; });
    Load(bytes, [&](CArchive& ar) {
        CString read;
        ar >> read;
        EXPECT_EQ(read.GetLength(), 3);
        EXPECT_TRUE(read == text);
    });
}

TEST(Archive, TextWithoutTheMarkIsOfSingleBytes)
{
    const std::string longText(300, 'x');
    EXPECT_EQ(Load(Bytes("\x05hello") + Bytes("\xFF\x2C\x01") + longText,
                   [&](CArchive& ar) {
                       CString text;
                       ar >> text;
                       EXPECT_STREQ(text, L"hello");
                       ar >> text;
                       EXPECT_EQ(text.GetLength(), 300);
                       EXPECT_STREQ(text.Right(1), L"x");
                   }),
              CArchiveException::none);
}

TEST(Archive, LengthThatTheFileCannotFillIsItsEnd)
{
    const auto read = [](CArchive& ar) {
        CString text(L"before");
        ar >> text;
    };
    EXPECT_EQ(Load(Bytes("\xFF\xFE\xFF\xFF\xFF\xFF\xFE\xFF\xFF\xFF"), read),
              CArchiveException::endOfFile);
    EXPECT_EQ(
        Load(Bytes("\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"), read),
        CArchiveException::endOfFile);
    EXPECT_EQ(Load(Bytes("\xFF\xFF\xFF\xFF\xFF\xFF\x7F"), read), CArchiveException::endOfFile);
    EXPECT_EQ(Load(Bytes("\xFF\xFE\xFF\x03"
                         "A\0B\0C"),
                   read),
              CArchiveException::endOfFile);
    EXPECT_EQ(Load(Bytes("\x03"
                         "AB"),
                   read),
              CArchiveException::endOfFile);
}

TEST(Archive, TextLongerThanATextCanBeIsTheEndHoweverLongTheFile)
{
    // Says that it holds many gigabytes.
    class CEndlessFile : public CFile
    {
    public:
        UINT Read(void* lpBuf, UINT nCount) override
        {
            std::memset(lpBuf, 0, nCount);
            const std::string length = Bytes("\xFF\xFE\xFF\xFF\xFF\xFF\x00\x00\x00\x40");
            std::memcpy(lpBuf, length.data(), length.size());
            return nCount;
        }
        [[nodiscard]] ULONGLONG GetPosition() const override { return 0; }
        [[nodiscard]] ULONGLONG GetLength() const override { return 1ull << 36; }
        ULONGLONG Seek(LONGLONG, UINT) override { return 0; }
        void Close() override {}
    };
    CEndlessFile file;
    CArchive ar(&file, CArchive::load);
    CString text;
    try {
        ar >> text;
        ADD_FAILURE() << "a text of 2^30 units was read";
    } catch (CArchiveException* e) {
        EXPECT_EQ(e->m_cause, CArchiveException::endOfFile);
        e->Delete();
    }
}

TEST(Archive, FailedTextLeavesTheTargetAsItWas)
{
    CString text(L"before");
    Load(Bytes("\xFF\xFE\xFF\x09"
               "A\0"),
         [&](CArchive& ar) { ar >> text; });
    EXPECT_STREQ(text, L"before");
}

TEST(Archive, EveryTruncationIsTheEndOfTheFile)
{
    const std::string whole = Stored([](CArchive& ar) {
        ar << BYTE{1} << 2.5 << CString(std::wstring(300, L'x')) << ULONGLONG{3} << CString(L"end")
           << 1.5f;
    });
    const auto read = [](CArchive& ar) {
        BYTE byte = 0;
        double number = 0;
        CString text;
        ULONGLONG large = 0;
        CString last;
        float single = 0;
        ar >> byte >> number >> text >> large >> last >> single;
    };
    EXPECT_EQ(Load(whole, read), CArchiveException::none);
    for (size_t size = 0; size < whole.size(); ++size)
        ASSERT_EQ(Load(whole.substr(0, size), read), CArchiveException::endOfFile) << size;
}

TEST(Archive, RawReadGivesWhatThereIs)
{
    Load("abcde", [](CArchive& ar) {
        char bytes[10] = {};
        EXPECT_EQ(ar.Read(bytes, 3), 3u);
        EXPECT_EQ(ar.GetRemaining(), 2u);
        EXPECT_EQ(ar.Read(bytes, 10), 2u);
        EXPECT_EQ(ar.Read(bytes, 10), 0u);
    });
    Load("abcde", [](CArchive& ar) {
        std::string block(100000, '-'); // past the buffer
        EXPECT_EQ(ar.Read(block.data(), static_cast<UINT>(block.size())), 5u);
        EXPECT_EQ(block.substr(0, 6), "abcde-");
    });
    EXPECT_EQ(Load("abcde",
                   [](CArchive& ar) {
                       char bytes[6];
                       ar.ReadExactly(bytes, 6);
                   }),
              CArchiveException::endOfFile);
}

TEST(Archive, BlocksLongerThanTheBufferKeepTheirOrder)
{
    std::string block(100000, '\0');
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<char>(i * 31 + i / 256);
    const std::string bytes = Stored([&](CArchive& ar) {
        ar << BYTE{1};
        ar.Write(block.data(), static_cast<UINT>(block.size()));
        ar << BYTE{2};
        ar.Write(block.data(), 4096);
        ar.Write(block.data(), 0);
        ar << BYTE{3};
    });
    EXPECT_EQ(bytes, "\1" + block + "\2" + block.substr(0, 4096) + "\3");
    Load(bytes, [&](CArchive& ar) {
        BYTE byte = 0;
        std::string read(block.size(), '\0');
        ar >> byte;
        EXPECT_EQ(ar.GetRemaining(), bytes.size() - 1);
        EXPECT_EQ(ar.Read(read.data(), static_cast<UINT>(read.size())), read.size());
        EXPECT_EQ(read, block);
        ar >> byte;
        EXPECT_EQ(byte, 2);
        EXPECT_EQ(ar.GetRemaining(), 4097u);
    });
}

TEST(Archive, CountThatTheRestCannotFillIsTheEnd)
{
    Load("0123456789", [](CArchive& ar) {
        BYTE byte = 0;
        ar >> byte;
        ar.EnsureRemaining(9, 1);
        ar.EnsureRemaining(2, 4);
        ar.EnsureRemaining(~0ull, 0);
    });
    EXPECT_EQ(Load("0123456789", [](CArchive& ar) { ar.EnsureRemaining(3, 4); }),
              CArchiveException::endOfFile);
    EXPECT_EQ(Load("0123456789", [](CArchive& ar) { ar.EnsureRemaining(~0ull, 16); }),
              CArchiveException::endOfFile);
}

TEST(Archive, WrongDirectionIsRefused)
{
    EXPECT_EQ(Load("abcd", [](CArchive& ar) { ar << 1; }), CArchiveException::readOnly);
    const CTempFile temp;
    CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
    CArchive ar(&file, CArchive::store);
    EXPECT_TRUE(ar.IsStoring());
    EXPECT_FALSE(ar.IsLoading());
    try {
        int value = 0;
        ar >> value;
        ADD_FAILURE() << "a storing archive was read";
    } catch (CArchiveException* e) {
        EXPECT_EQ(e->m_cause, CArchiveException::writeOnly);
        EXPECT_TRUE(e->m_strFileName == temp.Path());
        e->Delete();
    }
}

TEST(Archive, AClosedOneHasNothingToReadAndTakesNothing)
{
    Load("abcde", [](CArchive& ar) {
        ar.Close();
        char byte = 0;
        EXPECT_EQ(ar.Read(&byte, 1), 0u);
        EXPECT_EQ(ar.GetRemaining(), 0u);
        ar.Flush();
    });
    const CTempFile temp;
    CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
    CArchive ar(&file, CArchive::store);
    ar.Close();
    try {
        ar << 1;
        ADD_FAILURE() << "a closed archive was written";
    } catch (CArchiveException* e) {
        EXPECT_EQ(e->m_cause, CArchiveException::genericException);
        EXPECT_TRUE(e->m_strFileName.IsEmpty());
        e->Delete();
    }
}

TEST(Archive, ClosingALoadingArchiveGivesUnreadBytesBack)
{
    const CTempFile temp("0123456789");
    CFile file(temp.Path(), CFile::modeRead);
    {
        CArchive ar(&file, CArchive::load);
        BYTE byte = 0;
        ar >> byte;
    }
    EXPECT_EQ(file.GetPosition(), 1u);
}

TEST(Archive, WriteErrorLeavesTheDestructorAsAFileException)
{
    const CTempFile temp("x");
    CFile file(temp.Path(), CFile::modeRead); // refuses to be written
    const auto store = [&file] {
        CArchive ar(&file, CArchive::store);
        ar << 1;
    };
    int cause = -1;
    try {
        store();
    } catch (CFileException* e) {
        cause = e->m_cause;
        e->Delete();
    }
    EXPECT_EQ(cause, CFileException::accessDenied);
}

TEST(Archive, DestructorKeepsQuietWhileAnotherExceptionPasses)
{
    const CTempFile temp("x");
    CFile file(temp.Path(), CFile::modeRead);
    const auto store = [&file] {
        CArchive ar(&file, CArchive::store);
        ar << 1;
        AfxThrowUserException();
    };
    bool first = false;
    try {
        store();
    } catch (CException* e) {
        first = e->IsKindOf(RUNTIME_CLASS(CUserException));
        e->Delete();
    }
    EXPECT_TRUE(first);
}
