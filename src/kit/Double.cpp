#include "kit/Double.h"

#include "kit/Fault.h"

namespace ondelis {

void Double::overflow()
{
    throw Fault{FaultKind::Overflow};
}

void Double::dividedByZero(Double dividend)
{
    throw Fault{dividend == 0 ? FaultKind::Overflow : FaultKind::DivisionByZero};
}

} // namespace ondelis
