#include "framework/windowing/ObList.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CObList, CObject)

CObList::CObList(INT_PTR nBlockSize) : m_nBlockSize(std::max<INT_PTR>(nBlockSize, 1)) {}

CObList::TNode* CObList::NewNode(CObject* object)
{
    if (!m_pFree) {
        m_blocks.push_back(std::make_unique<TNode[]>(static_cast<size_t>(m_nBlockSize)));
        TNode* const block = m_blocks.back().get();
        for (INT_PTR i = m_nBlockSize - 1; i >= 0; --i) {
            block[i].pNext = m_pFree;
            m_pFree = &block[i];
        }
    }
    TNode* const node = m_pFree;
    m_pFree = node->pNext;
    *node = {nullptr, nullptr, object};
    ++m_nCount;
    return node;
}

void CObList::Unlink(TNode* node) noexcept
{
    (node->pPrev ? node->pPrev->pNext : m_pHead) = node->pNext;
    (node->pNext ? node->pNext->pPrev : m_pTail) = node->pPrev;
    *node = {m_pFree, nullptr, nullptr};
    m_pFree = node;
    if (--m_nCount == 0)
        RemoveAll();
}

void CObList::RemoveAll()
{
    m_pHead = m_pTail = m_pFree = nullptr;
    m_nCount = 0;
    m_blocks.clear();
}

CObject* CObList::GetHead() const noexcept
{
    return m_pHead ? m_pHead->pObject : nullptr;
}

CObject* CObList::GetTail() const noexcept
{
    return m_pTail ? m_pTail->pObject : nullptr;
}

POSITION CObList::AddTail(CObject* newElement)
{
    TNode* const node = NewNode(newElement);
    node->pPrev = m_pTail;
    (m_pTail ? m_pTail->pNext : m_pHead) = node;
    m_pTail = node;
    return PositionOf(node);
}

POSITION CObList::AddHead(CObject* newElement)
{
    TNode* const node = NewNode(newElement);
    node->pNext = m_pHead;
    (m_pHead ? m_pHead->pPrev : m_pTail) = node;
    m_pHead = node;
    return PositionOf(node);
}

CObject* CObList::RemoveHead()
{
    CObject* const object = GetHead();
    if (m_pHead)
        Unlink(m_pHead);
    return object;
}

CObject* CObList::RemoveTail()
{
    CObject* const object = GetTail();
    if (m_pTail)
        Unlink(m_pTail);
    return object;
}

POSITION CObList::GetHeadPosition() const noexcept
{
    return PositionOf(m_pHead);
}

POSITION CObList::GetTailPosition() const noexcept
{
    return PositionOf(m_pTail);
}

CObject* CObList::GetNext(POSITION& rPosition) const noexcept
{
    const TNode* const node = NodeOf(rPosition);
    rPosition = PositionOf(node->pNext);
    return node->pObject;
}

CObject* CObList::GetPrev(POSITION& rPosition) const noexcept
{
    const TNode* const node = NodeOf(rPosition);
    rPosition = PositionOf(node->pPrev);
    return node->pObject;
}

CObject* CObList::GetAt(POSITION position) const noexcept
{
    return NodeOf(position)->pObject;
}

void CObList::RemoveAt(POSITION position)
{
    Unlink(NodeOf(position));
}

POSITION CObList::Find(const CObject* searchValue, POSITION startAfter) const noexcept
{
    TNode* node = startAfter ? NodeOf(startAfter)->pNext : m_pHead;
    while (node && node->pObject != searchValue)
        node = node->pNext;
    return PositionOf(node);
}

POSITION CObList::FindIndex(INT_PTR nIndex) const noexcept
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    TNode* node = m_pHead;
    while (nIndex-- > 0)
        node = node->pNext;
    return PositionOf(node);
}
