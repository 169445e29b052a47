#pragma once
// Where the parts of a graph file begin, as far as its bytes show it: damage that keeps the rest of a
// file readable reaches deeper than damage anywhere.

#include <cstddef>
#include <string>
#include <vector>

struct TStructure {
    std::vector<std::size_t> texts;   // the mark before a string's length
    std::vector<std::size_t> tags;    // of an object: a new class with its name, or a known one
    std::vector<std::size_t> counts;  // small numbers of four bytes
    std::vector<std::size_t> doubles; // ordinary values of eight bytes
};

[[nodiscard]] TStructure FindStructure(const std::string& file);
