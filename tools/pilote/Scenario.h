#pragma once

#include <ostream>
#include <string>

namespace ondelis::pilote {

/// How many lines of a scenario were expectations, and how many lines failed.
struct Tally {
    int expectations = 0;
    int failures = 0;
};

/// Plays a scenario file in a program of its own, and prints each line that fails. A refusal, a fault and a
/// line that is no command fail too, where no expectation right after them names them.
Tally playScenario(const std::string& file, std::ostream& out);

} // namespace ondelis::pilote
