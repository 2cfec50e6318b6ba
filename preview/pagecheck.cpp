#include "pagecheck.h"

#include <cctype>
#include <map>

namespace o7 {
namespace {

/// Visits everything on a page in the order in which it is described.
class PageWalk
{
public:
    std::function<void(unsigned)> text = [](unsigned) {};
    std::function<void(DataModelIds::tagFeatureEnum)> feature = [](auto) {};
    std::function<void(DataModelIds::tagFeatureEnum, unsigned)> label = [](auto, unsigned) {};

    void container(const UIContainerRecord& page) const
    {
        text(page.title);
        for (const auto& column : page.columns) {
            molecules(column.molecules);
        }
        for (const auto& action : page.dialogActions) {
            text(action.label);
        }
        for (const auto& simple : page.simpleFeatures) {
            feature(simple.feature);
        }
    }

private:
    void molecules(const UIRecords<UIMoleculeRecord>& records) const
    {
        for (const auto& molecule : records) {
            text(molecule.title);
            for (const auto& control : molecule.controls) {
                text(control.label);
                feature(control.feature);
                // The two ends of a range have labels of their own.
                const bool names = control.kind == UIControlKind::Check ||
                                   (control.kind == UIControlKind::Text &&
                                    molecule.kind != UIMoleculeKind::RangeOfInteger);
                if (names && control.label != 0 && control.feature != DataModelIds::kNoFeature)
                    label(control.feature, control.label);
            }
            molecules(molecule.children);
            if (molecule.nested != nullptr) {
                container(*molecule.nested);
            }
        }
    }
};

template <class Visit> void forEachPage(const UIData& data, Visit visit)
{
    for (const auto* containers : {&data.getTabs(), &data.getDialogs(), &data.getOffTabs()}) {
        for (const auto& page : *containers) {
            visit(page->getRecord());
        }
    }
}

} // namespace

std::vector<unsigned> PageCheck::textNumbers() const
{
    std::vector<unsigned> numbers;
    PageWalk walk;
    walk.text = [&](unsigned number) {
        if (number != 0) {
            numbers.push_back(number);
        }
    };
    walk.text(m_data.getCaption());
    forEachPage(m_data, [&](const UIContainerRecord& page) { walk.container(page); });
    return numbers;
}

void PageCheck::forEachFeature(
    const std::function<void(DataModelIds::tagFeatureEnum, unsigned)>& visit) const
{
    forEachPage(m_data, [&](const UIContainerRecord& page) {
        PageWalk walk;
        walk.feature = [&](DataModelIds::tagFeatureEnum feature) {
            if (feature != DataModelIds::kNoFeature) {
                visit(feature, page.title);
            }
        };
        walk.container(page);
    });
}

void PageCheck::forEachLabel(
    const std::function<void(DataModelIds::tagFeatureEnum, unsigned)>& visit) const
{
    PageWalk walk;
    walk.label = visit;
    forEachPage(m_data, [&](const UIContainerRecord& page) { walk.container(page); });
}

void PageCheck::checkMnemonics(const PackageTexts& texts, std::vector<PackageError>& mistakes) const
{
    std::vector<const UIContainerRecord*> around; // every page of the sheet
    for (const auto& area : m_data.getOffTabs()) {
        around.push_back(&area->getRecord());
    }
    const auto check = [&](const UIContainerRecord& page,
                           const std::vector<const UIContainerRecord*>& areas) {
        std::map<std::string, const PackageText*> keys;
        PageWalk walk;
        walk.text = [&](unsigned number) {
            const auto found = texts.find(number);
            const std::string key =
                found == texts.end() ? std::string() : mnemonicOf(found->second.text);
            if (key.empty()) {
                return;
            }
            const PackageText& label = found->second;
            const auto fail = [&](const std::string& what) {
                mistakes.push_back({label.file, label.line, "\"" + label.text + "\": " + what});
            };
            const bool everywhere =
                key.size() == 1 && std::isalnum(static_cast<unsigned char>(key.front())) != 0;
            if (!everywhere) {
                fail("not every keyboard has the key " + key);
            } else if (key == "a") {
                fail("the key A belongs to Apply");
            }
            const auto [other, isNew] = keys.emplace(key, &label);
            if (!isNew && other->second != &label) {
                fail("shares the key " + key + " with \"" + other->second->text +
                     "\" of the same page");
            }
        };
        for (const UIContainerRecord* area : areas) {
            walk.container(*area);
        }
        walk.container(page);
    };
    for (const auto& page : m_data.getTabs()) {
        check(page->getRecord(), around);
    }
    for (const auto& dialog : m_data.getDialogs()) {
        check(dialog->getRecord(), {});
    }
}

std::string mnemonicOf(std::string_view text)
{
    for (std::size_t at = text.find('&'); at != std::string_view::npos && at + 1 < text.size();
         at = text.find('&', at + 2)) {
        if (text[at + 1] == '&') {
            continue;
        }
        // The whole character, however many bytes it has.
        std::size_t end = at + 2;
        while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
            ++end;
        }
        std::string key(text.substr(at + 1, end - at - 1));
        if (key.size() == 1) {
            key.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(key.front())));
        }
        return key;
    }
    return {};
}

} // namespace o7
