#pragma once

#include <filesystem>

#include "storyhost.h"

namespace o7::story {

/// The entries sheet, child and dialog: what is accepted goes into a job ticket, and comes from
/// there at the next opening.
class PreviewHost : public StoryHost
{
public:
    /// @param store  the folder of the job ticket.
    PreviewHost(std::filesystem::path package, Session session, std::filesystem::path store);

    void show() override;

private:
    std::filesystem::path m_store;
};

} // namespace o7::story
