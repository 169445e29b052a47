#pragma once
// Finds list nodes by id without a walk. Ids are counts of nodes, so they are small and dense, but
// one may come twice; the first node with it is the one that is found.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// Owns nothing. A node has nId, pPrevious, pNext and pNextOfId, the next one with the same id.
template <class Node> class CIdIndex
{
public:
    // Takes the memory for that id; Append of it doesn't fail afterwards.
    void MakeRoom(std::int32_t nId)
    {
        const std::size_t needed = Place(nId) + 1;
        if (m_Runs.capacity() < needed)
            m_Runs.reserve(std::max(needed, 2 * m_Runs.capacity()));
    }

    // A node that goes behind all others of the list.
    void Append(Node* node) noexcept
    {
        if (m_Runs.size() <= Place(node->nId))
            m_Runs.resize(Place(node->nId) + 1);
        TRun& run = m_Runs[Place(node->nId)];
        (run.pLast ? run.pLast->pNextOfId : run.pFirst) = node;
        run.pLast = node;
    }

    [[nodiscard]] Node* First(std::int32_t nId) const noexcept
    {
        return nId >= 0 && Place(nId) < m_Runs.size() ? m_Runs[Place(nId)].pFirst : nullptr;
    }

    void RemoveFirst(std::int32_t nId) noexcept
    {
        TRun& run = m_Runs[Place(nId)];
        run.pFirst = run.pFirst->pNextOfId;
        if (!run.pFirst)
            run.pLast = nullptr;
    }

    void Clear() noexcept { m_Runs.clear(); }

private:
    struct TRun {
        Node* pFirst = nullptr;
        Node* pLast = nullptr;
    };
    [[nodiscard]] static std::size_t Place(std::int32_t nId) noexcept
    {
        return static_cast<std::size_t>(nId);
    }

    std::vector<TRun> m_Runs;
};
