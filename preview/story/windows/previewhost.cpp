#include "previewhost.h"

#include <stdexcept>
#include <utility>
#include <vector>

#include "acceptancewatch.h"
#include "entryshow.h"
#include "otherwindow.h"
#include "productsession.h"

namespace o7::story {
namespace {

PreviewEntry previewEntry(Entry entry)
{
    switch (entry) {
    case Entry::Child:
        return PreviewEntry::Child;
    case Entry::Dialog:
        return PreviewEntry::Dialog;
    default:
        return PreviewEntry::Sheet;
    }
}

std::unique_ptr<ProductSession> openSession(const std::filesystem::path& package,
                                            const std::string& language)
{
    std::vector<CXString> errors;
    auto session = ProductSession::open(package, CXString(language.c_str()), errors);
    if (!session) {
        throw std::runtime_error(errors.empty() ? "The product cannot be opened."
                                                : errors.front().ToUtf8());
    }
    return session;
}

} // namespace

PreviewHost::PreviewHost(std::filesystem::path package, Session session,
                         std::filesystem::path store)
    : StoryHost(std::move(package), std::move(session)), m_store(std::move(store))
{
}

void PreviewHost::show()
{
    const auto opened = openSession(package(), session().language);
    const std::filesystem::path ticket = opened->jobTicketPath(m_store);
    if (const auto loaded = opened->model().LoadJobTicket(ticket);
        loaded.outcome == JobTicketOutcome::Damaged ||
        loaded.outcome == JobTicketOutcome::Unreadable) {
        throw std::runtime_error(loaded.message);
    }
    const AcceptanceWatch watch(opened->featureServices());
    EntryShow(*opened, previewEntry(session().entry), static_cast<UIMode>(session().mode),
              L"A page of the host.", [this](UIManager* manager) { setManager(manager); })
        .run();
    std::string message;
    if (watch.accepted() && !opened->model().SaveJobTicket(ticket, message)) {
        throw std::runtime_error(message);
    }
}

} // namespace o7::story
