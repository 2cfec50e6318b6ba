#pragma once
// TextResourceLoader: the string resources of one module.

#include "cxstring.h"
#include "istringsource.h"
#include "utilapi.h"

struct HINSTANCE__;

class O7UTIL_API TextResourceLoader : public IStringSource
{
public:
    /// The module is borrowed and must outlive the loader. Null means the program itself.
    explicit TextResourceLoader(HINSTANCE__* module) noexcept : m_module(module) {}

    /// The text whole, whatever its length (LoadStringW); "#" and the number when it is missing,
    /// empty, or above 65535.
    CXString LoadStringW(unsigned id) const override;

private:
    HINSTANCE__* m_module;
};
