#pragma once
// The handle of a child wrapper: a plain pointer to a native object of a graph, given from
// outside and not counted. It is good only until the graph's lists change.

#include "automation/Interfaces.h"
#include "automation/WrapperCalls.h"
#include "objects/XGraphObject.h"

// T is the interface that the class finally exposes, or its table from Interfaces.h.
template <class T, const IID* piid, const GUID* plibid>
class ISObjectImpl : public IDispatchImpl<T, piid, plibid>
{
public:
    // Lets go of the object held and takes the new one, which stays the giver's; null for none.
    STDMETHOD(SetObjectHandle)(UINT* hObj) override
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        DropObject();
        if (hObj) {
            m_pObject = reinterpret_cast<CXGraphObject*>(hObj);
            m_bAttached = TRUE;
        }
        return S_OK;
    }

    // Stores hObj itself: the native pointer can't be read back.
    STDMETHOD(GetObjectHandle)(UINT** hObj) override
    {
        return Wrapper::Answer(hObj, [&] { return reinterpret_cast<UINT*>(hObj); });
    }

    CXGraphObject* m_pObject = nullptr;
    BOOL m_bAttached = FALSE; // the object was given from outside and belongs there

protected:
    ISObjectImpl() = default;
    ~ISObjectImpl() { DropObject(); }

private:
    void DropObject()
    {
        if (!m_bAttached)
            delete m_pObject;
        m_pObject = nullptr;
        m_bAttached = FALSE;
    }
};
