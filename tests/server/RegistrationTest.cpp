// Registration in the registry of this machine, and its undoing. The classes are registered
// before a test and unregistered after it.

#include "support/LoadedServer.h"

#include <oleauto.h>
#include <shlwapi.h>
#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr wchar_t Libid[] = L"{6C24BE93-2D8D-4820-8FFF-AF9FC63007F8}";
constexpr wchar_t Absent[] = L"(none)";

std::wstring Value(const std::wstring& key, const wchar_t* name = nullptr)
{
    wchar_t text[1024] = L"";
    DWORD size = sizeof text;
    const LSTATUS status =
        RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? text : Absent;
}

bool Exists(const std::wstring& key)
{
    HKEY handle = nullptr;
    const bool found =
        RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &handle) == ERROR_SUCCESS;
    if (found)
        RegCloseKey(handle);
    return found;
}

std::wstring ClassKey(const ServerClass& row)
{
    wchar_t clsid[40] = L"";
    StringFromGUID2(row.clsid, clsid, 40);
    return clsid;
}

class Registration : public testing::Test
{
protected:
    Registration() { EXPECT_EQ(server.Register(), S_OK); }
    ~Registration() override { EXPECT_EQ(server.Unregister(), S_OK); }

    Server server;
};

} // namespace

TEST_F(Registration, EveryClassIsFoundByItsProgIds)
{
    for (const ServerClass& row : serverClasses) {
        const std::wstring progId = std::wstring(L"Vantoplex.") + row.name;
        const std::wstring title = std::wstring(row.name) + L" Class";
        SCOPED_TRACE(Narrow(row.name));
        EXPECT_EQ(Value(progId), title);
        EXPECT_EQ(Value(progId + L"\\CLSID"), ClassKey(row));
        EXPECT_EQ(Value(progId + L"\\CurVer"), progId + L".1");
        EXPECT_EQ(Value(progId + L".1"), title);
        EXPECT_EQ(Value(progId + L".1\\CLSID"), ClassKey(row));
        CLSID found{};
        EXPECT_EQ(CLSIDFromProgID(progId.c_str(), &found), S_OK);
        EXPECT_TRUE(IsEqualGUID(found, row.clsid));
    }
}

TEST_F(Registration, EveryClassTellsWhereItLives)
{
    for (const ServerClass& row : serverClasses) {
        const std::wstring progId = std::wstring(L"Vantoplex.") + row.name;
        const std::wstring key = L"CLSID\\" + ClassKey(row);
        SCOPED_TRACE(Narrow(row.name));
        EXPECT_EQ(Value(key), std::wstring(row.name) + L" Class");
        EXPECT_EQ(Value(key + L"\\ProgID"), progId + L".1");
        EXPECT_EQ(Value(key + L"\\VersionIndependentProgID"), progId);
        EXPECT_TRUE(Exists(key + L"\\Programmable"));
        EXPECT_EQ(Value(key + L"\\Programmable"), Absent);
        EXPECT_EQ(Value(key + L"\\InprocServer32"), Server::PathBesideProgram());
        EXPECT_EQ(Value(key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
        EXPECT_EQ(Value(key + L"\\TypeLib"), Libid);
    }
}

TEST_F(Registration, TypeLibraryIsFoundByItsIdentifier)
{
    BSTR path = nullptr;
    constexpr GUID id{0x6C24BE93, 0x2D8D, 0x4820, {0x8F, 0xFF, 0xAF, 0x9F, 0xC6, 0x30, 0x07, 0xF8}};

    ASSERT_EQ(QueryPathOfRegTypeLib(id, 1, 0, 1033, &path), S_OK);
    EXPECT_EQ(_wcsicmp(path, Server::PathBesideProgram().c_str()), 0) << Narrow(path);
    SysFreeString(path);
    EXPECT_EQ(Value(std::wstring(L"TypeLib\\") + Libid + L"\\1.0"), L"Vantoplex 1.0 Type Library");
    Holder<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(id, 1, 0, 1033, library.Out()), S_OK);
}

TEST_F(Registration, LeftoverScriptIsNeverRun)
{
    EXPECT_FALSE(Exists(L"Vantoplex.SBitmapEx"));
    EXPECT_FALSE(Exists(L"CLSID\\{3AEA1F5C-4C3B-4F4E-858C-64A0E9A22125}"));
}

TEST_F(Registration, HostCreatesClassesByProgId)
{
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    for (const ServerClass& row : serverClasses) {
        CLSID clsid{};
        Holder<IUnknown> object;
        EXPECT_EQ(CLSIDFromProgID((std::wstring(L"Vantoplex.") + row.name + L".1").c_str(), &clsid),
                  S_OK);
        EXPECT_EQ(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, row.iid, object.OutVoid()),
                  S_OK)
            << Narrow(row.name);
    }
    CoUninitialize();
}

TEST_F(Registration, RegisteringAgainStartsClassKeysFresh)
{
    const std::wstring stale = L"CLSID\\" + ClassKey(serverClasses[0]) + L"\\Stale";
    HKEY handle = nullptr;
    ASSERT_EQ(RegCreateKeyW(HKEY_CLASSES_ROOT, stale.c_str(), &handle), ERROR_SUCCESS);
    RegCloseKey(handle);

    EXPECT_EQ(server.Register(), S_OK);

    EXPECT_FALSE(Exists(stale));
    EXPECT_TRUE(Exists(L"CLSID\\" + ClassKey(serverClasses[0]) + L"\\InprocServer32"));
}

TEST_F(Registration, UnregisteringKeepsTheSystemsKeysAlone)
{
    ASSERT_EQ(server.Unregister(), S_OK);

    EXPECT_TRUE(Exists(L"CLSID"));
    EXPECT_TRUE(Exists(L"TypeLib"));
    EXPECT_TRUE(Exists(L"Interface"));
    for (const ServerClass& row : serverClasses) {
        SCOPED_TRACE(Narrow(row.name));
        EXPECT_FALSE(Exists(L"CLSID\\" + ClassKey(row)));
        EXPECT_FALSE(Exists(std::wstring(L"Vantoplex.") + row.name));
        EXPECT_FALSE(Exists(std::wstring(L"Vantoplex.") + row.name + L".1"));
    }
    EXPECT_FALSE(Exists(std::wstring(L"TypeLib\\") + Libid + L"\\1.0"));
}

TEST_F(Registration, UnregisteringTwiceSucceeds)
{
    EXPECT_EQ(server.Unregister(), S_OK);
    EXPECT_EQ(server.Unregister(), S_OK);
}

TEST(RegistrationElsewhere, AnyFolderNameIsStoredAsItIs)
{
    wchar_t temporary[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, temporary);
    const std::wstring folder = std::wstring(temporary) + L"it's 100%MODULE% {\u00FCber}";
    const std::wstring path = folder + L"\\Vantoplex.dll";
    CreateDirectoryW(folder.c_str(), nullptr);
    ASSERT_TRUE(CopyFileW(Server::PathBesideProgram().c_str(), path.c_str(), FALSE));
    {
        const Server server(path);
        EXPECT_EQ(server.Register(), S_OK);
        EXPECT_EQ(Value(L"CLSID\\" + ClassKey(serverClasses[10]) + L"\\InprocServer32"), path);
        EXPECT_EQ(server.Unregister(), S_OK);
        EXPECT_FALSE(Exists(L"CLSID\\" + ClassKey(serverClasses[10])));
    }
    DeleteFileW(path.c_str());
    RemoveDirectoryW(folder.c_str());
}
