#pragma once
// What the three pages of the property sheet have in common. A page is a child dialog: its
// buttons OK and Cancel end the sheet, and neither Enter nor Escape does.

#include <initializer_list>

#include <windows.h>

class CWnd;

namespace SheetPage
{

// Whether a page keeps this key from the dialogs around it.
[[nodiscard]] bool Swallows(const MSG& message) noexcept;

// Presses IDOK or IDCANCEL of the sheet that the page lies on.
void EndSheet(const CWnd& page, int nResult);

// A page that isn't seen has nothing to answer: its controls change because it fills them.
[[nodiscard]] bool IsLive(const CWnd& page) noexcept;

void EnableControls(const CWnd& page, std::initializer_list<int> ids, bool bEnable);

} // namespace SheetPage
