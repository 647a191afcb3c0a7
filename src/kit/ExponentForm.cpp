#include "kit/ExponentForm.h"

#include <charconv>
#include <cmath>

#include "kit/Region.h"

namespace ondelis {
namespace {

/// What `to_chars` writes for a magnitude, which it rounds correctly, a tie to the even neighbour.
std::string scientific(double magnitude, int decimals)
{
    constexpr std::size_t around = 8; // a digit, a point, and an exponent such as "e-308"
    std::string text(static_cast<std::size_t>(decimals) + around, ' ');
    char* const begin = text.data();
    const auto written = std::to_chars(begin, begin + text.size(), magnitude, std::chars_format::scientific, decimals);
    text.resize(static_cast<std::size_t>(written.ptr - begin));
    return text;
}

/// Whether a magnitude lies exactly halfway between two texts with three decimals.
bool isTie(double magnitude)
{
    constexpr int allDecimals = 766; // of the number with the longest expansion
    constexpr std::size_t fourthDecimal = 5; // behind "1.234"
    const std::string exact = scientific(magnitude, allDecimals);
    return exact[fourthDecimal] == '5' && exact.find_first_not_of('0', fourthDecimal + 1) == exact.find('e');
}

} // namespace

std::string exponentForm(Double x)
{
    const double magnitude = std::fabs(x.value());
    // Numbers are far denser than these texts: the one next above a tie has the text that the tie should have.
    std::string text = scientific(isTie(magnitude) ? std::nextafter(magnitude, HUGE_VAL) : magnitude, 3);
    text.replace(text.find('e'), 1, "E");
    text.replace(text.find('.'), 1, region().decimal);
    return x < 0 ? "-" + text : text;
}

} // namespace ondelis
