#include "kit/Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>

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

/// A decimal number in the form that from_chars reads: "-12.5e3". Most fit the inline buffer of a short
/// string.
Double parsed(const std::string& digits)
{
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    // Out of range is either an overflow or an underflow; only strtod tells which, with its 0 or its
    // infinity.
    if (error == std::errc::result_out_of_range)
        return Double::checked(std::strtod(digits.c_str(), nullptr));
    return value;
}

/// Reads the characters of a text one by one, as a number is put together from them.
class Reader {
public:
    explicit Reader(std::string_view text) : rest_{text} { }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    [[nodiscard]] char next() const { return rest_.empty() ? '\0' : rest_.front(); }
    void skip(std::size_t count = 1) { rest_.remove_prefix(count); }

    bool takes(std::string_view word)
    {
        if (word.empty() || !rest_.starts_with(word))
            return false;
        skip(word.size());
        return true;
    }

    /// Moves an optional sign over; a "+" is dropped, since from_chars takes none.
    void sign(std::string& number)
    {
        if (next() == '-')
            number += '-';
        if (next() == '-' || next() == '+')
            skip();
    }

    /// Moves digits over; tells whether there was one.
    bool digits(std::string& number)
    {
        const auto count = static_cast<std::size_t>(std::ranges::find_if_not(rest_, isDigit) - rest_.begin());
        number.append(rest_.substr(0, count));
        skip(count);
        return count != 0;
    }

    /// Moves an exponent over, if a whole one stands here.
    void exponent(std::string& number)
    {
        if (next() != 'e' && next() != 'E' && next() != 'd' && next() != 'D')
            return;
        Reader ahead{rest_.substr(1)};
        std::string marked = "e";
        ahead.sign(marked);
        if (!ahead.digits(marked))
            return;
        number += marked;
        *this = ahead;
    }

private:
    std::string_view rest_;
};

/// The whole number behind &H or &O; nothing where the text has neither prefix.
std::optional<Double> hexOrOctal(std::string_view text)
{
    if (text.size() < 2 || text[0] != '&')
        return {};
    const char mark = text[1];
    const int base = mark == 'H' || mark == 'h' ? 16 : mark == 'O' || mark == 'o' ? 8 : 0;
    if (base == 0)
        return {};
    Double value = 0;
    for (const char c : text.substr(2)) {
        int digit = 0;
        if (std::from_chars(&c, &c + 1, digit, base).ec != std::errc{})
            break;
        value = value * base + digit;
    }
    return value;
}

/// The number that starts a text with no blanks in it.
Double leadingNumber(std::string_view text)
{
    if (const auto whole = hexOrOctal(text))
        return *whole;
    Reader reader{text};
    std::string number;
    reader.sign(number);
    bool anyDigit = reader.digits(number);
    if (reader.takes(".")) {
        number += '.';
        anyDigit = reader.digits(number) || anyDigit;
    }
    if (!anyDigit)
        return 0;
    reader.exponent(number);
    return parsed(number);
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Whether a thousands separator stands here. French regions separate by a no-break blank that no keyboard
/// types, so there a plain blank will do.
bool takesThousands(Reader& reader)
{
    const std::string& separator = region().thousands;
    const bool blank = separator == "\u00a0" || separator == "\u202f";
    return reader.takes(separator)
        || (blank && (reader.takes(" ") || reader.takes("\u00a0") || reader.takes("\u202f")));
}

/// What a number's text is made of: sign, significant digits without trailing zeros, power of ten of the
/// first digit.
struct Digits {
    bool negative;
    std::array<char, 15> digit;
    int count;
    int exponent;
};

Digits digitsOf(Double x)
{
    std::array<char, 32> text{};
    const double magnitude = std::abs(x.value());
    const auto [end, error]
        = std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, 14);
    // "d.dddddddddddddde±xx"
    Digits digits{.negative = x < 0, .digit = {text[0]}, .count = 15, .exponent = 0};
    std::copy_n(text.data() + 2, 14, digits.digit.data() + 1);
    while (digits.count > 1 && digits.digit[static_cast<std::size_t>(digits.count) - 1] == '0')
        --digits.count;
    const char* exponent = text.data() + 17;
    std::from_chars(exponent + (*exponent == '+' ? 1 : 0), end, digits.exponent);
    return digits;
}

/// A number's text: after `sign` the digits with `point`, and with `zero` before the point of a number
/// below 1.
std::string written(const Digits& digits, std::string_view sign, std::string_view point, std::string_view zero)
{
    std::string text{sign};
    const std::string_view all{digits.digit.data(), static_cast<std::size_t>(digits.count)};
    if (digits.exponent >= 15 || digits.exponent < -4) {
        text += all[0];
        if (all.size() > 1)
            text.append(point).append(all.substr(1));
        const int power = std::abs(digits.exponent);
        text += digits.exponent < 0 ? "E-" : "E+";
        if (power < 10)
            text += '0';
        std::array<char, 4> number{};
        text.append(number.data(), std::to_chars(number.data(), number.data() + number.size(), power).ptr);
    } else if (digits.exponent < 0) {
        text.append(zero).append(point).append(static_cast<std::size_t>(-digits.exponent) - 1, '0').append(all);
    } else {
        const auto whole = static_cast<std::size_t>(digits.exponent) + 1;
        if (all.size() <= whole)
            text.append(all).append(whole - all.size(), '0');
        else
            text.append(all.substr(0, whole)).append(point).append(all.substr(whole));
    }
    return text;
}

} // namespace

Double Val(std::string_view text)
{
    if (std::ranges::none_of(text, isBlank))
        return leadingNumber(text);
    std::string solid;
    std::ranges::copy_if(text, std::back_inserter(solid), [](char c) { return !isBlank(c); });
    return leadingNumber(solid);
}

Double CDbl(std::string_view text)
{
    Reader reader{trimmed(text)};
    std::string number;
    reader.sign(number);
    bool anyDigit = reader.digits(number);
    while (anyDigit && takesThousands(reader))
        reader.digits(number);
    if (reader.takes(region().decimal)) {
        number += '.';
        anyDigit = reader.digits(number) || anyDigit;
    }
    if (anyDigit)
        reader.exponent(number);
    if (!anyDigit || !reader.atEnd())
        throw Fault{FaultKind::TypeMismatch};
    return parsed(number);
}

Integer CInt(std::string_view text)
{
    return CInt(CDbl(text));
}

std::string CStr(Double x)
{
    const Digits digits = digitsOf(x);
    return written(digits, digits.negative ? "-" : "", region().decimal, "0");
}

std::string Str(Double x)
{
    const Digits digits = digitsOf(x);
    return written(digits, digits.negative ? "-" : " ", ".", "");
}

} // namespace ondelis
