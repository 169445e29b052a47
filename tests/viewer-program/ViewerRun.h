#pragma once
// Runs the viewer that lies beside this program, as a script or a person would.

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace ViewerRun
{

// A file in the temporary folder that goes with its object.
class TemporaryFile
{
public:
    explicit TemporaryFile(std::wstring_view name, std::string_view contents = {});
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const std::wstring& Path() const noexcept { return m_path; }
    // In UTF-8, as scripts are written.
    [[nodiscard]] std::string PathInScript() const;
    [[nodiscard]] std::string Read() const;

private:
    std::wstring m_path;
};

// A viewer that runs; ended by force if it still does when its object goes.
class Process
{
public:
    explicit Process(std::wstring_view arguments);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    [[nodiscard]] DWORD Id() const noexcept { return m_process.dwProcessId; }
    // Waits for the end; 0xFFFFFFFF if that doesn't come.
    [[nodiscard]] DWORD ExitCode();
    // Output and errors, once it has ended.
    [[nodiscard]] std::string Output() const { return m_output.Read(); }

private:
    TemporaryFile m_output;
    PROCESS_INFORMATION m_process{};
};

struct Result {
    DWORD exitCode;
    std::string output;
};

[[nodiscard]] Result RunViewer(std::wstring_view arguments);

// `program` in the folder of this test program, in quotes.
[[nodiscard]] std::wstring Beside(std::wstring_view program);

// A picture file, read back.
class Pixels
{
public:
    explicit Pixels(const std::wstring& path);

    [[nodiscard]] int Width() const noexcept { return m_width; }
    [[nodiscard]] int Height() const noexcept { return m_height; }
    [[nodiscard]] COLORREF At(int x, int y) const;
    // Columns of pixels that hold the colour anywhere: the first, the last, and how many.
    struct Columns {
        int first = -1;
        int last = -1;
        int count = 0;
    };
    [[nodiscard]] Columns ColumnsWith(COLORREF color) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<COLORREF> m_pixels;
};

} // namespace ViewerRun
