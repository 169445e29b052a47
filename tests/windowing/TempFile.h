#pragma once
// A file of its own in the folder for temporary files, deleted at the end.

#include <string>

#include "framework/windowing/Strings.h"

class CTempFile
{
public:
    explicit CTempFile(std::string_view content = {})
    {
        WCHAR folder[MAX_PATH];
        WCHAR path[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"vpt", 0, path);
        m_path = path;
        Write(content);
    }
    CTempFile(const CTempFile&) = delete;
    CTempFile& operator=(const CTempFile&) = delete;
    ~CTempFile() { ::DeleteFileW(m_path); }

    [[nodiscard]] const CString& Path() const { return m_path; }

    void Write(std::string_view content) const
    {
        const HANDLE file = ::CreateFileW(m_path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
        ::CloseHandle(file);
    }

    [[nodiscard]] std::string Read() const
    {
        const HANDLE file = ::CreateFileW(m_path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        std::string content(::GetFileSize(file, nullptr), '\0');
        DWORD read = 0;
        ::ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &read, nullptr);
        ::CloseHandle(file);
        return content;
    }

private:
    CString m_path;
};
