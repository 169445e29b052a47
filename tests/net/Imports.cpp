#include "Imports.h"

#include <cstring>

namespace
{
template <class Record> Record* At(HMODULE hModule, DWORD nOffset)
{
    return reinterpret_cast<Record*>(reinterpret_cast<BYTE*>(hModule) + nOffset);
}

const IMAGE_IMPORT_DESCRIPTOR* FirstImport(HMODULE hModule)
{
    const auto* pDos = At<const IMAGE_DOS_HEADER>(hModule, 0);
    const auto* pHeaders = At<const IMAGE_NT_HEADERS64>(hModule, pDos->e_lfanew);
    const DWORD nOffset =
        pHeaders->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    return At<const IMAGE_IMPORT_DESCRIPTOR>(hModule, nOffset);
}
} // namespace

Imports::~Imports()
{
    for (const TReplaced& replaced : m_replaced)
        Write(replaced.pSlot, replaced.original);
}

bool Imports::Replace(const char* pszName, void* pfnOurs, void** ppfnOriginal)
{
    for (const auto* pImport = FirstImport(m_hModule); pImport->Name != 0; ++pImport) {
        const auto* pNames = At<const IMAGE_THUNK_DATA64>(m_hModule, pImport->OriginalFirstThunk);
        auto* pSlots = At<IMAGE_THUNK_DATA64>(m_hModule, pImport->FirstThunk);
        for (; pNames->u1.AddressOfData != 0; ++pNames, ++pSlots) {
            if (IMAGE_SNAP_BY_ORDINAL64(pNames->u1.Ordinal))
                continue;
            const auto* pName =
                At<const IMAGE_IMPORT_BY_NAME>(m_hModule, static_cast<DWORD>(pNames->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(pName->Name), pszName) != 0)
                continue;
            m_replaced.push_back({&pSlots->u1.Function, pSlots->u1.Function});
            if (ppfnOriginal != nullptr)
                *ppfnOriginal = reinterpret_cast<void*>(pSlots->u1.Function);
            Write(&pSlots->u1.Function, reinterpret_cast<ULONGLONG>(pfnOurs));
            return true;
        }
    }
    return false;
}

void Imports::Write(ULONGLONG* pSlot, ULONGLONG value)
{
    DWORD nProtection = 0;
    ::VirtualProtect(pSlot, sizeof *pSlot, PAGE_READWRITE, &nProtection);
    *pSlot = value;
    ::VirtualProtect(pSlot, sizeof *pSlot, nProtection, &nProtection);
}
