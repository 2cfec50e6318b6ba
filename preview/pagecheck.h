#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "textscript.h"
#include "uidata.h"

namespace o7 {

/// What there is to say about the pages of one mode of a device family.
class PageCheck
{
public:
    explicit PageCheck(const UIData& data) : m_data(data) {}

    /// The numbers of all texts that the pages show.
    std::vector<unsigned> textNumbers() const;

    /// Calls for each feature that the pages show or carry, with a page's title number.
    void forEachFeature(const std::function<void(DataModelIds::tagFeatureEnum feature,
                                                 unsigned page)>& visit) const;

    /// Calls for each label of a setting, with the label's number.
    void forEachLabel(const std::function<void(DataModelIds::tagFeatureEnum feature,
                                               unsigned label)>& visit) const;

    /// Adds the keys that cannot be used, or that two controls of a page share.
    void checkMnemonics(const PackageTexts& texts, std::vector<PackageError>& mistakes) const;

private:
    const UIData& m_data; ///< borrowed
};

/// The character after the first single "&", in lower case where it is a letter of the Latin
/// alphabet; empty when there is none.
std::string mnemonicOf(std::string_view text);

} // namespace o7
