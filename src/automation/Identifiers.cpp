// The identifiers that the generated header declares: LIBID_VANTOPLEXLib, IID_..., CLSID_...

#include <windows.h>

#include "vantoplex_i.c"
