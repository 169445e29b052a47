#include "viewer/Output.h"

#include "viewer/WideText.h"

#include <string>

namespace Viewer
{
namespace
{

HANDLE FindHandle(Stream stream)
{
    const DWORD number = stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE;
    HANDLE handle = GetStdHandle(number);
    if (handle && handle != INVALID_HANDLE_VALUE)
        return handle;
    // A window program that was started from a console has to ask for it.
    if (!AttachConsole(ATTACH_PARENT_PROCESS))
        return nullptr;
    handle = GetStdHandle(number);
    return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

std::string ToUtf8(std::wstring_view text)
{
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr,
                                         0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(), size,
                        nullptr, nullptr);
    return bytes;
}

} // namespace

bool Print(Stream stream, std::u16string_view text)
{
    const HANDLE handle = FindHandle(stream);
    if (!handle)
        return false;
    const std::wstring wide = ToWide(text);
    DWORD mode = 0;
    DWORD written = 0;
    if (GetConsoleMode(handle, &mode)) {
        return WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr) !=
               FALSE;
    }
    const std::string bytes = ToUtf8(wide);
    return WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
}

void Tell(Stream stream, std::u16string_view text)
{
    if (!Print(stream, text)) {
        const UINT icon = stream == Stream::Error ? MB_ICONERROR : MB_ICONINFORMATION;
        MessageBoxW(nullptr, ToWide(text).c_str(), L"Vantoplex Viewer", MB_OK | icon);
    }
}

} // namespace Viewer
