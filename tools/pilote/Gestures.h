#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Words.h"
#include "forms/User.h"
#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// The commands that tell what a person does: picks a menu entry, closes, types, clicks, selects, scrolls. They act on
/// any running program, with or without a window.
class Gestures {
public:
    using Refusal = User::Refusal;
    /// What a whole command does once it has been read.
    using Deed = std::function<Refusal(User&)>;

    explicit Gestures(MDIOndelis& frame) : frame_{frame} { }

    /// Reads the words of a gesture behind its first one; gives no deed, and reads nothing, where that is the word of
    /// none. Throws Malformed.
    [[nodiscard]] Deed read(std::string_view word, Words& words) const;

    /// Null where no panel of that name is loaded.
    [[nodiscard]] FeuilleCalcul* panel(std::string_view name) const;

private:
    struct Gesture {
        std::string_view word;
        Deed (Gestures::*read)(Words& words) const;
    };

    Deed menu(Words& words) const;
    Deed close(Words& words) const;
    Deed type(Words& words) const;
    Deed backspace(Words& words) const;
    Deed replace(Words& words) const;
    Deed click(Words& words) const;
    Deed select(Words& words) const;
    Deed scroll(Words& words) const;
    Deed focus(Words& words) const;

    /// A control by its names.
    struct Target {
        std::string panel;
        std::string control;
    };
    /// The next word, "PANEL.CONTROL".
    static Target target(Words& words);
    /// Runs `act` on the control if it is of that class.
    template <class ControlClass, class Act>
    Refusal with(const Target& target, Act&& act) const;

    MDIOndelis& frame_;
};

/// The answer to a box: the next word, "yes" or "no".
[[nodiscard]] Answer readAnswer(Words& words);

} // namespace ondelis::pilote
