#pragma once

#include <windows.h>

#include "cxstring.h"
#include "uiapi.h"
#include "uiregionalsettings.h"

class DialogConversion;
class FeatureServices;
class ProductData;

/// The services that every control and molecule is given by reference. UIManager creates the one
/// object and destroys it last; nobody else owns one.
///
/// Copying is shallow on purpose: copy and original share one converter, which the destructor of
/// either deletes. So a copy must never be destroyed beside the original; hold a reference instead.
class O7UI_API UIServices
{
public:
    /// @param language  of the texts ("de"): a page in one that is written from right to left is
    ///                  laid out that way. Empty: from left to right.
    explicit UIServices(const CXString& language = {});
    UIServices(const UIServices& other) noexcept;
    UIServices& operator=(const UIServices& other) noexcept;
    ~UIServices();

    /// Converts dialog units to pixels; set up for a page when that page's dialog is initialised.
    DialogConversion& getDialogConversion() const noexcept { return *m_dialogConversion; }

    /// How the person writes numbers and lengths; read from the system when the services are made.
    const UIRegionalSettings& getRegionalSettings() const noexcept { return m_regionalSettings; }
    /// For WM_SETTINGCHANGE, and for tests.
    void setRegionalSettings(const UIRegionalSettings& settings) { m_regionalSettings = settings; }

    /// Whether pages and dialogs are mirrored: their language is written from right to left.
    bool isRightToLeft() const noexcept { return m_rightToLeft; }

    /// MessageBoxW, laid out in the direction of the texts and centred over its owner. Whatever
    /// called may be gone when it returns: the pages live on while it is open.
    /// @param flags  MB_... bits. @return the button that was pressed, as MessageBoxW does.
    int showMessage(HWND owner, const CXString& text, const CXString& title, UINT flags) const;

    /// The help file of the product: the value of string feature 696; empty when the product has
    /// no such feature.
    static CXString GetHelpFile(FeatureServices& featureServices, ProductData& productData);

private:
    DialogConversion* m_dialogConversion;
    UIRegionalSettings m_regionalSettings;
    bool m_rightToLeft;
};
