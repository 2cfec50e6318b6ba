#include "scripttexts.h"

#include <utility>
#include <vector>

namespace o7::story {

std::unique_ptr<ScriptTexts> ScriptTexts::read(const std::filesystem::path& product,
                                               const std::string& language)
{
    std::vector<PackageError> errors;
    PackageTexts texts = readTextScript(product / "strings" / (language + ".rc"), errors);
    return errors.empty() ? std::unique_ptr<ScriptTexts>(new ScriptTexts(std::move(texts)))
                          : nullptr;
}

CXString ScriptTexts::LoadStringW(unsigned id) const
{
    const auto found = m_texts.find(id);
    return CXString::FromUtf8(found != m_texts.end() ? found->second.text
                                                     : "#" + std::to_string(id));
}

} // namespace o7::story
