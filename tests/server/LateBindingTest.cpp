// Calls that go through the type library: names, numbers, and where the library's entries land
// in the real method tables. Three interfaces declare methods of their base again; from there on
// the library's entries run ahead of the table, and past its end are refusals.

#include "server/ExpectedInterfaces.h"
#include "support/HostWindow.h"
#include "support/LoadedServer.h"

#include <oleauto.h>
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

namespace
{

DISPID IdOf(IDispatch* object, const char* name)
{
    std::wstring wide(name, name + std::strlen(name));
    LPOLESTR names[] = {wide.data()};
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), S_OK) << name;
    return id;
}

// What the method said; arguments in the order of the declaration.
HRESULT Call(IDispatch* object, DISPID id, std::vector<VARIANT> arguments)
{
    std::vector<VARIANT> backwards(arguments.rbegin(), arguments.rend());
    DISPPARAMS parameters{backwards.data(), nullptr, static_cast<UINT>(backwards.size()), 0};
    EXCEPINFO exception{};
    const HRESULT result = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                          &parameters, nullptr, &exception, nullptr);
    return result == DISP_E_EXCEPTION ? exception.scode : result;
}

VARIANT Of(LONG value)
{
    VARIANT variant{};
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
    return variant;
}

VARIANT ByReference(VARTYPE type, void* place)
{
    VARIANT variant{};
    V_VT(&variant) = static_cast<VARTYPE>(VT_BYREF | type);
    V_BYREF(&variant) = place;
    return variant;
}

// Calls an entry of the method table as the dispatch layer does for the library's description
// of a method: every argument zero, or the address of zeroed memory for a pointer.
HRESULT CallEntry(IUnknown* object, int entry, const char* parameters)
{
    static double memory[64];
    std::memset(memory, 0, sizeof memory);
    std::vector<VARTYPE> types;
    std::vector<VARIANT> values;
    for (const char* at = parameters; *at != 0; at = *at != 0 ? at + 2 : at) {
        const char* end = std::strchr(at, ',');
        const std::string one(at, end != nullptr ? static_cast<size_t>(end - at) : std::strlen(at));
        VARIANT value{};
        V_VT(&value) = VT_I8;
        if (one.find('*') != std::string::npos) {
            V_I8(&value) = reinterpret_cast<LONGLONG>(memory);
        } else if (one.find("double") != std::string::npos) {
            V_VT(&value) = VT_R8;
        }
        types.push_back(V_VT(&value));
        values.push_back(value);
        at += one.size();
    }
    std::vector<VARIANTARG*> pointers;
    for (VARIANT& value : values)
        pointers.push_back(&value);
    VARIANT result{};
    EXPECT_EQ(DispCallFunc(object, static_cast<ULONG_PTR>(entry) * sizeof(void*), CC_STDCALL, VT_I4,
                           static_cast<UINT>(types.size()), types.data(), pointers.data(), &result),
              S_OK);
    return V_I4(&result);
}

class LateBinding : public testing::Test
{
protected:
    template <class Coclass> Holder<IDispatch> Object() { return server.Make<Coclass, IDispatch>(); }

    // Drives every entry that the library counts for an interface's own methods on an object
    // without a handle, and returns the results that are not S_OK, by number.
    static std::map<int, HRESULT> Refusals(IUnknown* object, std::span<const ExpectedMethod> methods,
                                           int firstEntry)
    {
        std::map<int, HRESULT> refusals;
        for (const ExpectedMethod& method : methods) {
            const HRESULT result = CallEntry(object, firstEntry++, method.parameters);
            if (result != S_OK)
                refusals[method.id] = result;
        }
        return refusals;
    }

    Server server;
};

// A graph in a window that is not shown.
struct GraphInAWindow {
    explicit GraphInAWindow(const Server& server) : graph(server.Make<SGraph, ISGraph>())
    {
        RECT rect{0, 0, 400, 300};
        EXPECT_EQ(graph->Create(nullptr, &rect, ToWire(host.m_hWnd), 1), S_OK);
    }
    GraphInAWindow(const GraphInAWindow&) = delete;
    GraphInAWindow& operator=(const GraphInAWindow&) = delete;

    const HostWindow host{400, 300, {}, WS_POPUP};
    Holder<ISGraph> graph;
};

using Refused = std::map<int, HRESULT>;

} // namespace

TEST_F(LateBinding, EveryNameHasItsNumberInEveryClass)
{
    std::map<std::string, const ExpectedInterface*> byName;
    for (const ExpectedInterface& row : ExpectedInterfaces)
        byName[row.name] = &row;
    for (const ServerClass& row : serverClasses) {
        Holder<IDispatch> object;
        ASSERT_EQ(server.Create(row.clsid, nullptr, IID_IDispatch, object.OutVoid()), S_OK);
        std::map<std::string, int> expected; // the most derived declaration counts
        for (std::string name = "I" + Narrow(row.name); name != "IDispatch";
             name = byName.at(name)->base) {
            for (const ExpectedMethod& method : byName.at(name)->methods)
                expected.emplace(method.name, method.id);
        }
        for (const auto& [name, id] : expected)
            EXPECT_EQ(IdOf(object, name.c_str()), id) << Narrow(row.name) << "::" << name;
    }
}

TEST_F(LateBinding, UnknownNamesAndNumbersAreRefused)
{
    const auto axis = Object<SGraphAxis>();
    wchar_t name[] = L"NoSuchMethod";
    LPOLESTR names[] = {name};
    DISPID id = 0;

    EXPECT_EQ(axis->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(Call(axis, 4711, {}), DISP_E_MEMBERNOTFOUND);
}

TEST_F(LateBinding, WrongArgumentsAreRefused)
{
    const auto axis = Object<SGraphAxis>();
    const DISPID id = IdOf(axis, "SetArcSize");

    EXPECT_EQ(Call(axis, id, {}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(Call(axis, id, {Of(1)}), S_OK);
}

TEST_F(LateBinding, DescriptionIsThatOfTheInterface)
{
    for (const ServerClass& row : serverClasses) {
        Holder<IDispatch> object;
        ASSERT_EQ(server.Create(row.clsid, nullptr, IID_IDispatch, object.OutVoid()), S_OK);
        UINT count = 0;
        EXPECT_EQ(object->GetTypeInfoCount(&count), S_OK);
        EXPECT_EQ(count, 1U);
        Holder<ITypeInfo> info;
        ASSERT_EQ(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Out()), S_OK) << Narrow(row.name);
        TYPEATTR* attributes = nullptr;
        ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
        EXPECT_TRUE(IsEqualGUID(attributes->guid, row.iid)) << Narrow(row.name);
        info->ReleaseTypeAttr(attributes);
        EXPECT_EQ(object->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.Out()), DISP_E_BADINDEX);
    }
}

TEST_F(LateBinding, EntriesOfInterfacesThatDeclareNothingAgainAreInTheirPlace)
{
    EXPECT_EQ(Refusals(Object<SGraphAxis>(), MethodsOfISGraphAxis, 18), Refused{});
    EXPECT_EQ(Refusals(Object<SGraphBitmap>(), MethodsOfISGraphBitmap, 18), Refused{});
}

TEST_F(LateBinding, LabelRefusesTheTwoEntriesPastItsTable)
{
    EXPECT_EQ(Refusals(Object<SGraphLabel>(), MethodsOfISGraphLabel, 18),
              (Refused{{93, E_NOTIMPL}, {94, E_NOTIMPL}}));
}

TEST_F(LateBinding, CurveRefusesTheEntryPastItsTable)
{
    EXPECT_EQ(Refusals(Object<SGraphDataSerie>(), MethodsOfISGraphDataSerie, 18),
              (Refused{{57, E_NOTIMPL}}));
}

TEST_F(LateBinding, LogAxisRefusesTheTwoEntriesPastItsTable)
{
    const auto axis = Object<SGraphLogAxis>();

    EXPECT_EQ(Refusals(axis, MethodsOfISGraphAxis, 18), Refused{});
    EXPECT_EQ(Refusals(axis, MethodsOfISGraphLogAxis, 51), (Refused{{61, E_NOTIMPL}, {62, E_NOTIMPL}}));
}

TEST_F(LateBinding, RefusalsReachTheCallerOfInvoke)
{
    const auto label = Object<SGraphLabel>();
    const auto curve = Object<SGraphDataSerie>();
    const auto axis = Object<SGraphLogAxis>();
    LONG number = 77;
    double value = 77;

    EXPECT_EQ(Call(label, 93, {Of(1)}), E_NOTIMPL);
    EXPECT_EQ(Call(label, 94, {ByReference(VT_I4, &number)}), E_NOTIMPL);
    EXPECT_EQ(Call(curve, 57, {Of(1)}), E_NOTIMPL);
    EXPECT_EQ(Call(axis, 61, {Of(1), ByReference(VT_R8, &value)}), E_NOTIMPL);
    EXPECT_EQ(Call(axis, 62, {Of(1)}), E_NOTIMPL);
    EXPECT_EQ(number, 77);
    EXPECT_EQ(value, 77);
}

TEST_F(LateBinding, CallsOfALabelLandTwoMethodsFurtherDown)
{
    const GraphInAWindow host(server);
    RECT place{10, 10, 60, 30};
    Holder<ISGraphLabel> label;
    ASSERT_EQ(host.graph->InsertLabel(nullptr, &place, label.Out()), S_OK);
    label->SetColor(1);
    label->SetTextColor(2);

    ASSERT_EQ(Call(label, IdOf(label, "SetColor"), {Of(0x112233)}), S_OK);

    ULONG color = 0;
    label->GetColor(&color);
    EXPECT_EQ(color, 1U);
    label->GetTextColor(&color);
    EXPECT_EQ(color, 0x112233U);
    // The declaration of the base is in its place, and there the label's own method is.
    ASSERT_EQ(Call(label, 11, {Of(0x445566)}), S_OK);
    label->GetColor(&color);
    EXPECT_EQ(color, 0x445566U);
}

TEST_F(LateBinding, CallsOfACurveLandOneMethodFurtherDown)
{
    const GraphInAWindow host(server);
    TDataPoint points[] = {{0, 1}, {1, 2}, {2, 3}};
    Holder<ISGraphDataSerie> curve;
    ASSERT_EQ(host.graph->SetData(curve.Out(), points, 3, 0, 0, 0, 1), S_OK);
    curve->SetLineSize(4);
    curve->SetFillStyle(0);

    ASSERT_EQ(Call(curve, IdOf(curve, "SetLineSize"), {Of(2)}), S_OK);

    int value = 0;
    curve->GetLineSize(&value);
    EXPECT_EQ(value, 4);
    curve->GetFillStyle(&value);
    EXPECT_EQ(value, 2);
}

TEST_F(LateBinding, ObjectsLiveOnAfterRefusals)
{
    const auto label = Object<SGraphLabel>();
    ASSERT_EQ(Call(label, 93, {Of(1)}), E_NOTIMPL);

    Holder<ISGraphLabel> same;
    EXPECT_EQ(label->QueryInterface(__uuidof(ISGraphLabel), same.OutVoid()), S_OK);
    EXPECT_EQ(same->SetAlignment(1), S_OK);
    EXPECT_EQ(label->AddRef(), 3U);
    EXPECT_EQ(label->Release(), 2U);
}

TEST_F(LateBinding, TypedResultsArriveByReference)
{
    const auto object = Object<SGraphObject>();
    alignas(16) BYTE native[4096] = {};
    Holder<ISGraphObject> wrapper;
    ASSERT_EQ(object->QueryInterface(__uuidof(ISGraphObject), wrapper.OutVoid()), S_OK);
    wrapper->SetObjectHandle(reinterpret_cast<UINT*>(native));
    LONG flag = 7;
    ULONG color = 7;

    EXPECT_EQ(Call(object, IdOf(object, "SetSelected"), {Of(5)}), S_OK);
    EXPECT_EQ(Call(object, IdOf(object, "GetSelected"), {ByReference(VT_I4, &flag)}), S_OK);
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(Call(object, IdOf(object, "SetColor"), {Of(0x112233)}), S_OK);
    EXPECT_EQ(Call(object, IdOf(object, "GetColor"), {ByReference(VT_UI4, &color)}), S_OK);
    EXPECT_EQ(color, 0x112233U);
}

TEST_F(LateBinding, WorksFromTheRegisteredLibraryToo)
{
    ASSERT_EQ(server.Register(), S_OK);
    const auto notation = Object<SGraphDataNotation>();
    Holder<ITypeInfo> info;
    EXPECT_EQ(notation->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Out()), S_OK);
    const auto axis = Object<SGraphAxis>();
    EXPECT_EQ(Call(axis, IdOf(axis, "SetArcSize"), {Of(1)}), S_OK);
    EXPECT_EQ(server.Unregister(), S_OK);
}
