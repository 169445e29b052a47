#include "viewer/MainWindow.h"

#include "viewer/ViewerError.h"

#include <commctrl.h>

#include <algorithm>

namespace Viewer
{
namespace
{

constexpr wchar_t className[] = L"VantoplexViewer";

struct FrameStyle {
    DWORD style;
    DWORD extended;
};

FrameStyle StyleOf(FrameKind kind)
{
    if (kind == FrameKind::ForPerson) {
        return {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0};
    }
    return {WS_POPUP | WS_CLIPCHILDREN, WS_EX_TOOLWINDOW};
}

void RegisterFrameClass(WNDPROC procedure)
{
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    description.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    description.lpszClassName = className;
    RegisterClassExW(&description);
}

} // namespace

MainWindow::MainWindow(FrameKind kind, int width, int height, std::u16string_view title) : m_kind(kind)
{
    RegisterFrameClass(Procedure);
    const FrameStyle style = StyleOf(kind);
    RECT frame = {0, 0, width, height};
    AdjustWindowRectEx(&frame, style.style, FALSE, style.extended);
    const bool picture = kind == FrameKind::ForPicture;
    const int place = picture ? 0 : CW_USEDEFAULT;
    CreateWindowExW(style.extended, className, ToWide(title).c_str(), style.style, place, place,
                    frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                    GetModuleHandleW(nullptr), this);
    if (!m_window) {
        throw Error{ExitCode::NoPicture, u"no window can be made (" + SystemText(GetLastError()) + u")"};
    }
}

MainWindow::~MainWindow()
{
    m_view.reset();
    if (m_window) {
        DestroyWindow(m_window);
    }
}

void MainWindow::ShowPlan(const ChartServer& server, const PlotPlan& plan, const Options& options)
{
    m_view.emplace(server, m_window, GraphPlace());
    m_view->Show(plan, options);
}

void MainWindow::SetStatus(std::u16string_view text)
{
    if (m_status) {
        SendMessageW(m_status, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
    }
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        auto* self = static_cast<MainWindow*>(creation->lpCreateParams);
        self->m_window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam)
                : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        if (m_kind == FrameKind::ForPerson) {
            m_status =
                CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0,
                                0, 0, m_window, nullptr, GetModuleHandleW(nullptr), nullptr);
        }
        return 0;
    case WM_SIZE:
        LayOut();
        return 0;
    case WM_GETMINMAXINFO:
        // A picture may be larger than the screen.
        if (m_kind == FrameKind::ForPicture) {
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMaxTrackSize = {32000, 32000};
            return 0;
        }
        break;
    case WM_DESTROY:
        m_view.reset();
        PostQuitMessage(0);
        return 0;
    case WM_NCDESTROY: {
        const HWND window = m_window;
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        m_window = nullptr;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    default:
        break;
    }
    return DefWindowProcW(m_window, message, wParam, lParam);
}

void MainWindow::LayOut()
{
    if (m_status) {
        SendMessageW(m_status, WM_SIZE, 0, 0); // it finds its place itself
    }
    if (m_view) {
        m_view->MoveTo(GraphPlace());
    }
}

RECT MainWindow::GraphPlace() const
{
    RECT place{};
    GetClientRect(m_window, &place);
    if (m_status) {
        RECT status{};
        GetWindowRect(m_status, &status);
        place.bottom = std::max(place.bottom - (status.bottom - status.top), place.top);
    }
    return place;
}

} // namespace Viewer
