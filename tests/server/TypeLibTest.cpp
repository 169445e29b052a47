// The type library in the module, compared with what hosts are promised.

#include "server/ExpectedInterfaces.h"
#include "support/LoadedServer.h"

#include <oleauto.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace
{

std::string Taken(BSTR text)
{
    const std::string result = text != nullptr ? Narrow(text) : std::string();
    SysFreeString(text);
    return result;
}

std::string TypeName(ITypeInfo* info, const TYPEDESC& type)
{
    static const std::map<VARTYPE, std::string> names{
        {VT_I4, "long"},        {VT_UI4, "ulong"},   {VT_INT, "int"},   {VT_UINT, "uint"},
        {VT_R4, "float"},       {VT_R8, "double"},   {VT_BSTR, "BSTR"}, {VT_VARIANT, "VARIANT"},
        {VT_UI8, "UINT_PTR"},   {VT_I8, "LONG_PTR"}, {VT_VOID, "void"}, {VT_DISPATCH, "IDispatch*"},
        {VT_HRESULT, "HRESULT"}};
    if (type.vt == VT_PTR)
        return TypeName(info, *type.lptdesc) + "*";
    if (type.vt == VT_USERDEFINED) {
        Holder<ITypeInfo> user;
        BSTR name = nullptr;
        if (FAILED(info->GetRefTypeInfo(type.hreftype, user.Out())) ||
            FAILED(user->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) {
            return "unresolved";
        }
        return Taken(name);
    }
    const auto found = names.find(type.vt);
    return found != names.end() ? found->second : "vt" + std::to_string(type.vt);
}

std::string Direction(const ELEMDESC& parameter)
{
    switch (parameter.paramdesc.wParamFlags & (PARAMFLAG_FIN | PARAMFLAG_FOUT)) {
    case PARAMFLAG_FIN:
        return "in ";
    case PARAMFLAG_FOUT:
        return "out ";
    default:
        return "inout ";
    }
}

struct Method {
    int id;
    std::string name;
    std::string parameters;
    std::string result;
    std::string help;
    int entry; // of the method table
};

Method Describe(ITypeInfo* info, UINT index)
{
    FUNCDESC* function = nullptr;
    EXPECT_EQ(info->GetFuncDesc(index, &function), S_OK);
    BSTR names[16] = {};
    UINT count = 0;
    EXPECT_EQ(info->GetNames(function->memid, names, 16, &count), S_OK);
    BSTR help = nullptr;
    info->GetDocumentation(function->memid, nullptr, &help, nullptr, nullptr);

    Method method{function->memid,
                  Taken(names[0]),
                  "",
                  TypeName(info, function->elemdescFunc.tdesc),
                  Taken(help),
                  function->oVft / static_cast<int>(sizeof(void*))};
    for (int i = 0; i < function->cParams; ++i) {
        const ELEMDESC& parameter = function->lprgelemdescParam[i];
        method.parameters += (i > 0 ? ", " : "") + Direction(parameter) +
                             TypeName(info, parameter.tdesc) + " " + Taken(names[i + 1]);
    }
    EXPECT_EQ(function->invkind, INVOKE_FUNC) << method.name;
    EXPECT_EQ(function->cParamsOpt, 0) << method.name;
    info->ReleaseFuncDesc(function);
    return method;
}

class TypeLib : public testing::Test
{
protected:
    TypeLib()
    {
        EXPECT_EQ(LoadTypeLibEx(Server::PathBesideProgram().c_str(), REGKIND_NONE, library.Out()), S_OK);
    }

    // The description of a type by its name.
    Holder<ITypeInfo> Find(const char* name) const
    {
        std::wstring wide(name, name + strlen(name));
        Holder<ITypeInfo> info;
        MEMBERID member = 0;
        USHORT count = 1;
        EXPECT_EQ(library->FindName(wide.data(), 0, info.Out(), &member, &count), S_OK) << name;
        EXPECT_EQ(count, 1) << name;
        return info;
    }

    // The half of a dual interface that describes its method table.
    Holder<ITypeInfo> Table(const char* name) const
    {
        const Holder<ITypeInfo> dispatch = Find(name);
        Holder<ITypeInfo> table;
        HREFTYPE reference = 0;
        EXPECT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK) << name;
        EXPECT_EQ(dispatch->GetRefTypeInfo(reference, table.Out()), S_OK) << name;
        return table;
    }

    static TYPEATTR Attributes(ITypeInfo* info)
    {
        TYPEATTR* attributes = nullptr;
        EXPECT_EQ(info->GetTypeAttr(&attributes), S_OK);
        const TYPEATTR copy = *attributes;
        info->ReleaseTypeAttr(attributes);
        return copy;
    }

    static std::string HelpOf(ITypeInfo* info)
    {
        BSTR help = nullptr;
        EXPECT_EQ(info->GetDocumentation(MEMBERID_NIL, nullptr, &help, nullptr, nullptr), S_OK);
        return Taken(help);
    }

    Holder<ITypeLib> library;
};

std::string GuidText(REFGUID guid)
{
    wchar_t text[40] = L"";
    StringFromGUID2(guid, text, 40);
    return Narrow(text);
}

} // namespace

TEST_F(TypeLib, CarriesItsIdentity)
{
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(GuidText(attributes->guid), "{6C24BE93-2D8D-4820-8FFF-AF9FC63007F8}");
    EXPECT_EQ(attributes->wMajorVerNum, 1);
    EXPECT_EQ(attributes->wMinorVerNum, 0);
    EXPECT_EQ(attributes->lcid, 1033U);
    EXPECT_EQ(attributes->syskind, SYS_WIN64);
    library->ReleaseTLibAttr(attributes);

    BSTR name = nullptr;
    BSTR help = nullptr;
    ASSERT_EQ(library->GetDocumentation(-1, &name, &help, nullptr, nullptr), S_OK);
    EXPECT_EQ(Taken(name), "VANTOPLEXLib");
    EXPECT_EQ(Taken(help), "Vantoplex 1.0 Type Library");
}

TEST_F(TypeLib, InterfacesAreDualAndFitForAutomation)
{
    for (const ExpectedInterface& expected : ExpectedInterfaces) {
        const TYPEATTR dispatch = Attributes(Find(expected.name));
        EXPECT_EQ(dispatch.typekind, TKIND_DISPATCH) << expected.name;
        EXPECT_EQ(GuidText(dispatch.guid), expected.iid) << expected.name;
        EXPECT_TRUE(dispatch.wTypeFlags & TYPEFLAG_FDUAL) << expected.name;
        const TYPEATTR table = Attributes(Table(expected.name));
        EXPECT_EQ(table.typekind, TKIND_INTERFACE) << expected.name;
        EXPECT_EQ(GuidText(table.guid), expected.iid) << expected.name;
        EXPECT_TRUE(table.wTypeFlags & TYPEFLAG_FDUAL) << expected.name;
        EXPECT_TRUE(table.wTypeFlags & TYPEFLAG_FOLEAUTOMATION)
            << expected.name << std::hex << table.wTypeFlags;
    }
}

TEST_F(TypeLib, InterfacesDeriveAsPromised)
{
    for (const ExpectedInterface& expected : ExpectedInterfaces) {
        const Holder<ITypeInfo> table = Table(expected.name);
        HREFTYPE reference = 0;
        Holder<ITypeInfo> base;
        ASSERT_EQ(table->GetRefTypeOfImplType(0, &reference), S_OK) << expected.name;
        ASSERT_EQ(table->GetRefTypeInfo(reference, base.Out()), S_OK) << expected.name;
        BSTR name = nullptr;
        ASSERT_EQ(base->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
        EXPECT_EQ(Taken(name), expected.base) << expected.name;
    }
}

TEST_F(TypeLib, MethodsStandInOrderWithTheirNumbersAndParameters)
{
    for (const ExpectedInterface& expected : ExpectedInterfaces) {
        const Holder<ITypeInfo> table = Table(expected.name);
        ASSERT_EQ(Attributes(table).cFuncs, expected.methods.size()) << expected.name;
        for (UINT index = 0; index < expected.methods.size(); ++index) {
            const Method method = Describe(table, index);
            const ExpectedMethod& row = expected.methods[index];
            SCOPED_TRACE(std::string(expected.name) + "::" + row.name);
            EXPECT_EQ(method.name, row.name);
            EXPECT_EQ(method.id, row.id);
            EXPECT_EQ(method.parameters, row.parameters);
            EXPECT_EQ(method.result, "HRESULT");
        }
    }
}

TEST_F(TypeLib, EveryDeclaredMethodHasAnEntryOfItsOwn)
{
    std::map<std::string, int> entries{{"IDispatch", 7}};
    for (const ExpectedInterface& expected : ExpectedInterfaces) {
        const Holder<ITypeInfo> table = Table(expected.name);
        int entry = entries.at(expected.base);
        for (UINT index = 0; index < expected.methods.size(); ++index) {
            EXPECT_EQ(Describe(table, index).entry, entry++)
                << expected.name << "::" << expected.methods[index].name;
        }
        entries[expected.name] = entry;
        EXPECT_EQ(Attributes(table).cbSizeVft, entry * static_cast<int>(sizeof(void*))) << expected.name;
    }
}

TEST_F(TypeLib, HelpStringsOfMethods)
{
    const std::map<std::string, std::string> fixed{
        {"ISGraph::GetXGraphMsgInfo", "method no use now"},
        {"ISGraph::GetXGraphPersistInfo", "method no use now"},
        {"ISGraph::GetXGraphXgcInfo", "method no use now"},
        {"ISGraphLabel::SetFont", "PLOGFONTW pLogFontw"}};
    std::map<std::string, std::string> found;
    for (const ExpectedInterface& expected : ExpectedInterfaces) {
        const Holder<ITypeInfo> table = Table(expected.name);
        for (UINT index = 0; index < expected.methods.size(); ++index) {
            const Method method = Describe(table, index);
            const std::string name = std::string(expected.name) + "::" + method.name;
            if (fixed.contains(name))
                found[name] = method.help;
        }
    }
    EXPECT_EQ(found, fixed);
}

TEST_F(TypeLib, EveryClassHasItsInterfaceAsDefault)
{
    for (const ServerClass& row : serverClasses) {
        const std::string name = Narrow(row.name);
        const Holder<ITypeInfo> coclass = Find(name.c_str());
        const TYPEATTR attributes = Attributes(coclass);
        EXPECT_EQ(attributes.typekind, TKIND_COCLASS) << name;
        EXPECT_EQ(GuidText(attributes.guid), GuidText(row.clsid)) << name;
        EXPECT_TRUE(attributes.wTypeFlags & TYPEFLAG_FCANCREATE) << name;
        EXPECT_EQ(HelpOf(coclass), name + " Class");
        ASSERT_EQ(attributes.cImplTypes, 1) << name;

        int flags = 0;
        HREFTYPE reference = 0;
        Holder<ITypeInfo> interfaceInfo;
        ASSERT_EQ(coclass->GetImplTypeFlags(0, &flags), S_OK);
        ASSERT_EQ(coclass->GetRefTypeOfImplType(0, &reference), S_OK);
        ASSERT_EQ(coclass->GetRefTypeInfo(reference, interfaceInfo.Out()), S_OK);
        EXPECT_TRUE(flags & IMPLTYPEFLAG_FDEFAULT) << name;
        EXPECT_EQ(GuidText(Attributes(interfaceInfo).guid), GuidText(row.iid)) << name;
    }
}

TEST_F(TypeLib, EnumerationsHaveTheirValues)
{
    using Values = std::vector<std::pair<std::string, long>>;
    const std::map<std::string, Values> expected{
        {"EAxisType", {{"atLog", 0}, {"atLinear", 1}}},
        {"EAxisPlacement", {{"apLeft", 0}, {"apRight", 1}, {"apAutomatic", 2}}},
        {"EGraphType", {{"gtLine", 0}, {"gtScatter", 1}}},
        {"EAlignment", {{"left", 0}, {"right", 1}, {"top", 2}, {"bottom", 3}}},
        {"EOperation",
         {{"opNone", 0},
          {"opZoom", 1},
          {"opReset", 2},
          {"opPan", 3},
          {"opCursor", 4},
          {"opMoveObject", 5},
          {"opEditObject", 6},
          {"opEditCurve", 7},
          {"opMeasure", 8}}},
        {"XGRAPH_MSG",
         {{"XG_YAXISCLICK", 1025},
          {"XG_XAXISCLICK", 1026},
          {"XG_CURVECLICK", 1027},
          {"XG_YAXISDBLCLICK", 1028},
          {"XG_XAXISDBLCLICK", 1029},
          {"XG_CURVEDBLCLICK", 1030},
          {"XG_GRAPHDBLCLICK", 1031},
          {"XG_RBUTTONUP", 1032},
          {"XG_CURSORMOVED", 1033},
          {"XG_ZOOMCHANGE", 1034},
          {"XG_POINTCHANGED", 1035}}},
        {"XGRAPH_PERSIST", {{"PERSIST_PROPERTIES", 1}, {"PERSIST_DATA", 2}, {"PERSIST_OBJECTS", 4}}},
        {"XGRAPH_XGC", {{"XGC_HORIZ", 1}, {"XGC_VERT", 2}, {"XGC_LEGEND", 4}, {"XGC_ADJUSTSMOOTH", 8}}},
    };
    for (const auto& [name, values] : expected) {
        const Holder<ITypeInfo> info = Find(name.c_str());
        EXPECT_EQ(Attributes(info).typekind, TKIND_ENUM) << name;
        Values found;
        for (UINT index = 0; index < Attributes(info).cVars; ++index) {
            VARDESC* variable = nullptr;
            ASSERT_EQ(info->GetVarDesc(index, &variable), S_OK);
            BSTR text = nullptr;
            UINT count = 0;
            ASSERT_EQ(info->GetNames(variable->memid, &text, 1, &count), S_OK);
            found.emplace_back(Taken(text), V_I4(variable->lpvarValue));
            info->ReleaseVarDesc(variable);
        }
        EXPECT_EQ(found, values) << name;
    }
}

TEST_F(TypeLib, RecordsHaveTheirFields)
{
    using Fields = std::vector<std::pair<std::string, std::string>>;
    const std::map<std::string, std::pair<Fields, ULONG>> expected{
        {"TDataPoint", {{{"fXVal", "double"}, {"fYVal", "double"}}, 16}},
        {"tagRECT", {{{"left", "long"}, {"top", "long"}, {"right", "long"}, {"bottom", "long"}}, 16}},
    };
    for (const auto& [name, record] : expected) {
        const Holder<ITypeInfo> info = Find(name.c_str());
        const TYPEATTR attributes = Attributes(info);
        EXPECT_EQ(attributes.typekind, TKIND_RECORD) << name;
        EXPECT_EQ(attributes.cbSizeInstance, record.second) << name;
        Fields found;
        for (UINT index = 0; index < attributes.cVars; ++index) {
            VARDESC* variable = nullptr;
            ASSERT_EQ(info->GetVarDesc(index, &variable), S_OK);
            BSTR text = nullptr;
            UINT count = 0;
            ASSERT_EQ(info->GetNames(variable->memid, &text, 1, &count), S_OK);
            found.emplace_back(Taken(text), TypeName(info, variable->elemdescVar.tdesc));
            info->ReleaseVarDesc(variable);
        }
        EXPECT_EQ(found, record.first) << name;
    }
}

TEST_F(TypeLib, HoldsNothingUnknown)
{
    std::map<TYPEKIND, int> kinds;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        TYPEKIND kind = TKIND_MAX;
        ASSERT_EQ(library->GetTypeInfoType(index, &kind), S_OK);
        ++kinds[kind];
    }
    EXPECT_EQ(kinds[TKIND_DISPATCH], 11);
    EXPECT_EQ(kinds[TKIND_COCLASS], 11);
    EXPECT_EQ(kinds[TKIND_ENUM], 8);
    EXPECT_EQ(kinds[TKIND_INTERFACE], 0);
    EXPECT_EQ(kinds[TKIND_MODULE], 0);
}
