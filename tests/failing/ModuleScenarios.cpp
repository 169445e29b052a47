#include "Stage.h"

namespace
{
// Every class by itself and inside of an aggregate that refuses, and calls by name.
class Objects : public Scenario
{
public:
    using Scenario::Scenario;
    void Act() override
    {
        const auto& server = TheStage().TheServer();
        Use(server.Make<SGraph, IDispatch>());
        Use(server.Make<Chart2d, IDispatch>());
        Use(server.Make<PieChart3d, IDispatch>());
        Use(server.Make<SGraphAxis, IDispatch>());
        Use(server.Make<SGraphLabel, IDispatch>());
        Use(server.Make<SGraphDataSerie, IDispatch>());
    }

private:
    static void Use(const Holder<IDispatch>& object)
    {
        if (!object)
            return;
        DISPID dispid = 0;
        wchar_t name[] = L"Create";
        wchar_t* names[] = {name};
        Try([&] { object->GetIDsOfNames(IID_NULL, names, 1, 0, &dispid); });
        ITypeInfo* pInfo = nullptr;
        Try([&] { object->GetTypeInfo(0, 0, &pInfo); });
        if (pInfo)
            pInfo->Release();
        DISPPARAMS none = {};
        Try([&] { object->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr); });
    }
};

// With the registry's keys of the class beside the DLL; the prefix is a throw-away.
class Registration : public Scenario
{
public:
    using Scenario::Scenario;
    void Act() override
    {
        Call("DllRegisterServer");
        Call("DllUnregisterServer");
    }

private:
    void Call(const char* pszName) const
    {
        const FARPROC pfn = ::GetProcAddress(TheStage().TheServer().Module(), pszName);
        Try([&] { reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(pfn))(); });
    }
};
} // namespace

void Scenarios::AddModule(std::vector<TScenario>& scenarios)
{
    scenarios.insert(scenarios.end(), {{"module-objects", &MakeScenario<Objects>},
                                       {"module-registration", &MakeScenario<Registration>}});
}
