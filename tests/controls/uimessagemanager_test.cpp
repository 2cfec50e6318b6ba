// Routing: who is asked, in which order, and who wins.

#include "uimessagemanager.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace {

/// Writes its name into a log when it is asked, and claims or declines.
class Handler : public UIMessageHandler
{
public:
    Handler(std::string& log, char name, bool claims) : m_log(log), m_name(name), m_claims(claims)
    {
    }

    bool handleMessage(const _UIWindowsMessage& message) override
    {
        m_log += m_name;
        if (whenAsked) {
            whenAsked();
        }
        if (m_claims) {
            message.result = static_cast<unsigned char>(m_name);
        }
        return m_claims;
    }
    void dump() const override {}

    std::function<void()> whenAsked;

private:
    std::string& m_log;
    char m_name;
    bool m_claims;
};

/// Handlers by letter, in order of registration; a capital letter claims. Each kind has its own.
struct Row
{
    const char* what;
    const char* tabs;
    const char* offTabs;
    const char* dialogs;
    UIMessageKind kind;
    const char* asked;
    int claimed;
    std::intptr_t result;
};

constexpr Row kRows[] = {
    // what                            tabs   off   dialogs  kind                   asked  claimed
    {"an empty list claims nothing", "", "A", "B", UIMessageKind::TabPage, "", 0, 0},
    {"all decline", "abc", "", "", UIMessageKind::TabPage, "abc", 0, 0},
    {"the first claim ends the walk", "aBCd", "", "", UIMessageKind::TabPage, "aB", 1, 'B'},
    {"the last may claim", "abC", "", "", UIMessageKind::TabPage, "abC", 1, 'C'},
    {"off-tabs have their own list", "A", "bC", "D", UIMessageKind::OffTab, "bC", 1, 'C'},
    {"dialogs have their own list", "A", "B", "cD", UIMessageKind::Dialog, "cD", 1, 'D'},
    {"an unknown kind has no list", "A", "B", "C", UIMessageKind{3}, "", 0, 0},
};

TEST(UIMessageManager, AsksInOrderUpToTheFirstClaim)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        std::string log;
        std::vector<std::unique_ptr<Handler>> handlers;
        UIMessageManager manager;
        const auto append = [&](UIMessageKind kind, const std::string& names) {
            for (const char name : names) {
                handlers.push_back(
                    std::make_unique<Handler>(log, name, name >= 'A' && name <= 'Z'));
                manager.append(kind, *handlers.back());
            }
        };
        append(UIMessageKind::TabPage, row.tabs);
        append(UIMessageKind::OffTab, row.offTabs);
        append(UIMessageKind::Dialog, row.dialogs);

        _UIWindowsMessage message;
        message.kind = row.kind;
        EXPECT_EQ(row.claimed, manager.handleMessage(message));
        EXPECT_EQ(row.asked, log);
        EXPECT_EQ(row.result, message.result);
    }
}

TEST(UIMessageManager, OnlyWhoStandsThereIsTakenOff)
{
    std::string log;
    Handler first(log, 'a', false);
    Handler second(log, 'b', false);
    UIMessageManager manager;
    manager.remove(UIMessageKind::Dialog, first);
    for (Handler* handler : {&first, &second, &first})
        manager.append(UIMessageKind::Dialog, *handler);
    manager.remove(UIMessageKind::TabPage, first);
    manager.remove(UIMessageKind::Dialog, first);
    using List = UIMessageManager::HandlerList;
    EXPECT_EQ(manager.handlers(UIMessageKind::Dialog), (List{&first, &second}));
    manager.remove(UIMessageKind::Dialog, first);
    manager.remove(UIMessageKind::Dialog, first);
    EXPECT_EQ(manager.handlers(UIMessageKind::Dialog), List{&second});
}

TEST(UIMessageManager, HandlersMayChangeTheListWhileTheyAreAsked)
{
    std::string log;
    Handler opener(log, 'a', false);
    Handler popup(log, 'P', true);
    UIMessageManager manager;
    manager.append(UIMessageKind::Dialog, opener);
    opener.whenAsked = [&] { manager.append(UIMessageKind::Dialog, popup); };

    _UIWindowsMessage message;
    message.kind = UIMessageKind::Dialog;
    EXPECT_EQ(1, manager.handleMessage(message));
    EXPECT_EQ("aP", log);

    opener.whenAsked = [&] { manager.remove(UIMessageKind::Dialog, popup); };
    EXPECT_EQ(0, manager.handleMessage(message));
}

} // namespace
