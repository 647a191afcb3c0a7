#include "kit/Text.h"

#include <algorithm>

#include "kit/Fault.h"

namespace ondelis {
namespace {

/// Where the character numbered `index`, from 0, starts; the end of the text past its last one.
std::size_t startOf(std::string_view text, int index)
{
    std::size_t at = 0;
    for (; at < text.size(); ++at)
        if (startsCharacter(text[at]) && index-- == 0)
            break;
    return at;
}

void require(bool sound)
{
    if (!sound)
        throw Fault{FaultKind::InvalidArgument};
}

// The letters of two bytes, and at the same positions their capitals, also of two bytes.
constexpr std::string_view lowerCase = "àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿœšž";
constexpr std::string_view upperCase = "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŸŒŠŽ";
static_assert(lowerCase.size() == upperCase.size());

} // namespace

int Len(std::string_view text)
{
    return static_cast<int>(std::ranges::count_if(text, startsCharacter));
}

std::string Left(std::string_view text, int count)
{
    require(count >= 0);
    return std::string{text.substr(0, startOf(text, count))};
}

std::string Right(std::string_view text, int count)
{
    require(count >= 0);
    return std::string{text.substr(startOf(text, std::max(0, Len(text) - count)))};
}

std::string Mid(std::string_view text, int start, int count)
{
    require(start >= 1 && count >= 0);
    return Left(text.substr(startOf(text, start - 1)), count);
}

std::string UCase(std::string_view text)
{
    std::string capitals;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view character = text.substr(at, startOf(text.substr(at), 1));
        at += character.size();
        if (character >= "a" && character <= "z")
            capitals += static_cast<char>(character[0] - 'a' + 'A');
        else if (const std::size_t found = lowerCase.find(character); found != std::string_view::npos)
            capitals += upperCase.substr(found, character.size());
        else
            capitals += character;
    }
    return capitals;
}

} // namespace ondelis
