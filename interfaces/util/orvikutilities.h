#pragma once
// OrvikUtilities: small conversions that several modules of the driver must do alike.

#include "cxstring.h"
#include "utilapi.h"

class O7UTIL_API OrvikUtilities
{
public:
    OrvikUtilities() = delete;

    /// The printer's name as the name of one registry sub-key. "\" becomes "%5C" and "%" becomes
    /// "%25"; the empty name becomes "%". No two names give the same key.
    static CXString ConvertPrinterNameToRegistryKey(const CXString& printerName);
    /// The exact inverse. A "%" that the conversion would not have written stays as it is.
    static CXString ConvertRegistryKeyToPrinterName(const CXString& key);
};
