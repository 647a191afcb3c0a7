#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Inspector.h"
#include "forms/Runtime.h"

namespace ondelis::fuzz {

/// What differs between two programs that do the same.
struct Difference {
    std::string where; ///< the member, "PANEL.CONTROL.Member"; "" where nothing differs
    std::string expectation; ///< the line of a scenario that tells one from the other
};

/// The program that a session's commands are given to.
class Target {
public:
    Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    virtual ~Target() = default;

    /// Carries out a command, and answers it as the driver does.
    virtual pilote::Json answer(const std::string& command) = 0;
    /// What there is to act on.
    [[nodiscard]] virtual const Runtime& runtime() const = 0;
    /// What the last command has made differ.
    [[nodiscard]] virtual Difference difference() const { return {}; }
};

using TargetFactory = std::function<std::unique_ptr<Target>()>;

/// The program with no window, alone.
[[nodiscard]] std::unique_ptr<Target> makeHeadlessTarget();

} // namespace ondelis::fuzz
