#include "resourcestring.h"

#include <windows.h>

namespace o7 {

CXString missingStringText(unsigned id)
{
    return CXString::Formatted(L"#%u", id);
}

CXString loadResourceString(HINSTANCE__* module, unsigned id)
{
    // The resource number has 16 bits; the system would cut a larger one and find another text.
    constexpr unsigned kLargestId = 0xFFFF;
    if (id > kLargestId) {
        return missingStringText(id);
    }
    // A buffer length of 0 asks for the text in place, of whatever length, without terminator.
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(module, id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 && text != nullptr ? CXString(text, length) : missingStringText(id);
}

} // namespace o7
