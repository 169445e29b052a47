#include "framework/component/Dispatch.h"
#include "framework/component/ClassFactory.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{

// A library that is neither registered nor in the test program.
constexpr GUID LIBID_Missing{
    0x5C0D8E7A, 0x3D51, 0x4B8B, {0x9C, 0x65, 0x2F, 0x3D, 0x7A, 0x10, 0xE0, 0x10}};

struct ITwoMethods : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE First() = 0;
    virtual HRESULT STDMETHODCALLTYPE Second() = 0;
};

class CTwoMethods : public CComObjectRootEx<CComSingleThreadModel>,
                    public CComCoClass<CTwoMethods>,
                    public IDispatchImpl<CRefusingTail<ITwoMethods, 3>, &IID_IDispatch, &LIBID_Missing>
{
public:
    BEGIN_COM_MAP(CTwoMethods)
    COM_INTERFACE_ENTRY(IDispatch)
    END_COM_MAP()

    STDMETHOD(First)() override { return S_OK; }
    STDMETHOD(Second)() override { return S_FALSE; }
    virtual HRESULT STDMETHODCALLTYPE OfTheClass() { return S_OK; }
};

class Dispatch : public testing::Test
{
protected:
    Dispatch()
    {
        module.Init(nullptr, GetModuleHandleW(nullptr));
        EXPECT_EQ(CTwoMethods::CreateInstance(&dispatch), S_OK);
    }

    // Calls a table entry with more arguments than any method takes.
    HRESULT CallEntry(int entry)
    {
        using Method = HRESULT(STDMETHODCALLTYPE*)(void*, std::uintptr_t, double, std::uintptr_t,
                                                   std::uintptr_t, double);
        Method* table = *reinterpret_cast<Method**>(dispatch.p);
        return table[entry](dispatch.p, 1, 2.0, 3, 4, 5.0);
    }

    CComModule module;
    CComPtr<IDispatch> dispatch;
};

} // namespace

TEST_F(Dispatch, RefusalsStandRightBehindTheInterface)
{
    EXPECT_EQ(CallEntry(7), S_OK);
    EXPECT_EQ(CallEntry(8), S_FALSE);
    EXPECT_EQ(CallEntry(9), E_NOTIMPL);
    EXPECT_EQ(CallEntry(10), E_NOTIMPL);
    EXPECT_EQ(CallEntry(11), E_NOTIMPL);
    EXPECT_EQ(CallEntry(12), S_OK); // what the class adds comes behind them
}

TEST_F(Dispatch, ThereIsOneDescription)
{
    UINT count = 0;
    EXPECT_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(dispatch->GetTypeInfoCount(nullptr), E_POINTER);
}

TEST_F(Dispatch, OtherIndicesAndMissingPointersAreRefused)
{
    auto* info = reinterpret_cast<ITypeInfo*>(1);
    EXPECT_EQ(dispatch->GetTypeInfo(1, LOCALE_NEUTRAL, &info), DISP_E_BADINDEX);
    EXPECT_EQ(info, nullptr);
    EXPECT_EQ(dispatch->GetTypeInfo(0, LOCALE_NEUTRAL, nullptr), E_POINTER);
}

TEST_F(Dispatch, MissingLibraryFailsEveryLateBoundCall)
{
    ITypeInfo* info = nullptr;
    EXPECT_TRUE(FAILED(dispatch->GetTypeInfo(0, LOCALE_NEUTRAL, &info)));
    EXPECT_EQ(info, nullptr);

    wchar_t name[] = L"First";
    LPOLESTR names[] = {name};
    DISPID id = 0;
    EXPECT_TRUE(FAILED(dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &id)));
    DISPPARAMS none{};
    EXPECT_TRUE(FAILED(dispatch->Invoke(1, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &none, nullptr,
                                        nullptr, nullptr)));
}
