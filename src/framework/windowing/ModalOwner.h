#pragma once
// What a modal dialog keeps from input: a window and every window that owns it. What was
// disabled before stays so.

#include <vector>

#include <windows.h>

class CModalOwner
{
public:
    explicit CModalOwner(HWND hOwner);
    CModalOwner(const CModalOwner&) = delete;
    CModalOwner& operator=(const CModalOwner&) = delete;
    ~CModalOwner() { Enable(); }

    void Enable() noexcept;

private:
    std::vector<HWND> m_disabled;
};
