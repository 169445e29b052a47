#pragma once
// Dialog templates and initialisation resources of the current resource module.

#include <windows.h>

namespace DialogTemplate
{

// The template; null if the module has none of that number. It belongs to the module.
[[nodiscard]] const DLGTEMPLATE* Find(UINT id) noexcept;
// Whether the template leaves the dialog's place to the framework.
[[nodiscard]] bool HasNoPlace(const DLGTEMPLATE* dialog) noexcept;
// Adds the rows of the initialisation resource, if there is one, to the lists of the dialog;
// false if it can't be read or a list refuses a row.
bool FillLists(UINT id, HWND hDialog);

} // namespace DialogTemplate
