#pragma once
// What most tests of the rooms include, which one of the interfaces could not: both name the same
// numbers. Precompiled once for all of them.

#include "support/Precompiled.h"

#include "graph/XGraph.h"
#include "support/HostWindow.h"
