#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "datamodelfactory.h"
#include "iobserver.h"
#include "session.h"
#include "storystage.h"
#include "storystore.h"

namespace o7::story {

/// The entry `model`: a session on the data model alone. Controls are features, by their names in
/// the package, those inside lists as "list/feature" or "list[2]/feature" (the second item). What
/// is accepted is kept, and comes back, the way the driver does it: what is installed with the
/// printer, everything else in a document.
class ModelStage final : public StoryStage, private IObserver
{
public:
    /// What stages of the same product share.
    struct Product
    {
        std::shared_ptr<const ProductPackage> package;
        std::shared_ptr<IStringSource> texts;
    };

    ModelStage(Product product, const Session& session, const std::filesystem::path& store);
    ~ModelStage() override;

    void open() override;
    void reopen() override { open(); }
    void leave() override;
    bool closed() override { return m_model == nullptr; }

    void press(const std::string& button) override;
    void set(const ControlName& feature, const std::string& value) override;

    std::string value(const ControlName& feature) override;
    ControlState state(const ControlName& feature) override;
    std::string reason(const ControlName& feature) override;
    ControlState entryState(const ControlName& feature, const std::string& entry) override;
    std::string entryReason(const ControlName& feature, const std::string& entry) override;
    int conflictCount() override;

    std::string documentField(const std::string& field) override;
    void setDocumentField(const std::string& field, const std::string& value) override;

private:
    /// The model has accepted: the time to store.
    void ProcessNotification(const INotification& notification, unsigned int kind) override;

    IDataModel& model() const;
    IFeatureNode::Ptr feature(const ControlName& name) const;
    /// Throws unless a person can change the feature in this mode now.
    void requireChangeable(const IFeatureNode& feature, const ControlName& name) const;
    void resize(IFeatureNode& list, const ControlName& name, int items) const;
    InterpretedState stateOfEntry(const ControlName& feature, const std::string& entry,
                                  bool& listed) const;
    void send(DataModelIds::EventEnum event);
    void close();
    void store() const;

    std::unique_ptr<IDataModel> newModel() const;
    std::vector<std::uint8_t> document() const;
    static std::vector<std::uint8_t> written(IDataModel& model,
                                             SettingsScope scope = SettingsScope::Document);
    StoryStore::Record record() const;

    Product m_product;
    int m_mode;
    StoryStore m_store;
    std::unique_ptr<IDataModel> m_model; ///< while it is open
    bool m_accepted = false;             ///< by the last event
};

} // namespace o7::story
