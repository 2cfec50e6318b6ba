#include "modelstage.h"

#include <algorithm>
#include <utility>

#include "documentfields.h"
#include "documentsettings.h"
#include "eventnotification.h"
#include "featurepath.h"
#include "nearestword.h"
#include "optioncapability.h"
#include "stepfailure.h"
#include "valuewords.h"
#include "words.h"

namespace o7::story {
namespace {

constexpr int kDeviceMode = 2;
constexpr int kDefaultsMode = 4;

std::string sentence(const CXString& reason)
{
    return reason.IsEmpty() ? "." : ": " + reason.ToUtf8();
}

std::vector<std::string> optionNames(const OptionCapability& options)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < options.GetNumberOfValues(); ++i) {
        names.push_back(options.GetOptionWithState(i).GetValueId().GetValueName().ToUtf8());
    }
    return names;
}

/// The entry with this name; null when the list has none.
const OptionWithState* findEntry(const OptionCapability& options, std::string_view name)
{
    for (std::size_t i = 0; i < options.GetNumberOfValues(); ++i) {
        const OptionWithState& option = options.GetOptionWithState(i);
        if (option.GetValueId().GetValueName().ToUtf8() == name) {
            return &option;
        }
    }
    return nullptr;
}

/// Adds a text that is not there yet: states repeat what they say in more than one place.
void add(std::string& texts, const CXString& text)
{
    const std::string more = text.ToUtf8();
    if (texts.find(more) == std::string::npos) {
        texts.append(texts.empty() ? "" : "\n").append(more);
    }
}

void addAll(std::string& texts, const InterpretedState& state)
{
    for (const CXString& text : {state.GetReason(), state.GetCbrBtnMsg(), state.GetInfoBtnMsg()}) {
        add(texts, text);
    }
}

/// Why a feature does not take a value that is one of its kind.
std::string refusal(const IFeatureNode& feature, const std::string& value)
{
    const auto capabilities = feature.GetCapabilities();
    const auto* const options = dynamic_cast<const OptionCapability*>(capabilities.get());
    if (options == nullptr) {
        return "it does not take " + inQuotes(value) + "; it stays " + valueText(feature);
    }
    if (const OptionWithState* const entry = findEntry(*options, value)) {
        return inQuotes(value) + " cannot be chosen now" +
               sentence(entry->GetInterpretedState().GetReason());
    }
    const std::vector<std::string> names = optionNames(*options);
    return "it has no entry " + inQuotes(value) +
           suggestion(value, std::vector<std::string_view>(names.begin(), names.end()));
}

/// A change as the controls make it: its notifications come when it is complete.
void write(IDataModel& model, IFeatureNode& feature, const FeatureValue& value,
           const std::string& text)
{
    const auto transaction = model.OpenTransaction(L"story");
    const bool taken = std::holds_alternative<std::monostate>(value) ? feature.SetIsSpecified(false)
                                                                     : feature.SetValue(value);
    if (!taken) {
        throw StepFailure(refusal(feature, text));
    }
    transaction->Close(true);
}

} // namespace

ModelStage::ModelStage(Product product, const Session& session, const std::filesystem::path& store)
    : m_product(std::move(product)), m_mode(session.mode), m_store(store, session.product)
{
}

ModelStage::~ModelStage()
{
    close();
}

void ModelStage::open()
{
    close();
    m_model = newModel();
    if (const auto document = m_store.load(StoryStore::Record::Document);
        document && record() == StoryStore::Record::Document) {
        mergeDevMode(*m_model, *document);
    }
    m_model->RegisterForEvent(*this, EventId(DataModelIds::kEventAccepted),
                              DataModelIds::kObserverEvent);
}

void ModelStage::close()
{
    if (m_model) {
        m_model->UnregisterForEvent(*this, EventId(DataModelIds::kEventAccepted),
                                    DataModelIds::kObserverEvent);
        m_model.reset();
    }
}

void ModelStage::leave()
{
    if (m_model) {
        press("Cancel");
    }
}

void ModelStage::press(const std::string& button)
{
    if (button == "Cancel") {
        send(DataModelIds::kEventCancelQueried);
        return close();
    }
    m_accepted = false;
    send(button == "OK" ? DataModelIds::kEventOk : DataModelIds::kEventApply);
    if (button == "OK" && m_accepted) {
        close();
    }
}

void ModelStage::send(DataModelIds::EventEnum event)
{
    model().GetNotificationSink().SendNotification(EventNotification(EventId(event)));
}

void ModelStage::ProcessNotification(const INotification&, unsigned int)
{
    store();
    m_accepted = true;
}

void ModelStage::store() const
{
    if (m_mode != kDeviceMode) {
        return m_store.keep(record(),
                            written(model(), m_mode == kDefaultsMode ? SettingsScope::Defaults
                                                                     : SettingsScope::Document));
    }
    std::vector<std::uint8_t> block;
    if (!model().ExportSettings(block)) {
        throw StepFailure("The device settings are more than a printer can keep.");
    }
    m_store.keep(record(), block);
}

StoryStore::Record ModelStage::record() const
{
    return m_mode == kDeviceMode     ? StoryStore::Record::Printer
           : m_mode == kDefaultsMode ? StoryStore::Record::Defaults
                                     : StoryStore::Record::Document;
}

/// A model as the driver makes it for a new document of this printer.
std::unique_ptr<IDataModel> ModelStage::newModel() const
{
    auto model = CreateDataModel(*m_product.package, *m_product.texts);
    if (const auto device = m_store.load(StoryStore::Record::Printer)) {
        model->ImportSettings(device->data(), device->size());
    }
    if (const auto defaults = m_store.load(StoryStore::Record::Defaults);
        defaults && m_mode != kDeviceMode) {
        mergeDevMode(*model, *defaults, SettingsScope::Defaults);
    }
    return model;
}

/// @throws StepFailure when the settings are more than a document can carry.
std::vector<std::uint8_t> ModelStage::written(IDataModel& model, SettingsScope scope)
{
    std::vector<std::uint8_t> bytes(kDevModeSize);
    const std::span<std::uint8_t, kDevModeSize> devMode(bytes);
    if (!writeDevMode(model, L"Printer of a story", devMode, scope)) {
        throw StepFailure("The settings are more than a document can carry.");
    }
    return bytes;
}

// Documents.

std::vector<std::uint8_t> ModelStage::document() const
{
    auto kept = m_store.load(StoryStore::Record::Document);
    return kept ? std::move(*kept) : written(*newModel());
}

std::string ModelStage::documentField(const std::string& field)
{
    const std::vector<std::uint8_t> bytes = document();
    const auto parts = readDevMode(bytes);
    return parts ? documentFieldText(parts->fields, field) : std::string(kNotSet);
}

void ModelStage::setDocumentField(const std::string& field, const std::string& value)
{
    if (m_model) {
        throw StepFailure("The settings are open, and a program waits until they are closed.");
    }
    std::vector<std::uint8_t> bytes = document();
    PublicFields fields = readDevMode(bytes).value_or(DevModeParts()).fields;
    if (const std::string wanted = story::setDocumentField(fields, field, value); !wanted.empty()) {
        throw StepFailure("The field " + field + " is " + wanted + ", not " + inQuotes(value) +
                          ".");
    }
    const std::span<std::uint8_t> all(bytes);
    writePublicPart(all.first<kPublicPartSize>(), L"Printer of a story", fields,
                    bytes.size() - kPublicPartSize);
    m_store.keep(StoryStore::Record::Document, bytes);
}

// Features.

IDataModel& ModelStage::model() const
{
    if (!m_model) {
        throw StepFailure("Nothing is open; \"reopen\" opens it once more.");
    }
    return *m_model;
}

IFeatureNode::Ptr ModelStage::feature(const ControlName& name) const
{
    const auto top = model().GetFullListOfFeatures().GetNode();
    auto found = findFeature(*top, name.text());
    if (!found) {
        const std::vector<std::string> names = featureNames(*top);
        throw StepFailure(
            "There is no feature " + inQuotes(name.text()) +
            suggestion(name.text(), std::vector<std::string_view>(names.begin(), names.end())));
    }
    return found;
}

void ModelStage::requireChangeable(const IFeatureNode& feature, const ControlName& name) const
{
    const auto capabilities = feature.GetCapabilities();
    const InterpretedState& state = capabilities->GetInterpretedState();
    if (capabilities->IsStateOnlyFeature() || capabilities->IsReadOnly()) {
        throw StepFailure(name.text() + " says how things are; nobody sets it.");
    }
    if (capabilities->IsDeviceFeature() && m_mode != kDeviceMode) {
        throw StepFailure(name.text() + " belongs to the printer: mode 2 sets it.");
    }
    if (!model().TestFeature(feature.GetId())) {
        throw StepFailure(name.text() + " is hidden" + sentence(state.GetReason()));
    }
    if (state.IsDisabled() || state.IsCleared()) {
        throw StepFailure(name.text() + " is disabled" + sentence(state.GetReason()));
    }
}

void ModelStage::set(const ControlName& name, const std::string& text)
{
    const auto node = feature(name);
    requireChangeable(*node, name);
    const auto value = valueOf(*node, text);
    if (!value) {
        throw StepFailure(name.text() + " takes " + std::string(valueForm(node->GetKind())) +
                          ", not " + inQuotes(text) + ".");
    }
    if (node->GetKind() == FeatureKind::ListOfValues) {
        const auto* const count = std::get_if<int>(&*value);
        return resize(*node, name, count != nullptr ? *count : 0);
    }
    write(model(), *node, *value, text);
}

/// New items come at the end, and from there they go.
void ModelStage::resize(IFeatureNode& list, const ControlName& name, int items) const
{
    const auto count = static_cast<std::size_t>(std::max(items, 0));
    const auto transaction = model().OpenTransaction(L"story");
    for (std::size_t had = list.GetNumChildren(); had < count; ++had) {
        if (!list.CreateItem()) {
            throw StepFailure(name.text() + " takes no more than " + std::to_string(had) +
                              " items.");
        }
    }
    while (list.GetNumChildren() > count) {
        list.DeleteItems({list.GetNumChildren() - 1});
    }
    transaction->Close(true);
}

std::string ModelStage::value(const ControlName& name)
{
    return valueText(*feature(name));
}

ControlState ModelStage::state(const ControlName& name)
{
    const auto node = feature(name);
    const auto capabilities = node->GetCapabilities();
    const InterpretedState& state = capabilities->GetInterpretedState();
    const auto conflicts = model().GetFeaturesInConflict();
    return {.hidden = !model().TestFeature(node->GetId()),
            .enabled = !state.IsDisabled() && !state.IsCleared() && !capabilities->IsReadOnly(),
            .empty = state.IsCleared() || !node->IsSpecified(),
            .conflict = std::ranges::find(conflicts, node->GetId()) != conflicts.end()};
}

/// Of the feature, and of the entry that is chosen.
std::string ModelStage::reason(const ControlName& name)
{
    const auto node = feature(name);
    const auto capabilities = node->GetCapabilities();
    std::string texts;
    addAll(texts, capabilities->GetInterpretedState());
    if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
        if (const OptionWithState* chosen = findEntry(*options, valueText(*node))) {
            addAll(texts, chosen->GetInterpretedState());
        }
    }
    return texts;
}

InterpretedState ModelStage::stateOfEntry(const ControlName& name, const std::string& entry,
                                          bool& listed) const
{
    const auto capabilities = feature(name)->GetCapabilities();
    const auto* const options = dynamic_cast<const OptionCapability*>(capabilities.get());
    if (options == nullptr) {
        throw StepFailure(name.text() + " has no list of entries.");
    }
    const OptionWithState* const found = findEntry(*options, entry);
    listed = found != nullptr;
    return listed ? found->GetInterpretedState() : InterpretedState();
}

ControlState ModelStage::entryState(const ControlName& name, const std::string& entry)
{
    bool listed = false;
    const InterpretedState state = stateOfEntry(name, entry, listed);
    if (!listed) {
        throw StepFailure(name.text() + ": " + refusal(*feature(name), entry) + ".");
    }
    return {.hidden = state.IsHidden(),
            .enabled = !state.IsDisabled() && !state.IsCleared(),
            .conflict = state.HasCbrBtnMsg()};
}

std::string ModelStage::entryReason(const ControlName& name, const std::string& entry)
{
    bool listed = false;
    std::string texts;
    addAll(texts, stateOfEntry(name, entry, listed));
    return texts;
}

int ModelStage::conflictCount()
{
    return static_cast<int>(model().GetFeaturesInConflict().size());
}

} // namespace o7::story
