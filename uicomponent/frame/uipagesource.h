#pragma once

#include <windows.h>

#include <memory>

#include "uidialogprocedure.h"
#include "uidialogtemplate.h"

/// What the system reads when a page gets its window: the template and the record that tells its
/// manager. The tab owns it. A host may close its sheet later than our manager goes, and a person
/// may choose a page there that was never visited: what the page needs then lives on until that
/// sheet is gone, and tells nobody.
class UIPageSource
{
public:
    UIPageSource() = default;
    UIPageSource(const UIPageSource&) = delete;
    UIPageSource& operator=(const UIPageSource&) = delete;

    UIPageRecord record;
    UIDialogTemplate pageTemplate;

    /// Keeps the source for as long as the sheet is there. @param sheet  null: not at all.
    static void keepFor(HWND sheet, std::unique_ptr<UIPageSource> source) noexcept;
    /// Frees what was kept for sheets that are gone. On any thread.
    static void freeUnused() noexcept;

private:
    HWND m_sheet = nullptr;
    std::unique_ptr<UIPageSource> m_next;
};
