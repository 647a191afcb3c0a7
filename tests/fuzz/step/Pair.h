#pragma once

#include <set>
#include <utility>

#include "Headless.h"
#include "Pilote.h"
#include "Subject.h"
#include "Window.h"

namespace ondelis::fuzz {

/// The program with no window and the program in its windows, in step: each command is given to both, and what they
/// then show is compared. That is all that has changed, and from time to time everything.
class Pair final : public Subject {
public:
    Pair();

    pilote::Json answer(const std::string& command) override;
    [[nodiscard]] const Desk& desk() const override { return headless_.frame().desk(); }
    [[nodiscard]] Difference difference() const override { return difference_; }

private:
    using Json = pilote::Json;

    void compareAnswers(const Json& said, const Json& shown);
    void compareWindows();
    void compareControls();
    void compareControl(const FeuilleCalcul& panel, Control& said);
    /// Notes the first difference.
    void differ(std::string where, std::string expectation);
    void compare(const std::string& of, const Json& said, const Json& shown);
    /// The same panel of the other program; null where it is not loaded there.
    [[nodiscard]] const FeuilleCalcul* shownPanel(const FeuilleCalcul& panel) const;

    pilote::Headless headless_;
    fenetre::Window window_{fenetre::Window::Painting::Off};
    pilote::Pilote sayer_{headless_};
    pilote::Pilote shower_{window_};
    std::set<std::pair<std::string, std::string>> changed_; ///< panel and control
    int commands_ = 0;
    Difference difference_;
};

} // namespace ondelis::fuzz
