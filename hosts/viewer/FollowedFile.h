#pragma once
// A file that something else goes on writing.

#include <windows.h>

#include <string>

namespace Viewer
{

class FollowedFile
{
public:
    explicit FollowedFile(const std::u16string& path);

    // Whether size or time of the last writing differ from those at the last call.
    [[nodiscard]] bool HasChanged();

private:
    struct State {
        ULONGLONG size = 0;
        ULONGLONG written = 0;
        bool operator==(const State&) const = default;
    };
    [[nodiscard]] State Look() const;

    std::wstring m_path;
    State m_state;
};

} // namespace Viewer
