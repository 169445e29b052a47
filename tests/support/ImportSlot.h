#pragma once
// Puts a function of the test's own in the place of one that the program imports, to see what it
// is called with or to let it fail. Only calls of the test program itself go there, so the code
// under test must be linked into it.
//
//   extern "C" decltype(&::FillRect) __imp_FillRect;
//   const ImportSlot slot(__imp_FillRect, &Recorded);   // slot.Original() is the platform's

#include <utility>

#include <windows.h>

template <class Function> class ImportSlot
{
public:
    ImportSlot(Function& slot, Function replacement) : m_slot(slot), m_original(Put(replacement)) {}
    ImportSlot(const ImportSlot&) = delete;
    ImportSlot& operator=(const ImportSlot&) = delete;
    ~ImportSlot() { Put(m_original); }

    [[nodiscard]] Function Original() const noexcept { return m_original; }

private:
    Function Put(Function function)
    {
        DWORD access = 0;
        ::VirtualProtect(&m_slot, sizeof m_slot, PAGE_READWRITE, &access);
        const Function before = std::exchange(m_slot, function);
        ::VirtualProtect(&m_slot, sizeof m_slot, access, &access);
        return before;
    }

    Function& m_slot;
    Function m_original;
};
