// Whatever somebody pastes into a field for a number: it comes to a value that is allowed and can
// be typed again as it is shown, or to a fault; never to anything else.
#include "uinumberrules.h"
#include "uitypednumber.h"
#include "uiunitnames.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::int64_t kMillimetre = 36'000'000;

void check(const UINumberRules& rules, const CXString& text)
{
    const UIUnitNames names;
    const auto reading = rules.read(text, names);
    const bool hasValue = reading.fault == UINumberRules::Fault::None ||
                          reading.fault == UINumberRules::Fault::OutOfRange;
    if (!hasValue)
        return;
    if (!rules.allows(reading.value))
        std::abort();
    for (const std::int64_t steps : {-1, 1, 1'000'000'000})
        if (!rules.allows(rules.step(reading.value, steps)))
            std::abort();
    const auto again = rules.read(rules.text(reading.value), names);
    if (again.fault != UINumberRules::Fault::None ||
        rules.text(again.value) != rules.text(reading.value))
        std::abort();
}

} // namespace

/// The first byte selects the rules; the rest is the text, in UTF-8.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::uint8_t choice = data[0];
    const CXString text =
        CXString::FromUtf8(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
    UITypedNumber::withPlainDigits(text);

    UINumberRules rules;
    rules.decimalSeparator = (choice & 1) != 0 ? L',' : L'.';
    if ((choice & 2) != 0) {
        rules.isLength = true;
        rules.units =
            (choice & 4) != 0 ? Dimension::UnitsEnum::Inch : Dimension::UnitsEnum::Millimetre;
        rules.digits = choice >> 6;
        rules.grid = (choice & 8) != 0 ? kMillimetre / 10 : 1;
    }
    if ((choice & 16) != 0)
        rules.ranges = {{-5 * kMillimetre, 3 * kMillimetre}, {10 * kMillimetre, 984 * kMillimetre}};
    check(rules, text);
    return 0;
}
