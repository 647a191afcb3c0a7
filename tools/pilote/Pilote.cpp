#include "Pilote.h"

#include <algorithm>
#include <array>

#include "EngineActor.h"
#include "Gestures.h"
#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

/// A size in twips.
double readLength(const std::string& word)
{
    const double twips = readNumber(word);
    if (!(twips > 0))
        throw Malformed{"not a size in twips: " + word};
    return twips;
}

} // namespace

Json Pilote::answer(std::string_view line)
{
    try {
        Tokenizer words{line};
        return run(words);
    } catch (const Malformed& malformed) {
        return {{"ok", false}, {"error", malformed.what()}};
    }
}

const Pilote::Command* Pilote::find(std::string_view word)
{
    static constexpr std::array<Command, 5> commands{{
        {"region", When::BeforeStart, &Pilote::region},
        {"screen", When::Any, &Pilote::screen},
        {"start", When::BeforeStart, &Pilote::start},
        {"answer", When::Running, &Pilote::answerNext},
        {"meanwhile", When::Running, &Pilote::meanwhile},
    }};
    const auto* const found = std::ranges::find(commands, word, &Command::word);
    return found == commands.end() ? nullptr : found;
}

Json Pilote::run(Tokenizer& words)
{
    const std::string word = words.next();
    if (word == "expect")
        return expect(words);
    if (word == "state") {
        words.finish();
        if (const Refusal refusal = untimely(When::Running))
            return {{"ok", false}, {"refused", *refusal}};
        Json state{{"ok", true}};
        state.update(inspectAll(backend_.inspector(), backend_.frame()));
        return state;
    }
    const Command* const command = find(word);
    const Gesture gesture = command != nullptr ? (this->*command->read)(words) : readGesture(word, words);
    if (!gesture)
        throw Malformed{"no such command: " + word};
    words.finish();
    backend_.forget();
    expectedBoxes_ = 0;
    refusal_ = untimely(command != nullptr ? command->when : When::Running);
    if (!refusal_)
        refusal_ = gesture(backend_.actor());
    if (word != "meanwhile")
        backend_.settle();
    return done();
}

Json Pilote::done() const
{
    if (refusal_)
        return {{"ok", false}, {"refused", *refusal_}};
    Json messages = Json::array();
    for (const MessageBox& box : backend_.boxes())
        messages.push_back({{"prompt", box.prompt}, {"buttons", box.buttons}, {"title", box.title}});
    const auto& fault = backend_.fault();
    Json reply{{"ok", true}, {"messages", std::move(messages)}, {"fault", fault ? Json(fault->what()) : Json{}},
        {"ended", ended()}};
    if (const Refusal refusal = backend_.meanwhileRefused())
        reply["meanwhile"] = *refusal;
    return reply;
}

Pilote::Refusal Pilote::untimely(When when) const
{
    if (ended())
        return "the program has ended";
    if (when == When::Running && !started_)
        return "the program has not started";
    if (when == When::BeforeStart && started_)
        return "the program has started";
    return {};
}

Gesture Pilote::region(Tokenizer& words)
{
    Region separators{.decimal = words.next(), .thousands = words.next()};
    if (Len(separators.decimal) != 1 || Len(separators.thousands) > 1 || separators.decimal == separators.thousands)
        throw Malformed{"not two separators: one character, and another one or none"};
    return [separators](Actor& /*actor*/) -> Refusal {
        setRegion(separators);
        return {};
    };
}

Gesture Pilote::screen(Tokenizer& words)
{
    const Size size{.Width = readLength(words.next()), .Height = readLength(words.next())};
    return [this, size](Actor& /*actor*/) { return backend_.setScreen(size); };
}

Gesture Pilote::start(Tokenizer& /*words*/)
{
    return [this](Actor& /*actor*/) -> Refusal {
        started_ = true;
        backend_.start();
        return {};
    };
}

Gesture Pilote::answerNext(Tokenizer& words)
{
    return [this, answer = readAnswer(words)](Actor& /*actor*/) -> Refusal {
        backend_.answer(answer);
        return {};
    };
}

Gesture Pilote::meanwhile(Tokenizer& words)
{
    const std::string word = words.next();
    const Gesture gesture = readGesture(word, words);
    if (!gesture)
        throw Malformed{"no such gesture: " + word};
    return [this, gesture](Actor& /*actor*/) -> Refusal {
        backend_.meanwhile(gesture);
        return {};
    };
}

FeuilleCalcul* Pilote::panel(std::string_view name) const
{
    return running() ? findPanel(backend_.frame(), name) : nullptr;
}

} // namespace ondelis::pilote
