#pragma once
// A file for temporary use.

#include "framework/windowing/File.h"

#include <string>

class BenchFile
{
public:
    BenchFile()
    {
        wchar_t folder[MAX_PATH];
        wchar_t path[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"vpb", 0, path);
        m_path = path;
    }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;
    ~BenchFile() { ::DeleteFileW(m_path); }

    void Write(const std::string& bytes) const
    {
        CFile file(m_path, CFile::modeCreate | CFile::modeWrite);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    [[nodiscard]] std::string Read() const
    {
        CFile file(m_path, CFile::modeRead);
        std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    }

    CString m_path;
};
