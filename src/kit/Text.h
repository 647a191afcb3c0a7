#pragma once

#include <string>
#include <string_view>

namespace ondelis {

// Texts are UTF-8 and are counted in characters, not in bytes: "é" is one.

/// Whether a byte starts a character; the second and later bytes of a character do not.
[[nodiscard]] constexpr bool startsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The number of characters.
[[nodiscard]] int Len(std::string_view text);

/// The first `count` characters, or all of them. Throws an invalid argument for a negative count.
[[nodiscard]] std::string Left(std::string_view text, int count);

/// The last `count` characters, or all of them. Throws an invalid argument for a negative count.
[[nodiscard]] std::string Right(std::string_view text, int count);

/// `count` characters from the one numbered `start`, counted from 1; fewer at the end of the text. Throws an
/// invalid argument for a start below 1 or a negative count.
[[nodiscard]] std::string Mid(std::string_view text, int start, int count);

/// The text in capitals, as far as it is written in the letters of Western Europe.
[[nodiscard]] std::string UCase(std::string_view text);

} // namespace ondelis
