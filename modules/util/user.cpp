#include "user.h"

#include "registrykey.h"
#include "throworvik.h"

#include <memory>

#include <windows.h>
// Needs what windows.h declares.
#include <objbase.h>
#include <shlobj.h>

namespace {

CXString keyPath(const CXString& path)
{
    return L"Software\\Orvik\\" + path;
}

[[noreturn]] void refuse(const wchar_t* function, const CXString& path, const CXString& key)
{
    o7::throwOrvik(GetOrvikException, L"OrvikException", o7::ThrowSite(function),
                   L"The setting \"%s\" could not be stored in the registry key \"%s\".",
                   key.c_str(), keyPath(path).c_str());
}

struct TaskMemoryFree
{
    void operator()(wchar_t* memory) const noexcept { CoTaskMemFree(memory); }
};

} // namespace

bool User::GetUserDataBooleanFromRegistry(const CXString& path, const CXString& key,
                                          bool defaultValue)
{
    const RegistryKey place(HKEY_CURRENT_USER, keyPath(path));
    return place.GetLongValue(key, defaultValue ? 1 : 0) != 0;
}

void User::StoreUserDataBooleanInRegistry(const CXString& path, const CXString& key, bool value)
{
    RegistryKey place(HKEY_CURRENT_USER, keyPath(path));
    if (!place.SetLongValue(key, value ? 1 : 0)) {
        refuse(L"User::StoreUserDataBooleanInRegistry", path, key);
    }
}

bool User::GetUserDataBytesFromRegistry(const CXString& path, const CXString& key,
                                        ByteBuffer& value)
{
    const RegistryKey place(HKEY_CURRENT_USER, keyPath(path));
    return place.GetBytesValue(key, value);
}

void User::StoreUserDataBytesInRegistry(const CXString& path, const CXString& key,
                                        const ByteBuffer& value)
{
    RegistryKey place(HKEY_CURRENT_USER, keyPath(path));
    if (!place.SetBytesValue(key, value)) {
        refuse(L"User::StoreUserDataBytesInRegistry", path, key);
    }
}

CXString User::GetUserApplicationDirectory()
{
    PWSTR found = nullptr;
    const HRESULT result =
        SHGetKnownFolderPath(FOLDERID_RoamingAppData, KF_FLAG_DONT_VERIFY, nullptr, &found);
    // To be freed whether or not the call succeeded.
    const std::unique_ptr<wchar_t, TaskMemoryFree> path(found);
    return SUCCEEDED(result) ? CXString(path.get()) : CXString();
}
