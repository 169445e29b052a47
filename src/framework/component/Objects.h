#pragma once
// Objects with interfaces: reference counts, interface maps, plain and aggregated objects,
// and how they are made.
//
// A class with interfaces derives from CComObjectRootEx, from CComCoClass if a host may make
// it, and from its interfaces; it names these in an interface map. CComObject<T> makes it a
// whole object, CComAggObject<T> one that lives inside another.

#include "framework/component/Module.h"
#include "framework/windowing/Exceptions.h"

#include <windows.h>
#include <unknwn.h>

#include <new>
#include <span>
#include <type_traits>

// No interface has a destructor: objects end with their last reference, inside the classes
// below that know the whole type.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Objects that stay on the thread that made them.
class CComSingleThreadModel
{
public:
    static ULONG Increment(LONG* p) noexcept { return static_cast<ULONG>(++*p); }
    static ULONG Decrement(LONG* p) noexcept { return static_cast<ULONG>(--*p); }
};

// Objects that any thread may hold.
class CComMultiThreadModel
{
public:
    static ULONG Increment(LONG* p) noexcept { return static_cast<ULONG>(::InterlockedIncrement(p)); }
    static ULONG Decrement(LONG* p) noexcept { return static_cast<ULONG>(::InterlockedDecrement(p)); }
};

using CComGlobalsThreadModel = CComMultiThreadModel;

// One row of an interface map: an interface and the way to it from the class.
struct _ATL_INTMAP_ENTRY {
    const IID* piid;
    IUnknown* (*pfnCast)(void* pThis);
};

template <class Base, class Interface> IUnknown* AtlCastToInterface(void* pThis)
{
    return static_cast<Interface*>(static_cast<Base*>(pThis));
}

class CComObjectRootBase
{
public:
    HRESULT FinalConstruct() { return S_OK; }
    void FinalRelease() {}
    void SetVoid(void*) {}
    static void WINAPI ObjectMain(bool) {}

    // IUnknown is the first row's interface. E_POINTER without ppv; E_NOINTERFACE, with *ppv
    // null, for what the map doesn't name.
    static HRESULT InternalQueryInterface(void* pThis, std::span<const _ATL_INTMAP_ENTRY> entries,
                                          REFIID iid, void** ppvObject);

    // For an object inside another one.
    ULONG OuterAddRef() { return m_pOuterUnknown->AddRef(); }
    ULONG OuterRelease() { return m_pOuterUnknown->Release(); }
    HRESULT OuterQueryInterface(REFIID iid, void** ppvObject)
    {
        return m_pOuterUnknown->QueryInterface(iid, ppvObject);
    }

    union {
        LONG m_dwRef = 0;
        IUnknown* m_pOuterUnknown;
    };
};

template <class ThreadModel> class CComObjectRootEx : public CComObjectRootBase
{
public:
    using _ThreadModel = ThreadModel;

    ULONG InternalAddRef() { return ThreadModel::Increment(&m_dwRef); }
    ULONG InternalRelease() { return ThreadModel::Decrement(&m_dwRef); }
};

#define BEGIN_COM_MAP(x)                                                                                \
public:                                                                                                 \
    using _ComMapClass = x;                                                                             \
    HRESULT _InternalQueryInterface(REFIID iid, void** ppvObject)                                       \
    {                                                                                                   \
        return InternalQueryInterface(this, _GetEntries(), iid, ppvObject);                             \
    }                                                                                                   \
    static std::span<const _ATL_INTMAP_ENTRY> _GetEntries()                                             \
    {                                                                                                   \
        static const _ATL_INTMAP_ENTRY entries[] = {

#define COM_INTERFACE_ENTRY(x) {&__uuidof(x), &AtlCastToInterface<_ComMapClass, x>},

#define END_COM_MAP()                                                                                   \
    }                                                                                                   \
    ;                                                                                                   \
    return entries;                                                                                     \
    }

// Runs the class's registry script, a resource of that id.
#define DECLARE_REGISTRY_RESOURCEID(x)                                                                  \
    static HRESULT WINAPI UpdateRegistry(BOOL bRegister)                                                \
    {                                                                                                   \
        return _pModule->UpdateRegistryFromResource(x, bRegister);                                      \
    }

// A whole object. It keeps the module loaded while it lives.
template <class Base> class CComObject final : public Base
{
public:
    explicit CComObject(void* = nullptr) { _pModule->Lock(); }
    ~CComObject()
    {
        // A reference taken and dropped while the object ends must not end it again.
        this->m_dwRef = -(LONG_MAX / 2);
        this->FinalRelease();
        if (_pModule)
            _pModule->Unlock();
    }

    STDMETHOD_(ULONG, AddRef)() override { return this->InternalAddRef(); }
    STDMETHOD_(ULONG, Release)() override
    {
        const ULONG left = this->InternalRelease();
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHOD(QueryInterface)(REFIID iid, void** ppvObject) override
    {
        return this->_InternalQueryInterface(iid, ppvObject);
    }

    // A new object without any reference yet; E_OUTOFMEMORY or what FinalConstruct gave.
    static HRESULT WINAPI CreateInstance(CComObject<Base>** pp);
};

// The inner part of an aggregated object: its references and interfaces are the outer's.
template <class Base> class CComContainedObject final : public Base
{
public:
    explicit CComContainedObject(void* pv) { this->m_pOuterUnknown = static_cast<IUnknown*>(pv); }
    ~CComContainedObject() { this->FinalRelease(); }

    STDMETHOD_(ULONG, AddRef)() override { return this->OuterAddRef(); }
    STDMETHOD_(ULONG, Release)() override { return this->OuterRelease(); }
    STDMETHOD(QueryInterface)(REFIID iid, void** ppvObject) override
    {
        return this->OuterQueryInterface(iid, ppvObject);
    }
};

// An object inside another: what the outer holds is this object's own IUnknown.
template <class Contained>
class CComAggObject final : public IUnknown, public CComObjectRootEx<typename Contained::_ThreadModel>
{
public:
    explicit CComAggObject(void* pv) : m_contained(pv) { _pModule->Lock(); }
    ~CComAggObject()
    {
        this->m_dwRef = -(LONG_MAX / 2);
        if (_pModule)
            _pModule->Unlock();
    }

    HRESULT FinalConstruct() { return m_contained.FinalConstruct(); }

    STDMETHOD_(ULONG, AddRef)() override { return this->InternalAddRef(); }
    STDMETHOD_(ULONG, Release)() override
    {
        const ULONG left = this->InternalRelease();
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHOD(QueryInterface)(REFIID iid, void** ppvObject) override
    {
        if (!ppvObject)
            return E_POINTER;
        if (!InlineIsEqualGUID(iid, IID_IUnknown))
            return m_contained._InternalQueryInterface(iid, ppvObject);
        *ppvObject = static_cast<IUnknown*>(this);
        AddRef();
        return S_OK;
    }

    CComContainedObject<Contained> m_contained;
};

// An object that a module keeps in a cache: only references beyond the cache's own keep the
// module loaded.
template <class Base> class CComObjectCached final : public Base
{
public:
    explicit CComObjectCached(void* = nullptr) {}
    ~CComObjectCached()
    {
        this->m_dwRef = -(LONG_MAX / 2);
        this->FinalRelease();
    }

    STDMETHOD_(ULONG, AddRef)() override
    {
        const ULONG count = this->InternalAddRef();
        if (count == 2)
            _pModule->Lock();
        return count;
    }
    STDMETHOD_(ULONG, Release)() override
    {
        const ULONG left = this->InternalRelease();
        if (left == 0)
            delete this;
        else if (left == 1 && _pModule)
            _pModule->Unlock();
        return left;
    }
    STDMETHOD(QueryInterface)(REFIID iid, void** ppvObject) override
    {
        return this->_InternalQueryInterface(iid, ppvObject);
    }
};

// A new T(pv), or null where memory ran out, whichever exception reported that.
template <class T> T* AtlNew(void* pv)
{
    try {
        return new T(pv);
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CException* e) {
        e->Delete();
        return nullptr;
    }
}

// Makes a T and asks it for an interface; what can't answer is destroyed.
template <class T> class CComCreator
{
public:
    static HRESULT WINAPI CreateInstance(void* pv, REFIID riid, LPVOID* ppv)
    {
        if (!ppv)
            return E_POINTER;
        *ppv = nullptr;
        T* object = AtlNew<T>(pv);
        if (!object)
            return E_OUTOFMEMORY;
        object->SetVoid(pv);
        object->InternalAddRef(); // FinalConstruct may hand the object around
        HRESULT result = object->FinalConstruct();
        object->InternalRelease();
        if (result == S_OK)
            result = object->QueryInterface(riid, ppv);
        if (result != S_OK)
            delete object;
        return result;
    }
};

// The pair of creators of a class: Plain without an outer, Aggregated with one.
template <class Plain, class Aggregated> class CComCreator2
{
public:
    static HRESULT WINAPI CreateInstance(void* pv, REFIID riid, LPVOID* ppv)
    {
        return !pv ? Plain::CreateInstance(nullptr, riid, ppv)
                   : Aggregated::CreateInstance(pv, riid, ppv);
    }
};

template <class Base> HRESULT WINAPI CComObject<Base>::CreateInstance(CComObject<Base>** pp)
{
    if (!pp)
        return E_POINTER;
    *pp = nullptr;
    auto* object = AtlNew<CComObject<Base>>(nullptr);
    if (!object)
        return E_OUTOFMEMORY;
    object->InternalAddRef();
    const HRESULT result = object->FinalConstruct();
    object->InternalRelease();
    if (result != S_OK) {
        delete object;
        return result;
    }
    *pp = object;
    return S_OK;
}
