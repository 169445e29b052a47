#pragma once
// The application object of the module, and with it the module's start and stop.

#include "framework/component/Module.h"
#include "framework/windowing/App.h"

class CVantoplexApp : public CWinApp
{
public:
    // Sets the module object's class table, instance and type library.
    BOOL InitInstance() override;
    // Ends the module object: class objects, type information.
    int ExitInstance() override;
};

extern CComModule _Module;
extern CVantoplexApp theApp;
