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

POSITION CObList::AddTail(CObject* newElement)
{
    TNode* const node = NewNode(newElement);
    node->pPrev = m_pTail;
    (m_pTail ? m_pTail->pNext : m_pHead) = node;
    m_pTail = node;
    return PositionOf(node);
}

CObject* CObList::RemoveTail()
{
    if (!m_pTail)
        return nullptr;
    CObject* const object = m_pTail->pObject;
    Unlink(m_pTail);
    return object;
}

POSITION CObList::GetHeadPosition() const noexcept
{
    return PositionOf(m_pHead);
}

CObject* CObList::GetNext(POSITION& rPosition) const noexcept
{
    const TNode* const node = NodeOf(rPosition);
    rPosition = PositionOf(node->pNext);
    return node->pObject;
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
