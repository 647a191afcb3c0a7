#include "Walk.h"

#include <algorithm>
#include <utility>

#include "forms/Controls.h"
#include "shell/Menu.h"

namespace ondelis {
namespace {

/// One click of a person on a panel: an option, or a row of a list.
struct Choice {
    std::string panel;
    std::string control;
    int row;
};

std::vector<Choice> choicesOn(const Program& program)
{
    constexpr int manyRows = 12; // of a long list the first ones stand for all
    std::vector<Choice> choices;
    for (const FeuilleCalcul* panel : program.desk.loadedPanels())
        for (Control* control : panel->controls()) {
            if (dynamic_cast<OptionButton*>(control) != nullptr)
                choices.push_back({panel->design().name, control->name(), 0});
            if (const auto* const list = dynamic_cast<ListBox*>(control))
                for (int row = 0; row < std::min(manyRows, list->ListCount().value()); ++row)
                    choices.push_back({panel->design().name, control->name(), row});
        }
    return choices;
}

} // namespace

void Walk::open(const MenuEntry& entry)
{
    open([name = std::string{entry.control}](Program& program) { program.pick(name); });
}

void Walk::open(std::function<void(Program&)> opening)
{
    opening_ = std::move(opening);
    reopen();
}

void Walk::reopen()
{
    if (program_->desk.ended()) {
        program_.reset();
        recover();
        program_ = std::make_unique<Program>();
    }
    opening_(*program_);
}

bool Walk::act(const std::function<void(User&)>& action)
{
    program_->view.perform(action);
    if (!program_->desk.ended())
        return true;
    reopen();
    return false;
}

Control* Walk::find(const std::string& panel, const std::string& control) const
{
    for (const FeuilleCalcul* loaded : program_->desk.loadedPanels())
        if (loaded->design().name == panel)
            return loaded->find(control);
    return nullptr;
}

void Walk::choose(const std::function<void(PanelWindow&)>& look)
{
    lookAt(look);
    for (const Choice& choice : choicesOn(*program_)) {
        Control* const control = find(choice.panel, choice.control);
        const bool goesOn = act([&](User& user) {
            if (auto* const option = dynamic_cast<OptionButton*>(control))
                user.click(*option);
            else if (auto* const list = dynamic_cast<ListBox*>(control))
                user.choose(*list, choice.row);
        });
        if (goesOn)
            lookAt(look);
    }
}

void Walk::lookAt(const std::function<void(PanelWindow&)>& look) const
{
    for (const FeuilleCalcul* panel : program_->desk.loadedPanels())
        if (PanelWindow* const window = program_->view.find(*panel))
            look(*window);
}

} // namespace ondelis
