#pragma once
// The frame around the graph: for a person with caption and status bar, for a picture bare.

#include "viewer/GraphView.h"

#include <windows.h>

#include <optional>
#include <string>

namespace Viewer
{

enum class FrameKind { ForPerson, ForPicture };

class MainWindow
{
public:
    // Hidden at first. The size is that of the client area. Throws Error.
    MainWindow(FrameKind kind, int width, int height, std::u16string_view title);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    void ShowPlan(const ChartServer& server, const PlotPlan& plan, const Options& options);
    void SetStatus(std::u16string_view text);

    [[nodiscard]] HWND Window() const noexcept { return m_window; }
    [[nodiscard]] HWND GraphWindow() const noexcept { return m_view ? m_view->Window() : nullptr; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void LayOut();
    [[nodiscard]] RECT GraphPlace() const;

    FrameKind m_kind;
    HWND m_window = nullptr;
    HWND m_status = nullptr;
    std::optional<GraphView> m_view;
};

} // namespace Viewer
