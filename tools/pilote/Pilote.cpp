#include "Pilote.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

/// A size in twips.
double extent(const std::string& word)
{
    double twips = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, twips);
    if (error != std::errc{} || stop != end || !(twips > 0) || twips > std::numeric_limits<float>::max())
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
    static constexpr std::array<Command, 4> commands{{
        {"region", When::BeforeStart, &Pilote::region},
        {"screen", When::BeforeStart, &Pilote::screen},
        {"start", When::BeforeStart, &Pilote::start},
        {"answer", When::Running, &Pilote::answerNext},
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
        state.update(stateOfAll(frame_));
        return state;
    }
    const Command* const command = find(word);
    const Deed deed = command != nullptr ? (this->*command->read)(words) : gestures_.read(word, words);
    if (!deed)
        throw Malformed{"no such command: " + word};
    words.finish();
    surroundings_.forget();
    expectedBoxes_ = 0;
    refusal_ = outOfTime(command != nullptr ? command->when : When::Running);
    if (!refusal_)
        refusal_ = deed(user_);
    return done();
}

Json Pilote::done() const
{
    if (refusal_)
        return {{"ok", false}, {"refused", *refusal_}};
    Json messages = Json::array();
    for (const MessageBox& box : surroundings_.boxes())
        messages.push_back({{"prompt", box.prompt}, {"buttons", box.buttons}, {"title", box.title}});
    const auto& fault = surroundings_.fault();
    return {{"ok", true}, {"messages", std::move(messages)}, {"fault", fault ? Json(fault->what()) : Json{}},
        {"ended", desk_.ended()}};
}

Pilote::Refusal Pilote::outOfTime(When when) const
{
    if (desk_.ended())
        return "the program has ended";
    if (when == When::Running && !started_)
        return "the program has not started";
    if (when == When::BeforeStart && started_)
        return "the program has started";
    return {};
}

Pilote::Deed Pilote::region(Words& words)
{
    Region separators{.decimal = words.next(), .thousands = words.next()};
    if (Len(separators.decimal) != 1 || Len(separators.thousands) > 1 || separators.decimal == separators.thousands)
        throw Malformed{"not two separators: one character, and another one or none"};
    return [separators](User& /*user*/) -> Refusal {
        setRegion(separators);
        return {};
    };
}

Pilote::Deed Pilote::screen(Words& words)
{
    const Extent size{.Width = extent(words.next()), .Height = extent(words.next())};
    return [this, size](User& /*user*/) -> Refusal {
        surroundings_.setScreen(size);
        return {};
    };
}

Pilote::Deed Pilote::start(Words& /*words*/)
{
    return [this](User& /*user*/) -> Refusal {
        started_ = true;
        frame_.start();
        return {};
    };
}

Pilote::Deed Pilote::answerNext(Words& words)
{
    return [this, answer = readAnswer(words)](User& /*user*/) -> Refusal {
        surroundings_.answer(answer);
        return {};
    };
}

FeuilleCalcul* Pilote::panel(std::string_view name) const
{
    return running() ? gestures_.panel(name) : nullptr;
}

} // namespace ondelis::pilote
