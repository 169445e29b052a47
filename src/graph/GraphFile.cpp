// The graph file: a flags word, then a section for each flag that is set. There is no magic
// number and no version. Counts are written in 8 bytes and read in 4, which is part of the format.

#include "framework/windowing/Archive.h"
#include "framework/windowing/Exceptions.h"
#include "framework/windowing/File.h"
#include "graph/XGraph.h"
#include "objects/ArchiveCounts.h"

#include <memory>
#include <unordered_set>
#include <utility>

namespace
{
constexpr int BufferSize = 4096;

// Fewest bytes that one element takes: a count of more than the file can hold is refused by it.
constexpr UINT SmallestCurve = 64;
constexpr UINT SmallestAxis = 256;
constexpr UINT SmallestObject = 2; // its tag

template <class Element> void WriteElements(CArchive& ar, CCheckedVector<Element>& elements)
{
    ar << static_cast<ULONGLONG>(elements.size());
    for (Element& element : elements)
        element.Serialize(ar);
}

template <class Element>
void ReadElements(CArchive& ar, CCheckedVector<Element>& elements, UINT nSmallest, CXGraph* pGraph)
{
    for (int left = ArchiveCounts::ReadCount(ar, nSmallest); left > 0; --left) {
        Element element;
        element.Serialize(ar);
        element.m_pGraph = pGraph;
        elements.push_back(std::move(element)); // with its array, which may be large
    }
}

// Settings in the order of the file, for both directions.
template <class Stream, class Graph> void ExchangeSettings(Stream&& item, Graph& graph)
{
    item(graph.m_crBackColor);
    item(graph.m_crGraphColor);
    item(graph.m_crInnerColor);
    item(graph.m_bDoubleBuffer);
    item(graph.m_bShowLegend);
    item(graph.m_nLegendAlignment);
    item(graph.m_bSnapCursor);
    item(graph.m_nSnapRange);
    item(graph.m_nLeftMargin);
    item(graph.m_nTopMargin);
    item(graph.m_nRightMargin);
    item(graph.m_nBottomMargin);
    item(graph.m_nAxisSpace);
    item(graph.m_nSelectedCurve);
}

struct TWriter {
    CArchive& ar;
    template <class Value> void operator()(const Value& value) const { ar << value; }
    void operator()(const EAlignment& value) const { ar << static_cast<LONG>(value); }
};

struct TReader {
    CArchive& ar;
    template <class Value> void operator()(Value& value) const { ar >> value; }
    void operator()(EAlignment& value) const
    {
        LONG number = 0;
        ar >> number;
        value = static_cast<EAlignment>(number);
    }
};
} // namespace

bool CXGraph::Save(const CString& strFile, UINT nFlags)
{
    if (nFlags == 0)
        return false;
    m_ObjectTracker.Forget();
    try {
        CFile file;
        if (!file.Open(strFile, CFile::modeCreate | CFile::modeWrite))
            return false;
        CArchive ar(&file, CArchive::store, BufferSize);
        Serialize(ar, nFlags);
        ar.Close();
        return true;
    } catch (CException* exception) {
        exception->Delete();
        return false;
    }
}

bool CXGraph::Load(const CString& strFile)
{
    CFile file;
    if (!file.Open(strFile, CFile::modeRead))
        return false;
    ResetAll();
    try {
        CArchive ar(&file, CArchive::load, BufferSize);
        Serialize(ar, 0);
        return true;
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) { // memory that ran out
        HideIncompleteCurves();
        throw;
    }
    HideIncompleteCurves();
    return false;
}

// A read that failed half-way may leave curves without their axes or the partner of their fill.
// Painting one would end the host's process, and a host that knows of the failure will repaint;
// so such curves stay, but unseen.
void CXGraph::HideIncompleteCurves()
{
    for (CXGraphDataSerie& curve : m_Curves) {
        const bool partner = !curve.m_bFillBeneath ||
                             curve.m_nFillCurve == CXGraphDataSerie::FillToBottom ||
                             m_Curves.IsInside(static_cast<short>(curve.m_nFillCurve));
        if (!partner || !m_XAxes.IsInside(curve.m_nXAxis) || !m_YAxes.IsInside(curve.m_nYAxis))
            curve.m_bVisible = false;
    }
}

void CXGraph::Serialize(CArchive& ar, UINT nFlags)
{
    if (ar.IsStoring()) {
        Store(ar, nFlags);
        return;
    }
    DWORD flags = 0;
    ar >> flags;
    if ((flags & PERSIST_PROPERTIES) != 0)
        ExchangeSettings(TReader{ar}, *this);
    if ((flags & PERSIST_DATA) != 0) {
        ReadElements(ar, m_Curves, SmallestCurve, this);
        ReadElements(ar, m_XAxes, SmallestAxis, this);
        ReadElements(ar, m_YAxes, SmallestAxis, this);
    }
    if ((flags & PERSIST_OBJECTS) != 0)
        ReadObjects(ar);
    if (m_hWnd)
        Invalidate();
}

void CXGraph::Store(CArchive& ar, UINT nFlags)
{
    ar << static_cast<DWORD>(nFlags);
    if ((nFlags & PERSIST_PROPERTIES) != 0)
        ExchangeSettings(TWriter{ar}, *this);
    if ((nFlags & PERSIST_DATA) != 0) {
        WriteElements(ar, m_Curves);
        WriteElements(ar, m_XAxes);
        WriteElements(ar, m_YAxes);
    }
    if ((nFlags & PERSIST_OBJECTS) == 0)
        return;
    ar << static_cast<ULONGLONG>(m_Measures.size());
    for (const TMeasureSpan& span : m_Measures)
        ar.Write(&span, sizeof span);
    ar << static_cast<ULONGLONG>(m_Objects.GetCount() - 1);
    POSITION place = m_Objects.GetHeadPosition();
    m_Objects.GetNext(place); // the cursor's label is never stored
    while (place)
        ar.WriteObject(m_Objects.GetNext(place));
}

void CXGraph::ReadObjects(CArchive& ar)
{
    for (int left = ArchiveCounts::ReadCount(ar, sizeof(TMeasureSpan)); left > 0; --left) {
        TMeasureSpan span;
        ar.ReadExactly(&span, sizeof span);
        m_Measures.push_back(span);
    }
    std::unordered_set<const CXGraphObject*> taken;
    for (int left = ArchiveCounts::ReadCount(ar, SmallestObject); left > 0; --left) {
        auto* object = static_cast<CXGraphObject*>(ar.ReadObject(RUNTIME_CLASS(CXGraphObject)));
        // A second reference to one object would make the list own it twice.
        if (taken.contains(object))
            AfxThrowArchiveException(CArchiveException::badIndex);
        std::unique_ptr<CXGraphObject> owner(object);
        taken.insert(object);
        object->m_pGraph = this;
        m_Objects.AddTail(object);
        static_cast<void>(owner.release()); // the list has it now
    }
}
