#pragma once
// The row of buttons above the chart: the graph's operations.

#include <windows.h>

namespace Viewer
{

class ToolRow
{
public:
    explicit ToolRow(HWND parent);

    // The button of the operation (EOperation) is pressed; without a graph all are disabled.
    void Show(bool graph, int operation);
    void LayOut();
    [[nodiscard]] int Height() const;

private:
    HWND m_window;
};

} // namespace Viewer
