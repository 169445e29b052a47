#pragma once
// The DLL beside the test program, loaded as a host loads it that does without registration.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/ComPointer.h"
#include "vantoplex.h"

struct ServerClass {
    const wchar_t* name;
    CLSID clsid;
    IID iid;
    int script; // id of its registry script
};

// In the order of the class table.
inline const ServerClass serverClasses[] = {
    {L"PieChart3d", __uuidof(PieChart3d), __uuidof(IPieChart3d), 102},
    {L"Chart2d", __uuidof(Chart2d), __uuidof(IChart2d), 103},
    {L"SGraphObject", __uuidof(SGraphObject), __uuidof(ISGraphObject), 119},
    {L"SGraphAxis", __uuidof(SGraphAxis), __uuidof(ISGraphAxis), 120},
    {L"SGraphLogAxis", __uuidof(SGraphLogAxis), __uuidof(ISGraphLogAxis), 121},
    {L"SGraphLabel", __uuidof(SGraphLabel), __uuidof(ISGraphLabel), 122},
    {L"SGraphDataSerie", __uuidof(SGraphDataSerie), __uuidof(ISGraphDataSerie), 123},
    {L"SGraphDataNotation", __uuidof(SGraphDataNotation), __uuidof(ISGraphDataNotation), 124},
    {L"SGraphBitmap", __uuidof(SGraphBitmap), __uuidof(ISGraphBitmap), 125},
    {L"SGraph", __uuidof(SGraph), __uuidof(ISGraph), 127},
    {L"SObject", __uuidof(SObject), __uuidof(ISObject), 129},
};

// Only for messages.
inline std::string Narrow(const wchar_t* text)
{
    std::string result;
    for (; *text != 0; ++text)
        result += *text < 128 ? static_cast<char>(*text) : '?';
    return result;
}

class Server
{
public:
    explicit Server(const std::wstring& path = PathBesideProgram())
        : module(::LoadLibraryW(path.c_str()))
    {
        EXPECT_NE(module, nullptr) << "Vantoplex.dll does not load: " << ::GetLastError();
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() { Unload(); }

    // The one that all tests share which don't look at the module's end.
    static Server& Shared()
    {
        static Server server;
        return server;
    }
    static std::wstring Folder()
    {
        wchar_t program[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        const std::wstring path = program;
        return path.substr(0, path.rfind(L'\\') + 1);
    }
    static std::wstring PathBesideProgram() { return Folder() + L"Vantoplex.dll"; }

    void Unload()
    {
        if (module)
            ::FreeLibrary(std::exchange(module, nullptr));
    }

    template <class Function> Function* Entry(const char* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
    }

    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object) const
    {
        return Entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(clsid, iid, object);
    }
    HRESULT CanUnloadNow() const { return Entry<HRESULT WINAPI()>("DllCanUnloadNow")(); }
    HRESULT Register() const { return Entry<HRESULT WINAPI()>("DllRegisterServer")(); }
    HRESULT Unregister() const { return Entry<HRESULT WINAPI()>("DllUnregisterServer")(); }

    HRESULT Create(REFCLSID clsid, IUnknown* outer, REFIID iid, void** object) const
    {
        Holder<IClassFactory> factory;
        const HRESULT result = GetClassObject(clsid, IID_IClassFactory, factory.OutVoid());
        return FAILED(result) ? result : factory->CreateInstance(outer, iid, object);
    }

    // A new object of the coclass, as its interface.
    template <class Coclass, class Interface> [[nodiscard]] Holder<Interface> Make() const
    {
        Holder<Interface> made;
        EXPECT_EQ(Create(__uuidof(Coclass), nullptr, __uuidof(Interface), made.OutVoid()), S_OK);
        return made;
    }

    HMODULE module;
};
