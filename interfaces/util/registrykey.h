#pragma once
// RegistryKey: named values under one registry key.
//
// Root and path are given by the owner, so that tests and tools can use a place of their own. No
// handle is kept between operations. Reading operations fall back to what the caller gives when
// the key or value is missing, of another type, or not readable; writing ones create the key when
// it is missing and return false when the system refuses. Virtual, so that tests can stand in.

#include "bytebuffer.h"
#include "cxstring.h"
#include "utilapi.h"

#include <cstdint>

struct HKEY__;

class O7UTIL_API RegistryKey
{
public:
    /// `root` is one of the predefined keys (HKEY_CURRENT_USER ...) or an open key that outlives
    /// this object; it is never closed here.
    RegistryKey(HKEY__* root, const CXString& path);
    virtual ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    const CXString& GetPath() const noexcept { return m_path; }
    virtual bool Exists() const;
    /// Creates the key and those above it; true also when it is there already.
    virtual bool CreateRegistryKey();

    /// REG_DWORD, taken as a signed number.
    virtual std::int32_t GetLongValue(const CXString& name, std::int32_t defaultValue) const;
    virtual bool SetLongValue(const CXString& name, std::int32_t value);
    /// REG_BINARY. False, and `value` untouched, when there is none.
    virtual bool GetBytesValue(const CXString& name, ByteBuffer& value) const;
    virtual bool SetBytesValue(const CXString& name, const ByteBuffer& value);
    /// REG_SZ; up to the first zero when the stored text has several.
    virtual CXString GetStringValue(const CXString& name, const CXString& defaultValue) const;
    virtual bool SetStringValue(const CXString& name, const CXString& value);

    /// True also when there was no such value.
    virtual bool DeleteValue(const CXString& name);
    /// Deletes the key with everything below it; true also when it was not there. Refuses an empty
    /// path, which would empty the root.
    virtual bool DeleteKey();

private:
    HKEY__* m_root;
    CXString m_path;
};
