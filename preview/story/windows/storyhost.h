#pragma once

#include <filesystem>
#include <string>

#include "session.h"

class UIManager;

namespace o7::story {

/// The program that opens a product's settings in a story, and keeps what they store.
class StoryHost
{
public:
    StoryHost(const StoryHost&) = delete;
    StoryHost& operator=(const StoryHost&) = delete;
    virtual ~StoryHost() = default;

    /// Shows the window and returns when it is closed and everything is stored. Runs on a thread of
    /// its own; everything else is called before and after, or on that thread too.
    virtual void show() = 0;

    /// See StoryStage. A host without a document throws StepFailure.
    virtual std::string documentField(const std::string& field) const;
    virtual void setDocumentField(const std::string& field, const std::string& value);

    /// The pages that are shown; null while none are.
    const UIManager* manager() const { return m_manager; }
    /// A text of the product in the language of the session.
    std::string productText(unsigned number) const;

protected:
    /// @param package  the product's folder.
    StoryHost(std::filesystem::path package, Session session);

    /// @param manager  borrowed until null takes its place.
    void setManager(const UIManager* manager) { m_manager = manager; }
    const std::filesystem::path& package() const { return m_package; }
    const Session& session() const { return m_session; }

private:
    std::filesystem::path m_package;
    Session m_session;
    const UIManager* m_manager = nullptr;
};

} // namespace o7::story
