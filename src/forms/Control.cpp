#include "forms/Control.h"

#include <utility>

#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "forms/Runtime.h"

namespace ondelis {

Control::Control(FeuilleCalcul* panel, std::string_view name, Box at, Frame* container)
    : panel_{*panel}, name_{name}, at_{at}, container_{container}
{
    panel_.controls_.push_back(this);
}

bool Control::onScreen() const
{
    return ownVisible() && (container_ == nullptr || container_->onScreen());
}

void Control::ensureLoaded()
{
    panel_.ensureLoaded();
}

void Control::changed()
{
    panel_.runtime().host().controlChanged(*this);
}

void Control::raise(const Handler& handler)
{
    if (handler)
        panel_.runtime().raise(panel_, handler);
}

} // namespace ondelis
