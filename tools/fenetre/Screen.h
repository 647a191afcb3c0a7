#pragma once

#include "forms/Host.h"

namespace ondelis::fenetre {

/// Gives the platform without a screen one of this size, in twips, at 96 dots an inch. False on any other platform,
/// whose screen the program cannot choose.
bool setOffscreenSize(const Size& size);

} // namespace ondelis::fenetre
