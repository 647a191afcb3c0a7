#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Body.h"
#include "Words.h"
#include "forms/Desk.h"
#include "kit/Region.h"

namespace ondelis::pilote {

/// Drives one run of the program by commands, with or without a window. While it lives, its region is that of the
/// process.
class Pilote {
public:
    explicit Pilote(Body& body) : body_{body} { }

    /// Carries out one line and answers it; never throws.
    Json answer(std::string_view line);

private:
    using Refusal = Hands::Refusal;
    enum class When { BeforeStart, Any, Running };

    /// A command that is not a gesture: its word, when it is allowed, and what reads the words after it.
    struct Command {
        std::string_view word;
        When when;
        Gesture (Pilote::*read)(Words& words);
    };
    static const Command* find(std::string_view word);

    Json run(Words& words);
    [[nodiscard]] Json done() const;
    [[nodiscard]] Refusal outOfTime(When when) const;

    Gesture region(Words& words);
    Gesture screen(Words& words);
    Gesture start(Words& words);
    Gesture answerNext(Words& words);
    Gesture meanwhile(Words& words);

    // The expectations, in Expectations.cpp.
    Json expect(Words& words);
    Json expectMessage(Words& words);
    Json expectNothing(Words& words);
    Json expectFault(Words& words);
    Json expectRefused(Words& words);
    Json expectVisibility(const std::string& name, Words& words);
    Json expectMember(const std::string& target, Words& words);
    Json expectEntries(Words& words);
    /// Judges what `look` finds while the program runs; it throws Absent if it finds nothing.
    [[nodiscard]] Json expectFound(const Json& wanted, const std::function<Json()>& look) const;
    /// The value of "PANEL.Member" or "PANEL.CONTROL.Member"; throws Absent if there is none.
    [[nodiscard]] Json member(const std::string& target) const;

    [[nodiscard]] bool ended() const { return body_.frame().desk().ended(); }
    [[nodiscard]] bool running() const { return started_ && !ended(); }
    /// Null if the panel is not loaded, or the program is not running.
    [[nodiscard]] FeuilleCalcul* panel(std::string_view name) const;

    Body& body_;
    ScopedRegion region_{Region{}};
    bool started_ = false;

    // What the last command did.
    Refusal refusal_;
    std::size_t expectedBoxes_ = 0;
};

} // namespace ondelis::pilote
