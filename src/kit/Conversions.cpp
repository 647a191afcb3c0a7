#include "kit/Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>

#include "kit/Fault.h"
#include "kit/Region.h"

namespace ondelis {
namespace {

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n';
}

/// Drops `word` from the start of a text; returns whether it was there.
bool consume(std::string_view& text, std::string_view word)
{
    if (word.empty() || !text.starts_with(word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

bool consume(std::string_view& text, char word)
{
    const bool there = text.starts_with(word);
    if (there)
        text.remove_prefix(1);
    return there;
}

/// The number of digits that a text starts with.
std::size_t countDigits(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::find_if_not(text, isDigit) - text.begin());
}

/// A number too large or too small for from_chars, which does not say which: infinity or 0.
double extreme(std::string_view text)
{
    std::istringstream stream{std::string{text}};
    stream.imbue(std::locale::classic());
    double value = 0;
    return stream >> value ? value : std::numeric_limits<double>::infinity();
}

/// Takes the longest unsigned number that starts a text, with e or E as the exponent mark; 0 if none does. Beyond the
/// range it is infinity, not yet a fault: more of the number may follow.
double consumeUnsigned(std::string_view& text)
{
    // from_chars itself also takes a sign, "inf" and "nan".
    if (text.empty() || (!isDigit(text.front()) && text.front() != '.'))
        return 0;
    double value = 0;
    const char* const begin = text.data();
    const auto [end, error] = std::from_chars(begin, begin + text.size(), value);
    const auto length = static_cast<std::size_t>(end - begin);
    if (error == std::errc::result_out_of_range) [[unlikely]]
        value = extreme(text.substr(0, length));
    text.remove_prefix(length);
    return value;
}

/// Like `consumeUnsigned`, with a sign and any exponent mark.
double consumeNumber(std::string_view& text)
{
    const bool minus = consume(text, '-');
    if (!minus)
        consume(text, '+');
    std::string_view rest = text;
    double magnitude = consumeUnsigned(rest);
    if (rest.starts_with('d') || rest.starts_with('D')) {
        std::string marked{text};
        marked[text.size() - rest.size()] = 'e';
        rest = marked;
        magnitude = consumeUnsigned(rest);
    }
    text.remove_prefix(text.size() - rest.size());
    return minus ? -magnitude : magnitude;
}

/// The number that the whole text is; nothing if a part is left over, or there is no number.
std::optional<Term> parseNumber(std::string_view text)
{
    std::string_view rest = text;
    const double number = consumeNumber(rest);
    const bool hasDigits = !text.empty() && (isDigit(text.back()) || text.back() == '.'); // a sign alone has none
    if (!rest.empty() || !hasDigits)
        return {};
    return Term::checked(number);
}

/// The whole number of the digits, in base 8 or 16, that start a text.
Term parseInteger(std::string_view text, int base)
{
    Term number = 0;
    for (const char& c : text) {
        int digit = 0;
        if (std::from_chars(&c, &c + 1, digit, base).ec != std::errc{})
            break;
        number = number * base + digit;
    }
    return number;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The length of the thousands separator that starts a text, in any of its forms; 0 if none does. Groups may have any
/// length, so that a number can be typed digit by digit.
std::size_t thousandsLength(std::string_view text, std::string_view separator)
{
    constexpr std::string_view noBreakBlank = "\u00a0";
    constexpr std::string_view narrowNoBreakBlank = "\u202f";
    constexpr std::string_view typographicApostrophe = "\u2019";
    // No keyboard types the no-break blanks, and systems differ in which one they use: all blanks count as the same.
    if (separator == noBreakBlank || separator == narrowNoBreakBlank)
        for (const std::string_view blank : {std::string_view{" "}, noBreakBlank, narrowNoBreakBlank})
            if (text.starts_with(blank))
                return blank.size();
    // No key types this one either.
    if (separator == typographicApostrophe && text.starts_with('\''))
        return 1;
    // Where the comma is decimal, a point is mostly meant as a decimal point, as in other regions: that is no number.
    return separator != "." && text.starts_with(separator) ? separator.size() : 0;
}

/// A number written in the region's way, rewritten with "." as the decimal point and no thousands separators; "" if it
/// has the decimal point of other regions. It is valid until the next call.
const std::string& plain(std::string_view text, const Region& region)
{
    thread_local std::string number; // it keeps its memory: allocating takes half as long as reading a number
    number = text;
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const auto rest = [&] { return std::string_view{number}.substr(at); };
    while (const std::size_t digits = countDigits(rest())) {
        at += digits;
        if (at == number.size() || rest().starts_with(region.decimal))
            break;
        number.erase(at, thousandsLength(rest(), region.thousands));
    }
    if (rest().starts_with(region.decimal)) {
        if (region.decimal.size() > 1)
            number.erase(at + 1, region.decimal.size() - 1);
        number[at] = '.';
    } else if (rest().starts_with('.')) {
        number.clear();
    }
    return number;
}

/// Writes a number of millionths as a decimal number; returns its end.
char* writeMillionths(std::int64_t millionths, char* begin, char* end)
{
    constexpr std::int64_t one = 1'000'000;
    char* const point = std::to_chars(begin, end, millionths / one).ptr;
    if (millionths % one == 0)
        return point;
    // The leading 1, which keeps the zeros of the decimals, makes room for the point.
    char* last = std::to_chars(point, end, one + millionths % one).ptr;
    *point = '.';
    while (last[-1] == '0')
        --last;
    return last;
}

/// Writes a non-negative number in general form with 15 digits; returns its end.
char* writeGeneral(double x, char* begin, char* end)
{
    // Nearly all numbers shown have six decimals at most. Those that fit in 15 digits are written from their
    // millionths, in half the time.
    const double guess = std::min(x * 1e6, 1e15) + 0.5; // the division below checks it
    const auto millionths = static_cast<std::int64_t>(guess);
    if (static_cast<double>(millionths) / 1e6 == x && millionths >= 100)
        return writeMillionths(millionths, begin, end);
    char* const last = std::to_chars(begin, end, x, std::chars_format::general, 15).ptr;
    if (char* const mark = std::find(begin, last, 'e'); mark != last)
        *mark = 'E';
    return last;
}

/// The digits of a number with a ".", after "-", or after `blanks` if it is not negative.
std::string digits(Double x, std::size_t blanks)
{
    constexpr std::size_t longest = 22; // "-1.23456789012345E-308"
    // The digits are written into the text itself: copying bytes just written is slow.
    std::string text(longest, ' ');
    const bool negative = x < 0;
    if (negative)
        text.front() = '-';
    char* const begin = text.data() + (negative ? 1 : blanks);
    text.resize(
        static_cast<std::size_t>(writeGeneral(std::fabs(x.value()), begin, text.data() + longest) - text.data()));
    return text;
}

/// Puts the region's decimal separator in place of the point.
void putDecimal(std::string& text, std::size_t point)
{
    const std::string& decimal = region().decimal;
    if (decimal.size() == 1)
        text[point] = decimal.front();
    else
        text.replace(point, 1, decimal);
}

} // namespace

Term Val(std::string_view text)
{
    // Most texts are a plain number, or one as `Str` writes it.
    if (const auto number = parseNumber(trimmed(text)))
        return *number;
    std::string solid;
    std::ranges::remove_copy_if(text, std::back_inserter(solid), isBlank);
    std::string_view rest = solid;
    if (consume(rest, "&H") || consume(rest, "&h"))
        return parseInteger(rest, 16);
    if (consume(rest, "&O") || consume(rest, "&o"))
        return parseInteger(rest, 8);
    return Term::checked(consumeNumber(rest));
}

Term CDbl(std::string_view text)
{
    text = trimmed(text);
    const Region& region = ondelis::region();
    if (region.decimal == ".")
        if (const auto number = parseNumber(text))
            return *number;
    if (const auto number = parseNumber(plain(text, region)))
        return *number;
    return Term{FaultKind::TypeMismatch};
}

Integer CInt(std::string_view text)
{
    return CInt(CDbl(text));
}

std::string CStr(Double x)
{
    std::string text = digits(x, 0);
    if (const auto point = text.find('.'); point != std::string::npos)
        putDecimal(text, point);
    return text;
}

std::string Str(Double x)
{
    std::string text = digits(x, 1);
    if (text[1] == '0' && text.size() > 2 && text[2] == '.')
        text.erase(1, 1);
    return text;
}

} // namespace ondelis
