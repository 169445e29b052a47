#pragma once
// The WM_COMMAND ids that a graph's window answers, and which of them chooses an operation.

#include <vantoplex.h>

#include <array>
#include <cstddef>

namespace Viewer
{

// The command that chooses an operation (EOperation); 0 if none does.
[[nodiscard]] constexpr unsigned CommandOf(int operation) noexcept
{
    constexpr std::array<unsigned, 9> commands = {
        VPX_COMMAND_SELECT, VPX_COMMAND_ZOOM,   0, VPX_COMMAND_PAN, VPX_COMMAND_CURSOR, 0, 0,
        VPX_COMMAND_EDIT,   VPX_COMMAND_MEASURE};
    return operation >= 0 && operation < static_cast<int>(commands.size())
               ? commands[static_cast<std::size_t>(operation)]
               : 0;
}

} // namespace Viewer
