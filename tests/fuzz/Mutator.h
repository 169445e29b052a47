#pragma once
// Changes files at random, the same way for the same seed on every machine.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

class CMutator
{
public:
    CMutator(std::vector<std::string> seeds, std::uint64_t nSeed)
        : m_seeds(std::move(seeds)), m_nSeed(nSeed)
    {
    }

    // File number nFile of this seed; any can be made without those before it.
    [[nodiscard]] std::string File(std::uint64_t nFile);

private:
    std::uint64_t Next() noexcept;
    std::size_t Below(std::size_t nCount) noexcept; // 0 for none
    void Mutate(std::string& file);
    void Overwrite(std::string& file, std::uint64_t nValue, std::size_t nWidth);
    void OverwriteNumber(std::string& file);
    void MovePart(std::string& file);
    void Splice(std::string& file);

    // These keep to the file's parts (Structure.h).
    void ChangePart(std::string& file);
    void ChangeText(std::string& file, const std::vector<std::size_t>& texts);
    void ChangeTag(std::string& file, const std::vector<std::size_t>& tags);
    void ChangeCount(std::string& file, const std::vector<std::size_t>& counts);
    void MoveRecord(std::string& file, const std::vector<std::size_t>& tags);
    [[nodiscard]] std::size_t AnyOf(const std::vector<std::size_t>& places) noexcept;

    std::vector<std::string> m_seeds;
    std::uint64_t m_nSeed;
    std::uint64_t m_nState = 0;
};
