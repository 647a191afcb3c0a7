#pragma once

#include <cstdint>

namespace ondelis {

/// A colour 0xBBGGRR, or one of the system's own colours below.
using Color = std::uint32_t;

/// The background of the system's windows and fields.
inline constexpr Color windowColor = 0x80000005;
/// The text on that background.
inline constexpr Color windowTextColor = 0x80000008;

// Field colours by role. Colours that only one panel uses are defined in that panel.
inline constexpr Color resultColor = 0xFFFFC0; ///< light cyan: shows a result
inline constexpr Color mainResultColor = 0xFFFF80; ///< cyan: a main result, or an input that does not count now
inline constexpr Color givenColor = 0xC0FFC0; ///< light green: waits for a value
inline constexpr Color soughtColor = 0xC0E0FF; ///< light orange: shows what is computed from the others

inline constexpr Color white = 0xFFFFFF;
inline constexpr Color black = 0x000000;
inline constexpr Color red = 0x0000FF;

/// Whether the system chooses the colour.
[[nodiscard]] constexpr bool isSystemColor(Color color)
{
    return (color & 0x80000000U) != 0;
}

/// The colour as 0xBBGGRR, with white and black for the system's two.
[[nodiscard]] constexpr Color plainColor(Color color)
{
    return color == windowColor ? white : color == windowTextColor ? black : color;
}

} // namespace ondelis
