#include "Inspector.h"

#include "forms/Runtime.h"

namespace ondelis::pilote {

Json inspectAll(const Inspector& inspector, const MDIOndelis& frame)
{
    Json panels = Json::object();
    for (const FeuilleCalcul* panel : frame.runtime().loadedPanels()) {
        Json controls = Json::object();
        for (Control* control : panel->controls())
            controls[control->name()] = inspector.inspect(*control);
        Json state = inspector.inspect(*panel);
        state["controls"] = std::move(controls);
        panels[panel->design().name] = std::move(state);
    }
    return {{"frame", inspector.inspect(frame)}, {"menus", inspector.menus()}, {"panels", std::move(panels)}};
}

} // namespace ondelis::pilote
