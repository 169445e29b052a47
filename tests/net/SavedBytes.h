#pragma once
// A graph as it saves itself.

#include "Graph.h"

#include <cstdint>
#include <vector>

class SavedBytes
{
public:
    explicit SavedBytes(const Graph& graph);

    [[nodiscard]] std::size_t Count() const { return m_bytes.size(); }
    [[nodiscard]] std::uint64_t Sum() const;

private:
    std::vector<unsigned char> m_bytes;
};
