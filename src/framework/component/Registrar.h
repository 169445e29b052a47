#pragma once
// Runs registrar scripts on the registry. It lives in the module itself; no outside registrar
// is needed.
//
// Registering makes the keys and sets the values; a key marked ForceRemove is removed with all
// below it first, and Delete only removes. Unregistering removes every key of the script that
// isn't marked NoRemove, with all below it, and of kept keys the named values of the script.
// Keys that are right under a root and have one of the system's names ("CLSID", "TypeLib",
// "Software", ...) are never removed, whatever the script says.
//
// A text that is no script returns DISP_E_EXCEPTION and changes nothing.

#include "framework/component/RegistrarScript.h"

#include <windows.h>

#include <string>
#include <string_view>

class CRegObject
{
public:
    void AddReplacement(std::wstring_view key, std::wstring_view item);

    // A script in the module's resources: text of that type and id.
    HRESULT ResourceRegister(HINSTANCE module, UINT nID, LPCWSTR szType);
    HRESULT ResourceUnregister(HINSTANCE module, UINT nID, LPCWSTR szType);

    // The script itself.
    HRESULT Run(std::u16string_view script, bool bRegister) const;

    // Makes a text fit for the quotes of a script.
    [[nodiscard]] static std::wstring EscapeSingleQuotes(std::wstring_view text);

private:
    HRESULT RunResource(HINSTANCE module, UINT nID, LPCWSTR szType, bool bRegister) const;

    RegistrarScript::Replacements m_replacements;
};
