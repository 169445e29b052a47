#pragma once
// The functions that the DLL imports and that can be refused or take something.

#include "Stub.h"

#include <vector>

namespace Platform
{
[[nodiscard]] const std::vector<TRow>& Imported();
} // namespace Platform
