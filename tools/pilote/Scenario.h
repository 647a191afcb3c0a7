#pragma once

#include <ostream>
#include <string>

#include "Backend.h"

namespace ondelis::pilote {

/// How many lines of a scenario were expectations, and how many lines failed.
struct Tally {
    int expectations = 0;
    int failures = 0;
};

/// Plays a scenario file in a program that has not started yet, and prints each line that fails. A refusal and a
/// fault fail too, unless an expectation right after them names them; a line that is no command always fails.
Tally playScenario(const std::string& file, Backend& backend, std::ostream& out);

} // namespace ondelis::pilote
