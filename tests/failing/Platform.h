#pragma once
// Stands between the DLL and the platform: it refuses one request of the DLL, or all from one on, and
// keeps account of what the DLL has taken and not given back. Requests count only while it is armed.

#include <windows.h>

#include <cstdio>
#include <map>
#include <string>

namespace Platform
{
enum class EKind { memory, gdi, gdiplus, window, timer, file, module, limit, count };

[[nodiscard]] const char* NameOf(EKind kind);

// From now on the DLL's imports lead here. The table dies with the DLL, so nothing is put back.
void StandBefore(HMODULE hServer);
// Nothing is held. With a log, the place of what is refused, and of what is still held at the end,
// is written there.
void BeginAccount(std::FILE* pTrace);

// The request of that kind with that number, counted from 0, is refused; and all after it. Of kind
// limit the process holds as many GDI objects as the platform allows, but for that number, and nothing
// else is refused; these count as MostLeft requests.
inline constexpr int MostLeft = 24;
void Arm(EKind kind, int nNumber, bool bAllAfter);
// The result is the number of requests since.
int Disarm();

// How many things are taken and not given back, by the function that gave them.
[[nodiscard]] std::map<std::string, int> Held();
void PrintHeld(std::FILE* pFile);
// The host has become the owner.
void Forget(const void* pThing);
} // namespace Platform
