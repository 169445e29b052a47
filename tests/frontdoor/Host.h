#pragma once
// A host as it comes from outside: it loads the DLL that lies beside the program, knows the
// generated header and nothing else of the product, and has a window and a message loop.

#include "support/ComPointer.h"
#include "support/HostWindow.h"
#include "support/LoadedServer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

inline wireHWND WireHandle(HWND hWnd)
{
    return reinterpret_cast<wireHWND>(hWnd);
}
