#include "kit/Conversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <locale>
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

/// Drops `word` from the start of a text; tells whether it stood there.
bool takes(std::string_view& text, std::string_view word)
{
    if (word.empty() || !text.starts_with(word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

/// Drops a sign; tells whether it was "-".
bool takesMinus(std::string_view& text)
{
    const bool minus = takes(text, "-");
    if (!minus)
        takes(text, "+");
    return minus;
}

/// A number too large or too small for from_chars, which does not tell which of both it is.
Double extreme(std::string_view text)
{
    std::istringstream stream{std::string{text}};
    stream.imbue(std::locale::classic());
    double value = 0;
    if (!(stream >> value))
        throw Fault{FaultKind::Overflow};
    return value;
}

/// Takes the longest unsigned number, with exponent marks e and E, that starts a text; 0 where none does.
Double takePlainNumber(std::string_view& text)
{
    // from_chars by itself takes a sign, "inf" and "nan", too.
    if (text.empty() || (!isDigit(text.front()) && text.front() != '.'))
        return 0;
    double value = 0;
    const char* const begin = text.data();
    const auto [end, error] = std::from_chars(begin, begin + text.size(), value);
    const auto length = static_cast<std::size_t>(end - begin);
    const Double number = error == std::errc::result_out_of_range ? extreme(text.substr(0, length)) : Double{value};
    text.remove_prefix(length);
    return number;
}

/// As `takePlainNumber`, with exponent marks d and D too.
Double takeNumber(std::string_view& text)
{
    std::string_view rest = text;
    Double number = takePlainNumber(rest);
    if (rest.starts_with('d') || rest.starts_with('D')) {
        std::string marked{text};
        marked[text.size() - rest.size()] = 'e';
        rest = marked;
        number = takePlainNumber(rest);
    }
    text.remove_prefix(text.size() - rest.size());
    return number;
}

/// The whole number of the digits, in a base of 8 or 16, that start a text.
Double wholeNumber(std::string_view text, int base)
{
    Double number = 0;
    for (const char& c : text) {
        int digit = 0;
        if (std::from_chars(&c, &c + 1, digit, base).ec != std::errc{})
            break;
        number = number * base + digit;
    }
    return number;
}

/// The number that starts a text with no blanks in it.
Double leadingNumber(std::string_view text)
{
    if (takes(text, "&H") || takes(text, "&h"))
        return wholeNumber(text, 16);
    if (takes(text, "&O") || takes(text, "&o"))
        return wholeNumber(text, 8);
    const bool minus = takesMinus(text);
    const Double number = takeNumber(text);
    return minus ? -number : number;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Drops a thousands separator; tells whether one stood there. Groups may have any length, so that a number
/// can be typed digit by digit.
bool takesThousands(std::string_view& text)
{
    constexpr std::string_view noBreakBlank = "\u00a0";
    constexpr std::string_view narrowNoBreakBlank = "\u202f";
    const std::string_view separator = region().thousands;
    // No keyboard types the no-break blanks, and systems differ in which one they use: all blanks are one.
    if (separator == noBreakBlank || separator == narrowNoBreakBlank)
        return takes(text, " ") || takes(text, noBreakBlank) || takes(text, narrowNoBreakBlank);
    // A point in a region of commas is mostly meant as a decimal one, which is no number there: it separates
    // thousands only before just three digits.
    if (separator == "." && std::ranges::find_if_not(text.substr(1), isDigit) - text.begin() != 4)
        return false;
    return takes(text, separator);
}

/// The text of an unsigned number of the region with "." as the decimal point and no thousands separators.
std::string plain(std::string_view text)
{
    std::string number;
    bool whole = true; // up to here the number has nothing but digits
    while (!text.empty()) {
        if (whole && !number.empty() && takesThousands(text))
            continue;
        whole = isDigit(text.front()) && whole;
        if (takes(text, region().decimal)) {
            number += '.';
        } else if (text.front() == '.') {
            throw Fault{FaultKind::TypeMismatch};
        } else {
            number += text.front();
            text.remove_prefix(1);
        }
    }
    return number;
}

/// A number as a text in general form, at most 15 significant digits, with its sign ahead: "-" or a blank.
class GeneralForm {
public:
    explicit GeneralForm(Double x)
    {
        text_.front() = x < 0 ? '-' : ' ';
        end_ = std::to_chars(
            text_.data() + 1, text_.data() + text_.size(), std::fabs(x.value()), std::chars_format::general, 15)
                   .ptr;
        std::replace(text_.data(), end_, 'e', 'E');
    }

    [[nodiscard]] std::string_view signedText() const { return {text_.data(), end_}; }

private:
    std::array<char, 24> text_{};
    char* end_;
};

} // namespace

Double Val(std::string_view text)
{
    if (std::ranges::none_of(text, isBlank))
        return leadingNumber(text);
    std::string solid;
    std::ranges::remove_copy_if(text, std::back_inserter(solid), isBlank);
    return leadingNumber(solid);
}

Double CDbl(std::string_view text)
{
    text = trimmed(text);
    const bool minus = takesMinus(text);
    const std::string number = plain(text);
    std::string_view rest = number;
    const Double magnitude = takeNumber(rest);
    if (number.empty() || !rest.empty())
        throw Fault{FaultKind::TypeMismatch};
    return minus ? -magnitude : magnitude;
}

Integer CInt(std::string_view text)
{
    return CInt(CDbl(text));
}

std::string CStr(Double x)
{
    const GeneralForm form{x};
    std::string text{form.signedText().substr(x < 0 ? 0 : 1)};
    if (const auto point = text.find('.'); point != std::string::npos)
        text.replace(point, 1, region().decimal);
    return text;
}

std::string Str(Double x)
{
    const GeneralForm form{x};
    std::string text{form.signedText()};
    if (text.compare(1, 2, "0.") == 0)
        text.erase(1, 1);
    return text;
}

} // namespace ondelis
