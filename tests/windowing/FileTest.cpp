#include "framework/windowing/File.h"

#include <gtest/gtest.h>

#include "framework/windowing/Exceptions.h"
#include "windowing/TempFile.h"

namespace
{

// The cause of the file exception that the call raises, -1 for none.
template <class Call> int CauseOf(Call call)
{
    try {
        call();
    } catch (CFileException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

} // namespace

TEST(File, WhatWasWrittenReadsBack)
{
    const CTempFile temp;
    CFile file;
    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeCreate | CFile::modeWrite));
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetLength(), 10u);
    file.Flush();
    file.Close();

    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeRead));
    char bytes[20] = {};
    EXPECT_EQ(file.Seek(-4, CFile::end), 6u);
    EXPECT_EQ(file.Read(bytes, 20), 4u);
    EXPECT_STREQ(bytes, "6789");
    EXPECT_EQ(file.Read(bytes, 20), 0u);
    EXPECT_EQ(file.Seek(2, CFile::begin), 2u);
    EXPECT_EQ(file.Seek(1, CFile::current), 3u);
    EXPECT_EQ(file.GetPosition(), 3u);
}

TEST(File, CreateEmptiesAFileThatExists)
{
    const CTempFile temp("old content");
    CFile file;
    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(file.GetLength(), 0u);
}

TEST(File, FailedOpenTellsItsCause)
{
    const CTempFile temp;
    CFile file;
    CFileException failure;
    EXPECT_FALSE(file.Open(temp.Path() + L".none", CFile::modeRead, &failure));
    EXPECT_EQ(failure.m_cause, CFileException::fileNotFound);
    EXPECT_FALSE(file.Open(temp.Path() + L"\\a\\b", CFile::modeRead, &failure));
    EXPECT_EQ(failure.m_cause, CFileException::badPath);
    EXPECT_FALSE(file.Open(L"", CFile::modeRead));
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead));
    EXPECT_EQ(CauseOf([&] { CFile(temp.Path() + L".none", CFile::modeRead); }),
              CFileException::fileNotFound);
}

TEST(File, OpenFileIsSharedAsItsFlagsSay)
{
    const CTempFile temp("x");
    CFile first;
    ASSERT_TRUE(first.Open(temp.Path(), CFile::modeRead | CFile::shareDenyWrite));
    CFile reader;
    EXPECT_TRUE(reader.Open(temp.Path(), CFile::modeRead | CFile::shareDenyNone));
    CFile writer;
    CFileException failure;
    EXPECT_FALSE(writer.Open(temp.Path(), CFile::modeWrite | CFile::shareDenyNone, &failure));
    EXPECT_EQ(failure.m_cause, CFileException::sharingViolation);
}

TEST(File, ForbiddenDirectionsRaiseAccessDenied)
{
    const CTempFile temp("x");
    CFile file;
    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeRead));
    EXPECT_EQ(CauseOf([&] { file.Write("y", 1); }), CFileException::accessDenied);
    ASSERT_TRUE(file.Open(temp.Path(), CFile::modeWrite));
    char byte = 0;
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::accessDenied);
}

TEST(File, ClosedFileRaisesInvalidFile)
{
    CFile file;
    EXPECT_EQ(CauseOf([&] { file.Write("y", 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { (void)file.GetLength(); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Close(); }), -1);
    file.Abort();
}

TEST(File, SeekInFrontOfTheBeginningRaisesBadSeek)
{
    const CTempFile temp("x");
    CFile file(temp.Path(), CFile::modeRead);
    EXPECT_EQ(CauseOf([&] { file.Seek(-5, CFile::begin); }), CFileException::badSeek);
}

TEST(File, SystemErrorsHaveTheirCauses)
{
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_DISK_FULL), CFileException::diskFull);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_HANDLE_DISK_FULL), CFileException::diskFull);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_WRITE_PROTECT), CFileException::accessDenied);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_LOCK_VIOLATION), CFileException::lockViolation);
    EXPECT_EQ(CFileException::OsErrorToException(ERROR_CRC), CFileException::hardIO);
    EXPECT_EQ(CFileException::OsErrorToException(123456), CFileException::genericException);
    EXPECT_EQ(CFileException::OsErrorToException(NO_ERROR), CFileException::none);
}

TEST(Exception, StaticsSurviveDelete)
{
    for (int round = 0; round < 2; ++round) {
        bool caught = false;
        try {
            AfxThrowMemoryException();
        } catch (CException* e) {
            caught = e->IsKindOf(RUNTIME_CLASS(CMemoryException));
            e->Delete();
        }
        EXPECT_TRUE(caught);
    }
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
}

TEST(Exception, ResultCodeTravelsWithTheOleException)
{
    try {
        AfxThrowOleException(E_ACCESSDENIED);
    } catch (CException* e) {
        COleException* failure = DYNAMIC_DOWNCAST(COleException, e);
        ASSERT_NE(failure, nullptr);
        EXPECT_EQ(failure->m_sc, E_ACCESSDENIED);
        e->Delete();
    }
}
