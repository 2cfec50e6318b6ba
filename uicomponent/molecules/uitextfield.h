#pragma once

#include <functional>

#include "uitypedfield.h"

/// A box for a text of limited length, perhaps of digits alone.
class UITextField : public UITypedField
{
public:
    struct Rules
    {
        int longest = 255; ///< UTF-16 units
        bool digitsOnly = false;
        bool password = false;
        int lines = 1;
    };
    /// Writes a text into the model and shows what was read back.
    /// @return false when the model did not take it.
    using Writer = std::function<bool(const CXString&)>;

    UITextField(const Rules& rules, Writer writer);
    ~UITextField() override;

    void Create(UIPageWindow& page, const Surroundings& surroundings, POINT location, SIZE size);
    bool HandleMessage(const _UIWindowsMessage& message) override;
    /// Shows the model's text. One that was typed for it stays as it is.
    void ShowValue(const CXString& text);

protected:
    Verdict Take(const CXString& text) override;
    CXString PresentText() const override { return m_value; }
    CXString PresentTextInSentence() const override;
    void KeepAsOrigin() override { m_origin = m_value; }

private:
    /// @return empty when the text, which is changed to what is stored, can be taken.
    CXString FaultOf(CXString& text) const;
    CXString TooLong() const;

    Rules m_rules;
    Writer m_write;
    CXString m_value;
    CXString m_origin; ///< what the person has settled on before
};
