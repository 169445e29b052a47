#pragma once
// Sees how a run ends the process, and says where in the DLL that was.

#include <windows.h>

#include <cstdio>
#include <vector>

namespace Witness
{
// Writes faults of this process into the file, then ends it.
void Watch(std::FILE* pFile);
// The DLL that places are named in from now on; its ways to end the process lead here.
void Follow(HMODULE hServer);

[[nodiscard]] std::vector<void*> Stack();
void PrintStack(std::FILE* pFile, const std::vector<void*>& frames);
} // namespace Witness
