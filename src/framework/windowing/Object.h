#pragma once
// The root of the object classes: run-time class records, creation by record, and the
// serial classes that an archive finds by name.
//
// A record is a static of its class, made at load time. Serial classes link their record
// into one list of the module; CRuntimeClass::FromName searches it.

#include <windows.h>

class CArchive;
class CDumpContext; // only named in the slot of CObject::Dump
class CObject;

struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                  // 0xFFFF: not a serial class
    CObject* (*m_pfnCreateObject)(); // null: can't be created by record
    CRuntimeClass* m_pBaseClass;
    CRuntimeClass* m_pNextClass = nullptr; // next serial class of the module

    // A new object, or null where the class has no creator.
    [[nodiscard]] CObject* CreateObject() const;
    [[nodiscard]] BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept;
    // The serial class of that name, or null.
    [[nodiscard]] static CRuntimeClass* FromName(LPCSTR lpszClassName) noexcept;
};

class CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    [[nodiscard]] BOOL IsKindOf(const CRuntimeClass* pClass) const
    {
        return GetRuntimeClass()->IsDerivedFrom(pClass);
    }

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
};

// Links a serial class into the module's list while the module is being loaded.
struct AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept;
};

CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject);
CObject* AfxReadObject(CArchive& ar, const CRuntimeClass* pClass);

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)
#define DYNAMIC_DOWNCAST(class_name, object)                                                            \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

#define DECLARE_DYNAMIC(class_name)                                                                     \
public:                                                                                                 \
    static CRuntimeClass class##class_name;                                                             \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                   \
    DECLARE_DYNAMIC(class_name)                                                                         \
    static CObject* CreateObject();

#define DECLARE_SERIAL(class_name)                                                                      \
    DECLARE_DYNCREATE(class_name)                                                                       \
    friend CArchive& operator>>(CArchive& ar, class_name*& pOb);

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, creator)                        \
    CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class class_name), schema,       \
                                                   creator, RUNTIME_CLASS(base_class_name)};            \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                  \
    {                                                                                                   \
        return RUNTIME_CLASS(class_name);                                                               \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                  \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                \
    CObject* class_name::CreateObject()                                                                 \
    {                                                                                                   \
        return new class_name;                                                                          \
    }                                                                                                   \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                                           \
    CObject* class_name::CreateObject()                                                                 \
    {                                                                                                   \
        return new class_name;                                                                          \
    }                                                                                                   \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, class_name::CreateObject)           \
    static const AFX_CLASSINIT init_##class_name(RUNTIME_CLASS(class_name));                            \
    [[maybe_unused]] CArchive& operator>>(CArchive& ar, class_name*& pOb)                               \
    {                                                                                                   \
        pOb = static_cast<class_name*>(AfxReadObject(ar, RUNTIME_CLASS(class_name)));                   \
        return ar;                                                                                      \
    }
