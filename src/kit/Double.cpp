#include "kit/Double.h"

namespace ondelis {

void Term::raise(FaultKind kind)
{
    throw Fault{kind};
}

} // namespace ondelis
