#pragma once
// The methods of a picture, on CXGraphBitmap, for the interface that exposes them. A picture's
// bitmap comes from a file or from native code; it can't be set or read here.

#include "automation/ISGraphObjectImpl.h"
#include "automation/WrapperCalls.h"
#include "objects/XGraphBitmap.h"

template <class T, const IID* piid, const GUID* plibid>
class ISGraphBitmapImpl : public ISGraphObjectImpl<T, piid, plibid>
{
public:
    STDMETHOD(SetBorder)(long bValue) override
    {
        return Wrapper::StoreFlag(*this, &CXGraphBitmap::m_bBorder, bValue);
    }
    STDMETHOD(SetBitmap)(UINT*) override
    {
        return Wrapper::Act([] {});
    }
    STDMETHOD(GetBorder)(long* pbValue) override
    {
        return Wrapper::Fetch(*this, &CXGraphBitmap::m_bBorder, pbValue);
    }
    STDMETHOD(GetBitmap)(UINT**) override
    {
        return Wrapper::Act([] {});
    }

    // Null without a handle, or with one of another class.
    [[nodiscard]] CXGraphBitmap* Native() const
    {
        return DYNAMIC_DOWNCAST(CXGraphBitmap, this->m_pObject);
    }
};
