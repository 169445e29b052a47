// Objects and classes of an archive: the common sequence of their numbers.

#include "framework/windowing/Archive.h"

#include <array>
#include <cstring>
#include <memory>

#include "framework/windowing/ArchiveEncoding.h"
#include "framework/windowing/Exceptions.h"

using ArchiveEncoding::ETagKind;

DWORD CArchive::NextNumber()
{
    if (m_nNumbers >= ArchiveEncoding::MaxNumber)
        Fail(CArchiveException::badIndex);
    return ++m_nNumbers;
}

void CArchive::WriteReference(bool isClass, DWORD number)
{
    const ArchiveEncoding::CBytes tag = ArchiveEncoding::ReferenceTag(isClass, number);
    Write(tag.View().data(), static_cast<UINT>(tag.View().size()));
}

void CArchive::WriteObject(const CObject* pOb)
{
    if (!pOb) {
        *this << WORD{ArchiveEncoding::NullTag};
        return;
    }
    if (const auto known = m_stored.find(pOb); known != m_stored.end()) {
        WriteReference(false, known->second);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    m_stored.emplace(pOb, NextNumber());
    const_cast<CObject*>(pOb)->Serialize(*this); // one routine reads and writes
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef)
{
    const size_t length = std::strlen(pClassRef->m_lpszClassName);
    if (pClassRef->m_wSchema == 0xFFFF || length > ArchiveEncoding::MaxClassName)
        Fail(CArchiveException::badClass);
    if (const auto known = m_stored.find(pClassRef); known != m_stored.end()) {
        WriteReference(true, known->second);
        return;
    }
    *this << WORD{ArchiveEncoding::NewClassTag} << static_cast<WORD>(pClassRef->m_wSchema)
          << static_cast<WORD>(length);
    Write(pClassRef->m_lpszClassName, static_cast<UINT>(length));
    m_stored.emplace(pClassRef, NextNumber());
}

const CRuntimeClass* CArchive::ReadNewClass()
{
    WORD schema = 0;
    WORD length = 0;
    *this >> schema >> length;
    if (length > ArchiveEncoding::MaxClassName)
        Fail(CArchiveException::badClass);
    std::array<char, ArchiveEncoding::MaxClassName + 1> name{};
    ReadExactly(name.data(), length);

    const CRuntimeClass* const pClass = CRuntimeClass::FromName(name.data());
    if (!pClass || std::strlen(pClass->m_lpszClassName) != length)
        Fail(CArchiveException::badClass);
    if (pClass->m_wSchema != schema)
        Fail(CArchiveException::badSchema);
    NextNumber();
    m_loaded.push_back({pClass, nullptr});
    return pClass;
}

const CRuntimeClass* CArchive::ClassOfNumber(DWORD number) const
{
    if (number == 0 || number > m_loaded.size() || !m_loaded[number - 1].pClass)
        Fail(CArchiveException::badIndex);
    return m_loaded[number - 1].pClass;
}

CObject* CArchive::ObjectOfNumber(DWORD number, const CRuntimeClass* pClass) const
{
    if (number == 0 || number > m_loaded.size() || !m_loaded[number - 1].pObject)
        Fail(CArchiveException::badIndex);
    CObject* const object = m_loaded[number - 1].pObject;
    if (pClass && !object->IsKindOf(pClass))
        Fail(CArchiveException::badClass);
    return object;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass)
{
    const auto tag = ArchiveEncoding::ReadTag([this](int width) { return ReadInteger(width); });
    if (tag.kind == ETagKind::Null)
        Fail(CArchiveException::badClass);
    if (tag.kind == ETagKind::Object)
        return ObjectOfNumber(tag.number, pClass);

    const CRuntimeClass* const found =
        tag.kind == ETagKind::NewClass ? ReadNewClass() : ClassOfNumber(tag.number);
    if (pClass && !found->IsDerivedFrom(pClass))
        Fail(CArchiveException::badClass);
    std::unique_ptr<CObject> object(found->CreateObject());
    if (!object)
        Fail(CArchiveException::badClass);
    NextNumber();
    m_loaded.push_back({nullptr, object.get()});
    object->Serialize(*this);
    return object.release();
}
