#include "uiunitnames.h"

namespace {

using enum Dimension::UnitsEnum;

constexpr struct
{
    const wchar_t* word;
    UIUnitNames::Unit unit;
} kKnownEverywhere[] = {
    {L"mm", {Millimetre, 1}},   {L"\u339C", {Millimetre, 1}},
    {L"cm", {Millimetre, 10}},  {L"\u339D", {Millimetre, 10}},
    {L"m", {Millimetre, 1000}}, {L"in", {Inch, 1}},
    {L"\"", {Inch, 1}},         {L"\u2033", {Inch, 1}},
    {L"\u201D", {Inch, 1}},     {L"''", {Inch, 1}},
    {L"\u33CC", {Inch, 1}},     {L"pt", {Point, 1}},
};

} // namespace

void UIUnitNames::add(const CXString& words, Unit unit)
{
    for (CXString& word : words.Tokenize(L";"))
        m_names.push_back({word.Trim(), unit});
}

std::optional<UIUnitNames::Unit> UIUnitNames::find(const CXString& word) const
{
    const int length = word.GetLength();
    const CXString name = word.GetAt(length - 1) == L'.' ? word.Left(length - 1) : word;
    for (const auto& row : kKnownEverywhere)
        if (name.CompareNoCase(row.word) == 0)
            return row.unit;
    for (const Name& row : m_names)
        if (name.CompareNoCase(row.word) == 0)
            return row.unit;
    return std::nullopt;
}
