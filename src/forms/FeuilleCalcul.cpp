#include "forms/FeuilleCalcul.h"

#include <algorithm>
#include <utility>

#include "forms/Runtime.h"

namespace ondelis {

FeuilleCalcul::FeuilleCalcul(Runtime& runtime, Design design) : runtime_{runtime}, design_{std::move(design)} { }

void FeuilleCalcul::Show()
{
    load();
    staysHidden_ = false;
    visible_ = true;
    runtime_.host().panelRaised(*this);
}

void FeuilleCalcul::Hide()
{
    load(true);
    staysHidden_ = true;
    if (std::exchange(visible_, false))
        changed();
}

void FeuilleCalcul::Unload()
{
    if (!loaded_)
        return;
    loaded_ = false;
    visible_ = false;
    runtime_.panelUnloaded(*this);
    runtime_.host().panelUnloaded(*this);
}

Control* FeuilleCalcul::find(std::string_view name) const
{
    const auto found = std::ranges::find(controls_, name, &Control::name);
    return found == controls_.end() ? nullptr : *found;
}

void FeuilleCalcul::moved(const Point& corner)
{
    Left.reset(Double{corner.Left});
    Top.reset(Double{corner.Top});
}

void FeuilleCalcul::ensureLoaded()
{
    if (!loaded_)
        load();
}

void FeuilleCalcul::changed()
{
    runtime_.host().panelChanged(*this);
}

void FeuilleCalcul::MsgBox(const std::string& prompt)
{
    runtime_.MsgBox({.prompt = prompt});
}

Answer FeuilleCalcul::MsgBox(const std::string& prompt, int buttons, const std::string& title)
{
    return runtime_.MsgBox({.prompt = prompt, .buttons = buttons, .title = title});
}

void FeuilleCalcul::DoEvents()
{
    runtime_.DoEvents();
}

void FeuilleCalcul::load(bool hidden)
{
    if (loaded_)
        return;
    loaded_ = true;
    staysHidden_ = hidden;
    visible_ = false;
    ++loadCount_;
    runtime_.panelLoaded(*this);
    Caption.reset(design_.Caption);
    Left.reset(0);
    Top.reset(0);
    Width.reset(Double{design_.Width});
    Height.reset(Double{design_.Height});
    for (Control* control : controls_)
        control->reset();
    runtime_.host().panelLoaded(*this);
    runtime_.raise(*this, Handler{&FeuilleCalcul::Form_Load});
    // Any reference that loads a panel shows it, unless the panel or the reference hides it.
    visible_ = !staysHidden_;
    changed();
}

} // namespace ondelis
