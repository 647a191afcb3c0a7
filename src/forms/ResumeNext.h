#pragma once

#include "kit/Fault.h"

namespace ondelis {

/// Runs one statement of `Form_Load` or `MDIForm_Load`: a fault anywhere inside it, nested handlers included, ends the
/// statement, and the next one runs. No other handler passes over a fault.
template <class Statement>
void resumeNext(Statement&& statement)
{
    try {
        statement();
    } catch (const Fault&) { // passing over it is the rule
    }
}

} // namespace ondelis
