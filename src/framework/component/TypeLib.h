#pragma once
// The type library that a module carries as its resource.

#include <windows.h>
#include <oleauto.h>

// The library of the module itself, by its path; registers nothing. The caller releases it.
HRESULT AtlLoadTypeLib(HINSTANCE module, ITypeLib** ppTypeLib);

// Puts the module's library under TypeLib\{LIBID}, with the module's folder as help folder.
HRESULT AtlRegisterTypeLib(HINSTANCE module);

// Takes it away again. A library that isn't registered is no error.
HRESULT AtlUnRegisterTypeLib(HINSTANCE module);
