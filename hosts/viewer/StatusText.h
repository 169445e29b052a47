#pragma once
// The texts of the status bar.

#include <string>
#include <string_view>

namespace Viewer
{

// Short names and hints of the graph's operations, by their numbers in the type library.
[[nodiscard]] std::u16string_view OperationName(int operation) noexcept;
[[nodiscard]] std::u16string_view OperationHint(int operation) noexcept;

// "2012-01-31", with the time of day where there is one.
[[nodiscard]] std::u16string DateText(double oleDate);

// A number with at most seven significant digits.
[[nodiscard]] std::u16string NumberText(double value);

struct CursorReading {
    std::u16string_view curve;
    double x;
    double y;
    bool dateX;
    bool dateY;
};

[[nodiscard]] std::u16string CursorText(const CursorReading& reading);

} // namespace Viewer
