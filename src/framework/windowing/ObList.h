#pragma once
// A list of pointers to objects in both directions. It owns its nodes, not the objects.
// A POSITION stays good until its own element is removed. Nodes come in blocks.

#include <memory>
#include <vector>

#include "framework/windowing/Object.h"

struct AFX_POSITION; // never defined
using POSITION = AFX_POSITION*;

class CObList : public CObject
{
    DECLARE_DYNAMIC(CObList)
public:
    explicit CObList(INT_PTR nBlockSize = 10);
    CObList(const CObList&) = delete;
    CObList& operator=(const CObList&) = delete;

    [[nodiscard]] INT_PTR GetCount() const noexcept { return m_nCount; }
    [[nodiscard]] BOOL IsEmpty() const noexcept { return m_nCount == 0; }

    POSITION AddTail(CObject* newElement);
    // Null for an empty list.
    CObject* RemoveTail();
    void RemoveAll();

    [[nodiscard]] POSITION GetHeadPosition() const noexcept;
    // The element at the position, which moves on and becomes null behind the last one.
    CObject* GetNext(POSITION& rPosition) const noexcept;
    void RemoveAt(POSITION position);

    // The first element after startAfter (null: from the head) that is that pointer, or null.
    [[nodiscard]] POSITION Find(const CObject* searchValue,
                                POSITION startAfter = nullptr) const noexcept;

private:
    struct TNode {
        TNode* pNext = nullptr;
        TNode* pPrev = nullptr;
        CObject* pObject = nullptr;
    };
    static TNode* NodeOf(POSITION position) noexcept { return reinterpret_cast<TNode*>(position); }
    static POSITION PositionOf(TNode* node) noexcept { return reinterpret_cast<POSITION>(node); }
    TNode* NewNode(CObject* object);
    void Unlink(TNode* node) noexcept;

    TNode* m_pHead = nullptr;
    TNode* m_pTail = nullptr;
    TNode* m_pFree = nullptr;
    INT_PTR m_nCount = 0;
    INT_PTR m_nBlockSize;
    std::vector<std::unique_ptr<TNode[]>> m_blocks;
};
