// The identifiers that the generated header declares: LIBID_VANTOPLEXLib, IID_..., CLSID_...

#include <windows.h>

// The interface compiler writes them as C.
#include "vantoplex_i.c" // NOLINT(bugprone-suspicious-include)
