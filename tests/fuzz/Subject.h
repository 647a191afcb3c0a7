#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Eyes.h"
#include "forms/Desk.h"

namespace ondelis::fuzz {

/// What differs between two programs that do the same.
struct Difference {
    std::string where; ///< the member, "PANEL.CONTROL.Member"; "" where nothing differs
    std::string expectation; ///< the line of a scenario that tells one from the other
};

/// The program that a session's commands are given to.
class Subject {
public:
    Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    virtual ~Subject() = default;

    /// Carries out a command, and answers it as the driver does.
    virtual pilote::Json answer(const std::string& command) = 0;
    /// What there is to act on.
    [[nodiscard]] virtual const Desk& desk() const = 0;
    /// What the last command has made differ.
    [[nodiscard]] virtual Difference difference() const { return {}; }
};

using NewSubject = std::function<std::unique_ptr<Subject>()>;

/// The program with no window, alone.
[[nodiscard]] std::unique_ptr<Subject> newHeadless();

} // namespace ondelis::fuzz
