#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "gallerypage.h"

namespace o7 {

/// The gallery's window: a tab for each section. Closed by Escape, the close box or its destructor.
/// Used on one thread, whose messages go through dispatch().
class GalleryWindow
{
public:
    /// Shows the first page. Throws std::runtime_error when the system refuses a window.
    explicit GalleryWindow(bool mirrored);
    ~GalleryWindow();
    GalleryWindow(const GalleryWindow&) = delete;
    GalleryWindow& operator=(const GalleryWindow&) = delete;

    HWND handle() const { return m_frame; }
    bool isOpen() const { return m_frame != nullptr; }

    int pageCount() const { return static_cast<int>(m_pages.size()); }
    const GalleryPage& page(int index) const { return *m_pages[static_cast<std::size_t>(index)]; }
    int currentPage() const;
    void selectPage(int index);

    /// What is on every page, as text.
    std::wstring dumpText() const;

    /// Hands out one message of the thread, with the keyboard handling of a dialog.
    void dispatch(MSG& message);
    /// Hands out messages until the window is closed.
    void run();

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept;
    INT_PTR route(UINT message, WPARAM wParam, LPARAM lParam);
    void createPages(bool mirrored);
    void createTabs();
    void arrange();
    void showCurrentPage();
    bool turnsPage(const MSG& message);

    HWND m_frame = nullptr;
    HWND m_tabs = nullptr;
    std::vector<std::unique_ptr<GalleryPage>> m_pages;
};

} // namespace o7
