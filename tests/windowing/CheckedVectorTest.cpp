#include "framework/windowing/CheckedVector.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include <windows.h>

namespace
{

void ExitWith42(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t)
{
    ::TerminateProcess(::GetCurrentProcess(), 42);
}

// Runs one of the disabled tests below in a process of its own and gives its exit code.
DWORD ExitCodeOf(const std::wstring& test)
{
    WCHAR program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring command = L"\"" + std::wstring(program) +
                           L"\" --gtest_also_run_disabled_tests --gtest_filter=" +
                           L"CheckedVectorChild.DISABLED_" + test;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                          nullptr, &start, &process))
        return 0;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hProcess);
    ::CloseHandle(process.hThread);
    return code;
}

} // namespace

TEST(CheckedVector, AccessInsideIsThatOfAVector)
{
    CCheckedVector<int> numbers{1, 2, 3};
    numbers[1] = 5;
    numbers.push_back(7);
    const CCheckedVector<int>& read = numbers;
    EXPECT_EQ(read[1], 5);
    EXPECT_EQ(read.at(3), 7);
    EXPECT_EQ(read.front(), 1);
    EXPECT_EQ(read.back(), 7);
    numbers.pop_back();
    EXPECT_EQ(numbers.size(), 3u);
}

TEST(CheckedVector, IndexOutsideEndsTheProcessAtOnce)
{
    EXPECT_EQ(ExitCodeOf(L"Index"), 0xC0000417u);
    EXPECT_EQ(ExitCodeOf(L"NegativeIndex"), 0xC0000417u);
    EXPECT_EQ(ExitCodeOf(L"FrontOfEmpty"), 0xC0000417u);
    EXPECT_EQ(ExitCodeOf(L"BackOfEmpty"), 0xC0000417u);
    EXPECT_EQ(ExitCodeOf(L"PopOfEmpty"), 0xC0000417u);
}

TEST(CheckedVector, InstalledHandlerIsCalledFirst)
{
    EXPECT_EQ(ExitCodeOf(L"Handler"), 42u);
}

TEST(CheckedVector, HandlerThatReturnsDoesNotSaveTheProcess)
{
    EXPECT_EQ(ExitCodeOf(L"QuietHandler"), 0xC0000417u);
}

// The bodies of the child processes.

TEST(CheckedVectorChild, DISABLED_Index)
{
    CCheckedVector<int> numbers{1};
    numbers[1] = 2;
}

TEST(CheckedVectorChild, DISABLED_NegativeIndex)
{
    const CCheckedVector<int> numbers{1};
    const int index = -1;
    std::exit(numbers[static_cast<size_t>(index)]);
}

TEST(CheckedVectorChild, DISABLED_FrontOfEmpty)
{
    CCheckedVector<int> numbers;
    std::exit(numbers.front());
}

TEST(CheckedVectorChild, DISABLED_BackOfEmpty)
{
    CCheckedVector<int> numbers;
    std::exit(numbers.back());
}

TEST(CheckedVectorChild, DISABLED_PopOfEmpty)
{
    CCheckedVector<int> numbers;
    numbers.pop_back();
}

TEST(CheckedVectorChild, DISABLED_Handler)
{
    _set_invalid_parameter_handler(&ExitWith42);
    CCheckedVector<int> numbers;
    std::exit(numbers[0]);
}

TEST(CheckedVectorChild, DISABLED_QuietHandler)
{
    _set_invalid_parameter_handler(
        [](const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {});
    CCheckedVector<int> numbers;
    std::exit(numbers[0]);
}
