#pragma once

#include "Session.h"

namespace ondelis::fuzz {

/// A session that ends as the given one does, with as few commands as can quickly be found.
[[nodiscard]] Outcome shrunk(const TargetFactory& makeTarget, Outcome outcome);

} // namespace ondelis::fuzz
