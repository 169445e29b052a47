#include "framework/windowing/Object.h"

#include <cstring>

#include "framework/windowing/Archive.h"

namespace
{
// Filled while the module is being loaded, hence a plain pointer without construction.
constinit CRuntimeClass* g_pFirstSerialClass = nullptr;
} // namespace

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept
{
    for (const CRuntimeClass* pClass = this; pClass; pClass = pClass->m_pBaseClass) {
        if (pClass == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName) noexcept
{
    for (CRuntimeClass* pClass = g_pFirstSerialClass; pClass; pClass = pClass->m_pNextClass) {
        if (std::strcmp(pClass->m_lpszClassName, lpszClassName) == 0)
            return pClass;
    }
    return nullptr;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept
{
    pNewClass->m_pNextClass = g_pFirstSerialClass;
    g_pFirstSerialClass = pNewClass;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}
void CObject::Dump(CDumpContext&) const {}

CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject)
{
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AfxReadObject(CArchive& ar, const CRuntimeClass* pClass)
{
    return ar.ReadObject(pClass);
}
