// What the file carries: exports, version record, scripts, pictures.

#include "support/LoadedServer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <vector>

namespace
{

class ModuleFile : public testing::Test
{
protected:
    std::string Resource(const wchar_t* type, int id) const
    {
        const HRSRC found = FindResourceW(server.module, MAKEINTRESOURCEW(id), type);
        const HGLOBAL loaded = found != nullptr ? LoadResource(server.module, found) : nullptr;
        return loaded == nullptr ? std::string()
                                 : std::string(static_cast<const char*>(LockResource(loaded)),
                                               SizeofResource(server.module, found));
    }

    Server server;
};

std::vector<BYTE> VersionRecord()
{
    const std::wstring path = Server::PathBesideProgram();
    DWORD ignored = 0;
    std::vector<BYTE> record(GetFileVersionInfoSizeW(path.c_str(), &ignored));
    EXPECT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(record.size()), record.data()));
    return record;
}

} // namespace

TEST_F(ModuleFile, ExportsExactlyFourNames)
{
    const auto* base = reinterpret_cast<const BYTE*>(server.module);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(
        base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const auto* exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(
        base + headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress);
    const auto* names = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    std::set<std::string> found;
    for (DWORD i = 0; i < exports->NumberOfNames; ++i)
        found.insert(reinterpret_cast<const char*>(base + names[i]));

    EXPECT_EQ(found, (std::set<std::string>{"DllGetClassObject", "DllCanUnloadNow", "DllRegisterServer",
                                            "DllUnregisterServer"}));
    EXPECT_EQ(exports->NumberOfFunctions, 4U);
}

TEST_F(ModuleFile, VersionRecordTellsTheProduct)
{
    const std::vector<BYTE> record = VersionRecord();
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {L"FileVersion", L"1, 0, 0, 1"},           {L"ProductVersion", L"1, 0, 0, 1"},
        {L"FileDescription", L"Vantoplex Module"}, {L"ProductName", L"Vantoplex Module"},
        {L"InternalName", L"Vantoplex"},           {L"OriginalFilename", L"Vantoplex.DLL"},
    };
    for (const auto& [name, text] : expected) {
        wchar_t* found = nullptr;
        UINT length = 0;
        const std::wstring query = std::wstring(L"\\StringFileInfo\\040904B0\\") + name;
        ASSERT_TRUE(
            VerQueryValueW(record.data(), query.c_str(), reinterpret_cast<void**>(&found), &length));
        EXPECT_STREQ(found, text);
    }
}

TEST_F(ModuleFile, VersionRecordIsEnglishInUnicode)
{
    const std::vector<BYTE> record = VersionRecord();
    WORD* translation = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(record.data(), L"\\VarFileInfo\\Translation",
                               reinterpret_cast<void**>(&translation), &length));
    ASSERT_EQ(length, 4U);
    EXPECT_EQ(translation[0], 0x0409);
    EXPECT_EQ(translation[1], 1200);

    VS_FIXEDFILEINFO* fixed = nullptr;
    ASSERT_TRUE(VerQueryValueW(record.data(), L"\\", reinterpret_cast<void**>(&fixed), &length));
    EXPECT_EQ(fixed->dwFileVersionMS, 0x00010000U);
    EXPECT_EQ(fixed->dwFileVersionLS, 0x00000001U);
    EXPECT_EQ(fixed->dwProductVersionMS, 0x00010000U);
    EXPECT_EQ(fixed->dwProductVersionLS, 0x00000001U);
}

TEST_F(ModuleFile, EveryClassHasItsScript)
{
    for (const ServerClass& row : serverClasses) {
        const std::string script = Resource(L"REGISTRY", row.script);
        const std::string name = Narrow(row.name);
        EXPECT_NE(script.find("Vantoplex." + name + ".1 = s '" + name + " Class'"), std::string::npos)
            << name;
        wchar_t clsid[40] = L"";
        StringFromGUID2(row.clsid, clsid, 40);
        EXPECT_NE(script.find("ForceRemove " + Narrow(clsid)), std::string::npos) << name;
    }
}

TEST_F(ModuleFile, TwelfthScriptIsKept)
{
    const std::string script = Resource(L"REGISTRY", 126);

    EXPECT_NE(script.find("Vantoplex.SBitmapEx"), std::string::npos);
    EXPECT_NE(script.find("{3AEA1F5C-4C3B-4F4E-858C-64A0E9A22125}"), std::string::npos);
}

TEST_F(ModuleFile, ScriptsDifferOnlyInNameAndClass)
{
    const auto neutral = [&](int id, const std::string& name, const std::string& clsid) {
        std::string text = Resource(L"REGISTRY", id);
        for (const std::string& part : {clsid, "." + name, "'" + name}) {
            for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
                text.replace(at, part.size(), "*");
        }
        return text;
    };
    const std::string model = neutral(126, "SBitmapEx", "{3AEA1F5C-4C3B-4F4E-858C-64A0E9A22125}");
    for (const ServerClass& row : serverClasses) {
        wchar_t clsid[40] = L"";
        StringFromGUID2(row.clsid, clsid, 40);
        EXPECT_EQ(neutral(row.script, Narrow(row.name), Narrow(clsid)), model) << Narrow(row.name);
    }
}

TEST_F(ModuleFile, TypeLibraryIsResourceOne)
{
    EXPECT_EQ(Resource(L"TYPELIB", 1).substr(0, 4), "MSFT");
}

TEST_F(ModuleFile, PreviewTilesAreSmallSixteenColourPictures)
{
    for (int id = 201; id <= 206; ++id) {
        const std::string bits = Resource(RT_BITMAP, id);
        ASSERT_GE(bits.size(), sizeof(BITMAPINFOHEADER)) << id;
        BITMAPINFOHEADER header;
        std::memcpy(&header, bits.data(), sizeof header);
        EXPECT_EQ(header.biWidth, 16) << id;
        EXPECT_EQ(header.biHeight, 16) << id;
        EXPECT_EQ(header.biBitCount, 4) << id;
    }
}

TEST_F(ModuleFile, PreviewTilesShowTheirPatterns)
{
    // Black where the pattern runs, counted over the 16 by 16 points.
    const auto black = [](int id, int x, int y) {
        switch (id) {
        case 201:
            return x % 3 == 0;
        case 202:
            return (x - y + 16) % 4 == 0;
        case 203:
            return (x + y) % 4 == 3;
        case 204:
            return x % 3 == 0 || y % 3 == 0;
        case 205:
            return (x - y + 16) % 4 == 0 || (x + y) % 4 == 0;
        default:
            return y % 3 == 0;
        }
    };
    const HDC canvas = CreateCompatibleDC(nullptr);
    for (int id = 201; id <= 206; ++id) {
        const HBITMAP bitmap = static_cast<HBITMAP>(
            LoadImageW(server.module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
        const HGDIOBJ old = SelectObject(canvas, bitmap);
        int wrong = 0;
        for (int at = 0; at < 256; ++at) {
            const COLORREF expected = black(id, at % 16, at / 16) ? RGB(0, 0, 0) : RGB(255, 255, 255);
            wrong += GetPixel(canvas, at % 16, at / 16) != expected;
        }
        EXPECT_EQ(wrong, 0) << id;
        SelectObject(canvas, old);
        DeleteObject(bitmap);
    }
    DeleteDC(canvas);
}
