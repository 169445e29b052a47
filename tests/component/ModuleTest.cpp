#include "component/TestClasses.h"
#include "framework/component/ComPtr.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

class ComModule : public testing::Test
{
protected:
    ComModule()
    {
        CCounted::Reset();
        rows[0] = Row(CLSID_Other);
        rows[1] = Row(CLSID_Counted);
        rows[2] = {};
        module.Init(rows, GetModuleHandleW(nullptr), nullptr);
    }

    static _ATL_OBJMAP_ENTRY Row(const CLSID& clsid)
    {
        const _ATL_OBJMAP_ENTRY all[] = {OBJECT_ENTRY(CLSID_Counted, CCounted)};
        _ATL_OBJMAP_ENTRY row = all[0];
        row.pclsid = &clsid;
        return row;
    }

    CComPtr<IClassFactory> Factory()
    {
        CComPtr<IClassFactory> factory;
        EXPECT_EQ(
            module.GetClassObject(CLSID_Counted, IID_IClassFactory, reinterpret_cast<void**>(&factory)),
            S_OK);
        return factory;
    }

    CComModule module;
    _ATL_OBJMAP_ENTRY rows[3];
};

std::vector<DWORD_PTR> terminated;

void __stdcall Note(DWORD_PTR dw)
{
    terminated.push_back(dw);
}

} // namespace

TEST_F(ComModule, InitCallsEveryRow)
{
    EXPECT_EQ(CCounted::started, 2);
    EXPECT_EQ(module.m_hInstResource, GetModuleHandleW(nullptr));
}

TEST_F(ComModule, UnknownClassIsNotAvailable)
{
    void* object = reinterpret_cast<void*>(1);

    EXPECT_EQ(module.GetClassObject(CLSID_NULL, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(ComModule, ClassObjectIsMadeOnceAndKept)
{
    EXPECT_EQ(rows[1].pCF, nullptr);

    const CComPtr<IClassFactory> first = Factory();
    const CComPtr<IClassFactory> second = Factory();

    EXPECT_EQ(first.p, second.p);
    EXPECT_NE(rows[1].pCF, nullptr);
    EXPECT_EQ(rows[0].pCF, nullptr);
}

TEST_F(ComModule, ClassObjectCountsOnlyBeyondTheRowsOwnReference)
{
    CComPtr<IClassFactory> first = Factory();
    EXPECT_EQ(module.GetLockCount(), 1);
    CComPtr<IClassFactory> second = Factory();
    EXPECT_EQ(module.GetLockCount(), 1);

    first.Release();
    second.Release();

    EXPECT_EQ(module.GetLockCount(), 0);
    EXPECT_NE(rows[1].pCF, nullptr);
}

TEST_F(ComModule, ClassObjectThatCannotAnswerIsStillKept)
{
    void* object = nullptr;

    EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_NE(rows[1].pCF, nullptr);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(ComModule, ClassObjectThatCannotBeMadeIsTriedAgain)
{
    const auto works = rows[1].pfnGetClassObject;
    rows[1].pfnGetClassObject = [](void*, REFIID, void** ppv) -> HRESULT {
        *ppv = nullptr;
        return E_OUTOFMEMORY;
    };
    void* object = nullptr;
    EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IClassFactory, &object), E_OUTOFMEMORY);
    EXPECT_EQ(rows[1].pCF, nullptr);

    rows[1].pfnGetClassObject = works;
    EXPECT_NE(Factory().p, nullptr);
}

TEST_F(ComModule, ThreadsThatAskAtOnceGetOneClassObject)
{
    constexpr int count = 8;
    IUnknown* found[count] = {};
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            module.GetClassObject(CLSID_Counted, IID_IUnknown, reinterpret_cast<void**>(&found[i]));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (IUnknown* object : found) {
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object, found[0]);
        object->Release();
    }
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(ComModule, LockServerCounts)
{
    const CComPtr<IClassFactory> factory = Factory();
    const LONG before = module.GetLockCount();

    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    EXPECT_EQ(module.GetLockCount(), before + 1);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
    EXPECT_EQ(module.GetLockCount(), before);
}

TEST_F(ComModule, ClassObjectMakesInstances)
{
    const CComPtr<IClassFactory> factory = Factory();
    CComPtr<IPersist> persist;

    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(IPersist), reinterpret_cast<void**>(&persist)),
              S_OK);
    EXPECT_EQ(CCounted::alive, 1);
    EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(IPersist), nullptr), E_POINTER);
}

TEST_F(ComModule, OuterMayAskForItsUnknownAlone)
{
    const CComPtr<IClassFactory> factory = Factory();
    Outer outer;
    void* object = reinterpret_cast<void*>(1);

    EXPECT_EQ(factory->CreateInstance(&outer, __uuidof(IPersist), &object), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->CreateInstance(&outer, __uuidof(IPersist), nullptr), E_POINTER);
    CComPtr<IUnknown> inner;
    EXPECT_EQ(factory->CreateInstance(&outer, IID_IUnknown, reinterpret_cast<void**>(&inner)), S_OK);
}

TEST_F(ComModule, TermReleasesClassObjectsAndCallsEveryRow)
{
    Factory();

    module.Term();

    EXPECT_EQ(rows[1].pCF, nullptr);
    EXPECT_EQ(CCounted::stopped, 2);
    EXPECT_EQ(module.cbSize, 0U);
}

TEST_F(ComModule, SecondTermDoesNothing)
{
    terminated.clear();
    module.AddTermFunc(&Note, 1);

    module.Term();
    module.Term();

    EXPECT_EQ(terminated.size(), 1U);
    EXPECT_EQ(CCounted::stopped, 2);
}

TEST_F(ComModule, TerminationFunctionsRunLastFirst)
{
    terminated.clear();
    EXPECT_EQ(module.AddTermFunc(&Note, 1), S_OK);
    EXPECT_EQ(module.AddTermFunc(&Note, 2), S_OK);

    module.Term();

    EXPECT_EQ(terminated, (std::vector<DWORD_PTR>{2, 1}));
}

TEST_F(ComModule, CallsFailWithoutTheModulesSections)
{
    module.Term();
    void* object = nullptr;

    EXPECT_EQ(module.Init(rows, nullptr, nullptr), E_FAIL);
    EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IUnknown, &object), E_FAIL);
    EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(module.RegisterServer(), E_FAIL);
    EXPECT_EQ(module.UnregisterServer(), E_FAIL);
    EXPECT_EQ(module.AddTermFunc(&Note, 1), E_FAIL);
}

TEST_F(ComModule, ObjectsMayOutliveTheTermination)
{
    CComPtr<IPersist> persist;
    ASSERT_EQ(CCounted::CreateInstance(&persist), S_OK);

    module.Term();
    persist.Release();

    EXPECT_EQ(CCounted::alive, 0);
    EXPECT_EQ(module.GetLockCount(), 0);
}

TEST_F(ComModule, RegistrationWalksTheTableAndStopsAtTheFirstFailure)
{
    EXPECT_EQ(module.RegisterServer(FALSE), S_OK);
    EXPECT_EQ(CCounted::registered, 2);
    EXPECT_EQ(module.UnregisterServer(FALSE), S_OK);
    EXPECT_EQ(CCounted::unregistered, 2);

    CCounted::updateResult = E_ACCESSDENIED;
    EXPECT_EQ(module.RegisterServer(TRUE), E_ACCESSDENIED);
    EXPECT_EQ(CCounted::registered, 3);
}

TEST_F(ComModule, OneClassCanBeRegisteredAlone)
{
    EXPECT_EQ(module.RegisterServer(FALSE, &CLSID_Other), S_OK);
    EXPECT_EQ(CCounted::registered, 1);
}

TEST_F(ComModule, ScriptThatIsMissingIsAFailure)
{
    EXPECT_TRUE(FAILED(module.UpdateRegistryFromResource(54321, TRUE)));
}

TEST_F(ComModule, PathOfAModule)
{
    const std::wstring path = AtlGetModulePath(nullptr);

    EXPECT_EQ(path.substr(path.size() - 4), L".exe");
    EXPECT_TRUE(AtlGetModulePath(reinterpret_cast<HINSTANCE>(0x1230000)).empty());
}
