#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "Backend.h"
#include "Tokenizer.h"
#include "forms/Runtime.h"
#include "kit/Region.h"

namespace ondelis::pilote {

/// Drives one run of the program by commands, with or without a window. While it lives, its region is that of the
/// process.
class Pilote {
public:
    explicit Pilote(Backend& backend) : backend_{backend} { }

    /// Carries out one line and answers it; never throws.
    Json answer(std::string_view line);

private:
    using Refusal = Actor::Refusal;
    enum class When { BeforeStart, Any, Running };

    /// A command that is not a gesture: its word, when it is allowed, and what reads the words after it.
    struct Command {
        std::string_view word;
        When when;
        Gesture (Pilote::*read)(Tokenizer& words);
    };
    static const Command* find(std::string_view word);

    Json run(Tokenizer& words);
    [[nodiscard]] Json done() const;
    [[nodiscard]] Refusal untimely(When when) const;

    Gesture region(Tokenizer& words);
    Gesture screen(Tokenizer& words);
    Gesture start(Tokenizer& words);
    Gesture answerNext(Tokenizer& words);
    Gesture meanwhile(Tokenizer& words);

    // The expectations, in Expectations.cpp.
    Json expect(Tokenizer& words);
    Json expectMessage(Tokenizer& words);
    Json expectNothing(Tokenizer& words);
    Json expectFault(Tokenizer& words);
    Json expectRefused(Tokenizer& words);
    Json expectVisibility(const std::string& name, Tokenizer& words);
    Json expectMember(const std::string& path, Tokenizer& words);
    Json expectEntries(Tokenizer& words);
    /// Judges what `look` finds while the program runs; it throws Absent if it finds nothing.
    [[nodiscard]] Json expectFound(const Json& wanted, const std::function<Json()>& look) const;
    /// The value of "PANEL.Member" or "PANEL.CONTROL.Member"; throws Absent if there is none.
    [[nodiscard]] Json member(const std::string& path) const;

    [[nodiscard]] bool ended() const { return backend_.frame().runtime().ended(); }
    [[nodiscard]] bool running() const { return started_ && !ended(); }
    /// Null if the panel is not loaded, or the program is not running.
    [[nodiscard]] FeuilleCalcul* panel(std::string_view name) const;

    Backend& backend_;
    ScopedRegion region_{Region{}};
    bool started_ = false;

    // What the last command did.
    Refusal refusal_;
    std::size_t expectedBoxes_ = 0;
};

} // namespace ondelis::pilote
