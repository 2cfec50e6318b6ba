// The texts of the pages in every language: none missing, and no two controls of a page that
// answer to the same key.

#include "products.h"
#include "uidata.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using o7::StringTable;

/// Walks one page and gathers who answers to which key.
class PageWalk
{
public:
    explicit PageWalk(const StringTable& strings) : m_strings(strings) {}

    void container(const UIContainerRecord& page)
    {
        text(page.title);
        for (const auto& column : page.columns)
            molecules(column.molecules);
        for (const auto& action : page.dialogActions)
            text(action.label);
    }

private:
    void molecules(const UIRecords<UIMoleculeRecord>& records)
    {
        for (const auto& molecule : records) {
            text(molecule.title);
            for (const auto& control : molecule.controls)
                text(control.label);
            molecules(molecule.children);
            if (molecule.nested != nullptr)
                container(*molecule.nested);
        }
    }

    void text(unsigned number)
    {
        if (number == 0)
            return;
        const auto found = m_strings.find(number);
        ASSERT_NE(found, m_strings.end()) << "no text " << number;
        const std::string key = o7::mnemonicOf(found->second);
        if (key.empty())
            return;
        EXPECT_TRUE(key >= "0" && key <= "z") << "no such key everywhere: " << found->second;
        EXPECT_NE(key, "a") << "belongs to Apply: " << found->second;
        const auto [other, isNew] = m_keys.emplace(key, found->second);
        EXPECT_TRUE(isNew) << "same key: " << other->second << " and " << found->second;
    }

    const StringTable& m_strings;
    std::map<std::string, std::string> m_keys;
};

void checkPages(const StringTable& strings, const UIData& data, const std::string& where)
{
    for (const auto* containers : {&data.getTabs(), &data.getDialogs()}) {
        for (const auto& page : *containers) {
            SCOPED_TRACE(where + " page " + std::to_string(page->getId()));
            PageWalk(strings).container(page->getRecord());
        }
    }
    EXPECT_TRUE(data.isEmpty() || strings.count(data.getCaption())) << data.getCaption();
}

TEST(PageTexts, AreThereAndHaveDistinctMnemonics)
{
    for (const std::string language : o7::kLanguages) {
        for (const auto& product : o7::kProducts) {
            const StringTable strings = o7::productStrings(product.name, language);
            for (const int mode : {1, 2, 3, 4}) {
                const UIData data(static_cast<UIMode>(mode),
                                  static_cast<DataModelIds::tagValueEnum>(product.family),
                                  Workflow::Standard);
                checkPages(strings, data,
                           language + ' ' + product.name + " mode " + std::to_string(mode));
            }
        }
    }
}

} // namespace
