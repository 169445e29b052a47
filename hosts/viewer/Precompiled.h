#pragma once
// What nearly every source of the program includes of the system, precompiled once for all of them. A
// file still includes what it uses: the headers are compiled alone without this one.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <windows.h>

#include <commctrl.h>
#include <oleauto.h>
