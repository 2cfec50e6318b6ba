#pragma once

#include <windows.h>

#include "uihandles.h"

/// An own copy of the module's empty dialog template (resource 101) in fixed global memory, changed
/// for one page or dialog. Extended and plain templates are both understood.
class UIDialogTemplate
{
public:
    UIDialogTemplate() = default;
    /// @param instance  the module that holds the resource. Without it the template is null.
    explicit UIDialogTemplate(HINSTANCE instance);

    /// Width and height in dialog units.
    void setSize(long width, long height);
    /// Lays the page or dialog out from right to left, with all that is created on it.
    void mirror();
    /// Makes a captioned popup window of what is a page otherwise.
    /// @param owned  false for a dialog that stands alone and so belongs into the task bar.
    void makePopup(bool owned);

    /// Makes a plain child window that is no page: for an area of the sheet's own window.
    void makeArea();

    /// Borrowed; null when the resource could not be copied.
    const DLGTEMPLATE* get() const;

private:
    WORD* words() const;
    bool isExtended() const;
    void addExtendedStyle(DWORD style);

    o7::UniqueGlobalMemory m_memory;
};
