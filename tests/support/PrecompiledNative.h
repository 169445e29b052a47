#pragma once
// What most tests of the rooms include, which a test of the interfaces couldn't: both name the same
// numbers. Precompiled once for all of them.

#include "support/Precompiled.h"

#include "graph/XGraph.h"
#include "support/HostWindow.h"
