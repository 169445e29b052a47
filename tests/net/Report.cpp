#include "Report.h"

#include <cstdarg>
#include <utility>

namespace
{
std::string Format(const char* pszFormat, va_list arguments)
{
    char text[512];
    std::vsnprintf(text, sizeof text, pszFormat, arguments);
    return text;
}
} // namespace

void Report::Section(const std::string& name, bool bTexts)
{
    m_section = name;
    m_bTexts = bTexts;
    m_states.clear();
}

void Report::Step(const std::string& what)
{
    std::fprintf(m_pFile, "step %d, %s: %s\n", ++m_nSteps, m_section.c_str(), what.c_str());
    std::fflush(m_pFile);
}

void Report::Print(const std::string& text)
{
    std::fprintf(m_pFile, "  %s\n", text.c_str());
}

void Report::PrintChanged(const std::string& subject, const std::string& text)
{
    if (std::exchange(m_states[subject], text) != text)
        Print(subject + ": " + text);
}

void Report::Line(const char* pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    Print(Format(pszFormat, arguments));
    va_end(arguments);
}

void Report::Exact(const char* pszFormat, ...)
{
    if (!ShowsExact())
        return;
    va_list arguments;
    va_start(arguments, pszFormat);
    Print(Format(pszFormat, arguments));
    va_end(arguments);
}

void Report::State(const std::string& subject, const char* pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    PrintChanged(subject, Format(pszFormat, arguments));
    va_end(arguments);
}

void Report::ExactState(const std::string& subject, const char* pszFormat, ...)
{
    if (!ShowsExact())
        return;
    va_list arguments;
    va_start(arguments, pszFormat);
    PrintChanged(subject, Format(pszFormat, arguments));
    va_end(arguments);
}

std::uint64_t Checksum(const void* pBytes, std::size_t nCount, std::uint64_t nStart) noexcept
{
    std::uint64_t sum = nStart;
    const auto* p = static_cast<const unsigned char*>(pBytes);
    for (std::size_t i = 0; i < nCount; ++i)
        sum = (sum ^ p[i]) * 0x100000001B3u;
    return sum;
}
