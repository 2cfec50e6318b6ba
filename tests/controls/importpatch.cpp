#include "importpatch.h"

#include <windows.h>

#include <cstring>
#include <utility>

namespace o7::test {

namespace {

template <class T> T* at(BYTE* image, DWORD offset)
{
    return reinterpret_cast<T*>(image + offset);
}

/// The slot of the import table through which this program calls the function, or null.
void** findSlot(const char* function)
{
    auto* image = reinterpret_cast<BYTE*>(::GetModuleHandleW(nullptr));
    const auto header = static_cast<DWORD>(at<IMAGE_DOS_HEADER>(image, 0)->e_lfanew);
    const auto& imports = at<IMAGE_NT_HEADERS>(image, header)
                              ->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(image, imports.VirtualAddress);
    for (; library->Name != 0; ++library) {
        auto* name = at<IMAGE_THUNK_DATA>(image, library->OriginalFirstThunk);
        auto* slot = at<void*>(image, library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++slot) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
                continue;
            }
            const auto offset = static_cast<DWORD>(name->u1.AddressOfData);
            if (std::strcmp(at<IMAGE_IMPORT_BY_NAME>(image, offset)->Name, function) == 0) {
                return slot;
            }
        }
    }
    return nullptr;
}

void* exchange(void** slot, void* value)
{
    DWORD protection = 0;
    ::VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    void* former = std::exchange(*slot, value);
    ::VirtualProtect(slot, sizeof *slot, protection, &protection);
    return former;
}

} // namespace

ImportPatch::ImportPatch(const char* function, void* replacement) : m_slot(findSlot(function))
{
    if (m_slot != nullptr) {
        m_original = exchange(m_slot, replacement);
    }
}

ImportPatch::~ImportPatch()
{
    if (m_slot != nullptr) {
        exchange(m_slot, m_original);
    }
}

} // namespace o7::test
