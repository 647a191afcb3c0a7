#pragma once

#include <set>
#include <utility>

#include "HeadlessBackend.h"
#include "Pilote.h"
#include "Target.h"
#include "WindowBackend.h"

namespace ondelis::fuzz {

/// The program with no window and the program in its windows, in step: each command is given to both, and what they
/// then show is compared. That is all that has changed, and from time to time everything.
class Lockstep final : public Target {
public:
    Lockstep();

    pilote::Json answer(const std::string& command) override;
    [[nodiscard]] const Runtime& runtime() const override { return headless_.frame().runtime(); }
    [[nodiscard]] Difference difference() const override { return difference_; }

private:
    using Json = pilote::Json;

    void compareAnswers(const Json& expected, const Json& actual);
    void compareWindows();
    void compareControls();
    void compareControl(const FeuilleCalcul& panel, Control& expected);
    /// Records the first difference.
    void differ(std::string where, std::string expectation);
    void compare(const std::string& of, const Json& expected, const Json& actual);
    /// The same panel of the other program; null where it is not loaded there.
    [[nodiscard]] const FeuilleCalcul* shownPanel(const FeuilleCalcul& panel) const;

    pilote::HeadlessBackend headless_;
    fenetre::WindowBackend window_{fenetre::WindowBackend::Painting::Off};
    pilote::Pilote headlessPilote_{headless_};
    pilote::Pilote windowPilote_{window_};
    std::set<std::pair<std::string, std::string>> changed_; ///< panel and control
    int commands_ = 0;
    Difference difference_;
};

} // namespace ondelis::fuzz
