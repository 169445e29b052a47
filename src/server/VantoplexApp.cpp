#include "server/VantoplexApp.h"

#include "server/ObjectMap.h"
#include "vantoplex.h"

#include <windows.h>

// In this order: the module object is there before the application.
CComModule _Module;
CVantoplexApp theApp;

BOOL CVantoplexApp::InitInstance()
{
    _Module.Init(TheObjectMap(), AfxGetInstanceHandle(), &LIBID_VANTOPLEXLib);
    return CWinApp::InitInstance();
}

int CVantoplexApp::ExitInstance()
{
    _Module.Term();
    return CWinApp::ExitInstance();
}

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    return AfxDllMain(hInstance, dwReason);
}
