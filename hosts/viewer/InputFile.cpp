#include "viewer/InputFile.h"

#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"
#include "viewer/WideText.h"

#include <commdlg.h>

#include <array>
#include <memory>

namespace Viewer
{
namespace
{

constexpr LONGLONG LargestFile = 256LL << 20;

struct HandleCloser {
    void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
};

[[noreturn]] void Refuse(const std::u16string& path, std::u16string_view reason)
{
    throw Error{ExitCode::BadData, u"can't read " + Quote(path) + u": " + std::u16string(reason)};
}

} // namespace

std::string ReadWholeFile(const std::u16string& path)
{
    const HANDLE opened =
        CreateFileW(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        Refuse(path, SystemText(GetLastError()));
    const std::unique_ptr<void, HandleCloser> file(opened);
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size))
        Refuse(path, SystemText(GetLastError()));
    if (size.QuadPart > LargestFile)
        Refuse(path, u"it has more than 256 MB");
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
        Refuse(path, SystemText(GetLastError()));
    bytes.resize(read);
    return bytes;
}

std::u16string NameOfFile(const std::u16string& path)
{
    const std::size_t slash = path.find_last_of(u"\\/");
    return slash == path.npos ? path : path.substr(slash + 1);
}

} // namespace Viewer
