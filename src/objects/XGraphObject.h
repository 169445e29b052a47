#pragma once
// Root of everything that is placed on a graph: axes, curves, labels, bitmaps, notations.
// It carries the place, the flags of the interactive model and the way back to the graph,
// and names the operations by which the graph paints and drives an object whose class it
// does not know.

#include "framework/windowing/Archive.h"
#include "framework/windowing/Geometry.h"
#include "framework/windowing/Object.h"
#include "framework/windowing/RectTracker.h"

#include <windows.h>

#include <cstdint>

class CDCEx;
class CXGraph;

class CXGraphObject : public CObject
{
    DECLARE_SERIAL(CXGraphObject)

public:
    CXGraphObject();
    CXGraphObject(const CXGraphObject& other);
    CXGraphObject& operator=(const CXGraphObject& other);
    ~CXGraphObject() override;

    CRect m_rcObject{0, 0, 0, 0}; // client pixels; of an axis, the strip around its line
    bool m_bSelected = false;
    bool m_bEditing = false;   // an in-place edit runs
    bool m_bCanResize = false; // with m_bCanMove: the tracker's result is taken over
    bool m_bCanMove = false;
    bool m_bSizing = false; // the tracker is shown
    bool m_bVisible = true;
    bool m_bCanEdit = true; // BeginEdit may start
    COLORREF m_crColor = 0;
    CXGraph* m_pGraph = nullptr; // the owner; not owned, never stored
    CRectTracker m_Tracker;
    // Unlike an address, never another object's later on. A copy keeps it, since the graph's
    // vectors move their elements by copying them.
    std::uint64_t m_nIdentity;

    // 27 bytes: seven flags, m_rcObject, m_crColor. A short rectangle ends in the
    // archive exception for the end of the file.
    void Serialize(CArchive& ar) override;
    virtual void Draw(CDCEx* pDC);
    virtual void BeginEdit();
    virtual void EndEdit();
    virtual void BeginSize();
    virtual void EndSize();
    virtual void InvokeProperties();
};

// An object as it was met, for the time while messages run: it may have been deleted since, and
// its address may be that of another one. CXGraph::Owns knows.
struct TObjectRef {
    explicit TObjectRef(CXGraphObject* object) : pObject(object), nIdentity(object->m_nIdentity) {}

    CXGraphObject* pObject;
    std::uint64_t nIdentity;
};
