#pragma once

#include <windows.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "cxstring.h"
#include "uihandles.h"

namespace o7::test {

/// What is wrong with how the controls stand on a page: judged by the windows that are there, their
/// places, texts and order, whoever made them.
class GeometryRules
{
public:
    /// @param page     the window with the controls, which need not be seen itself
    /// @param columns  where the columns begin, in pixels from the page's beginning
    /// @param tipOf    the tip of a control, empty for none
    GeometryRules(HWND page, std::vector<LONG> columns, std::function<CXString(HWND)> tipOf);

    /// One sentence for each fault. Looks at everything.
    std::vector<std::string> findFaults(std::set<wchar_t> takenMnemonics);
    /// The letters that the page's own texts take.
    std::set<wchar_t> mnemonics() const;

private:
    struct Piece
    {
        HWND window;
        RECT place; ///< on the page
        std::wstring kind;
        std::wstring text;
        LONG style;
    };
    static bool isButton(const Piece& piece, LONG type);
    static bool isFrame(const Piece& piece);
    static bool drawsText(const Piece& piece);
    static wchar_t mnemonicOf(const Piece& piece);
    static bool mayOverlap(const Piece& first, const Piece& second);
    void collect();
    std::size_t columnOf(const Piece& piece) const;
    bool standsBefore(const Piece& first, const Piece& second) const;
    void checkPlaces();
    void checkOrder();
    void checkTexts();
    void checkEntries(const Piece& list, UINT count, UINT length, UINT text, LONG width);
    void checkMnemonics(std::set<wchar_t>& taken);
    /// What the text lacks: empty when it fits the room.
    std::string findLack(HWND control, const std::wstring& text, SIZE room, UINT format) const;
    /// The text fits, or the control's tip holds it.
    void checkText(const Piece& piece, const std::wstring& text, SIZE room, UINT format);
    void fault(const Piece& piece, const std::string& what);

    HWND m_page;
    UniqueMemoryDc m_dc;
    std::vector<LONG> m_columns;
    std::function<CXString(HWND)> m_tipOf;
    std::vector<Piece> m_pieces;
    std::vector<std::string> m_faults;
};

} // namespace o7::test
