#pragma once
// A parent that notes what its colour button says, and a hand that uses the popup.

#include <functional>
#include <vector>

#include "dialogs/ColorButton.h"
#include "dialogs/ColourPopup.h"
#include "windowing/TestWindows.h"

struct TNote {
    UINT message;
    COLORREF colour;
    LPARAM id;
    friend bool operator==(const TNote&, const TNote&) = default;
};

inline void PrintTo(const TNote& note, std::ostream* out)
{
    *out << note.message << " " << std::hex << note.colour << std::dec << " " << note.id;
}

class CBoard : public CWnd
{
public:
    std::vector<TNote> m_notes;
    int m_nCommands = 0;
    std::function<void(UINT)> m_onNote;

    // The messages since the last question.
    [[nodiscard]] std::vector<UINT> Take()
    {
        std::vector<UINT> messages;
        for (const TNote& note : std::exchange(m_notes, {}))
            messages.push_back(note.message);
        return messages;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message >= CBM_COLORCHANGE && message <= CBM_CANCEL) {
            m_notes.push_back({message, static_cast<COLORREF>(wParam), lParam});
            if (const auto handler = m_onNote)
                handler(message);
            return 0;
        }
        m_nCommands += message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED &&
                       !CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

// A top-level window of a host with a board and, at (20, 20), a colour button of id 77.
class CColourHost
{
public:
    CColourHost()
    {
        ::SetCursorPos(1590, 1190); // a pointer over the popup makes its cell hot
        m_board.Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 300, 200), m_host, 1);
        m_button.Create(L"", WS_VISIBLE | WS_TABSTOP, CRect(20, 20, 120, 45), &m_board, 77);
        ::SetActiveWindow(m_host.Handle());
        ::SetFocus(m_button);
        HostWindow::Pump();
    }
    CColourHost(const CColourHost&) = delete;
    CColourHost& operator=(const CColourHost&) = delete;
    ~CColourHost()
    {
        ::ReleaseCapture();
        HostWindow::Pump();
    }

    // The popup after a click; null if none opened.
    CColourPopup* Click()
    {
        ::SendMessageW(m_button, BM_CLICK, 0, 0);
        return Popup();
    }
    // The same from a button of that colour, with what the opening said forgotten.
    CColourPopup* OpenOn(COLORREF colour)
    {
        m_button.SetColor(colour);
        CColourPopup* const popup = Click();
        HostWindow::Pump();
        m_board.m_notes.clear();
        return popup;
    }
    [[nodiscard]] CColourPopup* Popup() const
    {
        CColourPopup* found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                if (auto* popup = dynamic_cast<CColourPopup*>(CWnd::FromHandlePermanent(window)))
                    *reinterpret_cast<CColourPopup**>(result) = popup;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    // A key to the window that has the focus.
    static void Press(UINT key)
    {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
        HostWindow::Pump();
    }
    static CPoint MiddleOf(const CColourPopup& popup, int cell)
    {
        if (cell == PopupLayout::AutoBox)
            return popup.m_rcAuto.CenterPoint();
        if (cell == PopupLayout::MoreBox)
            return popup.m_rcMore.CenterPoint();
        const PopupLayout::TGrid grid{popup.m_nCells,
                                      popup.m_nColumns,
                                      popup.m_nRows,
                                      popup.m_nCellSize,
                                      popup.m_nEdge,
                                      !popup.m_strAutoCaption.IsEmpty(),
                                      !popup.m_strMoreCaption.IsEmpty(),
                                      popup.m_rcAuto,
                                      popup.m_rcMore};
        return CRect(PopupLayout::CellRect(grid, cell)).CenterPoint();
    }
    static void MoveTo(const CColourPopup& popup, CPoint point)
    {
        popup.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
    }
    // Lets the mouse button go with the pointer at a point of the popup's client area.
    static void ReleaseAt(const CColourPopup& popup, CPoint point)
    {
        const LPARAM client = MAKELPARAM(point.x, point.y);
        ::ClientToScreen(popup, &point);
        ::SetCursorPos(point.x, point.y);
        popup.PostMessage(WM_LBUTTONUP, 0, client);
        HostWindow::Pump();
    }

    CHostWindow m_host;
    CBoard m_board;
    CColorButton m_button;
};
