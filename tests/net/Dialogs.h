#pragma once
// Closes every dialog and message box of this thread as soon as it is shown.

#include <windows.h>

#include <string>
#include <vector>

class Dialogs
{
public:
    Dialogs();
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    ~Dialogs();

    // Texts of the message boxes since the last call. Other dialogs leave none.
    [[nodiscard]] std::vector<std::string> TakeTexts();

private:
    static LRESULT CALLBACK OnHook(int nCode, WPARAM wParam, LPARAM lParam);

    static Dialogs* s_pCurrent;
    HHOOK m_hHook;
    std::vector<std::string> m_texts;
};
