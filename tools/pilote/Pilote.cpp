#include "Pilote.h"

#include <algorithm>
#include <array>

#include "Gestures.h"
#include "UserHands.h"
#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

/// A size in twips.
double extent(const std::string& word)
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
        Words words{line};
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

Json Pilote::run(Words& words)
{
    const std::string word = words.next();
    if (word == "expect")
        return expect(words);
    if (word == "state") {
        words.finish();
        if (const Refusal refusal = outOfTime(When::Running))
            return {{"ok", false}, {"refused", *refusal}};
        Json state{{"ok", true}};
        state.update(seeAll(body_.eyes(), body_.frame()));
        return state;
    }
    const Command* const command = find(word);
    const Gesture gesture = command != nullptr ? (this->*command->read)(words) : readGesture(word, words);
    if (!gesture)
        throw Malformed{"no such command: " + word};
    words.finish();
    body_.forget();
    expectedBoxes_ = 0;
    refusal_ = outOfTime(command != nullptr ? command->when : When::Running);
    if (!refusal_)
        refusal_ = gesture(body_.hands());
    if (word != "meanwhile")
        body_.settle();
    return done();
}

Json Pilote::done() const
{
    if (refusal_)
        return {{"ok", false}, {"refused", *refusal_}};
    Json messages = Json::array();
    for (const MessageBox& box : body_.boxes())
        messages.push_back({{"prompt", box.prompt}, {"buttons", box.buttons}, {"title", box.title}});
    const auto& fault = body_.fault();
    Json reply{{"ok", true}, {"messages", std::move(messages)}, {"fault", fault ? Json(fault->what()) : Json{}},
        {"ended", ended()}};
    if (const Refusal refusal = body_.meanwhileRefused())
        reply["meanwhile"] = *refusal;
    return reply;
}

Pilote::Refusal Pilote::outOfTime(When when) const
{
    if (ended())
        return "the program has ended";
    if (when == When::Running && !started_)
        return "the program has not started";
    if (when == When::BeforeStart && started_)
        return "the program has started";
    return {};
}

Gesture Pilote::region(Words& words)
{
    Region separators{.decimal = words.next(), .thousands = words.next()};
    if (Len(separators.decimal) != 1 || Len(separators.thousands) > 1 || separators.decimal == separators.thousands)
        throw Malformed{"not two separators: one character, and another one or none"};
    return [separators](Hands& /*hands*/) -> Refusal {
        setRegion(separators);
        return {};
    };
}

Gesture Pilote::screen(Words& words)
{
    const Extent size{.Width = extent(words.next()), .Height = extent(words.next())};
    return [this, size](Hands& /*hands*/) { return body_.setScreen(size); };
}

Gesture Pilote::start(Words& /*words*/)
{
    return [this](Hands& /*hands*/) -> Refusal {
        started_ = true;
        body_.start();
        return {};
    };
}

Gesture Pilote::answerNext(Words& words)
{
    return [this, answer = readAnswer(words)](Hands& /*hands*/) -> Refusal {
        body_.answer(answer);
        return {};
    };
}

Gesture Pilote::meanwhile(Words& words)
{
    const std::string word = words.next();
    const Gesture gesture = readGesture(word, words);
    if (!gesture)
        throw Malformed{"no such gesture: " + word};
    return [this, gesture](Hands& /*hands*/) -> Refusal {
        body_.meanwhile(gesture);
        return {};
    };
}

FeuilleCalcul* Pilote::panel(std::string_view name) const
{
    return running() ? findPanel(body_.frame(), name) : nullptr;
}

} // namespace ondelis::pilote
