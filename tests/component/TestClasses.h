#pragma once
// Small classes for the tests of the component framework, with a count of those alive.

#include "framework/component/ClassFactory.h"

#include <windows.h>

#include <objidl.h>

// {5C0D8E7A-3D51-4B8B-9C65-2F3D7A10E001} and _002
inline constexpr CLSID CLSID_Counted{
    0x5C0D8E7A, 0x3D51, 0x4B8B, {0x9C, 0x65, 0x2F, 0x3D, 0x7A, 0x10, 0xE0, 0x01}};
inline constexpr CLSID CLSID_Other{
    0x5C0D8E7A, 0x3D51, 0x4B8B, {0x9C, 0x65, 0x2F, 0x3D, 0x7A, 0x10, 0xE0, 0x02}};

// Answers IPersist; what happens while one is made is set from outside.
class CCounted : public CComObjectRootEx<CComSingleThreadModel>,
                 public CComCoClass<CCounted, &CLSID_Counted>,
                 public IPersist
{
public:
    enum class Making { Works, RunsOutOfMemory, ThrowsOfTheFramework, FailsInFinalConstruct };

    CCounted()
    {
        switch (making) {
        case Making::RunsOutOfMemory:
            throw std::bad_alloc();
        case Making::ThrowsOfTheFramework:
            throw new COleException(E_FAIL);
        default:
            ++alive;
        }
    }
    ~CCounted() { --alive; }

    BEGIN_COM_MAP(CCounted)
    COM_INTERFACE_ENTRY(IPersist)
    END_COM_MAP()

    static HRESULT WINAPI UpdateRegistry(BOOL bRegister)
    {
        (bRegister ? registered : unregistered) += 1;
        return updateResult;
    }
    static void WINAPI ObjectMain(bool bStarting) { (bStarting ? started : stopped) += 1; }

    HRESULT FinalConstruct() { return making == Making::FailsInFinalConstruct ? E_ACCESSDENIED : S_OK; }
    void FinalRelease() { ++finals; }

    STDMETHOD(GetClassID)(CLSID* pClassID) override
    {
        *pClassID = CLSID_Counted;
        return S_OK;
    }

    static void Reset()
    {
        making = Making::Works;
        alive = started = stopped = registered = unregistered = finals = 0;
        updateResult = S_OK;
    }

    inline static Making making = Making::Works;
    inline static int alive = 0;
    inline static int started = 0;
    inline static int stopped = 0;
    inline static int registered = 0;
    inline static int unregistered = 0;
    inline static int finals = 0;
    inline static HRESULT updateResult = S_OK;
};

// A controlling outer: its own IUnknown, and everything else from the inner object.
class Outer final : public IUnknown
{
public:
    STDMETHOD_(ULONG, AddRef)() override { return ++references; }
    STDMETHOD_(ULONG, Release)() override { return --references; }
    STDMETHOD(QueryInterface)(REFIID iid, void** ppv) override
    {
        if (IsEqualGUID(iid, IID_IUnknown)) {
            *ppv = this;
            AddRef();
            return S_OK;
        }
        return inner != nullptr ? inner->QueryInterface(iid, ppv) : E_NOINTERFACE;
    }

    IUnknown* inner = nullptr;
    ULONG references = 1;
};
