#include "orvikutilities.h"

namespace {

// A key cannot have an empty name: that would be its parent. No escape is a lone "%".
constexpr const wchar_t* kEmptyName = L"%";

} // namespace

CXString OrvikUtilities::ConvertPrinterNameToRegistryKey(const CXString& printerName)
{
    if (printerName.IsEmpty()) {
        return kEmptyName;
    }
    CXString key = printerName;
    key.Replace(L"%", L"%25");
    key.Replace(L"\\", L"%5C");
    return key;
}

CXString OrvikUtilities::ConvertRegistryKeyToPrinterName(const CXString& key)
{
    if (key == kEmptyName) {
        return {};
    }
    CXString name = key;
    name.Replace(L"%5C", L"\\");
    name.Replace(L"%25", L"%");
    return name;
}
