#include "forms/FeuilleCalcul.h"

#include <algorithm>
#include <utility>

#include "forms/Desk.h"

namespace ondelis {

FeuilleCalcul::FeuilleCalcul(Desk& desk, Design design) : desk_{desk}, design_{std::move(design)} { }

void FeuilleCalcul::Show()
{
    load();
    staysHidden_ = false;
    visible_ = true;
    desk_.surroundings().panelRaised(*this);
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
    desk_.panelUnloaded(*this);
    desk_.surroundings().panelUnloaded(*this);
}

Control* FeuilleCalcul::find(std::string_view name) const
{
    const auto found = std::ranges::find(controls_, name, &Control::name);
    return found == controls_.end() ? nullptr : *found;
}

void FeuilleCalcul::placed(const Extent& corner)
{
    Left.reset(Double{corner.Width});
    Top.reset(Double{corner.Height});
}

void FeuilleCalcul::touch()
{
    if (!loaded_)
        load();
}

void FeuilleCalcul::changed()
{
    desk_.surroundings().panelChanged(*this);
}

void FeuilleCalcul::MsgBox(const std::string& prompt)
{
    desk_.MsgBox({.prompt = prompt});
}

Answer FeuilleCalcul::MsgBox(const std::string& prompt, int buttons, const std::string& title)
{
    return desk_.MsgBox({.prompt = prompt, .buttons = buttons, .title = title});
}

void FeuilleCalcul::DoEvents()
{
    desk_.DoEvents();
}

void FeuilleCalcul::load(bool hidden)
{
    if (loaded_)
        return;
    loaded_ = true;
    staysHidden_ = hidden;
    visible_ = false;
    ++loading_;
    desk_.panelLoaded(*this);
    Caption.reset(design_.Caption);
    Left.reset(0);
    Top.reset(0);
    Width.reset(Double{design_.Width});
    Height.reset(Double{design_.Height});
    for (Control* control : controls_)
        control->reset();
    desk_.surroundings().panelLoaded(*this);
    desk_.raise(*this, Handler{&FeuilleCalcul::Form_Load});
    // Any reference that loads a panel shows it, unless the panel or the reference hides it.
    visible_ = !staysHidden_;
    changed();
}

} // namespace ondelis
