#pragma once
// Replaces a function that this program imports by another, for the time of a test in which the
// platform must refuse.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

class ImportPatch
{
public:
    template <class Function>
    ImportPatch(const char* name, Function* replacement) : m_place(PlaceOf(name))
    {
        EXPECT_NE(m_place, nullptr) << name << " is not imported";
        if (m_place != nullptr)
            m_original = Write(reinterpret_cast<ULONG_PTR>(replacement));
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;
    ~ImportPatch()
    {
        if (m_place != nullptr)
            Write(m_original);
    }

private:
    ULONG_PTR Write(ULONG_PTR function)
    {
        DWORD access = 0;
        ::VirtualProtect(m_place, sizeof *m_place, PAGE_READWRITE, &access);
        const ULONG_PTR before = std::exchange(*m_place, function);
        ::VirtualProtect(m_place, sizeof *m_place, access, &access);
        return before;
    }

    // The entry of the program's import tables, whichever library it names.
    static ULONG_PTR* PlaceOf(const char* name)
    {
        auto* const base = reinterpret_cast<BYTE*>(::GetModuleHandleW(nullptr));
        const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(
            base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
        const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(
            base + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress);
        for (; library->Name != 0; ++library) {
            const auto* names =
                reinterpret_cast<const IMAGE_THUNK_DATA64*>(base + library->OriginalFirstThunk);
            auto* places = reinterpret_cast<ULONG_PTR*>(base + library->FirstThunk);
            for (; names->u1.AddressOfData != 0; ++names, ++places) {
                if (IMAGE_SNAP_BY_ORDINAL64(names->u1.Ordinal))
                    continue;
                const auto* entry =
                    reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
                if (std::strcmp(reinterpret_cast<const char*>(entry->Name), name) == 0)
                    return places;
            }
        }
        return nullptr;
    }

    ULONG_PTR* m_place;
    ULONG_PTR m_original = 0;
};
