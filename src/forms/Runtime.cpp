#include "forms/Runtime.h"

#include <algorithm>
#include <span>

#include "forms/Handler.h"

namespace ondelis {

Runtime::Runtime(Host& host) : host_{host} { }

Runtime::~Runtime() = default;

void Runtime::panelLoaded(FeuilleCalcul& panel)
{
    loadedPanels_.push_back(&panel);
}

void Runtime::panelUnloaded(FeuilleCalcul& panel)
{
    std::erase(loadedPanels_, &panel);
    if (focused_ != nullptr && &focused_->panel() == &panel)
        focused_ = nullptr;
}

void Runtime::End()
{
    end(0);
    throw Aborted{};
}

void Runtime::close()
{
    end(0);
}

void Runtime::raise(FeuilleCalcul& panel, const Handler& handler)
{
    const HandlerScope scope{*this, panel};
    handler.run(panel);
}

void Runtime::raise(FeuilleCalcul& panel, const KeyHandler& handler, Integer& key)
{
    const HandlerScope scope{*this, panel};
    handler.run(panel, key);
}

Answer Runtime::MsgBox(const MessageBox& box)
{
    const Answer answer = host_.showBox(box);
    abortIfStale();
    return answer;
}

void Runtime::DoEvents()
{
    host_.runPendingEvents();
    abortIfStale();
}

void Runtime::fail(const Fault& fault)
{
    ended_ = true; // for whatever happens while the fault is read, the program is over
    host_.showFault(fault);
    host_.programEnded(1);
}

void Runtime::end(int status)
{
    if (ended_)
        return;
    ended_ = true;
    host_.programEnded(status);
}

void Runtime::abortIfStale() const
{
    const auto ofThisAction = std::span{activeHandlers_}.subspan(actionBegin_);
    const bool stale = std::ranges::any_of(ofThisAction, [](const ActiveHandler& handler) {
        return !handler.panel->loaded() || handler.panel->loadCount() != handler.loadCount;
    });
    if (ended_ || stale)
        throw Aborted{};
}

} // namespace ondelis
