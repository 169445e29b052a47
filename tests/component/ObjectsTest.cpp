#include "component/TestClasses.h"
#include "framework/component/ComPtr.h"

#include <gtest/gtest.h>

namespace
{

class Objects : public testing::Test
{
protected:
    Objects() { CCounted::Reset(); }

    static HRESULT Make(IUnknown* outer, REFIID iid, void** object)
    {
        return CCounted::_CreatorClass::CreateInstance(outer, iid, object);
    }

    CComModule module;
};

void* Junk()
{
    return reinterpret_cast<void*>(1);
}

} // namespace

TEST_F(Objects, AnswerTheirMapAndIUnknownAlone)
{
    CComPtr<IPersist> persist;
    ASSERT_EQ(CCounted::CreateInstance(&persist), S_OK);

    CComPtr<IUnknown> unknown;
    EXPECT_EQ(persist->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&unknown)), S_OK);
    void* other = Junk();
    EXPECT_EQ(persist->QueryInterface(IID_IDispatch, &other), E_NOINTERFACE);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(persist->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Objects, EndWithTheirLastReference)
{
    CComPtr<IPersist> persist;
    ASSERT_EQ(CCounted::CreateInstance(&persist), S_OK);
    ASSERT_EQ(CCounted::alive, 1);

    EXPECT_EQ(persist->AddRef(), 2U);
    EXPECT_EQ(persist->Release(), 1U);
    persist.Release();

    EXPECT_EQ(CCounted::alive, 0);
    EXPECT_EQ(CCounted::finals, 1);
}

TEST_F(Objects, KeepTheModuleLockedWhileTheyLive)
{
    CComPtr<IPersist> persist;
    ASSERT_EQ(CCounted::CreateInstance(&persist), S_OK);
    CComPtr<IPersist> second = persist;
    EXPECT_EQ(module.GetLockCount(), 1);

    second.Release();
    EXPECT_EQ(module.GetLockCount(), 1);
    persist.Release();
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, CreationWithoutAPlaceForTheResultIsRefused)
{
    Outer outer;

    EXPECT_EQ(Make(nullptr, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(Make(&outer, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(CCounted::alive, 0);
}

TEST_F(Objects, FailedQueryDestroysTheNewObject)
{
    void* object = Junk();

    EXPECT_EQ(Make(nullptr, IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(CCounted::alive, 0);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, ExhaustedMemoryIsReported)
{
    CCounted::making = CCounted::Making::RunsOutOfMemory;
    void* object = Junk();

    EXPECT_EQ(Make(nullptr, IID_IUnknown, &object), E_OUTOFMEMORY);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, FrameworkExceptionDuringCreationIsReportedAsExhaustedMemory)
{
    CCounted::making = CCounted::Making::ThrowsOfTheFramework;
    Outer outer;
    void* object = Junk();

    EXPECT_EQ(Make(nullptr, IID_IUnknown, &object), E_OUTOFMEMORY);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(Make(&outer, IID_IUnknown, &object), E_OUTOFMEMORY);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, FailureOfFinalConstructIsReturned)
{
    CCounted::making = CCounted::Making::FailsInFinalConstruct;
    Outer outer;
    void* object = Junk();

    EXPECT_EQ(Make(nullptr, IID_IUnknown, &object), E_ACCESSDENIED);
    EXPECT_EQ(Make(&outer, IID_IUnknown, &object), E_ACCESSDENIED);
    EXPECT_EQ(CCounted::alive, 0);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, AggregatedObjectHasAnUnknownOfItsOwn)
{
    Outer outer;
    CComPtr<IUnknown> inner;
    ASSERT_EQ(Make(&outer, IID_IUnknown, reinterpret_cast<void**>(&inner)), S_OK);
    outer.inner = inner;

    CComPtr<IUnknown> asked;
    EXPECT_EQ(inner->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&asked)), S_OK);
    EXPECT_EQ(asked.p, inner.p);
    EXPECT_EQ(outer.references, 1U);
    EXPECT_EQ(inner->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Objects, InterfacesOfAnAggregatedObjectBelongToTheOuter)
{
    Outer outer;
    CComPtr<IUnknown> inner;
    ASSERT_EQ(Make(&outer, IID_IUnknown, reinterpret_cast<void**>(&inner)), S_OK);
    outer.inner = inner;

    CComPtr<IPersist> persist;
    ASSERT_EQ(inner->QueryInterface(__uuidof(IPersist), reinterpret_cast<void**>(&persist)), S_OK);
    EXPECT_EQ(outer.references, 2U);

    CComPtr<IUnknown> identity;
    EXPECT_EQ(persist->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity)), S_OK);
    EXPECT_EQ(identity.p, &outer);
    CLSID clsid{};
    EXPECT_EQ(persist->GetClassID(&clsid), S_OK);
    EXPECT_TRUE(IsEqualGUID(clsid, CLSID_Counted));
}

TEST_F(Objects, AggregatedObjectEndsWithItsOwnUnknown)
{
    Outer outer;
    CComPtr<IUnknown> inner;
    ASSERT_EQ(Make(&outer, IID_IUnknown, reinterpret_cast<void**>(&inner)), S_OK);
    EXPECT_EQ(module.GetLockCount(), 1);

    inner.Release();

    EXPECT_EQ(CCounted::alive, 0);
    EXPECT_EQ(CCounted::finals, 1);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(Objects, CreateInstanceGivesAnObjectWithoutReferences)
{
    CComObject<CCounted>* object = nullptr;
    ASSERT_EQ(CComObject<CCounted>::CreateInstance(&object), S_OK);
    EXPECT_EQ(object->AddRef(), 1U);
    EXPECT_EQ(object->Release(), 0U);
    EXPECT_EQ(CCounted::alive, 0);

    EXPECT_EQ(CComObject<CCounted>::CreateInstance(nullptr), E_POINTER);
    CCounted::making = CCounted::Making::FailsInFinalConstruct;
    EXPECT_EQ(CComObject<CCounted>::CreateInstance(&object), E_ACCESSDENIED);
    EXPECT_EQ(object, nullptr);
}
