#include "Comparison.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <optional>
#include <utility>
#include <vector>

namespace
{
constexpr int MostPrinted = 12;

std::optional<std::vector<std::string>> ReadLines(const std::wstring& path)
{
    std::FILE* pFile = ::_wfopen(path.c_str(), L"rb");
    if (pFile == nullptr)
        return std::nullopt;
    std::vector<std::string> lines(1);
    for (int byte = std::fgetc(pFile); byte != EOF; byte = std::fgetc(pFile)) {
        if (byte == '\n')
            lines.emplace_back();
        else if (byte != '\r')
            lines.back() += static_cast<char>(byte);
    }
    std::fclose(pFile);
    return lines;
}

const std::string& LineAt(const std::vector<std::string>& lines, std::size_t nLine)
{
    static const std::string end = "(the end)";
    return nLine < lines.size() ? lines[nLine] : end;
}
} // namespace

int Comparison::Print(const std::wstring& before, const std::wstring& after)
{
    const auto old = ReadLines(before), now = ReadLines(after);
    if (!old || !now) {
        std::printf("can't read what is to be compared\n");
        return 2;
    }
    int nDifferences = 0;
    std::string step, printedStep;
    for (std::size_t i = 0; i < std::max(old->size(), now->size()); ++i) {
        if (LineAt(*old, i).starts_with("step "))
            step = LineAt(*old, i);
        if (LineAt(*old, i) == LineAt(*now, i) || ++nDifferences > MostPrinted)
            continue;
        if (step != std::exchange(printedStep, step))
            std::printf("%s\n", step.c_str());
        std::printf("- %s\n+ %s\n", LineAt(*old, i).c_str(), LineAt(*now, i).c_str());
    }
    std::printf("%d lines differ\n", nDifferences);
    return nDifferences == 0 ? 0 : 1;
}
