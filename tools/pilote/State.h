#pragma once

#include <nlohmann/json.hpp>

#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// Keeps the members in the order in which they are written.
using Json = nlohmann::ordered_json;

// What there is to see, as JSON: numbers of twips, colours 0xBBGGRR as numbers, the rest under the names of
// the members.

/// "Left", "Top", "Width", "Height", "Caption", and "Focus", the control that has the keyboard as "PANEL.CONTROL".
[[nodiscard]] Json stateOf(const MDIOndelis& frame);

/// "visible", the place and the caption, and "TabOrder", what the tab key leads to.
[[nodiscard]] Json stateOf(const FeuilleCalcul& panel);

/// "kind", which is the class, its members, and "Frame", the frame that it stands in.
[[nodiscard]] Json stateOf(Control& control);

/// "frame", and "panels": each loaded one with its "controls".
[[nodiscard]] Json stateOfAll(const MDIOndelis& frame);

} // namespace ondelis::pilote
