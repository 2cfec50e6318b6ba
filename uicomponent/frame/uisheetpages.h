#pragma once

#include <windows.h>

#include <prsht.h>

#include <array>
#include <cstddef>
#include <vector>

class UIContainerData;
class UITabManager;

/// The pages of a sheet that we open ourselves, from their creation until the sheet takes them
/// over. Those that no sheet ever got are destroyed with this object.
class UISheetPages
{
public:
    /// @throws ExceptionTabCreationFailure
    UISheetPages(UITabManager& manager, const std::vector<const UIContainerData*>& descriptions,
                 HANDLE activationContext);
    ~UISheetPages();
    UISheetPages(const UISheetPages&) = delete;
    UISheetPages& operator=(const UISheetPages&) = delete;

    bool isEmpty() const { return m_count == 0; }

    /// Shows the sheet, modal. @param header  without its pages.
    /// @return whether the sheet answered a positive value; false without pages, for such a sheet
    /// would be an empty box that answers nothing.
    bool show(PROPSHEETHEADERW header);

private:
    static constexpr std::size_t kMost = 16;

    std::array<HPROPSHEETPAGE, kMost> m_pages{};
    std::size_t m_count;
};
