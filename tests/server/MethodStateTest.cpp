// What every method does around its work, and without a native object. A method is looked at where
// it faults: its arguments, and the object where it has one, are memory that nobody may touch. There
// the module's activation context must be the current one.

#include "support/FaultingCall.h"
#include "support/LoadedServer.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>
#include <vector>

namespace
{

// Called like this, a number goes into the registers of integers and those of floating point alike:
// each parameter finds it, whatever its type.
using Slot = HRESULT(STDMETHODCALLTYPE*)(void*, ...);

constexpr int FirstOwnSlot = 7; // behind IDispatch

HANDLE CurrentContext()
{
    HANDLE context = nullptr;
    ::GetCurrentActCtx(&context);
    if (context != nullptr)
        ::ReleaseActCtx(context); // only compared
    return context;
}

// A page that faults at every touch.
class Trap
{
public:
    Trap() : m_page(::VirtualAlloc(nullptr, 0x10000, MEM_RESERVE, PAGE_NOACCESS)) {}
    Trap(const Trap&) = delete;
    Trap& operator=(const Trap&) = delete;
    ~Trap() { ::VirtualFree(m_page, 0, MEM_RELEASE); }
    [[nodiscard]] void* Page() const { return m_page; }

private:
    void* m_page;
};

class MethodState : public testing::Test
{
protected:
    struct Outcome {
        bool faulted = false;
        bool switched = false; // at the fault
        bool putBack = false;  // after a return
    };

    Outcome Call(IUnknown* object, int slot, void* argument)
    {
        Outcome outcome;
        const HANDLE before = CurrentContext();
        Slot* const table = *reinterpret_cast<Slot**>(object);
        const double any = std::bit_cast<double>(argument);
        outcome.faulted = FaultingCall::Faults(
            [&] {
                table[slot](object, any, any, any, any, any, any, any, any);
                outcome.putBack = CurrentContext() == before;
            },
            [&] { outcome.switched = CurrentContext() != before; });
        return outcome;
    }

    // The slots that return; those that fault have to do so in the module's state.
    template <class Coclass, class Interface> std::set<int> SlotsThatReturn(int count, bool isChild)
    {
        std::set<int> returned;
        for (int slot = FirstOwnSlot; slot < FirstOwnSlot + count; ++slot) {
            const auto object = server.Make<Coclass, Interface>();
            if (isChild) {
                reinterpret_cast<ISObject*>(object.Get())
                    ->SetObjectHandle(static_cast<UINT*>(trap.Page()));
            }
            const Outcome outcome = Call(object, slot, trap.Page());
            if (outcome.faulted) {
                EXPECT_TRUE(outcome.switched) << slot;
            } else {
                EXPECT_TRUE(outcome.putBack) << slot;
                returned.insert(slot - FirstOwnSlot + 1);
            }
            if (isChild && !outcome.faulted)
                reinterpret_cast<ISObject*>(object.Get())->SetObjectHandle(nullptr);
        }
        return returned;
    }

    // The methods that return on a chart without Create, with arguments that can be read and written.
    template <class Coclass, class Interface> std::set<int> SlotsThatReturnBeforeCreate(int count)
    {
        std::set<int> returned;
        for (int slot = FirstOwnSlot; slot < FirstOwnSlot + count; ++slot) {
            const auto object = server.Make<Coclass, Interface>();
            std::vector<BYTE> room(4096);
            if (!Call(object, slot, room.data() + 2048).faulted)
                returned.insert(slot - FirstOwnSlot + 1);
        }
        return returned;
    }

    Server server;
    Trap trap;
};

using Slots = std::set<int>;

} // namespace

TEST_F(MethodState, EveryGraphMethodWorksInTheModulesState)
{
    // Left out: Cursor, SetGraphColor, InsertBitmap and the three that only bring enumerations have
    // no work; the two messages are refused before Create.
    EXPECT_EQ((SlotsThatReturn<SGraph, ISGraph>(69, false)), (Slots{24, 30, 32, 64, 65, 67, 68, 69}));
}

TEST_F(MethodState, EveryBusinessChartMethodWorksInTheModulesState)
{
    EXPECT_EQ((SlotsThatReturn<Chart2d, IChart2d>(46, false)), Slots{});
}

TEST_F(MethodState, EveryPieMethodWorksInTheModulesState)
{
    // Both messages are refused before Create.
    EXPECT_EQ((SlotsThatReturn<PieChart3d, IPieChart3d>(41, false)), (Slots{2, 3}));
}

TEST_F(MethodState, EveryChildMethodWorksInTheModulesState)
{
    const Slots handle{1}; // SetObjectHandle looks at nothing
    EXPECT_EQ((SlotsThatReturn<SObject, ISObject>(2, true)), handle);
    EXPECT_EQ((SlotsThatReturn<SGraphObject, ISGraphObject>(11, true)), handle);
    EXPECT_EQ((SlotsThatReturn<SGraphAxis, ISGraphAxis>(44, true)), handle);
    EXPECT_EQ((SlotsThatReturn<SGraphLogAxis, ISGraphLogAxis>(45, true)), handle);
    EXPECT_EQ((SlotsThatReturn<SGraphLabel, ISGraphLabel>(24, true)), handle);
    EXPECT_EQ((SlotsThatReturn<SGraphDataSerie, ISGraphDataSerie>(48, true)), handle);
    // SetBitmap and GetBitmap have no body.
    EXPECT_EQ((SlotsThatReturn<SGraphBitmap, ISGraphBitmap>(15, true)), (Slots{1, 13, 15}));
}

TEST_F(MethodState, ACallBeforeCreateFaults)
{
    // All but Create, the methods without a body, and those that test for the chart. Load finds no
    // file of an empty name, and three getters of the pie look at the item alone.
    EXPECT_EQ((SlotsThatReturnBeforeCreate<SGraph, ISGraph>(69)),
              (Slots{24, 30, 32, 61, 62, 64, 65, 66, 67, 68, 69}));
    EXPECT_EQ((SlotsThatReturnBeforeCreate<Chart2d, IChart2d>(46)), Slots{46});
    EXPECT_EQ((SlotsThatReturnBeforeCreate<PieChart3d, IPieChart3d>(41)), (Slots{1, 2, 3, 37, 38, 39}));
}
