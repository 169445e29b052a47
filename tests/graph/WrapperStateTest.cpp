// The module's state around a method that an exception leaves. The exception comes from inside of
// the native object, which is asked for its class.

#include "NativeGraph.h"
#include "automation/ChildWrappers.h"
#include "automation/SGraphLabel.h"
#include "automation/SGraphLogAxis.h"

namespace
{

struct Refusal {
    bool inModulesState;
};

class RefusingObject : public CXGraphObject
{
public:
    CRuntimeClass* GetRuntimeClass() const override
    {
        throw Refusal{AfxGetModuleState() == AfxGetStaticModuleState()};
    }
};

// The wrapper without a module around it: no references are counted.
template <class Class> class Alone : public Class
{
public:
    STDMETHOD_(ULONG, AddRef)() override { return 2; }
    STDMETHOD_(ULONG, Release)() override { return 1; }
    STDMETHOD(QueryInterface)(REFIID, void**) override { return E_NOINTERFACE; }
};

class WrapperState : public testing::Test
{
protected:
    using Slot = HRESULT(STDMETHODCALLTYPE*)(void*, void*, void*, void*, void*, void*, void*, void*,
                                             void*);
    static constexpr int FirstOwnSlot = 18; // behind those of all pieces, which ask for no class

    WrapperState() { AfxSetModuleState(&hostState); }
    ~WrapperState() override { AfxSetModuleState(nullptr); }

    // How many of the methods an exception leaves; each has to put the host's state back.
    template <class Class, class Interface> int CountRefusals(int count)
    {
        Alone<Class> wrapper;
        wrapper.SetObjectHandle(reinterpret_cast<UINT*>(static_cast<CXGraphObject*>(&object)));
        Interface* const exposed = &wrapper;
        Slot* const table = *reinterpret_cast<Slot**>(exposed);
        int refusals = 0;
        for (int slot = FirstOwnSlot; slot < FirstOwnSlot + count; ++slot) {
            alignas(16) BYTE room[256] = {};
            void* const at = room + 128;
            try {
                table[slot](exposed, at, at, at, at, at, at, at, at);
            } catch (const Refusal& refusal) {
                EXPECT_TRUE(refusal.inModulesState) << slot;
                ++refusals;
            }
            EXPECT_EQ(AfxGetModuleState(), &hostState) << slot;
        }
        return refusals;
    }

    AFX_MODULE_STATE hostState;
    RefusingObject object;
};

} // namespace

TEST_F(WrapperState, ComesBackPastAnException)
{
    EXPECT_EQ((CountRefusals<CSGraphAxis, ISGraphAxis>(33)), 33);
    EXPECT_EQ((CountRefusals<CSGraphLogAxis, ISGraphLogAxis>(34)), 34);
    EXPECT_EQ((CountRefusals<CSGraphDataSerie, ISGraphDataSerie>(37)), 37);
    EXPECT_EQ((CountRefusals<CSGraphLabel, ISGraphLabel>(13)), 13);
    EXPECT_EQ((CountRefusals<CSGraphBitmap, ISGraphBitmap>(4)), 2) << "two have no body";
}
