#pragma once

/// How the person writes numbers and lengths, as the system's regional settings say.
struct UIRegionalSettings
{
    wchar_t decimalSeparator = L'.';
    bool metric = true;

    /// GetLocaleInfoEx for the user's locale; what it does not answer stays as above.
    static UIRegionalSettings current();

    friend bool operator==(const UIRegionalSettings&, const UIRegionalSettings&) = default;
};
