#include "framework/component/Registrar.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr wchar_t Home[] = L"Software\\VantoplexRegistrarTest";

class Registrar : public testing::Test
{
protected:
    Registrar() { RegDeleteTreeW(HKEY_CURRENT_USER, Home); }
    ~Registrar() override { RegDeleteTreeW(HKEY_CURRENT_USER, Home); }

    // The entries below our own key, in a kept one.
    static std::wstring Script(const std::wstring& entries)
    {
        return L"HKCU { NoRemove Software { NoRemove VantoplexRegistrarTest { " + entries + L" } } }";
    }

    static std::wstring Below(const wchar_t* key) { return std::wstring(Home) + L"\\" + key; }

    static bool Exists(const wchar_t* key)
    {
        HKEY handle = nullptr;
        const bool there = RegOpenKeyW(HKEY_CURRENT_USER, Below(key).c_str(), &handle) == ERROR_SUCCESS;
        if (there)
            RegCloseKey(handle);
        return there;
    }

    static void Make(const wchar_t* key)
    {
        HKEY handle = nullptr;
        ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, Below(key).c_str(), &handle), ERROR_SUCCESS);
        RegCloseKey(handle);
    }

    struct Stored {
        DWORD type = REG_NONE;
        std::vector<BYTE> bytes;
    };

    static Stored ValueOf(const wchar_t* key, const wchar_t* name)
    {
        Stored stored;
        stored.bytes.resize(1000);
        DWORD size = static_cast<DWORD>(stored.bytes.size());
        if (RegGetValueW(HKEY_CURRENT_USER, Below(key).c_str(), name, RRF_RT_ANY, &stored.type,
                         stored.bytes.data(), &size) != ERROR_SUCCESS) {
            size = 0;
        }
        stored.bytes.resize(size);
        return stored;
    }

    static std::wstring TextOf(const wchar_t* key, const wchar_t* name)
    {
        const Stored stored = ValueOf(key, name);
        return stored.bytes.empty() ? L"(none)" : reinterpret_cast<const wchar_t*>(stored.bytes.data());
    }

    static std::u16string U16(const std::wstring& text) { return {text.begin(), text.end()}; }
    HRESULT Register(const std::wstring& script) const { return registrar.Run(U16(script), true); }
    HRESULT Unregister(const std::wstring& script) const { return registrar.Run(U16(script), false); }

    CRegObject registrar;
};

} // namespace

TEST_F(Registrar, MakesKeysAndValues)
{
    ASSERT_EQ(Register(Script(L"A = s 'alpha' { B val Named = s 'beta' }")), S_OK);

    EXPECT_EQ(TextOf(L"A", nullptr), L"alpha");
    EXPECT_EQ(TextOf(L"A", L"Named"), L"beta");
    EXPECT_TRUE(Exists(L"A\\B"));
    EXPECT_TRUE(ValueOf(L"A\\B", nullptr).bytes.empty());
}

TEST_F(Registrar, StoresEachKindOfValue)
{
    ASSERT_EQ(Register(Script(L"K { val S = s 'text' val D = d '258' val B = b '00ff' "
                              L"val M = m 'one\\0two' val E = b '' }")),
              S_OK);

    EXPECT_EQ(ValueOf(L"K", L"S").type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(ValueOf(L"K", L"D").type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(ValueOf(L"K", L"D").bytes, (std::vector<BYTE>{2, 1, 0, 0}));
    EXPECT_EQ(ValueOf(L"K", L"B").type, static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(ValueOf(L"K", L"B").bytes, (std::vector<BYTE>{0, 0xFF}));
    const Stored list = ValueOf(L"K", L"M");
    EXPECT_EQ(list.type, static_cast<DWORD>(REG_MULTI_SZ));
    EXPECT_EQ(std::wstring(reinterpret_cast<const wchar_t*>(list.bytes.data()), list.bytes.size() / 2),
              std::wstring(L"one\0two\0\0", 9));
    EXPECT_EQ(ValueOf(L"K", L"E").type, static_cast<DWORD>(REG_BINARY));
}

TEST_F(Registrar, ForceRemoveStartsFromAnEmptyKey)
{
    Make(L"A\\Old\\Deeper");

    ASSERT_EQ(Register(Script(L"ForceRemove A { New }")), S_OK);

    EXPECT_FALSE(Exists(L"A\\Old"));
    EXPECT_TRUE(Exists(L"A\\New"));
}

TEST_F(Registrar, WithoutForceRemoveWhatWasThereStays)
{
    Make(L"A\\Old");

    ASSERT_EQ(Register(Script(L"A { New }")), S_OK);

    EXPECT_TRUE(Exists(L"A\\Old"));
    EXPECT_TRUE(Exists(L"A\\New"));
}

TEST_F(Registrar, DeleteRemovesAtRegistrationAlone)
{
    Make(L"A\\Old");
    ASSERT_EQ(Register(Script(L"Delete A Delete NeverThere")), S_OK);
    EXPECT_FALSE(Exists(L"A"));

    Make(L"A");
    ASSERT_EQ(Unregister(Script(L"Delete A")), S_OK);
    EXPECT_TRUE(Exists(L"A"));
}

TEST_F(Registrar, UnregisteringRemovesAllButKeptKeys)
{
    const std::wstring script =
        Script(L"A { Sub } NoRemove Kept { val Named = s 'x' Own ForceRemove Forced }");
    ASSERT_EQ(Register(script), S_OK);
    Make(L"Kept\\Foreign");

    ASSERT_EQ(Unregister(script), S_OK);

    EXPECT_FALSE(Exists(L"A"));
    EXPECT_TRUE(Exists(L"Kept"));
    EXPECT_TRUE(Exists(L"Kept\\Foreign"));
    EXPECT_FALSE(Exists(L"Kept\\Own"));
    EXPECT_FALSE(Exists(L"Kept\\Forced"));
    EXPECT_EQ(TextOf(L"Kept", L"Named"), L"(none)");
}

TEST_F(Registrar, UnregisteringWhatIsNotThereSucceeds)
{
    EXPECT_EQ(Unregister(Script(L"A { B } NoRemove C { D }")), S_OK);
    EXPECT_EQ(Unregister(Script(L"A")), S_OK);
}

TEST_F(Registrar, SystemKeysUnderARootAreNeverRemoved)
{
    // Protected names that no system uses under this root, should the protection fail.
    const auto there = [](const wchar_t* key) {
        HKEY handle = nullptr;
        const bool found = RegOpenKeyW(HKEY_CURRENT_USER, key, &handle) == ERROR_SUCCESS;
        RegCloseKey(handle);
        return found;
    };
    ASSERT_EQ(Register(L"HKCU { Mime { Foreign } FileType }"), S_OK);
    const std::wstring script = L"HKCU { ForceRemove mime { Own } Delete FileType }";

    ASSERT_EQ(Register(script), S_OK);
    EXPECT_TRUE(there(L"Mime\\Foreign"));
    EXPECT_TRUE(there(L"FileType"));
    ASSERT_EQ(Unregister(script), S_OK);

    EXPECT_TRUE(there(L"Mime\\Foreign"));
    EXPECT_FALSE(there(L"Mime\\Own"));
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Mime");
    RegDeleteTreeW(HKEY_CURRENT_USER, L"FileType");
}

TEST_F(Registrar, SystemNamesFurtherDownAreOrdinary)
{
    const std::wstring script = Script(L"Product { CLSID = s 'x' } CLSID = s 'y'");
    ASSERT_EQ(Register(script), S_OK);
    EXPECT_EQ(TextOf(L"Product\\CLSID", nullptr), L"x");

    ASSERT_EQ(Unregister(script), S_OK);
    EXPECT_FALSE(Exists(L"Product"));
    EXPECT_FALSE(Exists(L"CLSID"));
}

TEST_F(Registrar, ReplacementsReachTheRegistry)
{
    registrar.AddReplacement(L"Module", CRegObject::EscapeSingleQuotes(L"C:\\it's here\\100%.dll"));

    ASSERT_EQ(Register(Script(L"A = s '%MODULE%'")), S_OK);
    EXPECT_EQ(TextOf(L"A", nullptr), L"C:\\it's here\\100%.dll");
    EXPECT_EQ(CRegObject().Run(U16(Script(L"A = s '%MODULE%'")), true), DISP_E_EXCEPTION);
}

TEST_F(Registrar, BadScriptChangesNothing)
{
    EXPECT_EQ(Register(Script(L"A = s 'x' B =")), DISP_E_EXCEPTION);
    EXPECT_FALSE(Exists(L"A"));
}

TEST_F(Registrar, MissingResourceIsAFailure)
{
    EXPECT_TRUE(FAILED(registrar.ResourceRegister(nullptr, 54321, L"REGISTRY")));
    EXPECT_TRUE(FAILED(registrar.ResourceUnregister(nullptr, 54321, L"REGISTRY")));
}
