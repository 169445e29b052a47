#include "viewer/MainWindow.h"

#include "viewer/MainMenu.h"
#include "viewer/ViewerError.h"

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <array>

namespace Viewer
{
namespace
{

constexpr wchar_t ClassName[] = L"VantoplexViewer";
constexpr UINT ChartClicked = WM_APP; // posted to ourselves: the chart has seen the click by then
constexpr UINT_PTR TickTimer = 1;

struct FrameStyle {
    DWORD style;
    DWORD extended;
};

FrameStyle StyleOf(FrameKind kind)
{
    if (kind == FrameKind::ForPerson)
        return {WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0};
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
    description.lpszClassName = ClassName;
    RegisterClassExW(&description);
}

// The first of the files that were dropped on the window.
std::u16string FirstOfDrop(HDROP drop)
{
    std::wstring path(DragQueryFileW(drop, 0, nullptr, 0), L'\0');
    DragQueryFileW(drop, 0, path.data(), static_cast<UINT>(path.size() + 1));
    DragFinish(drop);
    return FromWide(path);
}

} // namespace

MainWindow::MainWindow(FrameKind kind, int width, int height, std::u16string_view title) : m_kind(kind)
{
    RegisterFrameClass(Procedure);
    const FrameStyle style = StyleOf(kind);
    RECT frame = {0, 0, width, height};
    const bool picture = kind == FrameKind::ForPicture;
    AdjustWindowRectEx(&frame, style.style, !picture, style.extended);
    const int place = picture ? 0 : CW_USEDEFAULT;
    CreateWindowExW(style.extended, ClassName, ToWide(title).c_str(), style.style, place, place,
                    frame.right - frame.left, frame.bottom - frame.top, nullptr,
                    picture ? nullptr : MakeMainMenu(), GetModuleHandleW(nullptr), this);
    if (!m_window)
        throw Error{ExitCode::NoPicture, u"no window can be made (" + SystemText(GetLastError()) + u")"};
}

MainWindow::~MainWindow()
{
    m_events = nullptr;
    m_view.reset();
    if (m_window)
        DestroyWindow(m_window);
}

void MainWindow::SetTitle(std::u16string_view title)
{
    SetWindowTextW(m_window, ToWide(title).c_str());
}

void MainWindow::SetView(std::unique_ptr<ChartView> view)
{
    m_view = std::move(view);
}

void MainWindow::SetStatus(StatusPart part, std::u16string_view text)
{
    if (m_status) {
        SendMessageW(m_status, SB_SETTEXTW, static_cast<WPARAM>(part),
                     reinterpret_cast<LPARAM>(ToWide(text).c_str()));
    }
}

void MainWindow::ShowTools(bool graph, int operation)
{
    if (m_tools)
        m_tools->Show(graph, operation);
}

void MainWindow::Tick(bool on)
{
    constexpr UINT interval = 1000;
    on ? (void)SetTimer(m_window, TickTimer, interval, nullptr) : (void)KillTimer(m_window, TickTimer);
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

void MainWindow::MakeBars()
{
    m_tools.emplace(m_window);
    m_status = CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0,
                               0, m_window, nullptr, GetModuleHandleW(nullptr), nullptr);
    LayOut();
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (HandleEvent(message, wParam))
        return 0;
    switch (message) {
    case WM_CREATE:
        if (m_kind == FrameKind::ForPerson) {
            MakeBars();
            DragAcceptFiles(m_window, TRUE);
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
    case WM_SETFOCUS:
        if (m_view)
            SetFocus(m_view->Window());
        return 0;
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

bool MainWindow::HandleEvent(UINT message, WPARAM wParam)
{
    if (!m_events)
        return false;
    switch (message) {
    case WM_COMMAND:
        if (HIWORD(wParam) > 1) { // neither a menu, a key nor a button
            return false;
        }
        m_events->OnCommand(LOWORD(wParam));
        return true;
    case WM_INITMENU:
        m_events->OnOpenMenu(reinterpret_cast<HMENU>(wParam));
        return true;
    case WM_PARENTNOTIFY:
        if (LOWORD(wParam) == WM_LBUTTONDOWN)
            PostMessageW(m_window, ChartClicked, 0, 0);
        return false;
    case ChartClicked:
        m_events->OnChartClicked();
        return true;
    case WM_TIMER:
        m_events->OnTick();
        return true;
    case WM_DROPFILES:
        m_events->OnFileDropped(FirstOfDrop(reinterpret_cast<HDROP>(wParam)));
        return true;
    default:
        break;
    }
    const bool ofChart =
        (message >= XG_YAXISCLICK && message <= XG_POINTCHANGED) || message == VPX_MESSAGE_PASSED_ON;
    return ofChart && m_events->OnChartMessage(message, wParam);
}

void MainWindow::LayOut()
{
    if (m_tools)
        m_tools->LayOut();
    if (m_status) {
        SendMessageW(m_status, WM_SIZE, 0, 0); // it finds its place itself
        RECT client{};
        GetClientRect(m_window, &client);
        constexpr int zoomWidth = 80;
        constexpr int operationWidth = 110;
        std::array<int, 3> ends = {std::max<int>(client.right - zoomWidth - operationWidth, 50),
                                   std::max<int>(client.right - operationWidth, 100), -1};
        SendMessageW(m_status, SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
    }
    if (m_view)
        m_view->MoveTo(ChartPlace());
}

RECT MainWindow::ChartPlace() const
{
    RECT place{};
    GetClientRect(m_window, &place);
    if (m_tools)
        place.top = std::min<LONG>(m_tools->Height(), place.bottom);
    if (m_status) {
        RECT status{};
        GetWindowRect(m_status, &status);
        place.bottom = std::max(place.bottom - (status.bottom - status.top), place.top);
    }
    return place;
}

} // namespace Viewer
