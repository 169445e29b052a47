#pragma once
// What all pieces of a graph share, on CXGraphObject. A null pointer of the caller is S_FALSE;
// the handle is not tested here, and a call without one faults. Nothing repaints.

#include "automation/ISObjectImpl.h"
#include "automation/WrapperCalls.h"

template <class T, const IID* piid, const GUID* plibid>
class ISGraphObjectImpl : public ISObjectImpl<T, piid, plibid>
{
public:
    STDMETHOD(SetRect)(RECT* pRect) override
    {
        return Wrapper::ActGiven(pRect, [&] { this->m_pObject->m_rcObject = *pRect; });
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
        return Wrapper::Answer(pGraph, [&] { return this; });
    }

private:
    template <class Field> HRESULT Take(Field CXGraphObject::*field, Field value)
    {
        return Wrapper::Act([&] { this->m_pObject->*field = value; });
    }

    template <class Field, class Value> HRESULT Deliver(Field CXGraphObject::*field, Value* pValue) const
    {
        return Wrapper::Answer(pValue, [&] { return this->m_pObject->*field; });
    }
};
