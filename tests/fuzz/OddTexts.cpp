#include "OddTexts.h"

#include <array>
#include <string_view>

namespace ondelis::fuzz {
namespace {

constexpr std::array<std::string_view, 60> texts{"", " ", "0", "-0", "0.0", "-", "+", "--1", ".", ",", "-.", ".5", "5.",
    "-1", "-0.001", "1,5", "12,", ",5", "1.234.5", "1,234.5", "1.234,5", "1 000", "1e", "1e+", "1e3", "1E-3", "1d5",
    "2.5D-2", "1e308", "-1e308", "1e309", "-1e309", "1e-308", "1e-400", "1e99999999999", "e5", "&H", "&HFF", "&H7FFF",
    "&H8000", "&HFFFFFFFF", "&O17", "&O8", "32767", "32768", "-32768", "-32769", "3276.8", "65536", "2147483648",
    "1e15", "abc", "12abc", "é", "µ", "12 µF", "٣", "１２", "\t7\n", "\"\\#"};

/// A run of one character, longer than anything that a field expects.
std::string longRun(Dice& dice)
{
    constexpr std::string_view characters{"0195-. e"};
    std::string run;
    const int length = dice.percent(5) ? 10'000 : dice.between(20, 400);
    run.append(static_cast<std::size_t>(length), dice.one(characters));
    return run;
}

std::string characterSoup(Dice& dice)
{
    constexpr std::array<std::string_view, 20> characters{
        "0", "1", "2", "5", "9", "9", "-", "+", ".", ",", "e", "E", "d", "&", "H", "O", " ", "é", "x", "😀"};
    std::string soup;
    for (int count = dice.between(1, 8); count > 0; --count)
        soup += dice.one(characters);
    return soup;
}

} // namespace

std::string plainNumber(Dice& dice)
{
    std::string number = std::to_string(dice.below(dice.percent(70) ? 100 : 40000));
    if (dice.percent(40)) {
        number += dice.percent(70) ? '.' : ',';
        number += std::to_string(dice.below(1000));
    }
    return number;
}

std::string oddText(Dice& dice)
{
    if (dice.percent(5))
        return longRun(dice);
    if (dice.percent(20))
        return '-' + plainNumber(dice);
    if (dice.percent(30))
        return characterSoup(dice);
    return std::string{dice.one(texts)};
}

} // namespace ondelis::fuzz
