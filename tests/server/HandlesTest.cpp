// The handle of the child wrappers, and what all pieces of a graph share. A piece of memory
// takes the place of the native object: these methods read and write fields of it and nothing more.

#include "support/FaultingCall.h"
#include "support/LoadedServer.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

class Handles : public testing::Test
{
protected:
    UINT* Native() { return reinterpret_cast<UINT*>(memory.data()); }

    // A wrapper of the memory.
    Holder<ISGraphObject> Wrapper()
    {
        auto wrapper = server.Make<SGraphObject, ISGraphObject>();
        EXPECT_EQ(wrapper->SetObjectHandle(Native()), S_OK);
        return wrapper;
    }

    Server server;
    alignas(16) std::array<BYTE, 4096> memory{};
};

ULONG ReferencesOf(IUnknown* object)
{
    object->AddRef();
    return object->Release();
}

} // namespace

TEST_F(Handles, HandleThatIsTakenAwayLeavesTheNativeObjectAlone)
{
    const auto wrapper = Wrapper();
    const auto before = memory;

    EXPECT_EQ(wrapper->SetObjectHandle(nullptr), S_OK);

    EXPECT_EQ(memory, before);
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->SetSelected(1); }))
        << "the wrapper still holds something";
    EXPECT_EQ(memory, before);
}

TEST_F(Handles, LastReferenceLeavesTheNativeObjectAlone)
{
    auto wrapper = Wrapper();
    const auto before = memory;

    wrapper.Release();

    EXPECT_EQ(memory, before);
}

TEST_F(Handles, AnotherHandleReplacesTheFirst)
{
    alignas(16) std::array<BYTE, 4096> other{};
    const auto wrapper = Wrapper();
    ASSERT_EQ(wrapper->SetColor(1), S_OK);

    EXPECT_EQ(wrapper->SetObjectHandle(reinterpret_cast<UINT*>(other.data())), S_OK);

    ULONG color = 7;
    EXPECT_EQ(wrapper->GetColor(&color), S_OK);
    EXPECT_EQ(color, 0U);
}

TEST_F(Handles, GetObjectHandleGivesTheAddressOfTheCallersVariable)
{
    const auto wrapper = server.Make<SObject, ISObject>();
    UINT* p = nullptr;

    EXPECT_EQ(wrapper->GetObjectHandle(&p), S_OK);
    EXPECT_EQ(p, reinterpret_cast<UINT*>(&p));

    wrapper->SetObjectHandle(Native());
    p = nullptr;
    EXPECT_EQ(wrapper->GetObjectHandle(&p), S_OK);
    EXPECT_EQ(p, reinterpret_cast<UINT*>(&p));
    EXPECT_EQ(wrapper->GetObjectHandle(nullptr), S_FALSE);
    wrapper->SetObjectHandle(nullptr);
    EXPECT_EQ(wrapper->GetObjectHandle(nullptr), S_FALSE);
}

TEST_F(Handles, EveryChildWrapperTreatsItsHandleAlike)
{
    for (const ServerClass& row : serverClasses) {
        const std::string name = Narrow(row.name);
        if (name == "SGraph" || name == "Chart2d" || name == "PieChart3d" ||
            name == "SGraphDataNotation") {
            continue;
        }
        Holder<ISObject> wrapper; // the table of each begins with these methods
        ASSERT_EQ(server.Create(row.clsid, nullptr, row.iid, wrapper.OutVoid()), S_OK) << name;
        UINT* p = nullptr;
        EXPECT_EQ(wrapper->GetObjectHandle(&p), S_OK) << name;
        EXPECT_EQ(p, reinterpret_cast<UINT*>(&p)) << name;
        EXPECT_EQ(wrapper->GetObjectHandle(nullptr), S_FALSE) << name;
        EXPECT_EQ(wrapper->SetObjectHandle(nullptr), S_OK) << name;
    }
}

TEST_F(Handles, FlagsComeBackAsZeroOrOne)
{
    const auto wrapper = Wrapper();
    LONG flag = 7;

    EXPECT_EQ(wrapper->SetSelected(-5), S_OK);
    EXPECT_EQ(wrapper->GetSelected(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(wrapper->SetSelected(0), S_OK);
    EXPECT_EQ(wrapper->GetSelected(&flag), S_OK);
    EXPECT_EQ(flag, 0);

    EXPECT_EQ(wrapper->SetVisible(256), S_OK);
    EXPECT_EQ(wrapper->GetVisible(&flag), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(wrapper->GetSelected(&flag), S_OK);
    EXPECT_EQ(flag, 0);
}

TEST_F(Handles, RectangleAndColourAreCopied)
{
    const auto wrapper = Wrapper();
    RECT rect{-1, 2, 300, 40};

    EXPECT_EQ(wrapper->SetRect(&rect), S_OK);
    RECT back{};
    EXPECT_EQ(wrapper->GetRect(&back), S_OK);
    EXPECT_TRUE(EqualRect(&rect, &back));

    ULONG color = 0;
    EXPECT_EQ(wrapper->SetColor(0xFF123456), S_OK);
    EXPECT_EQ(wrapper->GetColor(&color), S_OK);
    EXPECT_EQ(color, 0xFF123456U);
}

TEST_F(Handles, MissingPointersWithAHandleAreRefused)
{
    const auto wrapper = Wrapper();
    const auto before = memory;

    EXPECT_EQ(wrapper->SetRect(nullptr), S_FALSE);
    EXPECT_EQ(wrapper->GetRect(nullptr), S_FALSE);
    EXPECT_EQ(wrapper->GetSelected(nullptr), S_FALSE);
    EXPECT_EQ(wrapper->GetVisible(nullptr), S_FALSE);
    EXPECT_EQ(wrapper->GetColor(nullptr), S_FALSE);
    EXPECT_EQ(wrapper->GetGraph(nullptr), S_FALSE);
    EXPECT_EQ(memory, before);
}

TEST_F(Handles, SharedMethodsFaultWithoutAHandle)
{
    const auto wrapper = server.Make<SGraphObject, ISGraphObject>();
    RECT rect{};
    LONG flag = 0;
    ULONG color = 0;

    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->SetRect(&rect); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->GetRect(&rect); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->SetSelected(1); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->GetSelected(&flag); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->SetVisible(1); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->GetVisible(&flag); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->SetColor(1); }));
    EXPECT_TRUE(FaultingCall::Faults([&] { wrapper->GetColor(&color); }));
    EXPECT_FALSE(FaultingCall::Faults([&] { wrapper->GetGraph(nullptr); }));
}

TEST_F(Handles, FreshAxisWritesNothingAndFaultsOnlyInTheSharedMethods)
{
    const auto axis = server.Make<SGraphAxis, ISGraphAxis>();
    int size = 77;

    EXPECT_EQ(axis->GetMarkerSize(&size), S_OK);
    EXPECT_EQ(size, 77);
    EXPECT_EQ(axis->GetMarkerSize(nullptr), S_OK);
    EXPECT_TRUE(FaultingCall::Faults([&] { axis->SetSelected(1); }));
}

TEST_F(Handles, GetGraphGivesTheWrapperItselfWithoutAReference)
{
    const auto axis = server.Make<SGraphAxis, ISGraphAxis>();
    const ULONG before = ReferencesOf(axis);
    IDispatch* graph = nullptr;

    EXPECT_EQ(axis->GetGraph(&graph), S_OK);

    EXPECT_EQ(graph, static_cast<IDispatch*>(axis));
    EXPECT_EQ(ReferencesOf(axis), before);
    EXPECT_EQ(axis->GetGraph(nullptr), S_FALSE);
}

TEST_F(Handles, WrappersWithoutAHandleDoNothing)
{
    const auto curve = server.Make<SGraphDataSerie, ISGraphDataSerie>();
    const auto label = server.Make<SGraphLabel, ISGraphLabel>();
    const auto bitmap = server.Make<SGraphBitmap, ISGraphBitmap>();
    LONG count = 77;
    BSTR text = nullptr;
    ULONG color = 77;

    EXPECT_EQ(curve->GetCount(&count), S_OK);
    EXPECT_EQ(curve->GetLabel(&text), S_OK);
    EXPECT_EQ(curve->SetLabel(nullptr), S_OK);
    EXPECT_EQ(label->GetText(&text), S_OK);
    EXPECT_EQ(label->SetColor(1), S_OK);
    EXPECT_EQ(label->GetColor(&color), S_OK);
    EXPECT_EQ(bitmap->GetBorder(&count), S_OK);
    EXPECT_EQ(bitmap->GetBorder(nullptr), S_OK);
    EXPECT_EQ(count, 77);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(color, 77U);
}
