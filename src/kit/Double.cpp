#include "kit/Double.h"

namespace ondelis {

void Term::throwFault(FaultKind kind)
{
    throw Fault{kind};
}

} // namespace ondelis
