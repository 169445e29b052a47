#pragma once
// Serial classes and helpers for the archive's tests.

#include <string>

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "windowing/TempFile.h"

// Counts its objects, so that a failed read shows what it left behind.
class CNote : public CObject
{
    DECLARE_SERIAL(CNote)
public:
    CNote() { ++s_nAlive; }
    explicit CNote(int number) : m_nNumber(number) { ++s_nAlive; }
    CNote(const CNote&) = delete;
    CNote& operator=(const CNote&) = delete;
    ~CNote() override { --s_nAlive; }
    void Serialize(CArchive& ar) override;

    int m_nNumber = 0;
    static int s_nAlive;
};

class CLongNote : public CNote
{
    DECLARE_SERIAL(CLongNote)
public:
    void Serialize(CArchive& ar) override;
    CString m_strText;
};

// No relation to the notes.
class CStranger : public CObject
{
    DECLARE_SERIAL(CStranger)
};

namespace ArchiveTest
{

// What the call writes through an archive.
template <class Call> std::string Stored(Call call)
{
    const CTempFile temp;
    {
        CFile file(temp.Path(), CFile::modeCreate | CFile::modeWrite);
        CArchive ar(&file, CArchive::store);
        call(ar);
    }
    return temp.Read();
}

// Reads the bytes with the call. The result is the cause of the CArchiveException, 0 for none.
template <class Call> int Load(std::string_view bytes, Call call)
{
    const CTempFile temp(bytes);
    CFile file(temp.Path(), CFile::modeRead);
    try {
        CArchive ar(&file, CArchive::load);
        call(ar);
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return CArchiveException::none;
}

// Bytes by literal, zeros included.
template <size_t Size> std::string Bytes(const char (&text)[Size])
{
    return std::string(text, Size - 1);
}

} // namespace ArchiveTest
