#include "framework/windowing/CheckedVector.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <map>
#include <string>

#include <windows.h>

namespace
{

constexpr WCHAR ChildVariable[] = L"VANTOPLEX_CHECKED_VECTOR";
constexpr DWORD Survived = 7;

void ExitWith42(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t)
{
    ::TerminateProcess(::GetCurrentProcess(), 42);
}

void Ignore(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {}

// As a host does that was built with a run-time of its own.
void InstallIn(LPCWSTR runTime, LPCSTR setter, _invalid_parameter_handler handler)
{
    const FARPROC found = ::GetProcAddress(::LoadLibraryW(runTime), setter);
    const auto set = reinterpret_cast<_invalid_parameter_handler (*)(_invalid_parameter_handler)>(
        reinterpret_cast<void*>(found));
    set(handler);
}

// What a child process does; each of these should be its end.
const std::map<std::wstring, void (*)()>& Bodies()
{
    using TNumbers = CCheckedVector<int>;
    static const std::map<std::wstring, void (*)()> bodies = {
        {L"index", [] { TNumbers(3)[3] = 1; }},
        {L"negative", [] { TNumbers(3)[static_cast<size_t>(-1)] = 1; }},
        {L"at", [] { TNumbers(3).at(3) = 1; }},
        {L"front", [] { TNumbers().front() = 1; }},
        {L"back", [] { TNumbers().back() = 1; }},
        {L"pop", [] { TNumbers().pop_back(); }},
        {L"handler",
         [] {
             _set_invalid_parameter_handler(&ExitWith42);
             TNumbers()[0] = 1;
         }},
        {L"ignored",
         [] {
             _set_invalid_parameter_handler(&Ignore);
             TNumbers()[0] = 1;
         }},
        {L"inside", [] { TNumbers(3)[2] = 1; }},
        {L"host",
         [] {
             InstallIn(L"ucrtbase.dll", "_set_invalid_parameter_handler", &ExitWith42);
             TNumbers()[0] = 1;
         }},
        {L"host's thread",
         [] {
             InstallIn(L"ucrtbase.dll", "_set_invalid_parameter_handler", &Ignore);
             InstallIn(L"ucrtbase.dll", "_set_thread_local_invalid_parameter_handler", &ExitWith42);
             TNumbers()[0] = 1;
         }},
        {L"older host",
         [] {
             InstallIn(L"msvcr100.dll", "_set_invalid_parameter_handler", &ExitWith42);
             TNumbers()[0] = 1;
         }},
    };
    return bodies;
}

// In a child the body runs before the tests would begin.
const bool g_isParent = [] {
    WCHAR name[32];
    if (!::GetEnvironmentVariableW(ChildVariable, name, 32))
        return true;
    Bodies().at(name)();
    ::TerminateProcess(::GetCurrentProcess(), Survived);
    return false;
}();

// The exit code of a process that runs that body.
DWORD ExitCodeOf(const WCHAR* body)
{
    WCHAR program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    ::SetEnvironmentVariableW(ChildVariable, body);
    const BOOL started = ::CreateProcessW(program, nullptr, nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                                          nullptr, nullptr, &start, &process);
    const DWORD error = ::GetLastError();
    ::SetEnvironmentVariableW(ChildVariable, nullptr);
    EXPECT_TRUE(started) << error;
    if (!started)
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
    EXPECT_EQ(ExitCodeOf(L"inside"), Survived);
}

TEST(CheckedVector, IndexOutsideEndsTheProcessAtOnce)
{
    for (const WCHAR* body : {L"index", L"negative", L"at", L"front", L"back", L"pop"})
        EXPECT_EQ(ExitCodeOf(body), 0xC0000417u) << testing::PrintToString(std::wstring(body));
}

TEST(CheckedVector, InstalledHandlerIsCalledFirst)
{
    EXPECT_EQ(ExitCodeOf(L"handler"), 42u);
}

TEST(CheckedVector, HandlerOfTheHostsOwnRunTimeIsFound)
{
    EXPECT_EQ(ExitCodeOf(L"host"), 42u);
    EXPECT_EQ(ExitCodeOf(L"host's thread"), 42u);
    EXPECT_EQ(ExitCodeOf(L"older host"), 42u);
}

TEST(CheckedVector, HandlerThatReturnsDoesNotSaveTheProcess)
{
    EXPECT_EQ(ExitCodeOf(L"ignored"), 0xC0000417u);
}

TEST(CheckedVector, ErasesOnlyWhereAnElementIs)
{
    CCheckedVector<int> numbers{1, 2, 3};
    for (const int outside : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_FALSE(numbers.IsInside(outside)) << outside;
        EXPECT_FALSE(numbers.EraseAt(outside)) << outside;
    }
    EXPECT_EQ(numbers.size(), 3u);
    EXPECT_TRUE(numbers.IsInside(2));
    EXPECT_TRUE(numbers.EraseAt(1));
    EXPECT_EQ(numbers, (std::vector<int>{1, 3}));
}
