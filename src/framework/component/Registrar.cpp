#include "framework/component/Registrar.h"

#include <new>
#include <optional>
#include <utility>

using RegistrarScript::Key;
using RegistrarScript::KeyMode;
using RegistrarScript::NamedValue;
using RegistrarScript::Root;
using RegistrarScript::RootKey;
using RegistrarScript::Value;
using RegistrarScript::ValueKind;

namespace
{

// An open registry key.
class CRegKey
{
public:
    CRegKey() = default;
    CRegKey(const CRegKey&) = delete;
    CRegKey& operator=(const CRegKey&) = delete;
    ~CRegKey()
    {
        if (m_hKey)
            ::RegCloseKey(m_hKey);
    }

    LSTATUS Create(HKEY parent, const wchar_t* name)
    {
        return ::RegCreateKeyExW(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                                 nullptr, &m_hKey, nullptr);
    }
    LSTATUS Open(HKEY parent, const wchar_t* name)
    {
        return ::RegOpenKeyExW(parent, name, 0, KEY_READ | KEY_WRITE, &m_hKey);
    }

    HKEY m_hKey = nullptr;
};

const wchar_t* Wide(const std::u16string& text) noexcept
{
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

std::u16string_view Narrowed(std::wstring_view text) noexcept
{
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

HKEY HandleOf(RootKey root) noexcept
{
    switch (root) {
    case RootKey::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case RootKey::CurrentUser:
        return HKEY_CURRENT_USER;
    case RootKey::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case RootKey::Users:
        return HKEY_USERS;
    case RootKey::PerformanceData:
        return HKEY_PERFORMANCE_DATA;
    case RootKey::DynData:
        return HKEY_DYN_DATA;
    case RootKey::CurrentConfig:
        return HKEY_CURRENT_CONFIG;
    }
    return nullptr;
}

LSTATUS SetValue(HKEY key, const wchar_t* name, const Value& value)
{
    const auto set = [&](DWORD type, const void* data, size_t size) {
        return ::RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data),
                                static_cast<DWORD>(size));
    };
    const size_t textSize = (value.text.size() + 1) * sizeof(char16_t); // with the NUL at the end
    switch (value.kind) {
    case ValueKind::String:
        return set(REG_SZ, value.text.c_str(), textSize);
    case ValueKind::MultiString:
        return set(REG_MULTI_SZ, value.text.c_str(), textSize);
    case ValueKind::Number:
        return set(REG_DWORD, &value.number, sizeof value.number);
    case ValueKind::Binary:
        return set(REG_BINARY, value.bytes.data(), value.bytes.size());
    }
    return ERROR_INVALID_DATA;
}

LSTATUS SetNamedValues(HKEY key, const std::vector<NamedValue>& values)
{
    for (const NamedValue& named : values)
        if (const LSTATUS status = SetValue(key, Wide(named.name), named.value); status != ERROR_SUCCESS)
            return status;
    return ERROR_SUCCESS;
}

bool MayRemove(const Key& key, bool underRoot)
{
    return key.mode != KeyMode::NoRemove && !(underRoot && RegistrarScript::IsProtected(key.name));
}

LSTATUS RemoveTree(HKEY parent, const Key& key)
{
    const LSTATUS status = ::RegDeleteTreeW(parent, Wide(key.name));
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

LSTATUS Register(HKEY parent, const std::vector<Key>& keys, bool underRoot)
{
    for (const Key& key : keys) {
        if ((key.mode == KeyMode::ForceRemove || key.mode == KeyMode::Delete) &&
            MayRemove(key, underRoot)) {
            if (const LSTATUS status = RemoveTree(parent, key); status != ERROR_SUCCESS)
                return status;
        }
        if (key.mode == KeyMode::Delete)
            continue;
        CRegKey made;
        LSTATUS status = made.Create(parent, Wide(key.name));
        if (status == ERROR_SUCCESS && key.value)
            status = SetValue(made.m_hKey, nullptr, *key.value);
        if (status == ERROR_SUCCESS)
            status = SetNamedValues(made.m_hKey, key.values);
        if (status == ERROR_SUCCESS)
            status = Register(made.m_hKey, key.keys, false);
        if (status != ERROR_SUCCESS)
            return status;
    }
    return ERROR_SUCCESS;
}

LSTATUS RemoveValues(HKEY key, const std::vector<NamedValue>& values)
{
    for (const NamedValue& named : values) {
        const LSTATUS status = ::RegDeleteValueW(key, Wide(named.name));
        if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND)
            return status;
    }
    return ERROR_SUCCESS;
}

LSTATUS Unregister(HKEY parent, const std::vector<Key>& keys, bool underRoot)
{
    for (const Key& key : keys) {
        if (key.mode == KeyMode::Delete)
            continue;
        LSTATUS status = ERROR_SUCCESS;
        if (MayRemove(key, underRoot)) {
            status = RemoveTree(parent, key);
        } else {
            CRegKey kept;
            status = kept.Open(parent, Wide(key.name));
            if (status == ERROR_FILE_NOT_FOUND)
                continue;
            if (status == ERROR_SUCCESS)
                status = RemoveValues(kept.m_hKey, key.values);
            if (status == ERROR_SUCCESS)
                status = Unregister(kept.m_hKey, key.keys, false);
        }
        if (status != ERROR_SUCCESS)
            return status;
    }
    return ERROR_SUCCESS;
}

// UTF-8, of which plain ASCII is a part.
std::optional<std::u16string> Decode(std::string_view bytes)
{
    if (bytes.empty())
        return std::u16string();
    const int size = static_cast<int>(bytes.size());
    const int length =
        ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
    if (length <= 0)
        return std::nullopt;
    std::u16string text(static_cast<size_t>(length), u'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()),
                          length);
    return text;
}

} // namespace

void CRegObject::AddReplacement(std::wstring_view key, std::wstring_view item)
{
    m_replacements.Add(Narrowed(key), Narrowed(item));
}

HRESULT CRegObject::ResourceRegister(HINSTANCE module, UINT nID, LPCWSTR szType)
{
    return RunResource(module, nID, szType, true);
}

HRESULT CRegObject::ResourceUnregister(HINSTANCE module, UINT nID, LPCWSTR szType)
{
    return RunResource(module, nID, szType, false);
}

std::wstring CRegObject::EscapeSingleQuotes(std::wstring_view text)
{
    const std::u16string escaped = RegistrarScript::EscapeSingleQuotes(Narrowed(text));
    return {Wide(escaped), escaped.size()};
}

HRESULT CRegObject::RunResource(HINSTANCE module, UINT nID, LPCWSTR szType, bool bRegister) const
try {
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(nID), szType);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    if (!loaded)
        return HRESULT_FROM_WIN32(::GetLastError());
    const auto text =
        Decode({static_cast<const char*>(::LockResource(loaded)), ::SizeofResource(module, found)});
    return text ? Run(*text, bRegister) : DISP_E_EXCEPTION;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

HRESULT CRegObject::Run(std::u16string_view script, bool bRegister) const
try {
    const auto expanded = RegistrarScript::Expand(script, m_replacements);
    const auto roots = expanded ? RegistrarScript::Parse(*expanded) : std::nullopt;
    if (!roots)
        return DISP_E_EXCEPTION;
    for (const Root& root : *roots) {
        const HKEY handle = HandleOf(root.root);
        LSTATUS status =
            bRegister ? SetNamedValues(handle, root.values) : RemoveValues(handle, root.values);
        if (status == ERROR_SUCCESS)
            status = bRegister ? Register(handle, root.keys, true) : Unregister(handle, root.keys, true);
        if (status != ERROR_SUCCESS)
            return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
    }
    return S_OK;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}
