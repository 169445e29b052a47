// The four entry points of the module.

#include "framework/windowing/ModuleState.h"
#include "server/VantoplexApp.h"

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, LPVOID* ppv)
{
    return _Module.GetClassObject(rclsid, riid, ppv);
}

STDAPI DllCanUnloadNow()
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    return AfxDllCanUnloadNow() == S_OK && _Module.GetLockCount() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer()
{
    return _Module.RegisterServer(TRUE);
}

STDAPI DllUnregisterServer()
{
    return _Module.UnregisterServer(TRUE);
}
