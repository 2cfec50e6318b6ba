#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "gallerykinds.h"
#include "uihandles.h"
#include "uiservices.h"

namespace o7 {

/// One control on a page of the gallery, and the state that it is shown in.
struct GalleryCell
{
    const GalleryKind* kind;
    GalleryState state;
    GallerySample sample;

    HWND window() const { return sample.control->getHwnd(); }
};

/// One page of the gallery: a dialog that shows each kind of a section in each of its states, a row
/// for each kind, a column for each state, a dash where a kind has no such state. Everything on it
/// is a control of the module, made the way a page of the driver makes it.
class GalleryPage
{
public:
    /// How the dialog is made.
    struct Look
    {
        WORD pointSize = 8;    ///< of the font, from which all sizes follow
        bool mirrored = false; ///< right to left
        bool visible = true;
    };

    /// Creates the dialog as a child of `parent`, with all its controls, at (0, 0). The handle
    /// stays null when the system refuses the dialog.
    GalleryPage(HWND parent, const GallerySection& section, const Look& look);
    ~GalleryPage();
    GalleryPage(const GalleryPage&) = delete;
    GalleryPage& operator=(const GalleryPage&) = delete;

    HWND handle() const { return m_dialog; }
    const GallerySection& section() const { return m_section; }
    const std::vector<GalleryCell>& cells() const { return m_cells; }
    /// The cell of that kind and state, or null.
    const GalleryCell* find(const GalleryKind& kind, GalleryState state) const;
    UIToolTips& toolTips() const { return *m_toolTips; }

    /// What every cell tells about itself, a line for each.
    std::wstring dumpText() const;

    /// Size of the largest page, in dialog units.
    static SIZE sizeInDialogUnits();

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept;
    INT_PTR route(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool offer(const struct _UIWindowsMessage& message);
    HWND createDialog(HWND parent, POINT location, SIZE size, DWORD style, bool mirrored);
    void createContent();
    void createRow(const GalleryKind& kind, LONG top);
    void createCell(const GalleryKind& kind, GalleryState state, POINT location);
    void createLabel(const wchar_t* text, POINT location, SIZE size, DWORD style, bool bold);
    void show(GalleryCell& cell);
    void checkOnly(HWND radio);
    GalleryPlace placeAt(HWND parent, POINT location, SIZE size);

    const GallerySection& m_section;
    Look m_look;
    HWND m_dialog = nullptr;
    int m_nextId = 1000;
    UIServices m_services;
    HFONT m_font = nullptr; ///< the dialog's own
    UniqueFont m_boldFont;
    std::unique_ptr<UIToolTips> m_toolTips; // before the controls, which may hold on to it
    std::vector<std::unique_ptr<UIControl>> m_labels;
    std::vector<GalleryCell> m_cells;
};

} // namespace o7
