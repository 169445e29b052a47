#pragma once
// A user at the dialogs and menus of this thread: some are closed at once, in others a few controls are
// used first, which opens further ones. All are closed in the end.

#include "Log.h"

#include "net/Random.h"

#include <windows.h>

#include <vector>

class DialogHand
{
public:
    explicit DialogHand(Log& log);
    DialogHand(const DialogHand&) = delete;
    DialogHand& operator=(const DialogHand&) = delete;
    ~DialogHand();

    // For the dialogs of one step: what is done in them, and how often altogether.
    void Begin(Random random);
    // Does the next thing in a menu, or else in the dialog that opened last, if one is open.
    void GoOn();

private:
    struct TDialog {
        HWND hWnd;
        int nLeft;     // things to be done in it
        int nClosings; // how often it was asked to close
    };

    static LRESULT CALLBACK OnHook(int nCode, WPARAM wParam, LPARAM lParam);
    void OnShown(HWND hWnd);
    void UseMenu(HWND hOwner);
    void UseControl(HWND hDialog);
    void Click(HWND hControl);
    void Close(TDialog& dialog);

    static DialogHand* s_pCurrent;

    Log& m_log;
    HHOOK m_hHook;
    Random m_random{0, 0};
    int m_nLeft = 0;
    std::vector<TDialog> m_open;
};
