#include "SavedBytes.h"

#include "Report.h"

#include <cstdio>

namespace
{
constexpr unsigned int Everything = PERSIST_PROPERTIES | PERSIST_DATA | PERSIST_OBJECTS;

std::wstring ScratchFile()
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"net-" + std::to_wstring(::GetCurrentProcessId()) + L".graph";
}
} // namespace

SavedBytes::SavedBytes(const Graph& graph)
{
    const std::wstring path = ScratchFile();
    graph->Save(Text(path), Everything);
    if (std::FILE* pFile = ::_wfopen(path.c_str(), L"rb")) {
        unsigned char block[4096];
        while (const std::size_t nRead = std::fread(block, 1, sizeof block, pFile))
            m_bytes.insert(m_bytes.end(), block, block + nRead);
        std::fclose(pFile);
    }
    ::DeleteFileW(path.c_str());
}

std::uint64_t SavedBytes::Sum() const
{
    return Checksum(m_bytes.data(), m_bytes.size());
}
