#pragma once

#include <string>
#include <string_view>

#include "Actor.h"
#include "forms/User.h"
#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// Acts on any running program without touching a window: by `User` and the frame.
class EngineActor : public Actor {
public:
    explicit EngineActor(MDIOndelis& frame) : frame_{frame}, user_{frame.runtime()} { }

    Refusal menu(const std::string& entry) override;
    Refusal close(const std::string& window) override;
    Refusal move(const std::string& window, double left, double top) override;
    Refusal minimise(const std::string& window) override;
    Refusal restore(const std::string& window) override;
    Refusal type(const ControlPath& field, const std::string& text) override;
    Refusal backspace(const ControlPath& field) override;
    Refusal replace(const ControlPath& field, const std::string& text) override;
    Refusal click(const ControlPath& button) override;
    Refusal select(const ControlPath& list, int row) override;
    Refusal scroll(const ControlPath& bar, int value) override;
    Refusal focus(const ControlPath& control) override;
    Refusal hold(const ControlPath& control, Key key, const std::string& character, int times) override;

    /// A box waits for its answer: nothing else can be reached.
    void waitForAnswer(bool waits) { boxWaits_ = waits; }

private:
    /// Why nothing at all can be reached; empty if something can.
    [[nodiscard]] Refusal unable() const;
    /// Runs `act` on the control if it is of that class.
    template <class ControlClass, class Act>
    Refusal with(const ControlPath& path, Act&& act) const;
    Refusal holdInField(TextBox& box, Key key, const std::string& character, int times);
    Refusal holdOnBar(ScrollBar& bar, Key key, int times);

    MDIOndelis& frame_;
    User user_;
    bool boxWaits_ = false;
    bool minimised_ = false;
};

/// Null if no panel of that name is loaded.
[[nodiscard]] FeuilleCalcul* findPanel(const MDIOndelis& frame, std::string_view name);

} // namespace ondelis::pilote
