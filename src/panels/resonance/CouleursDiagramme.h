#pragma once

#include "forms/Color.h"

/// The colours of the diagrams: the same part has the same colour in both.
namespace ondelis::diagramme {

inline constexpr Color axe = 0x8A8A8A;
inline constexpr Color bleu = 0xD08C4A; ///< the coil
inline constexpr Color ocre = 0x1B61B8; ///< the resistance
inline constexpr Color vert = 0x3F6B12; ///< the capacitor
inline constexpr Color rouge = 0x281CD0; ///< what they add up to

} // namespace ondelis::diagramme
