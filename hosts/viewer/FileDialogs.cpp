#include "viewer/FileDialogs.h"

#include "viewer/WideText.h"

#include <vantoplex.h>

#include <commdlg.h>

#include <array>

namespace Viewer
{
namespace
{

struct Answer {
    std::u16string path;
    DWORD filter; // counted from 1
};

using Dialog = BOOL(WINAPI*)(OPENFILENAMEW*);

Answer Ask(Dialog dialog, HWND owner, const wchar_t* filter, const wchar_t* extension, DWORD flags)
{
    std::array<wchar_t, 1024> path{};
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = filter;
    request.lpstrDefExt = extension;
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    request.Flags = flags | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!dialog(&request))
        return {};
    return {FromWide(path.data()), request.nFilterIndex};
}

} // namespace

std::u16string AskForCsv(HWND owner)
{
    return Ask(GetOpenFileNameW, owner, L"CSV files (*.csv)\0*.csv\0All files\0*.*\0", L"csv",
               OFN_FILEMUSTEXIST)
        .path;
}

std::u16string AskForGraph(HWND owner)
{
    return Ask(GetOpenFileNameW, owner, L"Graph files (*.vgr)\0*.vgr\0All files\0*.*\0", L"vgr",
               OFN_FILEMUSTEXIST)
        .path;
}

std::u16string AskForPng(HWND owner)
{
    return Ask(GetSaveFileNameW, owner, L"PNG pictures (*.png)\0*.png\0", L"png", OFN_OVERWRITEPROMPT)
        .path;
}

GraphTarget AskForGraphTarget(HWND owner)
{
    static constexpr std::array<unsigned, 2> sections = {
        PERSIST_PROPERTIES, PERSIST_PROPERTIES | PERSIST_DATA | PERSIST_OBJECTS};
    const Answer answer = Ask(GetSaveFileNameW, owner,
                              L"Graph settings (*.vgr)\0*.vgr\0"
                              L"Settings, curves and objects, for other programs (*.vgr)\0*.vgr\0",
                              L"vgr", OFN_OVERWRITEPROMPT);
    return {answer.path, answer.filter == 2 ? sections[1] : sections[0]};
}

} // namespace Viewer
