#pragma once

#include <optional>
#include <string>

#include "forms/ControlArray.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis {

/// Impedance and resonance of seven simple circuits at one frequency.
class CircuitsOscillants final : public FeuilleCalcul {
public:
    explicit CircuitsOscillants(Desk& desk);
};

} // namespace ondelis
