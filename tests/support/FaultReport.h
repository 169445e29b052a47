#pragma once
// A fault prints its code, its place and its callers as MODULE+OFFSET, and the test that ran; its code
// is the program's exit code. Without this Wine calls its debugger, and may end with a code of 0.
// tests/support/suite.py turns the places into functions and lines.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace FaultReport
{
inline constexpr int MostCallers = 24;

inline void PrintPlace(DWORD64 address)
{
    HMODULE module = nullptr;
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    char path[MAX_PATH] = "";
    if (::GetModuleHandleExA(flags, reinterpret_cast<LPCSTR>(address), &module))
        ::GetModuleFileNameA(module, path, MAX_PATH);
    const char* name = path;
    for (const char* letter = path; *letter != 0; ++letter)
        name = *letter == '\\' ? letter + 1 : name;
    std::fprintf(stderr, " %s+%llx", name, address - reinterpret_cast<DWORD64>(module));
}

inline void PrintCallers(CONTEXT context)
{
    for (int number = 0; number < MostCallers && context.Rip != 0; ++number) {
        PrintPlace(context.Rip);
        DWORD64 base = 0;
        if (RUNTIME_FUNCTION* function = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr)) {
            void* data = nullptr;
            DWORD64 frame = 0;
            ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &data, &frame,
                               nullptr);
        } else if (number == 0) { // a call through a bad pointer, or a function without a frame
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += sizeof(DWORD64);
        } else {
            break;
        }
    }
}

inline LONG WINAPI EndWithTheFault(EXCEPTION_POINTERS* pointers)
{
    const DWORD code = pointers->ExceptionRecord->ExceptionCode;
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::fprintf(stderr, "fault %08lx in %s.%s at", code, test ? test->test_suite_name() : "",
                 test ? test->name() : "");
    std::fflush(stderr);
    PrintCallers(*pointers->ContextRecord);
    std::fprintf(stderr, "\n");
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), code);
    return EXCEPTION_EXECUTE_HANDLER;
}
} // namespace FaultReport
