#pragma once

#include "forms/Surroundings.h"

namespace ondelis::fenetre {

/// Gives the platform without a screen one of this size, in twips, at 96 dots an inch. False on any other platform:
/// what screen it has is not the program's to say.
bool setOffscreenSize(const Extent& size);

} // namespace ondelis::fenetre
