#pragma once
// What nearly every test file includes; precompiled once for all of them.

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
