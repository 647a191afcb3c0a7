#include "PanelSession.h"

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
    for (const FeuilleCalcul* panel : program.runtime.loadedPanels())
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

void PanelSession::open(const MenuEntry& entry)
{
    open([name = std::string{entry.control}](Program& program) { program.pick(name); });
}

void PanelSession::open(std::function<void(Program&)> opening)
{
    opening_ = std::move(opening);
    reopen();
}

void PanelSession::reopen()
{
    if (program_->runtime.ended()) {
        program_.reset();
        recover();
        program_ = std::make_unique<Program>();
    }
    opening_(*program_);
}

bool PanelSession::perform(const std::function<void(User&)>& action)
{
    program_->view.perform(action);
    if (!program_->runtime.ended())
        return true;
    reopen();
    return false;
}

Control* PanelSession::find(const std::string& panel, const std::string& control) const
{
    for (const FeuilleCalcul* loaded : program_->runtime.loadedPanels())
        if (loaded->design().name == panel)
            return loaded->find(control);
    return nullptr;
}

void PanelSession::choose(const std::function<void(PanelWindow&)>& look)
{
    lookAt(look);
    for (const Choice& choice : choicesOn(*program_)) {
        Control* const control = find(choice.panel, choice.control);
        const bool goesOn = perform([&](User& user) {
            if (auto* const option = dynamic_cast<OptionButton*>(control))
                user.click(*option);
            else if (auto* const list = dynamic_cast<ListBox*>(control))
                user.choose(*list, choice.row);
        });
        if (goesOn)
            lookAt(look);
    }
}

void PanelSession::lookAt(const std::function<void(PanelWindow&)>& look) const
{
    for (const FeuilleCalcul* panel : program_->runtime.loadedPanels())
        if (PanelWindow* const window = program_->view.find(*panel))
            look(*window);
}

} // namespace ondelis
