#pragma once

#include <nlohmann/json.hpp>

#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// Keeps the members in the order in which they are written.
using Json = nlohmann::ordered_json;

/// Reads what there is to see, as JSON: numbers of twips, colours 0xBBGGRR as numbers, the rest under the names of the
/// members.
class Inspector {
public:
    Inspector() = default;
    Inspector(const Inspector&) = delete;
    Inspector& operator=(const Inspector&) = delete;
    virtual ~Inspector() = default;

    /// "Left", "Top", "Width", "Height", "Caption", and "Focus", the control that has the keyboard as "PANEL.CONTROL".
    [[nodiscard]] virtual Json inspect(const MDIOndelis& frame) const = 0;
    /// "visible", the place and the caption, and "TabOrder", what the tab key leads to.
    [[nodiscard]] virtual Json inspect(const FeuilleCalcul& panel) const = 0;
    /// "kind", which is the class, its members, and "Frame", the frame that it stands in.
    [[nodiscard]] virtual Json inspect(Control& control) const = 0;
    /// Each menu, with its "Name", its "Caption" and its "Entries", each of which has a name and a caption, too.
    [[nodiscard]] virtual Json menus() const = 0;
};

/// "frame", "menus", and "panels": each loaded one with its "controls".
[[nodiscard]] Json inspectAll(const Inspector& inspector, const MDIOndelis& frame);

} // namespace ondelis::pilote
