#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Target.h"

namespace ondelis::fuzz {

/// How a session went.
struct Outcome {
    std::vector<std::string> commands; ///< that were carried out, the last one perhaps not to its end
    std::string subject; ///< of the last command: a panel, or a menu entry
    std::string fault; ///< by which the program ended; "" for none
    std::string trouble; ///< a hang, a crash, a leak; "" for none
    Difference difference; ///< between two programs in step
    std::uint64_t digest = 0; ///< of all that was there to see, in a watched session
};

/// What a command is about: "PANEL" in "type PANEL.CONTROL ...", "ENTRY" in "menu ENTRY".
[[nodiscard]] std::string_view subjectOf(std::string_view command);

/// A random user works for a while, in a process of its own.
[[nodiscard]] Outcome playUser(const TargetFactory& makeTarget, std::uint64_t seed);

/// A user of the program with no window, and a digest of each command, its answer and what the panels then showed. How
/// fast the program is does not count: a step may take a minute.
[[nodiscard]] Outcome watchUser(std::uint64_t seed);

/// The same commands once more, in a process of their own; those that are refused now are left out.
[[nodiscard]] Outcome playAgain(const TargetFactory& makeTarget, const std::vector<std::string>& commands);

} // namespace ondelis::fuzz
