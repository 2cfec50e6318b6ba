#pragma once

#include <memory>
#include <string>

#include "storyhost.h"
#include "uithread.h"
#include "windowstage.h"

namespace o7::story {

/// A stage whose windows are of this process, on a thread of their own. The user interface can be
/// asked what it shows.
class HostedStage : public WindowStage
{
public:
    /// @param host  what shows the windows; it stays as long as their thread does.
    explicit HostedStage(std::shared_ptr<StoryHost> host);
    ~HostedStage() override;

    bool closed() override;
    std::string documentField(const std::string& field) override;
    void setDocumentField(const std::string& field, const std::string& value) override;

protected:
    void start() override;
    DWORD thread() const override;
    void settle() override;
    std::optional<DumpText> dump() override;
    int countInStatus(const std::string& status) override;

private:
    std::shared_ptr<StoryHost> m_host;
    std::unique_ptr<UiThread> m_thread;
};

} // namespace o7::story
