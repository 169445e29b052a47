// A client that knows names alone: the graph through GetIDsOfNames and Invoke, as a script
// calls it.

#include "FrontDoorGraph.h"

#include <algorithm>
#include <set>

namespace
{

// One argument of a late-bound call: a value, or a place for a result.
struct Slot {
    VARIANT value;
    LONG number = 0;
    double real = 0;
    BSTR text = nullptr;
    IDispatch* object = nullptr;

    Slot() { ::VariantInit(&value); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot()
    {
        ::SysFreeString(text);
        if (object != nullptr)
            object->Release();
        ::VariantClear(&value);
    }
};

class LateBound : public FrontDoorGraph
{
protected:
    void SetUp() override
    {
        FrontDoorGraph::SetUp();
        AddLine(0);
        ASSERT_EQ(graph->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(dispatch.Out())), S_OK);
        ASSERT_EQ(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Out()), S_OK);
    }

    DISPID IdOf(const wchar_t* pszName)
    {
        DISPID id = DISPID_UNKNOWN;
        LPOLESTR pName = const_cast<LPOLESTR>(pszName);
        EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, &pName, 1, LOCALE_USER_DEFAULT, &id), S_OK)
            << pszName;
        return id;
    }
    // Arguments come in reverse in a call.
    // The method's own refusal comes as an exception.
    HRESULT Invoke(DISPID id, std::vector<VARIANT> arguments)
    {
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        EXCEPINFO exception = {};
        const HRESULT result = dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                &parameters, nullptr, &exception, nullptr);
        return result == DISP_E_EXCEPTION ? exception.scode : result;
    }
    static VARIANT Number(LONG nValue)
    {
        VARIANT value;
        value.vt = VT_I4;
        value.lVal = nValue;
        return value;
    }
    static VARIANT Reference(VARTYPE type, void* pTarget)
    {
        VARIANT value;
        value.vt = static_cast<VARTYPE>(type | VT_BYREF);
        value.byref = pTarget;
        return value;
    }

    // The parameter as a script could pass it; false if it can't.
    bool Fill(const TYPEDESC& type, Slot& slot)
    {
        switch (type.vt) {
        case VT_I4:
        case VT_INT:
            slot.value = Number(0);
            return true;
        case VT_UI4:
        case VT_UINT:
        case VT_UI8: // a message's parameter
        case VT_I8:
            slot.value = Number(0);
            return true;
        case VT_R8:
            slot.value.vt = VT_R8;
            slot.value.dblVal = 0;
            return true;
        case VT_BSTR:
            slot.value.vt = VT_BSTR;
            slot.value.bstrVal = ::SysAllocString(L"");
            return true;
        case VT_USERDEFINED:
            slot.value = Number(0);
            return KindOf(type.hreftype) == TKIND_ENUM || IsNumber(type.hreftype);
        case VT_PTR:
            return FillPointer(*type.lptdesc, slot);
        default:
            return false;
        }
    }
    bool FillPointer(const TYPEDESC& type, Slot& slot)
    {
        switch (type.vt) {
        case VT_I4:
        case VT_INT:
            slot.value = Reference(VT_I4, &slot.number);
            return true;
        case VT_UI4:
        case VT_UINT:
            slot.value = Reference(VT_UI4, &slot.number);
            return true;
        case VT_R8:
            slot.value = Reference(VT_R8, &slot.real);
            return true;
        case VT_BSTR:
            slot.value = Reference(VT_BSTR, &slot.text);
            return true;
        case VT_USERDEFINED:
            if (KindOf(type.hreftype) == TKIND_ENUM) {
                slot.value = Reference(VT_I4, &slot.number);
                return true;
            }
            if (IsObject(KindOf(type.hreftype))) { // an object handed in: none
                slot.value.vt = VT_DISPATCH;
                slot.value.pdispVal = nullptr;
                return true;
            }
            return false; // a record
        case VT_PTR:
            if (type.lptdesc->vt == VT_USERDEFINED && IsObject(KindOf(type.lptdesc->hreftype))) {
                slot.value = Reference(VT_DISPATCH, &slot.object);
                return true;
            }
            return false;
        default:
            return false;
        }
    }
    static bool IsObject(TYPEKIND kind) { return kind == TKIND_DISPATCH || kind == TKIND_INTERFACE; }
    TYPEKIND KindOf(HREFTYPE reference)
    {
        TYPEKIND kind = TKIND_MAX;
        WithAttributes(reference, [&](const TYPEATTR& attributes) { kind = attributes.typekind; });
        return kind;
    }
    // Another name for a number: what a message carries.
    bool IsNumber(HREFTYPE reference)
    {
        bool bNumber = false;
        WithAttributes(reference, [&](const TYPEATTR& attributes) {
            bNumber = attributes.typekind == TKIND_ALIAS &&
                      (attributes.tdescAlias.vt == VT_UI8 || attributes.tdescAlias.vt == VT_I8);
        });
        return bNumber;
    }
    void WithAttributes(HREFTYPE reference, const std::function<void(const TYPEATTR&)>& visit)
    {
        Holder<ITypeInfo> target;
        TYPEATTR* pAttributes = nullptr;
        if (FAILED(info->GetRefTypeInfo(reference, target.Out())) ||
            FAILED(target->GetTypeAttr(&pAttributes)))
            return;
        visit(*pAttributes);
        target->ReleaseTypeAttr(pAttributes);
    }

    Holder<IDispatch> dispatch;
    Holder<ITypeInfo> info;
};

} // namespace

TEST_F(LateBound, ValuesTravelInBothDirections)
{
    EXPECT_EQ(Invoke(IdOf(L"SetSnapRange"), {Number(23)}), S_OK);
    LONG nRange = 0;
    EXPECT_EQ(Invoke(IdOf(L"GetSnapRange"), {Reference(VT_I4, &nRange)}), S_OK);
    EXPECT_EQ(nRange, 23);
    ULONG color = 0;
    EXPECT_EQ(Invoke(IdOf(L"SetBackColor"), {Number(0x123456)}), S_OK);
    EXPECT_EQ(Invoke(IdOf(L"GetBackColor"), {Reference(VT_UI4, &color)}), S_OK);
    EXPECT_EQ(color, 0x123456u);
    LONG nAlignment = -1;
    EXPECT_EQ(Invoke(IdOf(L"SetLegendAlignment"), {Number(2)}), S_OK);
    EXPECT_EQ(Invoke(IdOf(L"GetLegendAlignment"), {Reference(VT_I4, &nAlignment)}), S_OK);
    EXPECT_EQ(nAlignment, 2);
}

TEST_F(LateBound, AnObjectHandedOutIsDrivenByNamesToo)
{
    IDispatch* pAxis = nullptr;
    ASSERT_EQ(Invoke(IdOf(L"GetXAxis"), {Reference(VT_DISPATCH, &pAxis), Number(0)}), S_OK);
    const Holder<IDispatch> axis(pAxis);
    ASSERT_TRUE(axis);
    DISPID id = 0;
    LPOLESTR pName = const_cast<LPOLESTR>(L"SetTickSize");
    ASSERT_EQ(axis->GetIDsOfNames(IID_NULL, &pName, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    EXPECT_EQ(id, 35);
    VARIANT size = Number(19);
    DISPPARAMS parameters = {&size, nullptr, 1, 0};
    EXPECT_EQ(axis->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                           nullptr, nullptr),
              S_OK);
    int nSize = 0;
    XAxis()->GetTickSize(&nSize);
    EXPECT_EQ(nSize, 19);
}

TEST_F(LateBound, EveryMethodThatAScriptCanPassArgumentsForIsCalled)
{
    TYPEATTR* pAttributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&pAttributes), S_OK);
    const UINT nFunctions = pAttributes->cFuncs;
    info->ReleaseTypeAttr(pAttributes);
    std::set<std::wstring> called;
    std::set<std::wstring> passedOver;
    for (UINT i = 0; i < nFunctions; ++i) {
        FUNCDESC* pFunction = nullptr;
        ASSERT_EQ(info->GetFuncDesc(i, &pFunction), S_OK);
        const DISPID id = pFunction->memid;
        BSTR name = nullptr;
        UINT nNames = 0;
        info->GetNames(id, &name, 1, &nNames);
        const std::wstring method = name;
        ::SysFreeString(name);
        std::vector<Slot> slots(pFunction->cParams);
        bool bPassable = id >= 1 && id <= 69;
        for (SHORT k = 0; bPassable && k < pFunction->cParams; ++k)
            bPassable = Fill(pFunction->lprgelemdescParam[k].tdesc, slots[k]);
        info->ReleaseFuncDesc(pFunction);
        if (!bPassable) {
            if (id >= 1 && id <= 69)
                passedOver.insert(method);
            continue;
        }
        std::vector<VARIANT> arguments;
        for (Slot& slot : slots)
            arguments.push_back(slot.value);
        EXPECT_EQ(IdOf(method.c_str()), id);
        const HRESULT result = Invoke(id, arguments);
        EXPECT_TRUE(result == S_OK || result == S_FALSE)
            << std::string(method.begin(), method.end()) << ' ' << std::hex << result;
        called.insert(method);
        AddLine(0); // whatever the call took away is there again
        graph->SetDoubleBuffer(1);
    }
    // Records and window handles are no script's.
    const std::set<std::wstring> expected{L"SetData",           L"InsertLabel",       L"InsertBitmap",
                                          L"GetCursorAbsolute", L"SetCursorAbsolute", L"Create",
                                          L"GetHandle"};
    EXPECT_EQ(passedOver, expected);
    EXPECT_EQ(called.size() + passedOver.size(), 69u);
    Shoot();
}

TEST_F(LateBound, AnUnknownNameIsTold)
{
    DISPID id = 0;
    LPOLESTR pName = const_cast<LPOLESTR>(L"NoSuchMethod");
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, &pName, 1, LOCALE_USER_DEFAULT, &id),
              DISP_E_UNKNOWNNAME);
    EXPECT_EQ(Invoke(999, {}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(Invoke(IdOf(L"SetSnapRange"), {}), DISP_E_BADPARAMCOUNT);
}
