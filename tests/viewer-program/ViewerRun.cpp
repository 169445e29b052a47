#include "viewer-program/ViewerRun.h"

#include <objidl.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

namespace Gdiplus
{ // its headers call these without their namespace
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace ViewerRun
{
namespace
{

constexpr DWORD LongestRun = 60'000;

std::wstring UniquePath(std::wstring_view name)
{
    static int number = 0;
    std::array<wchar_t, MAX_PATH + 1> folder{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    return folder.data() + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number) +
           L"-" + std::wstring(name);
}

} // namespace

TemporaryFile::TemporaryFile(std::wstring_view name, std::string_view contents)
    : m_path(UniquePath(name))
{
    const HANDLE file =
        CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, contents.data(), static_cast<DWORD>(contents.size()), &written, nullptr);
    CloseHandle(file);
}

TemporaryFile::~TemporaryFile()
{
    DeleteFileW(m_path.c_str());
}

std::string TemporaryFile::PathInScript() const
{
    std::array<char, 3 * MAX_PATH> text{};
    WideCharToMultiByte(CP_UTF8, 0, m_path.c_str(), -1, text.data(), static_cast<int>(text.size()),
                        nullptr, nullptr);
    return text.data();
}

std::string TemporaryFile::Read() const
{
    const HANDLE file = CreateFileW(m_path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    bytes.resize(read);
    return bytes;
}

Process::Process(std::wstring_view arguments) : m_output(L"output.txt")
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const HANDLE output =
        CreateFileW(m_output.Path().c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    &inherited, OPEN_EXISTING, 0, nullptr);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = output;
    std::wstring command = Beside(L"vantoplex-viewer.exe") + L" " + std::wstring(arguments);
    CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                   &m_process);
    CloseHandle(output);
}

Process::~Process()
{
    if (WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT) {
        TerminateProcess(m_process.hProcess, 1);
        WaitForSingleObject(m_process.hProcess, LongestRun);
    }
    CloseHandle(m_process.hThread);
    CloseHandle(m_process.hProcess);
}

DWORD Process::ExitCode()
{
    DWORD code = 0xFFFFFFFF;
    if (WaitForSingleObject(m_process.hProcess, LongestRun) == WAIT_OBJECT_0)
        GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

Result RunViewer(std::wstring_view arguments)
{
    Process process(arguments);
    const DWORD code = process.ExitCode();
    return {code, process.Output()};
}

std::wstring Beside(std::wstring_view program)
{
    std::array<wchar_t, 1024> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::wstring own = path.data();
    return L"\"" + own.substr(0, own.find_last_of(L'\\') + 1) + std::wstring(program) + L"\"";
}

Pixels::Pixels(const std::wstring& path)
{
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    {
        Gdiplus::Bitmap picture(path.c_str());
        m_width = static_cast<int>(picture.GetWidth());
        m_height = static_cast<int>(picture.GetHeight());
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x) {
                Gdiplus::Color color;
                picture.GetPixel(x, y, &color);
                m_pixels.push_back(color.ToCOLORREF());
            }
        }
    }
    Gdiplus::GdiplusShutdown(token);
}

COLORREF Pixels::At(int x, int y) const
{
    return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                    static_cast<std::size_t>(x)];
}

Pixels::Columns Pixels::ColumnsWith(COLORREF color) const
{
    Columns columns;
    for (int x = 0; x < m_width; ++x) {
        bool found = false;
        for (int y = 0; y < m_height && !found; ++y)
            found = At(x, y) == color;
        if (found) {
            columns.first = columns.count == 0 ? x : columns.first;
            columns.last = x;
            ++columns.count;
        }
    }
    return columns;
}

} // namespace ViewerRun
