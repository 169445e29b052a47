#pragma once
// The two colours that need no setting, as 0x00BBGGRR: of type and value what the platform's
// COLORREF is.

inline constexpr unsigned long Black = 0x000000;
inline constexpr unsigned long White = 0xFFFFFF;
