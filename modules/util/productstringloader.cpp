#include "productstringloader.h"

#include "resourcestring.h"

#include <algorithm>

#include <windows.h>

namespace {

constexpr const wchar_t* kFallbackLanguage = L"en";

bool isLanguageCharacter(wchar_t character)
{
    return (character >= L'a' && character <= L'z') || (character >= L'A' && character <= L'Z') ||
           (character >= L'0' && character <= L'9') || character == L'-' || character == L'_';
}

// A language may come from a command line; it must not lead to another folder.
bool isLanguageName(const CXString& language)
{
    const std::wstring_view text = language.View();
    return !text.empty() && std::all_of(text.begin(), text.end(), isLanguageCharacter);
}

} // namespace

ProductStringLoader::ProductStringLoader(int controllerFamily, const CXString& folder,
                                         const CXString& language)
    : m_controllerFamily(controllerFamily)
{
    if (!load(folder, language)) {
        load(folder, kFallbackLanguage);
    }
}

ProductStringLoader::~ProductStringLoader()
{
    if (m_module != nullptr) {
        FreeLibrary(m_module);
    }
}

bool ProductStringLoader::load(const CXString& folder, const CXString& language)
{
    if (!isLanguageName(language)) {
        return false;
    }
    const CXString path =
        CXString::Formatted(L"%s\\strings-%s.dll", folder.c_str(), language.c_str());
    m_module = LoadLibraryExW(path.c_str(), nullptr,
                              LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    if (m_module == nullptr) {
        return false;
    }
    m_language = language;
    return true;
}

CXString ProductStringLoader::LoadStringW(unsigned id) const
{
    return m_module == nullptr ? o7::missingStringText(id) : o7::loadResourceString(m_module, id);
}

CXString ProductStringLoader::GetStringForFeature(int featureEnum) const
{
    return LoadStringW(o7::kFeatureStringBase + static_cast<unsigned>(featureEnum));
}

CXString ProductStringLoader::GetStringForValue(int valueEnum) const
{
    return LoadStringW(o7::kValueStringBase + static_cast<unsigned>(valueEnum));
}
