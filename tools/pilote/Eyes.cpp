#include "Eyes.h"

#include "forms/Desk.h"

namespace ondelis::pilote {

Json seeAll(const Eyes& eyes, const MDIOndelis& frame)
{
    Json panels = Json::object();
    for (const FeuilleCalcul* panel : frame.desk().loadedPanels()) {
        Json controls = Json::object();
        for (Control* control : panel->controls())
            controls[control->name()] = eyes.see(*control);
        Json state = eyes.see(*panel);
        state["controls"] = std::move(controls);
        panels[panel->design().name] = std::move(state);
    }
    return {{"frame", eyes.see(frame)}, {"menus", eyes.menus()}, {"panels", std::move(panels)}};
}

} // namespace ondelis::pilote
