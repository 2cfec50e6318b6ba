#pragma once

#include "cxstring.h"

#include <string>
#include <string_view>

/// The result of constraint evaluation for a feature or for one option, as a plain copyable value.
/// The messages are ready to be shown: localised, names of cause and effect filled in; several
/// reasons stand on lines of their own.
class InterpretedState
{
public:
    InterpretedState() = default;

    /// Cannot be chosen or changed now: grey it out.
    bool IsDisabled() const { return m_disabled; }
    /// Does not apply now: do not show it.
    bool IsHidden() const { return m_hidden; }
    /// To be shown as having no value. The stored value stays and comes back.
    bool IsCleared() const { return m_cleared; }

    /// A choice is limited; the text explains why.
    bool HasInfoBtnMsg() const { return !m_info.IsEmpty(); }
    const CXString& GetInfoBtnMsg() const { return m_info; }

    /// Two of the user's own choices clash; the text names both.
    bool HasCbrBtnMsg() const { return !m_conflict.IsEmpty(); }
    const CXString& GetCbrBtnMsg() const { return m_conflict; }

    /// The sentence that explains why the item is disabled, cleared or hidden; never empty when it
    /// is one of these.
    const CXString& GetReason() const { return m_reason; }

    friend bool operator==(const InterpretedState& a, const InterpretedState& b)
    {
        return a.m_disabled == b.m_disabled && a.m_hidden == b.m_hidden &&
               a.m_cleared == b.m_cleared && a.m_info == b.m_info && a.m_conflict == b.m_conflict &&
               a.m_reason == b.m_reason;
    }

    // For data models (and fakes of one), which build the state up reason by reason. An empty
    // reason is replaced by "#0", so that the promise of GetReason holds.
    void Disable(const CXString& reason)
    {
        m_disabled = true;
        AddLine(m_reason, reason);
    }
    void Hide(const CXString& reason)
    {
        m_hidden = true;
        AddLine(m_reason, reason);
    }
    void Clear(const CXString& reason)
    {
        m_cleared = true;
        AddLine(m_reason, reason);
    }
    void AddInfo(const CXString& text) { AddLine(m_info, text); }
    void AddConflict(const CXString& text) { AddLine(m_conflict, text); }

private:
    /// Adds a line unless the text has it already.
    static void AddLine(CXString& text, const CXString& line)
    {
        const std::wstring_view shown = line.IsEmpty() ? L"#0" : std::wstring_view(line.c_str());
        std::wstring lines = L"\n" + std::wstring(text.c_str()) + L"\n";
        if (text.IsEmpty())
            text = CXString(shown);
        else if (lines.find(L"\n" + std::wstring(shown) + L"\n") == std::wstring::npos)
            text = CXString(std::wstring_view(lines.append(shown)).substr(1));
    }

    bool m_disabled = false;
    bool m_hidden = false;
    bool m_cleared = false;
    CXString m_info;
    CXString m_conflict;
    CXString m_reason;
};
