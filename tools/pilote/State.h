#pragma once

#include <nlohmann/json.hpp>

#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// Keeps the members in the order in which they are written.
using Json = nlohmann::ordered_json;

// What there is to see, as JSON: numbers of twips, colours 0xBBGGRR as numbers, the rest under the names of
// the members.

/// "Left", "Top", "Width", "Height", "Caption".
[[nodiscard]] Json stateOf(const MDIOndelis& frame);

/// The same and "visible".
[[nodiscard]] Json stateOf(const FeuilleCalcul& panel);

/// "kind", which is the class, and its members.
[[nodiscard]] Json stateOf(Control& control);

/// "frame", and "panels": each loaded one with its "controls".
[[nodiscard]] Json stateOfAll(const MDIOndelis& frame);

} // namespace ondelis::pilote
