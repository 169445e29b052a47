#include "Mutator.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace
{
constexpr std::size_t MostBytes = 1 << 16;

// Counts, tags, lengths and enumerations that a reader may stumble over.
constexpr std::array<std::uint64_t, 22> Numbers = {0,          1,
                                                   2,          3,
                                                   0x7F,       0x80,
                                                   0xFF,       0x100,
                                                   0x7FFE,     0x7FFF,
                                                   0x8000,     0x8001,
                                                   0x8003,     0xFFFE,
                                                   0xFFFF,     0x10000,
                                                   0x7FFFFFFF, 0x80000000,
                                                   0x80000001, 0xFFFFFFFE,
                                                   0xFFFFFFFF, 0x7FFFFFFFFFFFFFFF};
constexpr std::array<std::uint64_t, 6> Doubles = {0x7FF0000000000000, 0xFFF0000000000000,
                                                  0x7FF8000000000001, 0x0000000000000001,
                                                  0x7FEFFFFFFFFFFFFF, 0x8000000000000000};
} // namespace

std::uint64_t CMutator::Next() noexcept
{
    m_nState += 0x9E3779B97F4A7C15;
    std::uint64_t value = m_nState;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
    return value ^ (value >> 31);
}

std::size_t CMutator::Below(std::size_t nCount) noexcept
{
    return nCount == 0 ? 0 : static_cast<std::size_t>(Next() % nCount);
}

std::string CMutator::File(std::uint64_t nFile)
{
    m_nState = m_nSeed ^ (nFile * 0xD1342543DE82EF95);
    std::string file = m_seeds[Below(m_seeds.size())];
    for (std::size_t left = 1 + Below(6); left > 0; --left)
        Mutate(file);
    if (file.size() > MostBytes)
        file.resize(MostBytes);
    return file;
}

void CMutator::Mutate(std::string& file)
{
    switch (Below(9)) {
    case 0:
        if (!file.empty())
            file[Below(file.size())] ^= static_cast<char>(1 << Below(8));
        break;
    case 1:
        Overwrite(file, Next(), 1 + Below(8));
        break;
    case 2:
        Overwrite(file, Doubles[Below(Doubles.size())], 8);
        break;
    case 3:
        if (Below(4) == 0) // most of a file should be left
            file.resize(Below(file.size() + 1));
        break;
    case 4:
        MovePart(file);
        break;
    case 5:
        Splice(file);
        break;
    default:
        OverwriteNumber(file);
    }
}

void CMutator::Overwrite(std::string& file, std::uint64_t nValue, std::size_t nWidth)
{
    const std::size_t place = Below(file.size());
    nWidth = std::min(nWidth, file.size() - place);
    std::memcpy(file.data() + place, &nValue, nWidth);
}

void CMutator::OverwriteNumber(std::string& file)
{
    Overwrite(file, Numbers[Below(Numbers.size())], std::size_t{1} << Below(4));
}

// Repeats a part elsewhere, or takes it out.
void CMutator::MovePart(std::string& file)
{
    const std::size_t from = Below(file.size());
    const std::size_t count = std::min(1 + Below(600), file.size() - from);
    const std::string part = file.substr(from, count);
    if (Below(2) == 0)
        file.erase(from, count);
    else
        file.insert(Below(file.size() + 1), part);
}

void CMutator::Splice(std::string& file)
{
    const std::string& other = m_seeds[Below(m_seeds.size())];
    const std::size_t from = Below(other.size());
    file.resize(Below(file.size() + 1));
    file.append(other, from, std::string::npos);
}
