#include "framework/windowing/Archive.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "windowing/ArchiveTestClasses.h"

using ArchiveTest::Bytes;
using ArchiveTest::Load;
using ArchiveTest::Stored;

IMPLEMENT_SERIAL(CNote, CObject, 1)
IMPLEMENT_SERIAL(CLongNote, CNote, 3)
IMPLEMENT_SERIAL(CStranger, CObject, 1)

int CNote::s_nAlive = 0;

void CNote::Serialize(CArchive& ar)
{
    if (ar.IsStoring())
        ar << m_nNumber;
    else
        ar >> m_nNumber;
}

void CLongNote::Serialize(CArchive& ar)
{
    CNote::Serialize(ar);
    if (ar.IsStoring())
        ar << m_strText;
    else
        ar >> m_strText;
}

namespace
{

const std::string NewNote = Bytes("\xFF\xFF\x01\0\x05\0CNote");
const std::string One = Bytes("\x01\0\0\0");
const std::string Two = Bytes("\x02\0\0\0");

// The cause of reading one note from the bytes; the note is checked to leave nothing behind.
int CauseOfReading(const std::string& bytes)
{
    const int before = CNote::s_nAlive;
    const int cause = Load(
        bytes, [](CArchive& ar) { std::unique_ptr<CObject> note(ar.ReadObject(RUNTIME_CLASS(CNote))); });
    EXPECT_EQ(CNote::s_nAlive, before);
    return cause;
}

} // namespace

TEST(ArchiveObjects, NewClassThenReferencesInOneSequence)
{
    const std::string bytes = Stored([](CArchive& ar) {
        const CNote first(1);
        const CNote second(2);
        CLongNote third;
        third.m_strText = L"x";
        ar.WriteObject(&first);  // class 1, object 2
        ar.WriteObject(&second); // object 3
        ar.WriteObject(&third);  // class 4, object 5
        ar.WriteObject(&second);
        ar.WriteObject(&third);
    });
    EXPECT_EQ(bytes, NewNote + One + Bytes("\x01\x80") + Two +
                         Bytes("\xFF\xFF\x03\0\x09\0CLongNote\0\0\0\0\xFF\xFE\xFF\x01x\0") +
                         Bytes("\x03\0\x05\0"));
}

TEST(ArchiveObjects, ReferencesReadBackAsTheSameObject)
{
    const std::string bytes = NewNote + One + Bytes("\x01\x80") + Two + Bytes("\x02\0\x03\0");
    EXPECT_EQ(Load(bytes,
                   [](CArchive& ar) {
                       CNote* first = nullptr;
                       CNote* second = nullptr;
                       ar >> first >> second;
                       const std::unique_ptr<CNote> owner1(first);
                       const std::unique_ptr<CNote> owner2(second);
                       EXPECT_EQ(first->m_nNumber, 1);
                       EXPECT_EQ(second->m_nNumber, 2);
                       EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS(CNote)), first);
                       EXPECT_EQ(ar.ReadObject(nullptr), second);
                       EXPECT_EQ(ar.GetRemaining(), 0u);
                   }),
              CArchiveException::none);
    EXPECT_EQ(CNote::s_nAlive, 0);
}

TEST(ArchiveObjects, DerivedClassStandsForItsBase)
{
    const std::string bytes = Bytes("\xFF\xFF\x03\0\x09\0CLongNote\x07\0\0\0\xFF\xFE\xFF\x01x\0");
    Load(bytes, [](CArchive& ar) {
        const std::unique_ptr<CObject> object(ar.ReadObject(RUNTIME_CLASS(CNote)));
        CLongNote* note = DYNAMIC_DOWNCAST(CLongNote, object.get());
        ASSERT_NE(note, nullptr);
        EXPECT_EQ(note->m_nNumber, 7);
        EXPECT_STREQ(note->m_strText, L"x");
    });
}

TEST(ArchiveObjects, BigTagsReferAsTheSmallOnesDo)
{
    const std::string bytes =
        NewNote + One + Bytes("\xFF\x7F\x01\0\0\x80") + Two + Bytes("\xFF\x7F\x03\0\0\0");
    EXPECT_EQ(Load(bytes,
                   [](CArchive& ar) {
                       const std::unique_ptr<CObject> first(ar.ReadObject(RUNTIME_CLASS(CNote)));
                       const std::unique_ptr<CObject> second(ar.ReadObject(RUNTIME_CLASS(CNote)));
                       EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS(CNote)), second.get());
                   }),
              CArchiveException::none);
}

TEST(ArchiveObjects, ManyObjectsCrossIntoTheBigForm)
{
    constexpr int count = 0x8100;
    std::vector<std::unique_ptr<CNote>> notes;
    for (int i = 0; i < count; ++i)
        notes.push_back(std::make_unique<CNote>(i));
    const std::string bytes = Stored([&](CArchive& ar) {
        for (const auto& note : notes)
            ar.WriteObject(note.get());
        ar.WriteObject(notes[0x7FFE - 2].get()); // number 0x7FFE, the last in the small form
        ar.WriteObject(notes[0x7FFF - 2].get());
        const CStranger stranger;
        ar.WriteObject(&stranger);
        ar.WriteClass(RUNTIME_CLASS(CStranger));
    });
    EXPECT_TRUE(bytes.ends_with(Bytes("\xFE\x7F") + Bytes("\xFF\x7F\xFF\x7F\0\0") +
                                Bytes("\xFF\xFF\x01\0\x09\0CStranger") +
                                Bytes("\xFF\x7F\x02\x81\0\x80")));
    std::vector<std::unique_ptr<CObject>> read;
    EXPECT_EQ(Load(bytes,
                   [&](CArchive& ar) {
                       for (int i = 0; i < count; ++i)
                           read.emplace_back(ar.ReadObject(RUNTIME_CLASS(CNote)));
                       EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS(CNote)), read[0x7FFE - 2].get());
                       EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS(CNote)), read[0x7FFF - 2].get());
                   }),
              CArchiveException::none);
    EXPECT_EQ(static_cast<CNote*>(read.back().get())->m_nNumber, count - 1);
}

TEST(ArchiveObjects, NullObjectIsWrittenAndEndsTheReadAsABadClass)
{
    EXPECT_EQ(Stored([](CArchive& ar) { ar.WriteObject(nullptr); }), Bytes("\0\0"));
    EXPECT_EQ(CauseOfReading(Bytes("\0\0")), CArchiveException::badClass);
}

TEST(ArchiveObjects, UnknownClassIsABadClass)
{
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\x05\0CXyzt") + One), CArchiveException::badClass);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\0\0") + One), CArchiveException::badClass);
    // A zero inside the name does not cut it to a known one.
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\x07\0CNote\0x") + One), CArchiveException::badClass);
}

TEST(ArchiveObjects, ClassNamesAbove63CharactersAreABadClass)
{
    const std::string longest(63, 'C');
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\x40\0") + longest + "C"),
              CArchiveException::badClass);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\xFF\xFF") + longest), CArchiveException::badClass);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\x3F\0") + longest), CArchiveException::badClass);
}

TEST(ArchiveObjects, AnotherSchemaIsABadSchema)
{
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x02\0\x05\0CNote") + One), CArchiveException::badSchema);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\xFF\xFF\x05\0CNote") + One), CArchiveException::badSchema);
}

TEST(ArchiveObjects, ClassOutsideTheExpectedBaseIsABadClass)
{
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\xFF\x01\0\x09\0CStranger")), CArchiveException::badClass);
    const std::string bytes = Bytes("\xFF\xFF\x01\0\x09\0CStranger\x02\0");
    EXPECT_EQ(Load(bytes,
                   [](CArchive& ar) {
                       const std::unique_ptr<CObject> stranger(ar.ReadObject(nullptr));
                       (void)ar.ReadObject(RUNTIME_CLASS(CNote));
                   }),
              CArchiveException::badClass);
}

TEST(ArchiveObjects, NumbersThatNothingHasAreABadIndex)
{
    EXPECT_EQ(CauseOfReading(Bytes("\x01\x80")), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfReading(Bytes("\0\x80")), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfReading(Bytes("\x01\0")), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\x7F\0\0\0\0")), CArchiveException::badIndex);
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\x7F\xFF\xFF\xFF\xFF")), CArchiveException::badIndex);
}

TEST(ArchiveObjects, NumberOfTheOtherKindIsABadIndex)
{
    for (const std::string& second : {Bytes("\x02\x80"), Bytes("\x01\0"), Bytes("\x03\0")}) {
        EXPECT_EQ(Load(NewNote + One + second,
                       [](CArchive& ar) {
                           const std::unique_ptr<CObject> first(ar.ReadObject(RUNTIME_CLASS(CNote)));
                           (void)ar.ReadObject(RUNTIME_CLASS(CNote));
                       }),
                  CArchiveException::badIndex);
    }
    EXPECT_EQ(CNote::s_nAlive, 0);
}

TEST(ArchiveObjects, EveryTruncationIsTheEndOfTheFileAndLeavesNothingBehind)
{
    const std::string whole = NewNote + One;
    for (size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(CauseOfReading(whole.substr(0, size)), CArchiveException::endOfFile) << size;
    EXPECT_EQ(CauseOfReading(Bytes("\xFF\x7F\x01\0\0")), CArchiveException::endOfFile);
}

TEST(ArchiveObjects, ClassWhoseNameNoFileCouldHoldIsRefused)
{
    const std::string longest(63, 'C');
    const std::string longer(64, 'C');
    CRuntimeClass record = {longest.c_str(), 1, 1, nullptr, nullptr};
    EXPECT_EQ(Stored([&](CArchive& ar) { ar.WriteClass(&record); }),
              Bytes("\xFF\xFF\x01\0\x3F\0") + longest);
    record.m_lpszClassName = longer.c_str();
    const CTempFile temp;
    CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
    CArchive ar(&file, CArchive::store);
    EXPECT_THROW(ar.WriteClass(&record), CArchiveException*);
}

TEST(ArchiveObjects, ClassThatIsNotSerialIsRefused)
{
    const CTempFile temp;
    CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
    CArchive ar(&file, CArchive::store);
    EXPECT_THROW(ar.WriteObject(&file), CArchiveException*);
}
