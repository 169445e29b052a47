#pragma once
// What all pieces of a graph share, on CXGraphObject. A null pointer of the caller is S_FALSE;
// the handle is not tested here, and a call without one faults. Nothing repaints.

#include "automation/ISObjectImpl.h"

template <class T, const IID* piid, const GUID* plibid>
class ISGraphObjectImpl : public ISObjectImpl<T, piid, plibid>
{
public:
    STDMETHOD(SetRect)(RECT* pRect) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (pRect == nullptr) {
            return S_FALSE;
        }
        this->m_pObject->m_rcObject = *pRect;
        return S_OK;
    }
    STDMETHOD(GetRect)(RECT* pRect) override { return Deliver(&CXGraphObject::m_rcObject, pRect); }

    STDMETHOD(SetSelected)(LONG bValue) override
    {
        return Take(&CXGraphObject::m_bSelected, bValue != 0);
    }
    STDMETHOD(GetSelected)(LONG* pbValue) override
    {
        return Deliver(&CXGraphObject::m_bSelected, pbValue);
    }

    STDMETHOD(SetVisible)(LONG bValue) override { return Take(&CXGraphObject::m_bVisible, bValue != 0); }
    STDMETHOD(GetVisible)(LONG* pbValue) override
    {
        return Deliver(&CXGraphObject::m_bVisible, pbValue);
    }

    STDMETHOD(SetColor)(ULONG color) override { return Take(&CXGraphObject::m_crColor, color); }
    STDMETHOD(GetColor)(ULONG* pColor) override { return Deliver(&CXGraphObject::m_crColor, pColor); }

    // The wrapper's own interface, without a reference: not the graph.
    STDMETHOD(GetGraph)(IDispatch** pGraph) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (pGraph == nullptr) {
            return S_FALSE;
        }
        *pGraph = this;
        return S_OK;
    }

private:
    template <class Field> HRESULT Take(Field CXGraphObject::*field, Field value)
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        this->m_pObject->*field = value;
        return S_OK;
    }

    template <class Field, class Value> HRESULT Deliver(Field CXGraphObject::*field, Value* pValue) const
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (pValue == nullptr) {
            return S_FALSE;
        }
        *pValue = this->m_pObject->*field;
        return S_OK;
    }
};
