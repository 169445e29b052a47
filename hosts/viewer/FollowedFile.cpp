#include "viewer/FollowedFile.h"

#include "viewer/WideText.h"

#include <memory>
#include <utility>

namespace Viewer
{

FollowedFile::FollowedFile(const std::u16string& path) : m_path(ToWide(path)), m_state(Look()) {}

bool FollowedFile::HasChanged()
{
    const State state = Look();
    return state != std::exchange(m_state, state);
}

// From the file itself: its folder's entry may be of the time when the writer opened it.
FollowedFile::State FollowedFile::Look() const
{
    const HANDLE opened =
        CreateFileW(m_path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return m_state; // it may be between two of its states
    const std::unique_ptr<void, decltype(&CloseHandle)> file(opened, CloseHandle);
    BY_HANDLE_FILE_INFORMATION about{};
    if (!GetFileInformationByHandle(file.get(), &about))
        return m_state;
    const auto together = [](DWORD high, DWORD low) { return ULONGLONG{high} << 32 | low; };
    return {together(about.nFileSizeHigh, about.nFileSizeLow),
            together(about.ftLastWriteTime.dwHighDateTime, about.ftLastWriteTime.dwLowDateTime)};
}

} // namespace Viewer
