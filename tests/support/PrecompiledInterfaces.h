#pragma once
// What most tests of the interfaces and of the programs around them include; precompiled once for
// all of them.

#include "support/Precompiled.h"

#include "frontdoor/InteractionHost.h"
