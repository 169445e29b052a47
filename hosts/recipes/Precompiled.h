#pragma once
// What every recipe includes of the system, precompiled once for all of them.

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <oleauto.h>
#include <wincodec.h>
