#include "previewrun.h"

#include <windows.h>

#include <chrono>
#include <cwchar>
#include <utility>

#include "acceptancewatch.h"
#include "console.h"
#include "datamodelids.h"
#include "displayedexceptions.h"
#include "entryshow.h"
#include "orvikutilities.h"
#include "pluginentry.h"
#include "productcatalogue.h"
#include "productsession.h"
#include "uimanager.h"
#include "user.h"
#include "watchdog.h"
#include "windowdriver.h"
#include "windowpicture.h"
#include "windowrecorder.h"

namespace o7 {
namespace {

/// Long past any honest visit of every page, short of what a test run waits for.
constexpr std::chrono::seconds kUnattendedLimit{90};

std::wstring wide(const CXString& text)
{
    return std::wstring(text.View());
}

} // namespace

PreviewRun::PreviewRun(PreviewOptions options, const std::filesystem::path& programFolder)
    : m_options(std::move(options)), m_productsRoot(m_options.productsDirectory)
{
    if (m_productsRoot.empty()) {
        m_productsRoot = programFolder / "products";
    }
}

PreviewRun::~PreviewRun() = default;

ExitCode PreviewRun::run()
{
    if (!openSession()) {
        return ExitCode::BadInput;
    }
    loadJobTicket(); // before the family, which kept settings must not bring back
    if (!applyFamily()) {
        return ExitCode::BadInput;
    }
    const AcceptanceWatch watch(m_session->featureServices());
    bool done = show();
    if (watch.accepted() || m_accepted) {
        done = saveJobTicket() && done;
    }
    return done ? ExitCode::Done : ExitCode::Failed;
}

bool PreviewRun::openSession()
{
    const ProductCatalogue catalogue(m_productsRoot);
    const auto folder = catalogue.find(m_options.product);
    if (!folder) {
        printError(catalogue.unknownProductText(m_options.product));
        return false;
    }
    m_package = *folder;
    m_productName = folder->filename().wstring();
    std::vector<CXString> errors;
    m_session = ProductSession::open(*folder, CXString(m_options.language), errors,
                                     m_options.longer ? TextLength::Longer : TextLength::AsWritten);
    for (const CXString& error : errors) {
        printError(error.View());
    }
    if (m_session && !m_options.language.empty() && m_session->languageFellBack()) {
        printError(L"There are no texts in the language \"" + m_options.language +
                   L"\"; they are shown in English.");
    }
    return m_session != nullptr;
}

bool PreviewRun::applyFamily()
{
    if (!m_options.family) {
        return true;
    }
    OptionFeatureRef family =
        m_session->featureServices().GetOptionFeatureRef(DataModelIds::kFeatureControllerFamily);
    const ValueId value(static_cast<DataModelIds::tagValueEnum>(*m_options.family));
    if (!family.SetValue(value)) {
        printError(L"The product has no device family " + std::to_wstring(*m_options.family) +
                   L".");
        return false;
    }
    return true;
}

void PreviewRun::loadJobTicket()
{
    const JobTicketResult result = m_session->model().LoadJobTicket(jobTicketPath());
    if (result.outcome == JobTicketOutcome::Loaded || result.outcome == JobTicketOutcome::None) {
        return;
    }
    const CXString text(result.message.c_str());
    printError(text.View());
    if (!m_options.unattended()) {
        MessageBoxW(nullptr, text.c_str(), m_session->productData().GetModelName().c_str(),
                    MB_OK | MB_ICONWARNING);
    }
}

/// With another family the settings are those of no real device, so they are not kept.
bool PreviewRun::saveJobTicket()
{
    if (m_options.family) {
        return true;
    }
    std::string message;
    std::error_code error;
    std::filesystem::create_directories(jobTicketPath().parent_path(), error);
    if (!m_session->model().SaveJobTicket(jobTicketPath(), message)) {
        printError(CXString(message.c_str()).View());
        return false;
    }
    return true;
}

bool PreviewRun::show()
{
    if (m_options.unattended()) {
        return showVisited();
    }
    openEntry();
    return true;
}

bool PreviewRun::showVisited()
{
    const WindowRecorder recorder(m_options.shotsDirectory, m_options.snapshotFile);
    const DisplayedExceptions exceptions;
    const Watchdog watchdog(kUnattendedLimit);
    const WindowDriver driver({
        .wantsSheet = m_options.entry != PreviewEntry::Dialog,
        .onShown = [](const ShownWindow& window) { WindowPicture::bringToFront(window.handle()); },
        .onPage = [&](const ShownWindow& window, int number,
                      const std::wstring& title) { recorder.savePicture(window, number, title); },
        .onAllSeen =
            [&] { recorder.saveSnapshot(snapshotHeading() + wide(m_manager->dumpText())); },
    });
    openEntry();
    std::vector<std::wstring> failures = driver.failures();
    failures.insert(failures.end(), exceptions.texts().begin(), exceptions.texts().end());
    for (const std::wstring& failure : failures) {
        printError(failure);
    }
    return failures.empty();
}

void PreviewRun::openEntry()
{
    if (m_options.entry == PreviewEntry::Cpsui) {
        return openPlugin();
    }
    if (m_options.entry == PreviewEntry::Dialog && mode() != UIMode::CompactDialog) {
        printError(L"The entry \"dialog\" shows something in mode 3 only.");
    }
    EntryShow(*m_session, m_options.entry, mode(), aboutText(), [this](UIManager* manager) {
        m_manager = manager;
        if (manager != nullptr) {
            manager->setPersonalSettings(personalSettings());
        }
    }).run();
}

/// The plug-in has a session of its own; what was accepted comes back into ours.
void PreviewRun::openPlugin()
{
    if (mode() == UIMode::CompactDialog) {
        printError(L"The print system asks for pages only: there are some in modes 1, 2 and 4.");
        return;
    }
    m_accepted = PluginEntry(*m_session, m_package, mode(), [this](UIManager& manager) {
                     m_manager = &manager;
                     manager.setPersonalSettings(personalSettings());
                 }).run(nullptr);
}

UIMode PreviewRun::mode() const
{
    return static_cast<UIMode>(m_options.effectiveMode());
}

std::filesystem::path PreviewRun::jobTicketPath() const
{
    std::filesystem::path directory = m_options.userDirectory;
    if (directory.empty()) {
        directory = std::filesystem::path(User::GetUserApplicationDirectory().c_str()) / "Orvik";
    }
    return m_session->jobTicketPath(directory);
}

/// The registry key for the last page. What is saved for looking at does not depend on what
/// somebody did before, and each user directory has a key of its own.
CXString PreviewRun::personalSettings() const
{
    if (m_options.unattended()) {
        return {};
    }
    if (m_options.userDirectory.empty()) {
        return CXString(L"Software\\Orvik\\Printers");
    }
    const CXString directory(std::filesystem::absolute(m_options.userDirectory).wstring());
    return L"Software\\Orvik\\Preview\\" +
           OrvikUtilities::ConvertPrinterNameToRegistryKey(directory);
}

std::wstring PreviewRun::aboutText() const
{
    return wide(m_session->productData().GetModelName()) +
           L"\n\nThis page belongs to the program that opened the property sheet. The pages beside "
           L"it are those of the product.\n\n" +
           snapshotHeading();
}

std::wstring PreviewRun::snapshotHeading() const
{
    return L"product " + m_productName + L"\nmode " + std::to_wstring(m_options.effectiveMode()) +
           L"\nlanguage " + wide(m_session->language()) + L"\n\n";
}

} // namespace o7
