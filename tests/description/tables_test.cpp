// Walks every row of every table of the description and holds it against what a page must be.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "papersizemenumetricdata.h"
#include "tables/rootrecords.h"
#include "uidata.h"
#include "uilistcontroldata.h"
#include "uislidercontroldata.h"
#include "uispincontroldata.h"
#include "uitextcontroldata.h"

namespace {

// Dialog units; the layout needs at least this much for each molecule.
constexpr std::int32_t kMargin = 7;
constexpr std::int32_t kCheckHeight = 12;
constexpr std::int32_t kLabelHeight = 9;
constexpr std::int32_t kBoxHeight = 12;
constexpr std::int32_t kGroupTop = 11;
constexpr std::int32_t kGroupBottom = 7;
constexpr std::int32_t kGroupGap = 7;
constexpr std::int32_t kGap = 4;
constexpr std::int32_t kLineHeight = 8;
constexpr std::int32_t kButtonRow = 7 + 14;

/// From here on texts are shown by classes, not by tables.
constexpr std::uint32_t kFirstCodeText = 34000;

/// The English texts by number, as they stand behind the numbers.
std::map<std::uint32_t, std::string> readTexts()
{
    std::map<std::uint32_t, std::string> texts;
    std::ifstream file(O7_STRING_NUMBERS);
    const std::regex row(R"re(#define O7STR_\w+ (\d+) // "(.*)")re");
    std::smatch match;
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("#define", 0) != 0)
            continue;
        if (std::regex_match(line, match, row)) {
            const auto number = static_cast<std::uint32_t>(std::stoul(match[1]));
            EXPECT_TRUE(texts.emplace(number, match[2]).second) << "twice: " << line;
        } else {
            ADD_FAILURE() << "no text: " << line;
        }
    }
    return texts;
}

class Tables : public ::testing::Test
{
protected:
    /// The text of that number, which must exist; it counts as used.
    const std::string& use(std::uint32_t number)
    {
        m_used.insert(number);
        const auto found = m_texts.find(number);
        EXPECT_NE(found, m_texts.end()) << "no text " << number;
        static const std::string kNone;
        return found != m_texts.end() ? found->second : kNone;
    }

    void usePlain(std::uint32_t number)
    {
        EXPECT_EQ(use(number).find('&'), std::string::npos) << "no mnemonic here: " << number;
    }

    void useIfAny(std::uint32_t number)
    {
        if (number != 0)
            usePlain(number);
    }

    void checkContainer(const UIContainerData& container);
    void checkMolecule(const UIMoleculeData& molecule);
    void checkControl(const UIMoleculeData& molecule, const UIControlData& control);
    void checkMnemonic(std::uint32_t number);

    std::map<std::uint32_t, std::string> m_texts = readTexts();
    std::set<std::uint32_t> m_used;
    std::set<int> m_pageFeatures;
};

/// What stands below or beside the label of a molecule; how many options a product has is not known
/// here, so radio buttons count as two.
std::int32_t boxHeight(const UIMoleculeData& molecule)
{
    switch (molecule.getKind()) {
    case UIMoleculeKind::CheckBox:
        return kCheckHeight - kGap;
    case UIMoleculeKind::Slider:
        return 15 + kLineHeight;
    case UIMoleculeKind::PickOne:
        return kLineHeight * static_cast<std::int32_t>(
                                 molecule.findControl<UIListControlData>()->getVisibleRows());
    case UIMoleculeKind::PickOneRadio:
    case UIMoleculeKind::RadioButtons:
        return kCheckHeight * 2 - kGap;
    case UIMoleculeKind::RangeOfInteger:
        return kCheckHeight + kBoxHeight;
    default:
        return kBoxHeight;
    }
}

std::int32_t minimalHeight(const UIMoleculeData& molecule, std::int32_t labelWidth)
{
    switch (molecule.getKind()) {
    case UIMoleculeKind::Text:
        return kGap + kLineHeight * static_cast<std::int32_t>(
                                        molecule.findControl<UITextControlData>()->getLines());
    case UIMoleculeKind::GroupBox: {
        std::int32_t height = kGroupTop - kGap + kGroupBottom + kGroupGap;
        for (const auto& child : molecule.getChildren())
            height += minimalHeight(*child, labelWidth);
        return height;
    }
    default: {
        const bool above = molecule.findControl<UITextControlData>() && labelWidth == 0 &&
                           molecule.getLabelWidth() == 0;
        return boxHeight(molecule) + kGap + (above ? kLabelHeight : 0);
    }
    }
}

void Tables::checkMnemonic(std::uint32_t number)
{
    const std::string& text = use(number);
    const std::size_t mark = text.find('&');
    ASSERT_TRUE(mark != std::string::npos && mark + 1 < text.size()) << text;
    EXPECT_EQ(text.find('&', mark + 1), std::string::npos) << text;
}

void Tables::checkControl(const UIMoleculeData& molecule, const UIControlData& control)
{
    switch (control.getKind()) {
    case UIControlKind::Text:
        if (molecule.getKind() == UIMoleculeKind::Text)
            return usePlain(control.getLabel());
        EXPECT_EQ(use(control.getLabel()).back(), ':');
        return checkMnemonic(control.getLabel());
    case UIControlKind::Radio:
        if (molecule.getKind() == UIMoleculeKind::PickOneRadio)
            break; // it stands for a button of each option
        [[fallthrough]];
    case UIControlKind::Check:
        EXPECT_NE(use(control.getLabel()).back(), ':');
        return checkMnemonic(control.getLabel());
    default:
        break;
    }
    if (const auto* spin = dynamic_cast<const UISpinControlData*>(&control))
        for (const bool metric : {true, false})
            useIfAny(spin->getUnitLabel(metric));
    if (const auto* slider = dynamic_cast<const UISliderControlData*>(&control))
        for (const std::uint32_t end : {slider->getLowLabel(), slider->getHighLabel()})
            usePlain(end);
    EXPECT_TRUE(control.getLabel() == 0 || molecule.getKind() == UIMoleculeKind::Button)
        << "its label is the text before it";
}

void Tables::checkMolecule(const UIMoleculeData& molecule)
{
    const bool bound = molecule.getFeature() != DataModelIds::kNoFeature;
    EXPECT_EQ(molecule.hasFeatureState(), bound);
    if (bound) {
        EXPECT_TRUE(m_pageFeatures.insert(molecule.getFeature()).second)
            << "feature " << molecule.getFeature() << " twice";
    }
    for (const auto& control : molecule.getControls())
        checkControl(molecule, *control);
    EXPECT_EQ(molecule.getKind() == UIMoleculeKind::GroupBox, !molecule.getChildren().empty());
    if (molecule.getTitle() != 0)
        usePlain(molecule.getTitle());
    for (const auto& child : molecule.getChildren())
        checkMolecule(*child);
}

void Tables::checkContainer(const UIContainerData& container)
{
    m_pageFeatures.clear();
    usePlain(container.getTitle());
    std::int32_t right = 0;
    for (const auto& column : container.getColumns()) {
        EXPECT_GE(column->getX(), right == 0 ? kMargin : right + kGap) << "columns overlap";
        right = column->getX() + column->getWidth();
        std::int32_t bottom = kMargin - kGroupGap; // none below the last
        for (const auto& molecule : column->getMolecules()) {
            checkMolecule(*molecule);
            bottom += minimalHeight(*molecule, column->getLabelWidth());
        }
        if (!container.getDialogActions().empty())
            bottom += kButtonRow;
        EXPECT_LE(bottom, container.getHeight() - kMargin) << "column at " << column->getX();
    }
    EXPECT_LE(right, container.getWidth() - kMargin);
    EXPECT_FALSE(m_pageFeatures.empty()) << "nothing to set";
    for (const auto& action : container.getDialogActions())
        usePlain(action->getLabel());
    EXPECT_LE(container.getDialogActions().size(), 3u);
}

TEST_F(Tables, EveryPageIsWhole)
{
    int roots = 0;
    for (const auto* family : {&o7::kFamily8430, &o7::kFamily8431, &o7::kFamily8432,
                               &o7::kFamily8433, &o7::kFamily8434}) {
        for (const UIRootRecord& root : *family) {
            ++roots;
            const UIData data(root, root.mode, Workflow::Standard);
            usePlain(data.getCaption());
            // The titles of a sheet fit one row: about 4 units a character, 8 for the tab around.
            std::size_t row = 0;
            for (const UIContainerRecord& tab : root.tabs)
                row += 4 * use(tab.title).size() + 8;
            EXPECT_LE(root.tabs.size(), 7u);
            EXPECT_LE(row, root.tabs.empty() ? 0u : static_cast<std::size_t>(root.tabs[0].width))
                << root.family << ' ' << static_cast<int>(root.mode);
            std::set<std::uint32_t> ids;
            for (const auto* containers : {&data.getTabs(), &data.getDialogs()}) {
                for (const auto& container : *containers) {
                    SCOPED_TRACE("family " + std::to_string(root.family) + " mode " +
                                 std::to_string(static_cast<int>(root.mode)) + " page " +
                                 std::to_string(container->getId()));
                    EXPECT_TRUE(ids.insert(container->getId()).second) << "number taken";
                    EXPECT_EQ(container->getDialogActions().empty(), containers == &data.getTabs());
                    checkContainer(*container);
                }
            }
        }
    }
    EXPECT_EQ(roots, 20);
    const PaperSizeMenuMetricData sizes;
    for (const auto& section : sizes.getSections())
        usePlain(section->getTitle());
    for (const auto& [number, text] : m_texts)
        EXPECT_TRUE(number >= kFirstCodeText || m_used.count(number) == 1)
            << "nobody shows " << number << ' ' << text;
}

} // namespace
