#include <gtest/gtest.h>

#ifdef _WIN32
#include <cstdio>

#include <windows.h>

namespace
{
// A fault names its place and is the program's exit code. Without this Wine calls its debugger,
// and may end with a code of 0.
LONG WINAPI EndWithTheFault(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& fault = *pointers->ExceptionRecord;
    std::fprintf(stderr, "fault %08lx at %p\n", fault.ExceptionCode, fault.ExceptionAddress);
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), fault.ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}
} // namespace
#endif

int main(int argc, char** argv)
{
#ifdef _WIN32
    ::SetUnhandledExceptionFilter(&EndWithTheFault);
#endif
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
