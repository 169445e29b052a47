#pragma once
// The net's output: one block of lines for each step of the script, so that two runs can be
// compared line by line.

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>

class Report
{
public:
    // With bMasked, what the platform's fonts decide is left out.
    Report(std::FILE* pFile, bool bMasked) : m_pFile(pFile), m_bMasked(bMasked) {}

    // Begins a part of the script. bTexts: its windows show texts, so fonts decide its layout.
    void Section(const std::string& name, bool bTexts);
    void Step(const std::string& what);
    // A line that holds on every machine.
    [[gnu::format(printf, 2, 3)]] void Line(const char* pszFormat, ...);
    // A line that depends on fonts where texts are shown.
    [[gnu::format(printf, 2, 3)]] void Exact(const char* pszFormat, ...);
    // The same two for what lasts: "subject: ..." is printed only where it changes.
    [[gnu::format(printf, 3, 4)]] void State(const std::string& subject, const char* pszFormat, ...);
    [[gnu::format(printf, 3, 4)]] void ExactState(const std::string& subject, const char* pszFormat,
                                                  ...);

    // Whether those two print anything: a picture is not read off the screen for nothing.
    [[nodiscard]] bool ShowsExact() const { return !m_bMasked || !m_bTexts; }
    [[nodiscard]] int StepCount() const { return m_nSteps; }

private:
    void Print(const std::string& text);
    void PrintChanged(const std::string& subject, const std::string& text);

    std::FILE* m_pFile;
    bool m_bMasked;
    bool m_bTexts = false;
    std::string m_section;
    std::map<std::string, std::string> m_states;
    int m_nSteps = 0;
};

// A sum over bytes that changes with any of them (FNV-1a).
[[nodiscard]] std::uint64_t Checksum(const void* pBytes, std::size_t nCount,
                                     std::uint64_t nStart = 0xCBF29CE484222325u) noexcept;
