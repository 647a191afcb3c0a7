#pragma once

#include <string_view>

namespace ondelis::fuzz {

/// Whether a command may end the program with the fault of that name, by its subject: a panel, or the menu entry that
/// opens one. A subject without a row never faults.
[[nodiscard]] bool allowed(std::string_view subject, std::string_view fault);

} // namespace ondelis::fuzz
