#include "draw/BitmapEx.h"
#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "support/GdiCount.h"
#include "support/ImportPatch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace
{
using Bytes = std::vector<BYTE>;

// A file in the temporary folder, gone at the end.
class ScratchFile
{
public:
    ScratchFile()
    {
        WCHAR folder[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, L"bmp", 0, m_Path);
    }
    explicit ScratchFile(const Bytes& bytes) : ScratchFile()
    {
        CFile file(m_Path, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    ~ScratchFile() { ::DeleteFile(m_Path); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    Bytes Read() const
    {
        CFile file(m_Path, CFile::modeRead);
        Bytes bytes(static_cast<size_t>(file.GetLength()));
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }
    LPCWSTR Path() const { return m_Path; }

private:
    WCHAR m_Path[MAX_PATH];
};

HBITMAP WINAPI RefuseBitmap(const BITMAP*)
{
    return nullptr;
}

Bytes Stored(CBitmapEx& bitmap)
{
    const ScratchFile scratch;
    {
        CFile file(scratch.Path(), CFile::modeCreate | CFile::modeWrite);
        CArchive archive(&file, CArchive::store);
        bitmap.Serialize(archive);
        archive.Close();
    }
    return scratch.Read();
}

// The cause of the archive exception, or -1 for none.
int Load(CBitmapEx& bitmap, const Bytes& bytes)
{
    const ScratchFile scratch(bytes);
    CFile file(scratch.Path(), CFile::modeRead);
    CArchive archive(&file, CArchive::load);
    try {
        bitmap.Serialize(archive);
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

template <class TValue> void Append(Bytes& bytes, TValue value)
{
    const auto* raw = reinterpret_cast<const BYTE*>(&value);
    bytes.insert(bytes.end(), raw, raw + sizeof value);
}

Bytes Header(LONG type, LONG width, LONG height, LONG widthBytes, WORD planes, WORD bitsPixel)
{
    Bytes bytes;
    Append(bytes, type);
    Append(bytes, width);
    Append(bytes, height);
    Append(bytes, widthBytes);
    Append(bytes, planes);
    Append(bytes, bitsPixel);
    return bytes;
}

const Bytes MonoBits{0xA5, 0xC0, 0x5A, 0x80, 0xFF, 0x00}; // 10 by 3 pixels, rows of 2 bytes

void MakeMono(CBitmapEx& bitmap)
{
    ASSERT_TRUE(bitmap.CreateBitmap(10, 3, 1, 1, MonoBits.data()));
}
} // namespace

TEST(BitmapEx, StoresItsHeaderAndBitsWithoutPadding)
{
    CBitmapEx bitmap;
    MakeMono(bitmap);

    Bytes expected = Header(0, 10, 3, 2, 1, 1);
    ASSERT_EQ(expected.size(), 20u);
    expected.insert(expected.end(), MonoBits.begin(), MonoBits.end());
    EXPECT_EQ(Stored(bitmap), expected);
}

TEST(BitmapEx, LoadsWhatItStored)
{
    CBitmapEx bitmap;
    MakeMono(bitmap);
    const Bytes stored = Stored(bitmap);

    CBitmapEx loaded;
    ASSERT_EQ(Load(loaded, stored), -1);

    BITMAP record{};
    ASSERT_NE(loaded.GetBitmap(&record), 0);
    EXPECT_EQ(record.bmWidth, 10);
    EXPECT_EQ(record.bmHeight, 3);
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(Stored(loaded), stored);
}

TEST(BitmapEx, LoadsADeepPicture)
{
    Bytes bits(4 * 5 * 3);
    for (size_t i = 0; i < bits.size(); ++i)
        bits[i] = static_cast<BYTE>(i * 3);
    CBitmapEx bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(5, 3, 1, 32, bits.data()));
    const Bytes stored = Stored(bitmap);

    CBitmapEx loaded;
    ASSERT_EQ(Load(loaded, stored), -1);

    EXPECT_EQ(Stored(loaded), stored);
}

TEST(BitmapEx, StoresTheMemoryOfADibSection)
{
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, 3, -2, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* memory = nullptr;
    CBitmapEx bitmap;
    ASSERT_TRUE(bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0)));
    const BYTE rows[24] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  0, 0, 0,
                           11, 12, 13, 14, 15, 16, 17, 18, 19, 0, 0, 0};
    std::memcpy(memory, rows, sizeof rows);

    Bytes expected = Header(0, 3, 2, 12, 1, 24);
    expected.insert(expected.end(), rows, rows + sizeof rows);
    const Bytes stored = Stored(bitmap);
    EXPECT_EQ(stored, expected);

    // Rows of 12 bytes load into the platform's rows of 10.
    CBitmapEx loaded;
    ASSERT_EQ(Load(loaded, stored), -1);
    BITMAP record{};
    ASSERT_NE(loaded.GetBitmap(&record), 0);
    EXPECT_EQ(record.bmWidth, 3);
    Bytes bits(20);
    ASSERT_EQ(loaded.GetBitmapBits(20, bits.data()), 20u);
    EXPECT_EQ(bits, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 11, 12, 13, 14, 15, 16, 17, 18, 19, 0}));
}

TEST(BitmapEx, NoBitmapIsAHeaderOfZerosAndLoadsAsNone)
{
    CBitmapEx none;
    const Bytes stored = Stored(none);
    EXPECT_EQ(stored, Bytes(20, 0));

    CBitmapEx loaded;
    MakeMono(loaded);
    EXPECT_EQ(Load(loaded, stored), -1);
    EXPECT_EQ(loaded.GetSafeHandle(), nullptr);
}

TEST(BitmapEx, ASizeThatCannotBeIsAnEndOfFileAndTheOldBitmapStays)
{
    CBitmapEx bitmap;
    MakeMono(bitmap);
    const HGDIOBJ handle = bitmap.GetSafeHandle();
    const Bytes hostile[] = {
        Header(0, -1, 3, 2, 1, 1),
        Header(0, 10, -3, 2, 1, 1),
        Header(0, 10, 3, -2, 1, 1),
        Header(0, 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 1, 32),
        Header(0, 0x10000, 0x10000, 0x40000, 1, 32), // the product is 2^34
        Header(0, 10, 3, 2, 0, 1),
        Header(0, 10, 3, 2, 1, 0xFFFF),
    };
    for (Bytes bytes : hostile) {
        bytes.resize(200);
        EXPECT_EQ(Load(bitmap, bytes), CArchiveException::endOfFile);
        EXPECT_EQ(bitmap.GetSafeHandle(), handle);
    }
}

TEST(BitmapEx, ABitmapThatThePlatformRefusesRaisesAndTheOldOneStays)
{
    CBitmapEx bitmap;
    MakeMono(bitmap);
    const HGDIOBJ handle = bitmap.GetSafeHandle();
    const Bytes stored = Stored(bitmap);
    const ImportPatch refusal("CreateBitmapIndirect", &RefuseBitmap);
    EXPECT_THROW(Load(bitmap, stored), CResourceException*);
    EXPECT_EQ(bitmap.GetSafeHandle(), handle);
}

TEST(BitmapEx, BitsThatTheFileCannotFillAreAnEndOfFile)
{
    CBitmapEx bitmap;
    Bytes large = Header(0, 20000, 20000, 80000, 1, 32); // 1.6 GB
    large.resize(100);
    EXPECT_EQ(Load(bitmap, large), CArchiveException::endOfFile);

    Bytes shortByOne = Header(0, 10, 3, 2, 1, 1);
    shortByOne.resize(20 + 5);
    EXPECT_EQ(Load(bitmap, shortByOne), CArchiveException::endOfFile);

    EXPECT_EQ(Load(bitmap, Bytes(19, 0)), CArchiveException::endOfFile) << "half a header";
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
}

TEST(BitmapEx, IsASerialClassOfSchemaOne)
{
    const CRuntimeClass* record = RUNTIME_CLASS(CBitmapEx);

    EXPECT_STREQ(record->m_lpszClassName, "CBitmapEx");
    EXPECT_EQ(record->m_wSchema, 1u);
    EXPECT_TRUE(record->IsDerivedFrom(RUNTIME_CLASS(CBitmap)));
    EXPECT_EQ(CRuntimeClass::FromName("CBitmapEx"), record);
}

TEST(BitmapEx, LoadingFreesWhatItReplaces)
{
    CBitmapEx bitmap;
    MakeMono(bitmap);
    const Bytes stored = Stored(bitmap);
    ASSERT_EQ(Load(bitmap, stored), -1);
    const int before = GdiCount::OfType(OBJ_BITMAP);

    for (int round = 0; round < 20; ++round)
        ASSERT_EQ(Load(bitmap, stored), -1);

    EXPECT_EQ(GdiCount::OfType(OBJ_BITMAP), before);
}
