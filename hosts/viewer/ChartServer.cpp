#include "viewer/ChartServer.h"

#include "viewer/ViewerError.h"
#include "viewer/resource.h"

#include <array>

namespace Viewer
{
namespace
{

[[noreturn]] void Refuse(std::u16string_view text, DWORD code)
{
    throw Error{ExitCode::NoServer, std::u16string(text) + u" (" + SystemText(code) + u")"};
}

std::wstring ProgramPath()
{
    std::array<wchar_t, 4096> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), length};
}

} // namespace

ChartServer::ChartServer(ServerSource source) : m_source(source)
{
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(result))
        Refuse(u"COM can't be started", static_cast<DWORD>(result));
    if (source == ServerSource::BesideProgram)
        ActivateManifest();
}

ChartServer::~ChartServer()
{
    if (m_cookie != 0)
        DeactivateActCtx(0, m_cookie);
    if (m_context != INVALID_HANDLE_VALUE)
        ReleaseActCtx(m_context);
    CoUninitialize();
}

// The manifest isn't the program's own one, which would be in force from the start: with
// --registered the classes have to come from the registry.
void ChartServer::ActivateManifest()
{
    const std::wstring program = ProgramPath();
    const std::wstring folder = program.substr(0, program.find_last_of(L'\\'));
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    request.lpSource = program.c_str();
    request.lpAssemblyDirectory = folder.c_str();
    request.lpResourceName = MAKEINTRESOURCEW(IDR_SERVER_MANIFEST);
    m_context = CreateActCtxW(&request);
    if (m_context == INVALID_HANDLE_VALUE || !ActivateActCtx(m_context, &m_cookie)) {
        const DWORD code = GetLastError();
        if (m_context != INVALID_HANDLE_VALUE)
            ReleaseActCtx(m_context);
        CoUninitialize();
        Refuse(u"Vantoplex.dll beside this program can't be used", code);
    }
}

void ChartServer::MakeObject(REFCLSID wanted, REFIID interfaceId, void** receiver) const
{
    const HRESULT result =
        CoCreateInstance(wanted, nullptr, CLSCTX_INPROC_SERVER, interfaceId, receiver);
    if (FAILED(result)) {
        Refuse(
            m_source == ServerSource::Registered
                ? u"no Vantoplex.dll is registered; register it with regsvr32, or leave --registered out"
                : u"Vantoplex.dll can't be loaded from the folder of this program",
            static_cast<DWORD>(result));
    }
}

} // namespace Viewer
