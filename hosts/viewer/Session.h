#pragma once
// A document in a main window: makes its chart and answers what a person does.

#include "viewer/Document.h"
#include "viewer/FollowedFile.h"
#include "viewer/GraphControl.h"
#include "viewer/MainMenu.h"
#include "viewer/MainWindow.h"

#include <optional>
#include <string>
#include <utility>

namespace Viewer
{

class BusinessView;
class PieView;

class Session : private FrameEvents
{
public:
    // `scripted`: nobody sits there who could answer menus and message boxes.
    Session(const ChartServer& server, MainWindow& window, Document document, bool scripted);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() override;

    // Makes the chart of the document's options. Throws Error; the chart before stays then. The result
    // says what was read.
    std::u16string ShowChart();

    // Once the window is seen: stops the animation at the tick of the options.
    void StopAtTick();

    // A menu command. Throws Error.
    void Run(unsigned command);

    [[nodiscard]] GraphControl* Graph() noexcept { return m_control ? &*m_control : nullptr; }
    [[nodiscard]] MainWindow& Frame() noexcept { return m_window; }
    [[nodiscard]] HWND ChartWindow() const noexcept;
    [[nodiscard]] std::u16string State() const; // "graph: zoom, depth 2, 3 curves"

    // Why the last command of a script could not be done; empty if it was. Asking forgets it.
    [[nodiscard]] std::u16string TakeFailure() { return std::exchange(m_failure, {}); }

    [[nodiscard]] bool SaveGraph(const std::u16string& path, unsigned sections) const;
    // False if the file can't be read; the document's graph is there again either way, with the
    // file's settings if they could be read.
    bool LoadGraph(const std::u16string& path);

private:
    void OnCommand(unsigned command) override;
    bool OnChartMessage(UINT message, WPARAM wParam) override;
    void OnOpenMenu(HMENU menu) override;
    void OnChartClicked() override;
    void OnFileDropped(const std::u16string& path) override;
    void OnTick() override;

    std::u16string MakeGraph();
    std::u16string MakeCategories();
    void StopPainting();
    void ResumePainting();

    bool RunFile(unsigned command);
    bool RunPicture(unsigned command);
    bool RunGraph(unsigned command);
    bool RunChart(unsigned command);
    void Analyse(Analysis analysis, int parameter);
    void Switch(ChartKind kind);
    void Animate(std::u16string_view word);
    void Tilt(int degrees);
    void ShowPopup();
    bool AnswerGraph(UINT message, WPARAM wParam);
    void Tell(std::u16string_view text);
    void Fail(std::u16string_view text);
    void Open(const std::u16string& path);
    void Show(Document document);
    void ToggleFollowing();

    [[nodiscard]] MenuState StateOfMenu() const;
    void ShowState();

    const ChartServer& m_server;
    MainWindow& m_window;
    Document m_document;
    bool m_scripted;
    int m_span = 3;
    bool m_isReset = false; // the view, whatever steps of zooming the graph could go back
    std::u16string m_failure;
    std::optional<FollowedFile> m_followed;
    // The window's chart, by its kind.
    std::optional<GraphControl> m_control;
    BusinessView* m_business = nullptr;
    PieView* m_pie = nullptr;
};

} // namespace Viewer
