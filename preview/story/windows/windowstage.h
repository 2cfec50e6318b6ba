#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>

#include "frontwindow.h"
#include "pagecontrols.h"
#include "storystage.h"
#include "uidumptext.h"

namespace o7::story {

/// A stage that finds the windows of a thread by what is to be seen of them, and uses them by mouse
/// and keyboard. It works the same whether the thread is of this process or of another one; who
/// derives says which thread it is, and how to tell that it has come to rest.
class WindowStage : public StoryStage
{
public:
    void open() override;
    void reopen() override { open(); }
    void leave() override;

    void page(const std::string& title) override;
    void choose(const ControlName& control, const std::string& entry) override;
    void tick(const ControlName& control, bool checked) override;
    void type(const ControlName& control, const std::string& text) override;
    void key(const Chord& chord, const ControlName& control) override;
    void press(const std::string& button) override;
    void answer(const std::string& button) override;

    std::string value(const ControlName& control) override;
    ControlState state(const ControlName& control) override;
    std::string reason(const ControlName& control) override;
    ControlState entryState(const ControlName& control, const std::string& entry) override;
    std::string entryReason(const ControlName& control, const std::string& entry) override;
    std::string status() override;
    std::optional<std::string> message() override;
    bool tabMarked(const std::string& title) override;
    int conflictCount() override;

protected:
    /// Begins to open the window; it need not be there yet.
    virtual void start() = 0;
    /// The thread whose windows are used.
    virtual DWORD thread() const = 0;
    /// Waits until everything that was caused is done and on screen.
    /// @throws StepFailure when the thread does not come to rest.
    virtual void settle() = 0;
    /// What the user interface says of itself; nothing where nobody can be asked.
    virtual std::optional<DumpText> dump() { return std::nullopt; }
    /// How many settings a status line says are in conflict.
    virtual int countInStatus(const std::string& status);

    /// Waits until a condition holds.
    /// @return false when it does not within the time.
    bool waitFor(const std::function<bool()>& condition) const;
    FrontWindow front() const { return FrontWindow::of(thread()); }
    /// Clicks the middle of a window, and waits for what follows.
    void clickOn(HWND window, const std::string& name);
    void pressKey(WORD key, std::initializer_list<WORD> held = {});

private:
    FrontWindow usable() const;
    PageControl findUsable(const ControlName& name, std::initializer_list<ControlKind> kinds) const;
    void pickFromList(const PageControl& list, const std::string& entry);
    void walkTo(const PageControl& list, int wanted, const std::string& entry);
    void focusOn(const PageControl& control, const std::string& name);
    DumpText dumpNow();
    DumpLine lineOf(const ControlName& name);
    DumpLine lineOfEntry(const ControlName& name, const std::string& entry);
};

} // namespace o7::story
