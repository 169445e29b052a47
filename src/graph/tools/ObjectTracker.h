#pragma once
// Free objects under the mouse: pressed, framed, dragged, edited, deleted. It works in every
// operation. Host code runs inside most of this and may remove any object.

#include "framework/windowing/Geometry.h"

#include <windows.h>

class CRectTracker;
class CWnd;
class CXGraph;
class CXGraphObject;

class CObjectTracker
{
public:
    explicit CObjectTracker(CXGraph& graph) : m_Graph(graph) {}

    void Press(CPoint point); // drags the frame of an object that has one
    // Selects, frames, opens or closes editors. True where an object took the click.
    bool Click(CPoint point, bool bDblClick);
    void Forget();    // what it points at goes
    void DropFrame(); // so that the next click frames anew; the object keeps its frame
    void DeleteCurrent();
    bool ShowProperties(CPoint point); // of the pressed object; false where it isn't there
    bool SetPointer(CWnd* pWnd, UINT nHitTest);

    // Both point at objects of the graph's list, or are null.
    CRectTracker* m_pTracker = nullptr;        // the frame that was opened last, inside its object
    CXGraphObject* m_pCurrentObject = nullptr; // the last one under the last press, also a hidden one

private:
    void Track(CXGraphObject* pObject, CPoint point);

    CXGraph& m_Graph;
};
