// The graph's operations, mouse, keys, files and pictures.

#include "GraphActor.h"

#include "net/Graph.h"

void GraphActor::Enter(WPARAM nCommand, bool bByMethod)
{
    if (nCommand == Command::cursor) {
        m_graph->DeleteMeasures();
        m_bHadCursor = true;
    }
    if (!bByMethod)
        m_graph->SendMessage(WM_COMMAND, nCommand, 0);
    else if (nCommand == Command::zoom)
        m_graph->Zoom();
    else if (nCommand == Command::pan)
        m_graph->Pan();
    else if (nCommand == Command::cursor)
        m_graph->Cursor();
    else if (nCommand == Command::edit)
        m_graph->Edit();
    else if (nCommand == Command::measure)
        m_graph->Measure();
    else
        m_graph->ResetZoom();
}

void GraphActor::Operate(Random& random, Log& log)
{
    const WPARAM commands[] = {Command::noOp, Command::zoom,    Command::pan,  Command::cursor,
                               Command::edit, Command::measure, Command::noOp, Command::zoom};
    const WPARAM nCommand = random.Of(commands);
    if (nCommand == Command::measure && (m_bHadCursor || Curves() == 0))
        return;
    const bool bByMethod = random.OneIn(2);
    log.Say("operation by command %llu, by method %d", nCommand, bByMethod);
    Enter(nCommand, bByMethod);
}

void GraphActor::SendCommand(Random& random, Log& log)
{
    const WPARAM commands[] = {Command::insertLabel,
                               Command::resetZoom,
                               Command::properties,
                               Command::passOn,
                               Command::print,
                               Command::zoomBack,
                               40006,
                               40008,
                               40016};
    const WPARAM nCommand = random.Of(commands);
    log.Say("command %llu", nCommand);
    if (random.OneIn(2))
        m_graph->SendMessage(WM_COMMAND, nCommand, 0);
    else
        m_graph->PostMessage(WM_COMMAND, nCommand, 0);
}

LPARAM GraphActor::Place(Random& random) const
{
    const int x = random.OneIn(20) ? Extremes::Number(random, 0, 500) : random.Int(-10, 520);
    const int y = random.OneIn(20) ? Extremes::Number(random, 0, 400) : random.Int(-10, 420);
    return MAKELPARAM(x, y);
}

// A press on the frame of an object runs a loop until the release, which waits in the queue.
void GraphActor::Mouse(Random& random, Log& log)
{
    const UINT messages[] = {WM_MOUSEMOVE,     WM_LBUTTONDOWN, WM_LBUTTONUP,
                             WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
                             WM_MOUSEWHEEL,    WM_SETCURSOR,   WM_CAPTURECHANGED};
    const UINT message = random.Of(messages);
    const WPARAM flags[] = {0, MK_LBUTTON, MK_RBUTTON, MK_SHIFT, MK_LBUTTON | MK_RBUTTON};
    const WPARAM nFlags = random.Of(flags);
    const LPARAM at = Place(random);
    log.Say("message %x, %llx, at %d %d", message, nFlags, static_cast<short>(LOWORD(at)),
            static_cast<short>(HIWORD(at)));
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
        ::PostMessageW(m_hWnd, WM_LBUTTONUP, 0, at);
    const bool bSetCursor = message == WM_SETCURSOR;
    ::SendMessageW(m_hWnd, message, bSetCursor ? reinterpret_cast<WPARAM>(m_hWnd) : nFlags,
                   bSetCursor ? MAKELPARAM(HTCLIENT, WM_MOUSEMOVE) : at);
}

void GraphActor::Drag(Random& random, Log& log)
{
    log.Say("a drag");
    const bool bLeft = !random.OneIn(4);
    const WPARAM nFlags = bLeft ? MK_LBUTTON : MK_RBUTTON;
    ::PostMessageW(m_hWnd, bLeft ? WM_LBUTTONUP : WM_RBUTTONUP, 0, Place(random));
    ::SendMessageW(m_hWnd, WM_MOUSEMOVE, 0, Place(random));
    ::SendMessageW(m_hWnd, bLeft ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, nFlags, Place(random));
    for (int n = random.Int(0, 3); n > 0; --n)
        ::SendMessageW(m_hWnd, WM_MOUSEMOVE, nFlags, Place(random));
    if (random.OneIn(2))
        ::UpdateWindow(m_hWnd);
    if (random.OneIn(2))
        ::SendMessageW(m_hWnd, bLeft ? WM_LBUTTONUP : WM_RBUTTONUP, 0, Place(random));
}

void GraphActor::Keys(Random& random, Log& log)
{
    const WPARAM keys[] = {VK_HOME, VK_ADD,  VK_SUBTRACT, VK_LEFT,   VK_RIGHT,
                           VK_UP,   VK_DOWN, VK_DELETE,   VK_ESCAPE, 'A'};
    const WPARAM nKey = random.Of(keys);
    log.Say("key %llu", nKey);
    ::PostMessageW(m_hWnd, WM_KEYDOWN, nKey, 0);
    ::PostMessageW(m_hWnd, WM_KEYUP, nKey, 0);
    ::SendMessageW(m_hWnd, WM_KEYUP, nKey, 0);
}

void GraphActor::Cursor(Random& random, Log& log)
{
    if (Curves() == 0)
        return;
    const int nCurve = random.Int(0, Curves() - 1);
    log.Say("cursor by value on curve %d", nCurve);
    TDataPoint point = {Extremes::Value(random), Extremes::Value(random)};
    m_graph->SetCursorAbsolute(nCurve, &point, random.Int(0, 1));
    m_graph->GetCursorAbsolute(nCurve, &point);
    m_graph->ForceSnap(random.OneIn(2) ? -1 : nCurve);
    if (random.OneIn(2))
        m_graph->SetCursor(Extremes::Number(random, 0, 400), Extremes::Number(random, 0, 300));
}

void GraphActor::File(Random& random, Log& log)
{
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path =
        std::wstring(folder) + L"stress-" + std::to_wstring(::GetCurrentProcessId());
    const auto nFlags = static_cast<unsigned>(random.Int(0, 7));
    const bool bLoad = random.OneIn(3);
    const bool bDamage = random.OneIn(2);
    log.Say("saved with flags %u%s%s", nFlags, bLoad && bDamage ? ", damaged" : "",
            bLoad ? ", loaded" : "");
    m_graph->Save(Text(path), nFlags);
    if (bLoad) {
        if (bDamage)
            Damage(path, random);
        Forget();
        m_graph->Load(Text(path));
        Forget();
        m_graph->ResetAll(); // curves of a file may name axes that it does not bring
    }
    ::DeleteFileW(path.c_str());
    m_graph->Load(Text(L"Z:\\no such folder\\file"));
}

// Some bytes changed, or the end cut off.
void GraphActor::Damage(const std::wstring& path, Random& random)
{
    const HANDLE hFile =
        ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
        return;
    const int nSize = static_cast<int>(::GetFileSize(hFile, nullptr));
    for (int n = random.Int(1, 4); n > 0 && nSize > 0; --n) {
        const std::uint32_t odd[] = {0,      1,          0xFF,       0x7FFF,    0x8001,
                                     0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        const std::uint32_t value = random.Of(odd);
        DWORD nWritten = 0;
        ::SetFilePointer(hFile, random.Int(0, nSize - 1), nullptr, FILE_BEGIN);
        ::WriteFile(hFile, &value, static_cast<DWORD>(random.Int(1, 4)), &nWritten, nullptr);
    }
    if (random.OneIn(4)) {
        ::SetFilePointer(hFile, random.Int(0, nSize), nullptr, FILE_BEGIN);
        ::SetEndOfFile(hFile);
    }
    ::CloseHandle(hFile);
}

void GraphActor::PrintOrSave(Random&, Log& log)
{
    log.Say("a picture file");
    wchar_t folder[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"stress.bmp";
    m_graph->SaveBitmap(Text(path));
    ::DeleteFileW(path.c_str());
}

void GraphActor::Paint(Random&, Log& log)
{
    log.Say("paint");
    m_graph->Invalidate(1);
    ::UpdateWindow(m_hWnd);
}

void GraphActor::Size(Random& random, Log& log)
{
    const int nWidth = random.OneIn(4) ? random.Int(0, 20) : random.Int(50, 600);
    const int nHeight = random.OneIn(4) ? random.Int(0, 20) : random.Int(50, 400);
    log.Say("size %d by %d", nWidth, nHeight);
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, nWidth, nHeight, SWP_NOZORDER | SWP_NOMOVE);
}
