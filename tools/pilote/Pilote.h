#pragma once

#include <string>
#include <string_view>

#include "Gestures.h"
#include "ScriptedSurroundings.h"
#include "State.h"
#include "Words.h"
#include "forms/Desk.h"
#include "forms/User.h"
#include "kit/Region.h"
#include "shell/MDIOndelis.h"

namespace ondelis::pilote {

/// One run of the program with no window, driven by commands. The region is the process's for as long as it
/// lives.
class Pilote {
public:
    /// Carries out one line and answers it; never throws.
    Json answer(std::string_view line);

    /// What there is to act on.
    [[nodiscard]] const Desk& desk() const { return desk_; }

private:
    using Refusal = Gestures::Refusal;
    using Deed = Gestures::Deed;
    enum class When { BeforeStart, Running };

    /// A command that is no gesture: its word, when it may come, what reads the words behind.
    struct Command {
        std::string_view word;
        When when;
        Deed (Pilote::*read)(Words& words);
    };
    static const Command* find(std::string_view word);

    Json run(Words& words);
    Json done() const;
    [[nodiscard]] Refusal outOfTime(When when) const;

    Deed region(Words& words);
    Deed screen(Words& words);
    Deed start(Words& words);
    Deed answerNext(Words& words);

    // The expectations, in Expectations.cpp.
    Json expect(Words& words);
    Json expectMessage(Words& words);
    Json expectNothing(Words& words);
    Json expectFault(Words& words);
    Json expectRefused(Words& words);
    Json expectVisibility(const std::string& name, Words& words);
    Json expectMember(const std::string& target, Words& words);
    /// The value of "PANEL.Member" or "PANEL.CONTROL.Member"; throws Absent where there is none.
    [[nodiscard]] Json member(const std::string& target) const;

    [[nodiscard]] bool running() const { return started_ && !desk_.ended(); }
    /// Null where the panel is not loaded, or the program does not run.
    [[nodiscard]] FeuilleCalcul* panel(std::string_view name) const;

    ScopedRegion region_{Region{}};
    ScriptedSurroundings surroundings_;
    Desk desk_{surroundings_};
    MDIOndelis frame_{desk_};
    User user_{desk_};
    Gestures gestures_{frame_};
    bool started_ = false;

    // What the last command did.
    Refusal refusal_;
    std::size_t expectedBoxes_ = 0;
};

} // namespace ondelis::pilote
