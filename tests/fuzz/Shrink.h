#pragma once

#include "Session.h"

namespace ondelis::fuzz {

/// A session that ends as the given one does, with as few commands as can quickly be found.
[[nodiscard]] Outcome shrunk(const NewSubject& newSubject, Outcome outcome);

} // namespace ondelis::fuzz
