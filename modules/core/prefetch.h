#pragma once

#if defined(_MSC_VER)
#include <intrin.h>
#endif

namespace o7 {

/// Asks the processor to fetch what lies there; of no consequence otherwise.
inline void Prefetch(const void* address)
{
#if defined(_MSC_VER)
    _mm_prefetch(static_cast<const char*>(address), _MM_HINT_T0);
#else
    __builtin_prefetch(address);
#endif
}

} // namespace o7
