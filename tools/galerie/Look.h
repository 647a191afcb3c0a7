#pragma once

#include <array>
#include <string>

namespace ondelis::galerie {

/// How a person's screen shows the program.
struct Look {
    int dpi; ///< logical resolution; Qt takes it once, before the application is made
    bool dark; ///< light text on dark windows, as on a dark desktop

    /// The suffix of its pictures' names: "96", "sombre-192".
    [[nodiscard]] std::string name() const { return (dark ? "sombre-" : "") + std::to_string(dpi); }

    /// Prepares this process for it, before the application is made.
    void chooseResolution() const;
    /// Gives the application its font and its colours.
    void apply() const;
};

inline constexpr std::array<Look, 8> looks{
    {{96, false}, {96, true}, {120, false}, {120, true}, {144, false}, {144, true}, {192, false}, {192, true}}};

} // namespace ondelis::galerie
