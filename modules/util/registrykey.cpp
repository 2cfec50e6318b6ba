#include "registrykey.h"

#include <cstring>
#include <limits>
#include <utility>

#include <windows.h>

namespace {

// Owns an open key for the length of one operation.
class OpenKey
{
public:
    OpenKey() noexcept = default;
    ~OpenKey()
    {
        if (m_key != nullptr) {
            RegCloseKey(m_key);
        }
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    LSTATUS open(HKEY root, const CXString& path, REGSAM access) noexcept
    {
        return RegOpenKeyExW(root, path.c_str(), 0, access, &m_key);
    }
    LSTATUS create(HKEY root, const CXString& path, REGSAM access) noexcept
    {
        return RegCreateKeyExW(root, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access,
                               nullptr, &m_key, nullptr);
    }
    HKEY get() const noexcept { return m_key; }

private:
    HKEY m_key = nullptr;
};

bool isGone(LSTATUS status)
{
    return status == ERROR_FILE_NOT_FOUND;
}

bool readValue(HKEY root, const CXString& path, const CXString& name, DWORD type, ByteBuffer& value)
{
    OpenKey key;
    if (key.open(root, path, KEY_QUERY_VALUE) != ERROR_SUCCESS) {
        return false;
    }
    // The value may grow between asking its size and reading it.
    DWORD size = 0;
    DWORD found = 0;
    ByteBuffer bytes;
    LSTATUS status = RegQueryValueExW(key.get(), name.c_str(), nullptr, &found, nullptr, &size);
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        if (found != type) {
            return false;
        }
        bytes.resize(size);
        BYTE none = 0;
        status = RegQueryValueExW(key.get(), name.c_str(), nullptr, &found,
                                  size == 0 ? &none : bytes.data(), &size);
        if (status == ERROR_SUCCESS && found == type) {
            bytes.resize(size);
            value = std::move(bytes);
            return true;
        }
    }
    return false;
}

bool writeValue(HKEY root, const CXString& path, const CXString& name, DWORD type,
                const BYTE* bytes, std::size_t count)
{
    OpenKey key;
    return count <= std::numeric_limits<DWORD>::max() &&
           key.create(root, path, KEY_SET_VALUE) == ERROR_SUCCESS &&
           RegSetValueExW(key.get(), name.c_str(), 0, type, bytes, static_cast<DWORD>(count)) ==
               ERROR_SUCCESS;
}

} // namespace

RegistryKey::RegistryKey(HKEY__* root, const CXString& path) : m_root(root), m_path(path)
{
}

RegistryKey::~RegistryKey() = default;

bool RegistryKey::Exists() const
{
    OpenKey key;
    return key.open(m_root, m_path, KEY_QUERY_VALUE) == ERROR_SUCCESS;
}

bool RegistryKey::CreateRegistryKey()
{
    OpenKey key;
    return key.create(m_root, m_path, KEY_QUERY_VALUE) == ERROR_SUCCESS;
}

std::int32_t RegistryKey::GetLongValue(const CXString& name, std::int32_t defaultValue) const
{
    ByteBuffer bytes;
    std::int32_t value = 0;
    if (!readValue(m_root, m_path, name, REG_DWORD, bytes) || bytes.size() != sizeof value) {
        return defaultValue;
    }
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

bool RegistryKey::SetLongValue(const CXString& name, std::int32_t value)
{
    return writeValue(m_root, m_path, name, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                      sizeof value);
}

bool RegistryKey::GetBytesValue(const CXString& name, ByteBuffer& value) const
{
    return readValue(m_root, m_path, name, REG_BINARY, value);
}

bool RegistryKey::SetBytesValue(const CXString& name, const ByteBuffer& value)
{
    return writeValue(m_root, m_path, name, REG_BINARY, value.data(), value.size());
}

CXString RegistryKey::GetStringValue(const CXString& name, const CXString& defaultValue) const
{
    // Stored texts need not end in a zero, which getAsStringValue does not rely on.
    ByteBuffer bytes;
    return readValue(m_root, m_path, name, REG_SZ, bytes) ? bytes.getAsStringValue() : defaultValue;
}

bool RegistryKey::SetStringValue(const CXString& name, const CXString& value)
{
    const std::size_t count = (static_cast<std::size_t>(value.GetLength()) + 1) * sizeof(wchar_t);
    return writeValue(m_root, m_path, name, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                      count);
}

bool RegistryKey::DeleteValue(const CXString& name)
{
    OpenKey key;
    const LSTATUS opened = key.open(m_root, m_path, KEY_SET_VALUE);
    if (opened != ERROR_SUCCESS) {
        return isGone(opened);
    }
    const LSTATUS deleted = RegDeleteValueW(key.get(), name.c_str());
    return deleted == ERROR_SUCCESS || isGone(deleted);
}

bool RegistryKey::DeleteKey()
{
    if (m_path.IsBlank()) {
        return false;
    }
    const LSTATUS deleted = RegDeleteTreeW(m_root, m_path.c_str());
    return deleted == ERROR_SUCCESS || isGone(deleted);
}
