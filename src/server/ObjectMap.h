#pragma once
// The classes that the module hands out, in the order of their registration.

#include "framework/component/Module.h"

[[nodiscard]] _ATL_OBJMAP_ENTRY* TheObjectMap() noexcept;
