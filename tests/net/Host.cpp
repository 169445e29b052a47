#include "Host.h"

std::string Text::Narrow() const
{
    std::string text;
    for (const wchar_t* psz = m_bstr; psz != nullptr && *psz != 0; ++psz)
        text += *psz >= L' ' && *psz < 127 ? static_cast<char>(*psz) : '?';
    return text;
}

Server::Server(const std::wstring& path) : m_hModule(::LoadLibraryW(path.c_str()))
{
    if (m_hModule == nullptr)
        return;
    const FARPROC pfn = ::GetProcAddress(m_hModule, "DllGetClassObject");
    m_pfnGetClassObject = reinterpret_cast<decltype(m_pfnGetClassObject)>(reinterpret_cast<void*>(pfn));
}

Server::~Server()
{
    if (m_hModule != nullptr)
        ::FreeLibrary(m_hModule);
}

void Server::Make(const CLSID& clsid, const IID& iid, void** ppObject) const
{
    Holder<IClassFactory> factory;
    if (SUCCEEDED(
            m_pfnGetClassObject(clsid, IID_IClassFactory, reinterpret_cast<void**>(factory.Out()))))
        factory->CreateInstance(nullptr, iid, ppObject);
}

HostWindow::HostWindow(int nWidth, int nHeight)
{
    WNDCLASSW wndclass = {};
    wndclass.lpfnWndProc = ::DefWindowProcW;
    wndclass.hInstance = ::GetModuleHandleW(nullptr);
    wndclass.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    wndclass.lpszClassName = L"VantoplexNetHost";
    ::RegisterClassW(&wndclass); // fails harmlessly the second time
    m_hWnd = ::CreateWindowExW(0, wndclass.lpszClassName, L"Host", WS_POPUP | WS_VISIBLE, 0, 0, nWidth,
                               nHeight, nullptr, nullptr, wndclass.hInstance, nullptr);
    Settle();
}

HostWindow::~HostWindow()
{
    ::DestroyWindow(m_hWnd);
}

std::vector<MSG> HostWindow::TakePosted() const
{
    std::vector<MSG> posted;
    MSG message;
    while (::PeekMessageW(&message, m_hWnd, WM_USER, 0xBFFF, PM_REMOVE))
        posted.push_back(message);
    return posted;
}

void HostWindow::Settle()
{
    constexpr DWORD quiet = 60, most = 1000; // milliseconds
    const DWORD nStart = ::GetTickCount();
    MSG message;
    while (::GetTickCount() - nStart < most &&
           ::MsgWaitForMultipleObjects(0, nullptr, FALSE, quiet, QS_ALLINPUT) == WAIT_OBJECT_0) {
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
}
