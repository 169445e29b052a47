#pragma once
// The frame around the chart: for a person with caption, menu, buttons and status bar, for a picture
// bare.

#include "viewer/ChartView.h"
#include "viewer/ToolRow.h"

#include <memory>
#include <optional>
#include <string>

namespace Viewer
{

enum class FrameKind { ForPerson, ForPicture };

// What happens in the frame and is none of its own business.
class FrameEvents
{
public:
    virtual ~FrameEvents() = default;
    virtual void OnCommand(unsigned command) = 0;
    // A message from the chart; true if it was one that is known.
    virtual bool OnChartMessage(UINT message, WPARAM wParam) = 0;
    virtual void OnOpenMenu(HMENU menu) = 0;
    virtual void OnChartClicked() = 0;
    virtual void OnFileDropped(const std::u16string& path) = 0;
    virtual void OnTick() = 0;
};

class MainWindow
{
public:
    // Hidden at first. The size is that of the client area. Throws Error.
    MainWindow(FrameKind kind, int width, int height, std::u16string_view title);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    // Null again before they go.
    void SetEvents(FrameEvents* events) noexcept { m_events = events; }
    void SetTitle(std::u16string_view title);

    // Takes the chart's place away from whatever is there.
    void SetView(std::unique_ptr<ChartView> view);
    [[nodiscard]] ChartView* View() const noexcept { return m_view.get(); }
    [[nodiscard]] RECT ChartPlace() const;

    enum class StatusPart { Text, Zoom, Operation };
    void SetStatus(StatusPart part, std::u16string_view text);
    void ShowTools(bool graph, int operation);
    // Starts or stops the ticks of OnTick, one a second.
    void Tick(bool on);

    [[nodiscard]] HWND Window() const noexcept { return m_window; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool HandleEvent(UINT message, WPARAM wParam);
    void MakeBars();
    void LayOut();

    FrameKind m_kind;
    FrameEvents* m_events = nullptr;
    HWND m_window = nullptr;
    HWND m_status = nullptr;
    std::optional<ToolRow> m_tools;
    std::unique_ptr<ChartView> m_view;
};

} // namespace Viewer
