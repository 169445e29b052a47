#pragma once
// The DLL beside the test program, loaded as a host loads it that does without registration.

#include <windows.h>

#include <gtest/gtest.h>
#include <unknwn.h>

#include <string>
#include <utility>

#include "vantoplex.h"

// Owner of one reference.
template <class T> class Ref
{
public:
    Ref() = default;
    Ref(Ref&& other) noexcept : p(std::exchange(other.p, nullptr)) {}
    Ref(const Ref&) = delete;
    Ref& operator=(Ref other) noexcept
    {
        std::swap(p, other.p);
        return *this;
    }
    ~Ref() { Release(); }

    void Release()
    {
        if (T* old = std::exchange(p, nullptr)) {
            old->Release();
        }
    }
    T* operator->() const { return p; }
    operator T*() const { return p; }
    T** Out()
    {
        Release();
        return &p;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }

    T* p = nullptr;
};

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
    for (; *text != 0; ++text) {
        result += *text < 128 ? static_cast<char>(*text) : '?';
    }
    return result;
}

class LoadedServer
{
public:
    explicit LoadedServer(const std::wstring& path = BesideTheProgram())
        : module(LoadLibraryW(path.c_str()))
    {
        EXPECT_NE(module, nullptr) << "Vantoplex.dll does not load: " << GetLastError();
    }
    LoadedServer(const LoadedServer&) = delete;
    LoadedServer& operator=(const LoadedServer&) = delete;
    ~LoadedServer() { FreeLibrary(module); }

    static std::wstring Folder()
    {
        wchar_t program[MAX_PATH] = L"";
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        const std::wstring path = program;
        return path.substr(0, path.rfind(L'\\') + 1);
    }
    static std::wstring BesideTheProgram() { return Folder() + L"Vantoplex.dll"; }

    template <class Function> Function* Entry(const char* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
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
        Ref<IClassFactory> factory;
        const HRESULT result = GetClassObject(clsid, IID_IClassFactory, factory.OutVoid());
        return FAILED(result) ? result : factory->CreateInstance(outer, iid, object);
    }

    // A new object of the coclass, as its interface.
    template <class Coclass, class Interface> Ref<Interface> Make() const
    {
        Ref<Interface> made;
        EXPECT_EQ(Create(__uuidof(Coclass), nullptr, __uuidof(Interface), made.OutVoid()), S_OK);
        return made;
    }

    HMODULE module;
};
