#pragma once
// Puts functions of ours in the place of those that a loaded DLL imports from the system.

#include <windows.h>

#include <vector>

class Imports
{
public:
    explicit Imports(HMODULE hModule) : m_hModule(hModule) {}
    Imports(const Imports&) = delete;
    Imports& operator=(const Imports&) = delete;
    ~Imports(); // puts all back

    // False if the DLL doesn't import a function of that name.
    bool Replace(const char* pszName, void* pfnOurs, void** ppfnOriginal = nullptr);
    // Nothing is put back.
    void Keep() { m_replaced.clear(); }

private:
    void Write(ULONGLONG* pSlot, ULONGLONG value);

    struct TReplaced {
        ULONGLONG* pSlot;
        ULONGLONG original;
    };
    HMODULE m_hModule;
    std::vector<TReplaced> m_replaced;
};
