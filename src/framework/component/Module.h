#pragma once
// The module object of a component server: the table of its classes, the count of what keeps
// it loaded, its class objects, and its registration.
//
// One instance exists per module; _pModule points at it from its construction to its end.

#include "framework/component/CriticalSection.h"

#include <windows.h>
#include <ole2.h>

#include <string>
#include <vector>

// Makes an object: pv is the controlling outer (or, for a class object, the class's creator).
typedef HRESULT(WINAPI _ATL_CREATORFUNC)(void* pv, REFIID riid, LPVOID* ppv);
typedef HRESULT(WINAPI _ATL_UPDATEREGISTRYFUNC)(BOOL bRegister);
typedef void(WINAPI _ATL_OBJECTMAINFUNC)(bool bStarting);
typedef void(__stdcall _ATL_TERMFUNC)(DWORD_PTR dw);

// One row of the object map. The map ends with a row whose pclsid is null.
struct _ATL_OBJMAP_ENTRY {
    const CLSID* pclsid;
    _ATL_UPDATEREGISTRYFUNC* pfnUpdateRegistry;
    _ATL_CREATORFUNC* pfnGetClassObject;
    _ATL_CREATORFUNC* pfnCreateInstance;
    IUnknown* pCF; // the cached class object; the row's own reference
    _ATL_OBJECTMAINFUNC* pfnObjectMain;
};

#define BEGIN_OBJECT_MAP(x) static _ATL_OBJMAP_ENTRY x[] = {
#define OBJECT_ENTRY(clsid, class)                                                                      \
    {&clsid,                                                                                            \
     &class ::UpdateRegistry,                                                                           \
     &class ::_ClassFactoryCreatorClass::CreateInstance,                                                \
     &class ::_CreatorClass::CreateInstance,                                                            \
     nullptr,                                                                                           \
     &class ::ObjectMain},
#define END_OBJECT_MAP()                                                                                \
    {                                                                                                   \
        nullptr, nullptr, nullptr, nullptr, nullptr, nullptr                                            \
    }                                                                                                   \
    }                                                                                                   \
    ;

class CComModule
{
public:
    // Set when a module object could not initialise its critical sections.
    static bool m_bInitFailed;

    CComModule() noexcept;
    CComModule(const CComModule&) = delete;
    CComModule& operator=(const CComModule&) = delete;
    ~CComModule();

    // The size of this structure once it is usable; 0 before that and after Term, and every
    // call that needs the module's sections then fails.
    UINT cbSize = 0;
    HINSTANCE m_hInst = nullptr;
    HINSTANCE m_hInstResource = nullptr; // where registry scripts are found
    HINSTANCE m_hInstTypeLib = nullptr;  // where the type library is found
    _ATL_OBJMAP_ENTRY* m_pObjMap = nullptr;
    const GUID* m_plibid = nullptr;
    LONG m_nLockCnt = 0;
    CComCriticalSection m_csObjMap;
    CComCriticalSection m_csTypeInfoHolder;
    CComCriticalSection m_csStaticDataInit;

    // Records the table, the instance and the library, and calls each row's ObjectMain(true).
    HRESULT Init(_ATL_OBJMAP_ENTRY* p, HINSTANCE h, const GUID* plibid = nullptr);
    // Releases the class objects, calls each row's ObjectMain(false), runs the termination
    // functions (the last added first), lets go of the global interface table. Once only.
    void Term();
    // Asks that pFunc(dw) be called at Term.
    HRESULT AddTermFunc(_ATL_TERMFUNC* pFunc, DWORD_PTR dw);

    LONG Lock() noexcept { return ::InterlockedIncrement(&m_nLockCnt); }
    LONG Unlock() noexcept { return ::InterlockedDecrement(&m_nLockCnt); }
    [[nodiscard]] LONG GetLockCount() const noexcept { return m_nLockCnt; }

    // E_POINTER without ppv, CLASS_E_CLASSNOTAVAILABLE for a class that no row has.
    HRESULT GetClassObject(REFCLSID rclsid, REFIID riid, LPVOID* ppv);

    // Every class of the map in its order (or the one given), then the type library. The first
    // failure ends it.
    HRESULT RegisterServer(BOOL bRegTypeLib = FALSE, const CLSID* pCLSID = nullptr);
    HRESULT UnregisterServer(BOOL bUnRegTypeLib = FALSE, const CLSID* pCLSID = nullptr);

    // Runs the script of type REGISTRY with that id, with %MODULE% and %MODULE_RAW%.
    HRESULT UpdateRegistryFromResource(UINT nResID, BOOL bRegister);

private:
    struct TTermFunc {
        _ATL_TERMFUNC* pFunc;
        DWORD_PTR dw;
    };

    HRESULT MakeClassObject(_ATL_OBJMAP_ENTRY& entry);
    HRESULT UpdateClasses(BOOL bRegister, const CLSID* pCLSID);

    std::vector<TTermFunc> m_termFuncs;
};

extern CComModule* _pModule;

// The full path of a module, of any length; empty if the platform has none.
[[nodiscard]] std::wstring AtlGetModulePath(HINSTANCE module);
