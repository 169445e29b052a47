// The classes as a host meets them: class objects, instances, aggregation, what is answered.

#include "support/HandleCount.h"
#include "support/LoadedServer.h"
#include "support/PrivateServer.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

class Classes : public testing::Test
{
protected:
    Server server;
};

#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // it ends with its scope

// A controlling outer that answers everything from the inner object but IUnknown.
class OuterObject final : public IUnknown
{
public:
    STDMETHOD_(ULONG, AddRef)() override { return ++references; }
    STDMETHOD_(ULONG, Release)() override { return --references; }
    STDMETHOD(QueryInterface)(REFIID iid, void** object) override
    {
        if (!IsEqualGUID(iid, IID_IUnknown))
            return inner->QueryInterface(iid, object);
        *object = this;
        AddRef();
        return S_OK;
    }

    IUnknown* inner = nullptr;
    ULONG references = 1;
};

void* Junk()
{
    return reinterpret_cast<void*>(1);
}

} // namespace

TEST_F(Classes, UnknownClassIsNotAvailable)
{
    void* object = Junk();

    EXPECT_EQ(server.GetClassObject(CLSID_NULL, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Classes, LeftoverScriptHasNoClass)
{
    constexpr CLSID clsid{0x3AEA1F5C, 0x4C3B, 0x4F4E, {0x85, 0x8C, 0x64, 0xA0, 0xE9, 0xA2, 0x21, 0x25}};
    void* object = Junk();

    EXPECT_EQ(server.GetClassObject(clsid, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
}

TEST_F(Classes, ResultPointerIsRequired)
{
    EXPECT_EQ(server.GetClassObject(__uuidof(SGraph), IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(server.GetClassObject(CLSID_NULL, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(Classes, EveryClassHasOneClassObject)
{
    for (const ServerClass& row : serverClasses) {
        Holder<IClassFactory> first;
        Holder<IClassFactory> second;
        ASSERT_EQ(server.GetClassObject(row.clsid, IID_IClassFactory, first.OutVoid()), S_OK)
            << Narrow(row.name);
        ASSERT_EQ(server.GetClassObject(row.clsid, IID_IClassFactory, second.OutVoid()), S_OK);
        EXPECT_EQ(first.Get(), second.Get()) << Narrow(row.name);
    }
}

TEST_F(Classes, ClassObjectAnswersNothingButItsInterface)
{
    void* object = Junk();

    EXPECT_EQ(server.GetClassObject(__uuidof(SGraph), IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

TEST_F(Classes, EveryClassAnswersItsTwoInterfacesAndIUnknown)
{
    for (const ServerClass& row : serverClasses) {
        Holder<IUnknown> object;
        ASSERT_EQ(server.Create(row.clsid, nullptr, IID_IUnknown, object.OutVoid()), S_OK)
            << Narrow(row.name);
        for (const IID& iid : {row.iid, IID_IDispatch, IID_IUnknown}) {
            Holder<IUnknown> answer;
            EXPECT_EQ(object->QueryInterface(iid, answer.OutVoid()), S_OK) << Narrow(row.name);
        }
        EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    }
}

TEST_F(Classes, NoClassAnswersTheInterfaceOfAnother)
{
    for (const ServerClass& row : serverClasses) {
        Holder<IUnknown> object;
        ASSERT_EQ(server.Create(row.clsid, nullptr, IID_IUnknown, object.OutVoid()), S_OK)
            << Narrow(row.name);
        for (const ServerClass& other : serverClasses) {
            void* answer = Junk();
            if (&other != &row) {
                EXPECT_EQ(object->QueryInterface(other.iid, &answer), E_NOINTERFACE)
                    << Narrow(row.name) << " asked for that of " << Narrow(other.name);
                EXPECT_EQ(answer, nullptr);
            }
        }
        void* answer = Junk();
        EXPECT_EQ(object->QueryInterface(__uuidof(IPersist), &answer), E_NOINTERFACE);
    }
}

TEST_F(Classes, LogAxisDoesNotAnswerItsBaseInterfaces)
{
    const auto axis = server.Make<SGraphLogAxis, ISGraphLogAxis>();
    void* answer = Junk();

    EXPECT_EQ(axis->QueryInterface(__uuidof(ISGraphAxis), &answer), E_NOINTERFACE);
    EXPECT_EQ(axis->QueryInterface(__uuidof(ISGraphObject), &answer), E_NOINTERFACE);
    EXPECT_EQ(axis->QueryInterface(__uuidof(ISObject), &answer), E_NOINTERFACE);
    Holder<IUnknown> own;
    EXPECT_EQ(axis->QueryInterface(__uuidof(ISGraphLogAxis), own.OutVoid()), S_OK);
    EXPECT_EQ(axis->QueryInterface(IID_IDispatch, own.OutVoid()), S_OK);
    EXPECT_EQ(axis->QueryInterface(IID_IUnknown, own.OutVoid()), S_OK);
}

TEST_F(Classes, FailedQueryOfANewObjectDestroysIt)
{
    void* object = Junk();

    EXPECT_EQ(server.Create(__uuidof(SGraphAxis), nullptr, __uuidof(ISGraph), &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Classes, CreationNeedsAPlaceForTheResult)
{
    for (const ServerClass& row : serverClasses) {
        EXPECT_EQ(server.Create(row.clsid, nullptr, IID_IUnknown, nullptr), E_POINTER)
            << Narrow(row.name);
    }
}

TEST_F(Classes, OuterMayAskForIUnknownAlone)
{
    for (const ServerClass& row : serverClasses) {
        OuterObject outer;
        void* object = Junk();
        EXPECT_EQ(server.Create(row.clsid, &outer, row.iid, &object), CLASS_E_NOAGGREGATION)
            << Narrow(row.name);
        EXPECT_EQ(object, nullptr);
        EXPECT_EQ(server.Create(row.clsid, &outer, row.iid, nullptr), E_POINTER);
    }
}

TEST_F(Classes, EveryClassCanBeAggregated)
{
    for (const ServerClass& row : serverClasses) {
        OuterObject outer;
        Holder<IUnknown> inner;
        ASSERT_EQ(server.Create(row.clsid, &outer, IID_IUnknown, inner.OutVoid()), S_OK)
            << Narrow(row.name);
        outer.inner = inner;

        {
            Holder<IUnknown> own;
            ASSERT_EQ(inner->QueryInterface(row.iid, own.OutVoid()), S_OK);
            EXPECT_EQ(outer.references, 2U) << "the interface's references are the outer's";
            Holder<IUnknown> identity;
            EXPECT_EQ(own->QueryInterface(IID_IUnknown, identity.OutVoid()), S_OK);
            EXPECT_EQ(identity.Get(), &outer);
        }
        EXPECT_EQ(outer.references, 1U);
        EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
        inner.Release();
        EXPECT_EQ(server.CanUnloadNow(), S_OK) << Narrow(row.name);
    }
}

TEST_F(Classes, LiveInstanceHoldsTheModule)
{
    EXPECT_EQ(server.CanUnloadNow(), S_OK);

    auto object = server.Make<SObject, ISObject>();
    EXPECT_EQ(server.CanUnloadNow(), S_FALSE);

    object.Release();
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Classes, CachedClassObjectsDoNotHoldTheModule)
{
    for (const ServerClass& row : serverClasses) {
        Holder<IClassFactory> factory;
        ASSERT_EQ(server.GetClassObject(row.clsid, IID_IClassFactory, factory.OutVoid()), S_OK);
    }
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Classes, LockServerHoldsTheModule)
{
    Holder<IClassFactory> factory;
    ASSERT_EQ(server.GetClassObject(__uuidof(SGraph), IID_IClassFactory, factory.OutVoid()), S_OK);

    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    IClassFactory* raw = factory;
    raw->AddRef();
    factory.Release();
    raw->Release();
    EXPECT_EQ(server.CanUnloadNow(), S_FALSE);

    ASSERT_EQ(server.GetClassObject(__uuidof(SGraph), IID_IClassFactory, factory.OutVoid()), S_OK);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
    factory.Release();
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST_F(Classes, ManyInstancesComeAndGo)
{
    for (int round = 0; round < 200; ++round) {
        for (const ServerClass& row : serverClasses) {
            Holder<IUnknown> object;
            ASSERT_EQ(server.Create(row.clsid, nullptr, row.iid, object.OutVoid()), S_OK);
        }
    }
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(Module, LoadsAndUnloadsAgain)
{
    // Other tests of the program may hold it for good.
    const HMODULE held = GetModuleHandleW(L"Vantoplex.dll");
    for (int round = 0; round < 5; ++round) {
        const Server server;
        const auto object = server.Make<SGraphObject, ISGraphObject>();
        EXPECT_NE(object.Get(), nullptr);
    }
    EXPECT_EQ(GetModuleHandleW(L"Vantoplex.dll"), held);
}

TEST(Module, UnloadingLeavesAsManyThreadSlotsAndHandlesAsBefore)
{
    const auto countSlots = [] { // that are free
        std::vector<DWORD> slots;
        for (DWORD slot = ::TlsAlloc(); slot != TLS_OUT_OF_INDEXES; slot = ::TlsAlloc())
            slots.push_back(slot);
        for (const DWORD slot : slots)
            ::TlsFree(slot);
        return slots.size();
    };
    const HMODULE hDialogs = ::LoadLibraryW(L"comdlg32"); // Wine's keeps a handle at each load
    PrivateServer server;
    server.Unload();
    const auto nSlots = countSlots();
    const int nHandles = HandleCount::All();
    for (int round = 0; round < 5; ++round) {
        server.Load();
        EXPECT_NE((server->Make<SGraphObject, ISGraphObject>().Get()), nullptr);
        server.Unload();
    }
    EXPECT_EQ(countSlots(), nSlots);
    EXPECT_EQ(HandleCount::All(), nHandles);
    ::FreeLibrary(hDialogs);
}
