#pragma once
// What a method of a wrapper does around its work. Each of these works in the module's state, puts
// the host's state back on every way out, and catches nothing.
//
//   Act        does the work; S_OK
//   ActGiven   the same, but S_FALSE and no work for a null pointer of the caller
//   Answer     writes the answer to the caller's variable; S_FALSE for a null pointer, unasked
//
// Child wrappers look at their object first, also for its class, through Native(): without an object
// nothing is done, and S_OK, whatever the pointer.
//
//   ActOn, ActOnGiven, AnswerOf             as above, on the object
//   Store, StoreFlag, StoreText, Fetch...   one field of it
//
// Nothing here repaints.

#include "automation/Strings.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/Strings.h"

#include <windows.h>

namespace Wrapper
{

template <class Work> HRESULT Act(Work work)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    work();
    return S_OK;
}

template <class Pointer, class Work> HRESULT ActGiven(Pointer pointer, Work work)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!pointer)
        return S_FALSE;
    work();
    return S_OK;
}

// A bool comes out as 0 or 1.
template <class Value, class Question> HRESULT Answer(Value* pValue, Question question)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (!pValue)
        return S_FALSE;
    *pValue = static_cast<Value>(question());
    return S_OK;
}

template <class Child, class Work> HRESULT ActOn(const Child& child, Work work)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (auto* pNative = child.Native())
        work(*pNative);
    return S_OK;
}

template <class Child, class Pointer, class Work>
HRESULT ActOnGiven(const Child& child, Pointer pointer, Work work)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    auto* pNative = child.Native();
    if (!pNative)
        return S_OK;
    if (!pointer)
        return S_FALSE;
    work(*pNative);
    return S_OK;
}

template <class Child, class Value, class Question>
HRESULT AnswerOf(const Child& child, Value* pValue, Question question)
{
    return ActOnGiven(child, pValue,
                      [&](auto& native) { *pValue = static_cast<Value>(question(native)); });
}

template <class Child, class Class, class Field, class Value>
HRESULT Store(const Child& child, Field Class::*pField, Value value)
{
    return ActOn(child, [&](auto& native) { native.*pField = static_cast<Field>(value); });
}

template <class Child, class Class>
HRESULT StoreFlag(const Child& child, bool Class::*pField, long bValue)
{
    return Store(child, pField, bValue != 0);
}

template <class Child, class Class>
HRESULT StoreText(const Child& child, CString Class::*pField, BSTR bstrValue)
{
    return ActOnGiven(child, bstrValue, [&](auto& native) { native.*pField = CString(bstrValue); });
}

template <class Child, class Class, class Field, class Value>
HRESULT Fetch(const Child& child, Field Class::*pField, Value* pValue)
{
    return AnswerOf(child, pValue, [&](auto& native) { return native.*pField; });
}

template <class Child, class Class>
HRESULT FetchText(const Child& child, CString Class::*pField, BSTR* pbstrValue)
{
    return ActOnGiven(child, pbstrValue,
                      [&](auto& native) { DeliverString(native.*pField, pbstrValue); });
}

// For the two GetLabel: a null pointer gets nothing delivered and is no failure.
template <class Child, class Class>
HRESULT FetchTextUnasked(const Child& child, CString Class::*pField, BSTR* pbstrValue)
{
    return ActOn(child, [&](auto& native) { DeliverString(native.*pField, pbstrValue); });
}

} // namespace Wrapper
