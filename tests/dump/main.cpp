#include <iostream>
#include <set>

#include "EngineInspector.h"
#include "HeadlessBackend.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"

namespace ondelis {
namespace {

using pilote::Json;

/// A control: all that the driver reports of it, its place, and what only its design says.
Json formOf(const FeuilleCalcul& panel)
{
    const pilote::EngineInspector inspector;
    Json controls = Json::array();
    for (Control* const control : panel.controls()) {
        Json one = inspector.inspect(*control);
        one["name"] = control->name();
        one["box"] = {control->at().Left, control->at().Top, control->at().Width, control->at().Height};
        one["focusable"] = control->focusable();
        controls.push_back(std::move(one));
    }
    Json form = inspector.inspect(panel);
    form["controls"] = std::move(controls);
    return form;
}

} // namespace
} // namespace ondelis

/// Writes each panel as it opens, with every control in the order of the form.
int main()
{
    using namespace ondelis;
    std::set<std::string> written;
    for (const MenuEntry* const entry : panelEntries()) {
        pilote::HeadlessBackend program;
        program.start();
        static_cast<void>(program.actor().menu(std::string{entry->control}));
        for (const FeuilleCalcul* const panel : program.frame().runtime().loadedPanels())
            if (written.insert(panel->design().name).second)
                std::cout << panel->design().name << ' ' << formOf(*panel).dump(1) << '\n';
    }
}
