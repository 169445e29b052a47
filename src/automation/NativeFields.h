#pragma once
// Setters and getters of the child wrappers: each reads or writes one field of the native
// object. Without an object nothing is done, and S_OK; with one, a null pointer of the caller
// is S_FALSE. Nothing repaints.

#include "automation/Strings.h"
#include "framework/windowing/ModuleState.h"
#include "framework/windowing/Strings.h"

#include <windows.h>

namespace NativeFields
{

template <class Native, class Class, class Field, class Value>
HRESULT Store(Native* pNative, Field Class::*pField, Value value)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pNative != nullptr)
        pNative->*pField = static_cast<Field>(value);
    return S_OK;
}

template <class Native, class Class> HRESULT StoreFlag(Native* pNative, bool Class::*pField, long bValue)
{
    return Store(pNative, pField, bValue != 0);
}

// A bool comes out as 0 or 1.
template <class Native, class Class, class Field, class Value>
HRESULT Fetch(const Native* pNative, Field Class::*pField, Value* pValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pNative == nullptr)
        return S_OK;
    if (pValue == nullptr)
        return S_FALSE;
    *pValue = static_cast<Value>(pNative->*pField);
    return S_OK;
}

template <class Native, class Class>
HRESULT StoreText(Native* pNative, CString Class::*pField, BSTR bstrValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pNative == nullptr)
        return S_OK;
    if (bstrValue == nullptr)
        return S_FALSE;
    pNative->*pField = CString(bstrValue);
    return S_OK;
}

// A null pointer gets nothing delivered and is no failure.
template <class Native, class Class>
HRESULT FetchText(const Native* pNative, CString Class::*pField, BSTR* pbstrValue)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    if (pNative != nullptr)
        DeliverString(pNative->*pField, pbstrValue);
    return S_OK;
}

} // namespace NativeFields
