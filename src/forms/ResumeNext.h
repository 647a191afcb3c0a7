#pragma once

#include <functional>
#include <initializer_list>

#include "kit/Fault.h"

namespace ondelis {

/// Runs the statements of `Form_Load` or `MDIForm_Load`: a fault anywhere inside one, nested handlers included, ends
/// it, and the next one runs. No other handler passes over a fault.
inline void resumeNext(std::initializer_list<std::function<void()>> statements)
{
    for (const auto& statement : statements) {
        try {
            statement();
        } catch (const Fault&) { // passing over it is the rule
        }
    }
}

} // namespace ondelis
