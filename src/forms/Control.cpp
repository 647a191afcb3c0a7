#include "forms/Control.h"

#include <utility>

#include "forms/Controls.h"
#include "forms/Desk.h"
#include "forms/FeuilleCalcul.h"

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

void Control::touch()
{
    panel_.touch();
}

void Control::changed()
{
    panel_.desk().surroundings().controlChanged(*this);
}

void Control::raise(const Handler& handler)
{
    if (handler)
        panel_.desk().raise(panel_, handler);
}

} // namespace ondelis
