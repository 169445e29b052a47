#include "objects/XGraphObject.h"

#include <atomic>

IMPLEMENT_SERIAL(CXGraphObject, CObject, 1)

namespace
{
// Graphs live on any threads of the host.
std::uint64_t NextIdentity() noexcept
{
    static std::atomic<std::uint64_t> last = 0;
    return ++last;
}
} // namespace

CXGraphObject::CXGraphObject() : m_nIdentity(NextIdentity()) {}
CXGraphObject::CXGraphObject(const CXGraphObject& other) = default;
CXGraphObject& CXGraphObject::operator=(const CXGraphObject& other) = default;
CXGraphObject::~CXGraphObject() = default;

void CXGraphObject::Serialize(CArchive& ar)
{
    static_assert(sizeof m_rcObject == 16);
    if (ar.IsStoring()) {
        ar << m_bSelected << m_bCanResize << m_bCanMove << m_bSizing << m_bEditing << m_bVisible
           << m_bCanEdit;
        ar.Write(&m_rcObject, sizeof m_rcObject);
        ar << m_crColor;
    } else {
        ar >> m_bSelected >> m_bCanResize >> m_bCanMove >> m_bSizing >> m_bEditing >> m_bVisible >>
            m_bCanEdit;
        ar.ReadExactly(&m_rcObject, sizeof m_rcObject);
        ar >> m_crColor;
    }
}

void CXGraphObject::Draw(CDCEx*) {}

void CXGraphObject::BeginEdit() {}

void CXGraphObject::EndEdit() {}

void CXGraphObject::BeginSize()
{
    m_bSizing = true;
    m_Tracker.m_rect = m_rcObject;
    m_Tracker.m_nStyle = CRectTracker::hatchedBorder | CRectTracker::resizeOutside;
}

void CXGraphObject::EndSize()
{
    m_bSizing = false;
}

void CXGraphObject::InvokeProperties() {}
