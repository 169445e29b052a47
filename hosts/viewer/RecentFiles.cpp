#include "viewer/RecentFiles.h"

#include "viewer/PlainText.h"
#include "viewer/WideText.h"

#include <algorithm>
#include <array>

namespace Viewer::RecentFiles
{
namespace
{

constexpr wchar_t KeyName[] = L"Software\\Vantoplex\\Viewer";
constexpr wchar_t ValueName[] = L"RecentFiles";

std::u16string FullPath(const std::u16string& path)
{
    std::array<wchar_t, 1024> full{};
    const DWORD length =
        GetFullPathNameW(ToWide(path).c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    return length > 0 && length < full.size() ? FromWide(full.data()) : path;
}

} // namespace

std::vector<std::u16string> List()
{
    std::vector<std::u16string> files;
    DWORD bytes = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, KeyName, ValueName, RRF_RT_REG_MULTI_SZ, nullptr, nullptr,
                     &bytes) != ERROR_SUCCESS) {
        return files;
    }
    std::wstring texts(bytes / sizeof(wchar_t), L'\0');
    if (RegGetValueW(HKEY_CURRENT_USER, KeyName, ValueName, RRF_RT_REG_MULTI_SZ, nullptr, texts.data(),
                     &bytes) != ERROR_SUCCESS) {
        return files;
    }
    texts.resize(bytes / sizeof(wchar_t));
    for (std::size_t at = 0; at < texts.size() && texts[at] != L'\0' && files.size() < Most;) {
        const std::size_t end = std::min(texts.find(L'\0', at), texts.size());
        files.push_back(FromWide(std::wstring_view(texts).substr(at, end - at)));
        at = end + 1;
    }
    return files;
}

void Add(const std::u16string& path)
{
    std::vector<std::u16string> files = List();
    const std::u16string added = FullPath(path);
    std::erase_if(files, [&](const std::u16string& file) { return EqualsIgnoringCase(file, added); });
    files.insert(files.begin(), added);
    std::wstring texts;
    for (std::size_t at = 0; at < files.size() && at < Most; ++at) {
        texts += ToWide(files[at]);
        texts += L'\0';
    }
    texts += L'\0';
    RegSetKeyValueW(HKEY_CURRENT_USER, KeyName, ValueName, REG_MULTI_SZ, texts.data(),
                    static_cast<DWORD>(texts.size() * sizeof(wchar_t)));
}

} // namespace Viewer::RecentFiles
