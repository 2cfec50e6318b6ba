// A source of its own: the linker takes it only for modules that call it, so that a module without
// the utility module can link the loader too.

#include "dlldelayloader.h"

#include "exceptiondelayloaddllloadfailure.h"
#include "throworvik.h"

namespace o7 {

HMODULE DllDelayLoader::loadOrThrow()
{
    if (HMODULE module = load()) {
        return module;
    }
    const unsigned long code = GetLastError();
    throwOrvik(GetExceptionDelayLoadDllLoadFailure, L"ExceptionDelayLoadDllLoadFailure",
               {L"DllDelayLoader::loadOrThrow"}, L"%s could not be loaded (error %lu)", m_fileName,
               code);
}

} // namespace o7
