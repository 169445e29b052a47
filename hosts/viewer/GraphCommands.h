#pragma once
// The WM_COMMAND ids that a graph's window answers.

#include <array>
#include <cstddef>

namespace Viewer::GraphCommand
{

constexpr unsigned Select = 40000;
constexpr unsigned InsertLabel = 40001;
constexpr unsigned Zoom = 40002;
constexpr unsigned ResetZoom = 40003;
constexpr unsigned Pan = 40004;
constexpr unsigned Properties = 40005;
constexpr unsigned Print = 40007;
constexpr unsigned LinearTrend = 40009; // of the curve that the graph itself has selected
constexpr unsigned CubicTrend = 40010;
constexpr unsigned Cursor = 40011;
constexpr unsigned ZoomBack = 40013;
constexpr unsigned Edit = 40014;
constexpr unsigned Measure = 40015;

// The command that chooses an operation (EOperation); 0 if none does.
[[nodiscard]] constexpr unsigned Of(int operation) noexcept
{
    constexpr std::array<unsigned, 9> commands = {Select, Zoom, 0, Pan, Cursor, 0, 0, Edit, Measure};
    return operation >= 0 && operation < static_cast<int>(commands.size())
               ? commands[static_cast<std::size_t>(operation)]
               : 0;
}

} // namespace Viewer::GraphCommand
