#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "istringsource.h"
#include "textscript.h"

namespace o7::story {

/// The texts of a product as they were written, for where its string modules were not built.
class ScriptTexts final : public IStringSource
{
public:
    /// Null when there is no script for the language, or a faulty one.
    static std::unique_ptr<ScriptTexts> read(const std::filesystem::path& product,
                                             const std::string& language);

    CXString LoadStringW(unsigned id) const override;

private:
    explicit ScriptTexts(PackageTexts texts) : m_texts(std::move(texts)) {}

    PackageTexts m_texts;
};

} // namespace o7::story
