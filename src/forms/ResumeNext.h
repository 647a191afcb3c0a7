#pragma once

#include "kit/Fault.h"

namespace ondelis {

/// Runs statements one after the other. A fault anywhere inside one, nested handlers included, ends that
/// statement and the next one runs. It is how `Form_Load` and `MDIForm_Load` run, and nothing else.
template <class... Statements>
void resumeNext(Statements&&... statements)
{
    const auto guarded = [](auto& statement) {
        try {
            statement();
        } catch (const Fault&) { // NOLINT(bugprone-empty-catch): passing over it is the rule
        }
    };
    (guarded(statements), ...);
}

} // namespace ondelis
