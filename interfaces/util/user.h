#pragma once
// User: what is kept for the present user: registry values under "Software\Orvik\<path>" of the
// current user's hive, and the directory for files.

#include "bytebuffer.h"
#include "cxstring.h"
#include "utilapi.h"

class O7UTIL_API User
{
public:
    User() = delete;

    /// Anything but 0 counts as true.
    static bool GetUserDataBooleanFromRegistry(const CXString& path, const CXString& key,
                                               bool defaultValue);
    /// Throws OrvikException when the value cannot be stored.
    static void StoreUserDataBooleanInRegistry(const CXString& path, const CXString& key,
                                               bool value);
    /// False, and `value` untouched, when there is none.
    static bool GetUserDataBytesFromRegistry(const CXString& path, const CXString& key,
                                             ByteBuffer& value);
    /// Throws OrvikException when the value cannot be stored.
    static void StoreUserDataBytesInRegistry(const CXString& path, const CXString& key,
                                             const ByteBuffer& value);

    /// The user's (roaming) application-data directory, without a separator at its end; empty when
    /// the system knows none.
    static CXString GetUserApplicationDirectory();
};
