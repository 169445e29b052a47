#include "Mutator.h"

#include "Structure.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

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
    if (Below(2) == 0)
        return ChangePart(file);
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

std::size_t CMutator::AnyOf(const std::vector<std::size_t>& places) noexcept
{
    return places[Below(places.size())];
}

void CMutator::ChangePart(std::string& file)
{
    const TStructure structure = FindStructure(file);
    const std::size_t kind = Below(6);
    if (kind == 0 && !structure.texts.empty())
        ChangeText(file, structure.texts);
    else if (kind == 1 && !structure.tags.empty())
        ChangeTag(file, structure.tags);
    else if (kind == 2 && !structure.tags.empty())
        MoveRecord(file, structure.tags);
    else if (kind == 3 && !structure.doubles.empty())
        file.replace(AnyOf(structure.doubles), 8,
                     reinterpret_cast<const char*>(&Doubles[Below(Doubles.size())]), 8);
    else if (!structure.counts.empty())
        ChangeCount(file, structure.counts);
}

// Another length, one of the longer forms of a length, or other text of the length that is told.
void CMutator::ChangeText(std::string& file, const std::vector<std::size_t>& texts)
{
    const std::size_t length = AnyOf(texts) + 3;
    const std::string_view lengths[] = {std::string_view("\0", 1),
                                        "\x01",
                                        "\xFE",
                                        std::string_view("\xFF\x05\0", 3),
                                        "\xFF\xFD\xFF",
                                        "\xFF\xFE\xFF",
                                        std::string_view("\xFF\xFF\xFF\x02\0\0\0", 7),
                                        "\xFF\xFF\xFF\xFF\xFF\xFF\x7F"};
    switch (Below(3)) {
    case 0:
        file.replace(length, 1, lengths[Below(std::size(lengths))]);
        break;
    case 1: { // long, and told so
        const std::size_t units = 1 + Below(0xFD);
        const auto nOld = static_cast<unsigned char>(file[length]);
        std::string text(units * 2, static_cast<char>(Next()));
        file.replace(length, std::min<std::size_t>(1 + nOld * 2U, file.size() - length),
                     static_cast<char>(units) + text);
        break;
    }
    default:
        for (std::size_t i = length + 1; i < std::min(length + 1 + 2 * Below(40), file.size()); ++i)
            file[i] = static_cast<char>(Next());
    }
}

void CMutator::ChangeTag(std::string& file, const std::vector<std::size_t>& tags)
{
    const std::uint16_t others[] = {0,      1,      0x7FFF, 0x8000, 0x8001,
                                    0x8002, 0x8003, 0x8005, 0x8009, 0xFFFF};
    const std::string_view names[] = {"CXGraphObject",       "CXGraphAxis",  "CXGraphLogAxis",
                                      "CXGraphDataSerie",    "CXGraphLabel", "CXGraphBitmap",
                                      "CXGraphDataNotation", "CXGraph",      ""};
    const std::size_t place = AnyOf(tags);
    const bool isNew = file.compare(place, 2, "\xFF\xFF") == 0;
    if (!isNew || Below(2) == 0) {
        file.replace(place, 2, reinterpret_cast<const char*>(&others[Below(std::size(others))]), 2);
        return;
    }
    const std::size_t nameEnd = file.find_first_not_of("CXGraphLogAxisDteSmplBNotn", place + 6);
    const std::string_view name = names[Below(std::size(names))];
    const auto nLength = static_cast<std::uint16_t>(name.size());
    file.replace(place + 6, std::min(nameEnd, file.size()) - place - 6, name);
    file.replace(place + 4, 2, reinterpret_cast<const char*>(&nLength), 2);
}

void CMutator::ChangeCount(std::string& file, const std::vector<std::size_t>& counts)
{
    const std::size_t place = AnyOf(counts);
    std::uint32_t value = 0;
    std::memcpy(&value, file.data() + place, sizeof value);
    switch (Below(5)) {
    case 0:
        ++value;
        break;
    case 1:
        --value;
        break;
    case 2:
        value *= 1U + static_cast<std::uint32_t>(Below(1000));
        break;
    case 3:
        value = 0U - value;
        break;
    default:
        value = static_cast<std::uint32_t>(Numbers[Below(Numbers.size())]);
    }
    std::memcpy(file.data() + place, &value, sizeof value);
}

// From one tag to the next: gone, twice, or a hundred times.
void CMutator::MoveRecord(std::string& file, const std::vector<std::size_t>& tags)
{
    const std::size_t nFirst = Below(tags.size());
    const std::size_t from = tags[nFirst];
    const std::size_t to = nFirst + 1 < tags.size() ? tags[nFirst + 1] : file.size();
    const std::string record = file.substr(from, to - from);
    const std::size_t kind = Below(3);
    if (kind == 0)
        file.erase(from, to - from);
    else
        for (std::size_t n = kind == 1 ? 1 : 100; n > 0 && file.size() < MostBytes; --n)
            file.insert(AnyOf(tags), record);
}
