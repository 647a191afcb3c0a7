#include "kit/Double.h"

namespace ondelis {

void Term::raise() const
{
    throw Fault{static_cast<FaultKind>(std::bit_cast<std::uint64_t>(value_) & 0xFFU)};
}

} // namespace ondelis
