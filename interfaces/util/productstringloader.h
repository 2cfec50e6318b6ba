#pragma once
// ProductStringLoader: the texts of a product in one language, from the resource module
// "strings-<language>.dll" in the product folder. The module is loaded as data by its full path, so
// none of its code runs, and freed with the loader.

#include "cxstring.h"
#include "istringsource.h"
#include "utilapi.h"

struct HINSTANCE__;

class O7UTIL_API ProductStringLoader : public IStringSource
{
public:
    /// Takes the texts of `language` ("de"), or of English when the product has none in it. With
    /// neither there, every text is "#" and its number. A language that is not made of letters,
    /// digits, "-" and "_" counts as missing.
    ProductStringLoader(int controllerFamily, const CXString& folder, const CXString& language);
    ~ProductStringLoader() override;
    ProductStringLoader(const ProductStringLoader&) = delete;
    ProductStringLoader& operator=(const ProductStringLoader&) = delete;

    CXString LoadStringW(unsigned id) const override;
    virtual CXString GetStringForFeature(int featureEnum) const;
    virtual CXString GetStringForValue(int valueEnum) const;

    int GetControllerFamily() const noexcept { return m_controllerFamily; }
    /// The language really loaded; empty when there was none.
    const CXString& GetLanguage() const noexcept { return m_language; }

private:
    bool load(const CXString& folder, const CXString& language);

    int m_controllerFamily;
    CXString m_language;
    HINSTANCE__* m_module = nullptr;
};
