#include "forms/Desk.h"

#include <algorithm>
#include <span>

#include "forms/Handler.h"

namespace ondelis {

Desk::Desk(Surroundings& surroundings) : surroundings_{surroundings} { }

Desk::~Desk() = default;

void Desk::panelLoaded(FeuilleCalcul& panel)
{
    loadedPanels_.push_back(&panel);
}

void Desk::panelUnloaded(FeuilleCalcul& panel)
{
    std::erase(loadedPanels_, &panel);
    if (focused_ != nullptr && &focused_->panel() == &panel)
        focused_ = nullptr;
}

void Desk::End()
{
    end(0);
    throw Unwinding{};
}

void Desk::close()
{
    end(0);
}

void Desk::raise(FeuilleCalcul& panel, const Handler& handler)
{
    const RunningHandler running{*this, panel};
    handler.run(panel);
}

void Desk::raise(FeuilleCalcul& panel, const KeyHandler& handler, Integer& key)
{
    const RunningHandler running{*this, panel};
    handler.run(panel, key);
}

Answer Desk::MsgBox(const MessageBox& box)
{
    const Answer answer = surroundings_.showBox(box);
    leaveDeadHandlers();
    return answer;
}

void Desk::DoEvents()
{
    surroundings_.runPendingEvents();
    leaveDeadHandlers();
}

void Desk::fail(const Fault& fault)
{
    ended_ = true; // for whatever happens while the fault is read, the program is over
    surroundings_.showFault(fault);
    surroundings_.programEnded(1);
}

void Desk::end(int status)
{
    if (ended_)
        return;
    ended_ = true;
    surroundings_.programEnded(status);
}

void Desk::leaveDeadHandlers() const
{
    const auto ofThisAction = std::span{running_}.subspan(actionBegin_);
    const bool dead = std::ranges::any_of(ofThisAction,
        [](const Running& handler) { return !handler.panel->loaded() || handler.panel->loading() != handler.loading; });
    if (ended_ || dead)
        throw Unwinding{};
}

} // namespace ondelis
