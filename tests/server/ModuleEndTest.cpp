// The module's end, and that of its threads and of its process, under living windows.

#include "support/PrivateServer.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

constexpr UINT CalledTooLate = 98;

bool IsProcessEnding()
{
    const FARPROC question =
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress");
    return reinterpret_cast<BOOLEAN(WINAPI*)()>(reinterpret_cast<void*>(question))() != FALSE;
}

// A host's procedure that has lost its statics when the process ends.
LRESULT CALLBACK HostProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsProcessEnding())
        ::TerminateProcess(::GetCurrentProcess(), CalledTooLate);
    return ::DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeHost()
{
    WNDCLASSW looks{};
    looks.lpfnWndProc = &HostProcedure;
    looks.hInstance = ::GetModuleHandleW(nullptr);
    looks.lpszClassName = L"VantoplexModuleEndHost";
    ::RegisterClassW(&looks);
    return ::CreateWindowExW(0, looks.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                             nullptr, looks.hInstance, nullptr);
}

wireHWND Wire(HWND window)
{
    return reinterpret_cast<wireHWND>(window);
}

HWND HandleOf(ISGraph* graph)
{
    wireHWND window = nullptr;
    EXPECT_EQ(graph->GetHandle(&window), S_OK);
    return reinterpret_cast<HWND>(window);
}

Holder<ISGraph> MakeGraph(const Server& server, HWND host)
{
    auto graph = server.Make<SGraph, ISGraph>();
    RECT rect{0, 0, 200, 150};
    EXPECT_EQ(graph->Create(nullptr, &rect, Wire(host), 1), S_OK);
    return graph;
}

// Ends the process as a host does that forgets its charts.
void EndWithLivingCharts()
{
    const Server server;
    const HWND host = MakeHost();
    RECT rect{0, 0, 100, 100};
    const auto graph = MakeGraph(server, host);
    const auto chart = server.Make<Chart2d, IChart2d>();
    chart->Create(&rect, Wire(host), 2);
    const auto pie = server.Make<PieChart3d, IPieChart3d>();
    pie->Create(nullptr, &rect, Wire(host), 3);
    ::ExitProcess(HandleOf(graph) != nullptr ? 7 : 1);
}

// Bytes that are in use on the process's heaps.
std::size_t BytesInUse()
{
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps[i], &entry))
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
    }
    return bytes;
}

} // namespace

TEST(ModuleEnd, AtProcessEndWindowsAndGraphsAreLeftAlone)
{
    EXPECT_EXIT(EndWithLivingCharts(), testing::ExitedWithCode(7), "");
}

TEST(ModuleEnd, AThreadThatEndsWithALivingGraphGivesItsLockBack)
{
    const Server server;
    Holder<ISGraph> graph;
    std::thread([&] {
        graph = MakeGraph(server, MakeHost());
        EXPECT_NE(HandleOf(graph), nullptr);
        EXPECT_EQ(server.CanUnloadNow(), S_FALSE);
    }).join();
    EXPECT_EQ(HandleOf(graph), nullptr) << "the graph has lost its window";
    EXPECT_EQ(graph->Invalidate(1), S_OK);
    graph.Release();
    EXPECT_EQ(server.CanUnloadNow(), S_OK);
}

TEST(ModuleEnd, UnloadingFromAnotherThreadLeavesAWindowThatTheModuleDoesNotAnswer)
{
    const HWND host = MakeHost();
    HWND window = nullptr;
    PrivateServer server;
    {
        const auto graph = MakeGraph(*server, host);
        window = HandleOf(graph);
    }
    std::thread([&] { server.Unload(); }).join();
    EXPECT_TRUE(::IsWindow(window)) << "no thread but its own can destroy it";
    EXPECT_EQ(::SendMessageW(window, WM_MOUSEMOVE, 0, 0), 0);
    EXPECT_TRUE(::DestroyWindow(host));
    EXPECT_FALSE(::IsWindow(window));
}

TEST(ModuleEnd, LoadingAndUnloadingKeepsNoMemory)
{
    PrivateServer server;
    const auto cycle = [&] {
        server.Unload();
        server.Load();
    };
    for (int i = 0; i < 3; ++i)
        cycle();
    constexpr int cycles = 20;
    const std::size_t before = BytesInUse();
    for (int i = 0; i < cycles; ++i)
        cycle();
    const std::size_t after = BytesInUse();
    EXPECT_LT(after, before + cycles * std::size_t{1024});
}
