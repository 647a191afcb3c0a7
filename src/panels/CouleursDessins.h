#pragma once

#include "forms/Color.h"

/// The colours of the drawings, for what panels draw and letter beside them.
namespace ondelis::dessin {

inline constexpr Color encre = 0x3D2D1F;
inline constexpr Color cuivre = 0x1F56A8;
inline constexpr Color cote = 0x784A2A; ///< dimension lines

} // namespace ondelis::dessin
