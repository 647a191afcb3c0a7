#pragma once

#include "kit/Double.h"

namespace ondelis {

class AntennesHighQLoop;

/// How a loop performs at one frequency. Each quantity throws an overflow beyond the range of a `Double`.
class Fonctionnement {
public:
    /// At the frequency F, in Hz, where the loop has the bandwidth D, in Hz.
    Fonctionnement(const AntennesHighQLoop& loop, Double F, Double D) : loop_{loop}, F_{F}, D_{D} { }

    [[nodiscard]] Double Q() const;
    /// Reactance, ohms.
    [[nodiscard]] Double XL() const;
    /// Radiation resistance, ohms.
    [[nodiscard]] Double RR() const;
    /// Loss resistance, ohms: the total that the bandwidth implies, less the radiation resistance; it can be negative.
    [[nodiscard]] Double RL() const;
    /// Voltage of the capacitor, V. Throws an invalid argument for a negative reactance.
    [[nodiscard]] Double Vc() const;
    /// Current of the loop, A. Throws an invalid argument for a negative reactance.
    [[nodiscard]] Double IL() const;
    /// Efficiency in per cent, truncated to two decimals. Throws a division by zero where both resistances cancel out.
    [[nodiscard]] Double Efficacite() const;
    /// Tuning capacitance, F.
    [[nodiscard]] Double Cf() const;

private:
    const AntennesHighQLoop& loop_;
    Double F_;
    Double D_;
};

/// Computes and shows both columns of the panel, that of the lowest and that of the highest frequency.
void CalculsFminFmax(AntennesHighQLoop& loop);

} // namespace ondelis
