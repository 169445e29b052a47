#include "dialogs/ColourTable.h"

#include <algorithm>

const std::array<ColourTable::TEntry, ColourTable::Count> ColourTable::Entries = {{
    {u"Black", 0x000000},
    {u"Brown", 0x002AA5},
    {u"Dark Olive Green", 0x404000},
    {u"Dark Green", 0x005500},
    {u"Dark Teal", 0x5E0000},
    {u"Dark blue", 0x8B0000},
    {u"Indigo", 0x82004B},
    {u"Dark grey", 0x282828},
    {u"Dark red", 0x00008B},
    {u"Orange", 0x2068FF},
    {u"Dark yellow", 0x008B8B},
    {u"Green", 0x009300},
    {u"Teal", 0x8E8E38},
    {u"Blue", 0xFF0000},
    {u"Blue-grey", 0xC07B7B},
    {u"Grey - 40", 0x666666},
    {u"Red", 0x0000FF},
    {u"Light orange", 0x5BADFF},
    {u"Lime", 0x32CD32},
    {u"Sea green", 0x71B33C},
    {u"Aqua", 0xD4FF7F},
    {u"Light blue", 0xC09E7D},
    {u"Violet", 0x800080},
    {u"Grey - 50", 0x7F7F7F},
    {u"Pink", 0xCBC0FF},
    {u"Gold", 0x00D7FF},
    {u"Yellow", 0x00FFFF},
    {u"Bright green", 0x00FF00},
    {u"Turquoise", 0xD0E040},
    {u"Skyblue", 0xFFFFC0},
    {u"Plum", 0x480048},
    {u"Light grey", 0xC0C0C0},
    {u"Rose", 0xE1E4FF},
    {u"Tan", 0x8CB4D2},
    {u"Light yellow", 0xE0FFFF},
    {u"Pale green ", 0x98FB98}, // with its blank
    {u"Pale turquoise", 0xEEEEAF},
    {u"Pale blue", 0x8B8368},
    {u"Lavender", 0xFAE6E6},
    {u"White", 0xFFFFFF},
}};

std::optional<int> ColourTable::Find(std::uint32_t colour) noexcept
{
    const auto found = std::find_if(Entries.begin(), Entries.end(),
                                    [colour](const TEntry& entry) { return entry.colour == colour; });
    if (found == Entries.end())
        return std::nullopt;
    return static_cast<int>(found - Entries.begin());
}
