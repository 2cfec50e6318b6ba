#include "entryshow.h"

#include <utility>

#include "childentry.h"
#include "datamodelids.h"
#include "eventnotification.h"
#include "uimanager.h"

namespace o7 {
namespace {

/// Tells of a manager as long as it lives.
class Announcement
{
public:
    Announcement(const EntryShow::ManagerChanged& tell, UIManager& manager) : m_tell(tell)
    {
        m_tell(&manager);
    }
    ~Announcement() { m_tell(nullptr); }
    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;

private:
    const EntryShow::ManagerChanged& m_tell;
};

} // namespace

EntryShow::EntryShow(ProductSession& session, PreviewEntry entry, UIMode mode, std::wstring about,
                     ManagerChanged managerChanged)
    : m_session(session),
      m_entry(entry),
      m_mode(mode),
      m_about(std::move(about)),
      m_managerChanged(std::move(managerChanged))
{
}

void EntryShow::run()
{
    UIManager manager(m_session.productData(), nullptr, m_mode, 0, Workflow::Standard);
    const Announcement announcement(m_managerChanged, manager);
    show(manager);
}

void EntryShow::show(UIManager& manager)
{
    FeatureServices& model = m_session.featureServices();
    switch (m_entry) {
    case PreviewEntry::Sheet:
        manager.runAsPropertySheet(model, m_session.strings(), nullptr);
        return;
    case PreviewEntry::Dialog:
        return showDialog(manager);
    case PreviewEntry::Child:
        ChildEntry(std::wstring(m_session.productData().GetModelName().View()), m_about)
            .run([&](HWND sheet) {
                manager.initialize(sheet, model, m_session.strings(), nullptr);
            });
        return;
    case PreviewEntry::Cpsui:
        return;
    }
}

/// A dialog's OK commits its transaction but is no event of the model, so it is told here.
void EntryShow::showDialog(UIManager& manager)
{
    FeatureServices& model = m_session.featureServices();
    if (manager.runAsDialog(model, m_session.strings(), nullptr)) {
        model.GetNotificationSink().SendNotification(
            EventNotification(EventId(DataModelIds::kEventOk)));
    }
}

} // namespace o7
