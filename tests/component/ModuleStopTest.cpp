// The order in which a module object stops, and one that could not start.

#include "component/TestClasses.h"
#include "framework/component/Module.h"
#include "support/ImportPatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> steps;

// A class object that notes its release.
class NotingClassObject final : public IUnknown
{
public:
    explicit NotingClassObject(const char* name) : m_name(name) {}
    STDMETHOD_(ULONG, AddRef)() override { return 2; }
    STDMETHOD_(ULONG, Release)() override
    {
        steps.push_back("release " + m_name);
        return 1;
    }
    STDMETHOD(QueryInterface)(REFIID, void** ppv) override
    {
        *ppv = nullptr;
        return E_NOINTERFACE;
    }

private:
    std::string m_name;
};

void WINAPI NoteFirstHook(bool bStarting)
{
    steps.emplace_back(bStarting ? "start 1" : "stop 1");
}

void WINAPI NoteSecondHook(bool bStarting)
{
    steps.emplace_back(bStarting ? "start 2" : "stop 2");
}

void __stdcall NoteTerminationFunction(DWORD_PTR dw)
{
    steps.push_back("function " + std::to_string(dw));
}

BOOL WINAPI RefuseSection(CRITICAL_SECTION*, DWORD)
{
    return FALSE;
}

} // namespace

TEST(ComModuleStop, WalksTheRowsInOrderAndThenRunsTheFunctions)
{
    steps.clear();
    NotingClassObject first("1");
    NotingClassObject second("2");
    _ATL_OBJMAP_ENTRY rows[] = {OBJECT_ENTRY(CLSID_Counted, CCounted)
                                    OBJECT_ENTRY(CLSID_Other, CCounted){}};
    rows[0].pfnObjectMain = &NoteFirstHook;
    rows[1].pfnObjectMain = &NoteSecondHook;
    CComModule module;
    module.Init(rows, GetModuleHandleW(nullptr), nullptr);
    rows[0].pCF = &first;
    rows[1].pCF = &second;
    module.AddTermFunc(&NoteTerminationFunction, 5);

    module.Term();

    EXPECT_EQ(steps, (std::vector<std::string>{"start 1", "start 2", "release 1", "stop 1", "release 2",
                                               "stop 2", "function 5"}));
    EXPECT_EQ(rows[0].pCF, nullptr);
    EXPECT_EQ(rows[1].pCF, nullptr);
}

TEST(ComModuleStart, WithoutItsSectionsAModuleIsMarkedAndStaysUnusable)
{
    CCounted::Reset();
    CComModule* const before = _pModule;
    _ATL_OBJMAP_ENTRY rows[] = {OBJECT_ENTRY(CLSID_Counted, CCounted){}};
    ASSERT_FALSE(CComModule::m_bInitFailed);
    {
        const ImportPatch refusal("InitializeCriticalSectionAndSpinCount", &RefuseSection);
        CComModule module;
        EXPECT_TRUE(CComModule::m_bInitFailed);
        EXPECT_EQ(module.cbSize, 0u);
        EXPECT_EQ(module.Init(rows, GetModuleHandleW(nullptr), nullptr), E_FAIL);
        EXPECT_EQ(CCounted::started, 0);
        void* object = nullptr;
        EXPECT_EQ(module.GetClassObject(CLSID_Counted, IID_IUnknown, &object), E_FAIL);
        EXPECT_EQ(module.RegisterServer(FALSE), E_FAIL);
        EXPECT_EQ(module.AddTermFunc(&NoteTerminationFunction, 1), E_FAIL);
        module.Term();
        EXPECT_EQ(CCounted::stopped, 0);
    }
    CComModule::m_bInitFailed = false;
    _pModule = before;
}
