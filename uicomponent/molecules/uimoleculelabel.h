#pragma once

#include <windows.h>

#include <memory>

#include "cxstring.h"
#include "uipagewindow.h"

class UIServices;
class UITextControl;
class UITextRuler;

/// The label of a molecule's box: to the left of it in a column with a label width, above it
/// otherwise. Takes two lines where one is too short. All lengths are dialog units.
class UIMoleculeLabel
{
public:
    UIMoleculeLabel();
    ~UIMoleculeLabel();
    UIMoleculeLabel(const UIMoleculeLabel&) = delete;
    UIMoleculeLabel& operator=(const UIMoleculeLabel&) = delete;

    /// @param labelWidth  room beside the box; 0: the label stands above it.
    void Set(const CXString& text, long labelWidth);
    bool IsEmpty() const { return m_text.IsEmpty(); }
    const CXString& GetText() const { return m_text; }
    /// By how much the box stands to the right of the molecule's place.
    long GetBesideWidth() const { return IsEmpty() ? 0 : m_labelWidth; }
    /// By how much the box stands below the molecule's place; 0 for a label beside the box.
    long GetHeightAbove() const;
    /// Takes the room beside the box that the column gives its labels, and counts the lines for the
    /// width that the molecule's content gets.
    void Fit(const UITextRuler& ruler, long contentWidth);
    /// The room beside the box that the text wants, the gap included.
    long GetWantedWidth(const UITextRuler& ruler) const;

    /// @param place  the molecule's
    void Create(UIPageWindow& page, UIServices& services, POINT place, long contentWidth);
    void Move(POINT delta);
    void Enable(bool enabled);
    void Show(bool shown);

private:
    long GetTextWidth(long contentWidth) const;

    CXString m_text;
    long m_labelWidth = 0;
    long m_lines = 1;
    bool m_isCut = false;
    std::unique_ptr<UITextControl> m_control;
};
