#pragma once

#include <cstdint>

namespace ondelis {

/// A colour 0xBBGGRR, or one of the system's own colours below.
using Color = std::uint32_t;

/// The background of the system's windows and fields.
inline constexpr Color windowColor = 0x80000005;
/// The text on it.
inline constexpr Color windowTextColor = 0x80000008;

/// Whether the colour is the system's to choose.
[[nodiscard]] constexpr bool isSystemColor(Color color)
{
    return (color & 0x80000000U) != 0;
}

/// The colour as 0xBBGGRR, with white and black for the system's two.
[[nodiscard]] constexpr Color plainColor(Color color)
{
    return color == windowColor ? 0xFFFFFF : color == windowTextColor ? 0x000000 : color;
}

} // namespace ondelis
