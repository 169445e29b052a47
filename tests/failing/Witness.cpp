#include "Witness.h"

#include "net/Imports.h"

#include <memory>

namespace
{
std::FILE* g_pFile = stdout;
BYTE* g_pServer = nullptr;
DWORD g_nServerSize = 0;

[[noreturn]] void End(const char* pszHow, UINT nCode)
{
    std::fprintf(g_pFile, "%s %x:", pszHow, nCode);
    Witness::PrintStack(g_pFile, Witness::Stack());
    std::fflush(g_pFile);
    ::TerminateProcess(::GetCurrentProcess(), 3);
    for (;;)
        ::Sleep(INFINITE);
}

LONG CALLBACK OnException(EXCEPTION_POINTERS* pPointers)
{
    const EXCEPTION_RECORD& record = *pPointers->ExceptionRecord;
    switch (record.ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_STACK_OVERFLOW:
        std::fprintf(g_pFile, "at");
        Witness::PrintStack(g_pFile, {record.ExceptionAddress});
        End("fault", record.ExceptionCode);
    default:
        return EXCEPTION_CONTINUE_SEARCH;
    }
}

BOOL WINAPI OnTerminate(HANDLE, UINT nCode)
{
    End("ended with", nCode);
}

void OnAbort()
{
    End("aborted", 0);
}

void OnAssertion(const char*, const char*, unsigned nLine)
{
    End("assertion", nLine);
}
} // namespace

void Witness::Watch(std::FILE* pFile)
{
    g_pFile = pFile;
    ::AddVectoredExceptionHandler(1, &OnException);
}

void Witness::Follow(HMODULE hServer)
{
    g_pServer = reinterpret_cast<BYTE*>(hServer);
    const auto* pHeaders = reinterpret_cast<const IMAGE_NT_HEADERS64*>(
        g_pServer + reinterpret_cast<const IMAGE_DOS_HEADER*>(g_pServer)->e_lfanew);
    g_nServerSize = pHeaders->OptionalHeader.SizeOfImage;
    Imports imports(hServer);
    imports.Replace("TerminateProcess", reinterpret_cast<void*>(&OnTerminate));
    imports.Replace("abort", reinterpret_cast<void*>(&OnAbort));
    imports.Replace("_assert", reinterpret_cast<void*>(&OnAssertion));
    imports.Keep();
}

std::vector<void*> Witness::Stack()
{
    // By hand: RtlCaptureStackBackTrace of Wine follows frame pointers that nobody keeps.
    constexpr std::size_t most = 40;
    std::vector<void*> frames;
    CONTEXT context;
    ::RtlCaptureContext(&context);
    while (context.Rip != 0 && frames.size() < most) {
        frames.push_back(reinterpret_cast<void*>(context.Rip));
        DWORD64 base = 0, frame = 0;
        PVOID data = nullptr;
        if (auto* const pFunction = ::RtlLookupFunctionEntry(context.Rip, &base, nullptr)) {
            ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, pFunction, &context, &data, &frame,
                               nullptr);
        } else {
            context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
            context.Rsp += 8;
        }
    }
    return frames;
}

void Witness::PrintStack(std::FILE* pFile, const std::vector<void*>& frames)
{
    for (const void* pFrame : frames) {
        const auto* p = static_cast<const BYTE*>(pFrame);
        if (p >= g_pServer && p < g_pServer + g_nServerSize)
            std::fprintf(pFile, " dll+%llx", static_cast<unsigned long long>(p - g_pServer));
    }
    std::fprintf(pFile, "\n");
}
