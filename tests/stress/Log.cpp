#include "Log.h"

#include <cstdarg>
#include <memory>

namespace
{
std::FILE* g_pFile;
BYTE* g_pServer;
DWORD g_nServerSize;

void PrintPlace(const void* pAddress)
{
    const auto* p = static_cast<const BYTE*>(pAddress);
    if (p >= g_pServer && p < g_pServer + g_nServerSize)
        std::fprintf(g_pFile, " dll+%llx", static_cast<unsigned long long>(p - g_pServer));
}

void PrintStack()
{
    void* frames[48];
    const WORD nFrames = ::RtlCaptureStackBackTrace(0, 48, frames, nullptr);
    for (WORD i = 0; i < nFrames; ++i)
        PrintPlace(frames[i]);
    std::fprintf(g_pFile, "\n");
    std::fflush(g_pFile);
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* pPointers)
{
    const DWORD nCode = pPointers->ExceptionRecord->ExceptionCode;
    switch (nCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
    case EXCEPTION_STACK_OVERFLOW:
        break;
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
    std::fprintf(g_pFile, "fault %lx:", nCode);
    PrintPlace(pPointers->ExceptionRecord->ExceptionAddress);
    PrintStack();
    ::TerminateProcess(::GetCurrentProcess(), nCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

BOOL WINAPI OnTerminate(HANDLE hProcess, UINT nCode)
{
    std::fprintf(g_pFile, "end with %x:", nCode);
    PrintStack();
    return ::TerminateProcess(hProcess, nCode);
}
} // namespace

void Log::Say(const char* pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    std::vfprintf(m_pFile, pszFormat, arguments);
    va_end(arguments);
    std::fputc('\n', m_pFile);
    std::fflush(m_pFile);
}

LastWords::LastWords(std::FILE* pFile, HMODULE hServer) : m_imports(hServer)
{
    g_pFile = pFile;
    g_pServer = reinterpret_cast<BYTE*>(hServer);
    const auto* pHeaders = reinterpret_cast<const IMAGE_NT_HEADERS64*>(
        g_pServer + reinterpret_cast<const IMAGE_DOS_HEADER*>(g_pServer)->e_lfanew);
    g_nServerSize = pHeaders->OptionalHeader.SizeOfImage;
    ::AddVectoredExceptionHandler(1, &OnException);
    m_imports.Replace("TerminateProcess", reinterpret_cast<void*>(&OnTerminate));
}
