#include "hostedstage.h"

#include <chrono>
#include <exception>
#include <utility>

#include "cxstring.h"
#include "stepfailure.h"
#include "uimanager.h"
#include "uistringnumbers.h"

namespace o7::story {
namespace {

constexpr std::chrono::seconds kRestLimit{10};

} // namespace

HostedStage::HostedStage(std::shared_ptr<StoryHost> host) : m_host(std::move(host))
{
}

HostedStage::~HostedStage()
{
    try {
        leave();
    } catch (const std::exception&) {
        // The step before it has said what is wrong with the window.
    }
}

void HostedStage::start()
{
    m_thread.reset();
    m_thread = std::make_unique<UiThread>([host = m_host] { host->show(); });
}

DWORD HostedStage::thread() const
{
    return m_thread ? m_thread->id() : 0;
}

bool HostedStage::closed()
{
    return !m_thread || m_thread->ended();
}

void HostedStage::settle()
{
    if (!m_thread->waitUntilIdle(kRestLimit)) {
        throw StepFailure("The window does not come to rest; on screen is " +
                          front().description() + ".");
    }
    try {
        m_thread->rethrow();
    } catch (const StepFailure&) {
        throw;
    } catch (const std::exception& error) {
        throw StepFailure(error.what());
    }
}

std::optional<DumpText> HostedStage::dump()
{
    std::string text;
    m_thread->call([&] {
        if (const UIManager* const manager = m_host->manager()) {
            text = manager->dumpText().ToUtf8();
        }
    });
    return DumpText(text);
}

/// The status line names the settings behind the words that say what they are.
int HostedStage::countInStatus(const std::string& status)
{
    const std::string sentence = m_host->productText(O7STR_S_IN_CONFLICT);
    const std::string separator = m_host->productText(O7STR_S_SEPARATOR);
    const std::size_t names = sentence.find("%s");
    if (names == std::string::npos || separator.empty() ||
        !status.starts_with(sentence.substr(0, names))) {
        return 0;
    }
    int count = 1;
    for (std::size_t at = status.find(separator, names); at != std::string::npos;
         at = status.find(separator, at + separator.size())) {
        ++count;
    }
    return count;
}

std::string HostedStage::documentField(const std::string& field)
{
    return m_host->documentField(field);
}

void HostedStage::setDocumentField(const std::string& field, const std::string& value)
{
    m_host->setDocumentField(field, value);
}

} // namespace o7::story
