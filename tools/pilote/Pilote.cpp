#include "Pilote.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "forms/Controls.h"
#include "kit/Text.h"
#include "shell/Menu.h"

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

/// A whole number; the largest one where it is too long to be held: no list and no bar goes so far.
int whole(const std::string& word)
{
    int number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error == std::errc::invalid_argument || stop != end)
        throw Malformed{"not a whole number: " + word};
    if (error == std::errc::result_out_of_range)
        return std::numeric_limits<int>::max();
    return number;
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
    static constexpr std::array<Command, 13> commands{{
        {"region", When::BeforeStart, &Pilote::region},
        {"screen", When::BeforeStart, &Pilote::screen},
        {"start", When::BeforeStart, &Pilote::start},
        {"menu", When::Running, &Pilote::menu},
        {"close", When::Running, &Pilote::close},
        {"type", When::Running, &Pilote::type},
        {"backspace", When::Running, &Pilote::backspace},
        {"replace", When::Running, &Pilote::replace},
        {"click", When::Running, &Pilote::click},
        {"select", When::Running, &Pilote::select},
        {"scroll", When::Running, &Pilote::scroll},
        {"focus", When::Running, &Pilote::focus},
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
    if (command == nullptr)
        throw Malformed{"no such command: " + word};
    const Deed deed = (this->*command->read)(words);
    words.finish();
    surroundings_.forget();
    expectedBoxes_ = 0;
    refusal_ = outOfTime(command->when);
    if (!refusal_)
        refusal_ = deed();
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
    return [separators]() -> Refusal {
        setRegion(separators);
        return {};
    };
}

Pilote::Deed Pilote::screen(Words& words)
{
    const Extent size{.Width = extent(words.next()), .Height = extent(words.next())};
    return [this, size]() -> Refusal {
        surroundings_.setScreen(size);
        return {};
    };
}

Pilote::Deed Pilote::start(Words& /*words*/)
{
    return [this]() -> Refusal {
        started_ = true;
        frame_.start();
        return {};
    };
}

Pilote::Deed Pilote::menu(Words& words)
{
    return [this, entry = findMenuEntry(words.next())]() -> Refusal {
        if (entry == nullptr)
            return "the menu has no such entry";
        frame_.click(*entry);
        return {};
    };
}

Pilote::Deed Pilote::close(Words& words)
{
    return [this, name = words.next()]() -> Refusal {
        if (name == "MDIOndelis") {
            frame_.close();
            return {};
        }
        FeuilleCalcul* const open = panel(name);
        return open == nullptr ? "the panel is not on screen" : user_.close(*open);
    };
}

Pilote::Deed Pilote::type(Words& words)
{
    return [this, field = target(words), text = words.next()] {
        return with<TextBox>(field, [&](TextBox& box) { return user_.type(box, text); });
    };
}

Pilote::Deed Pilote::backspace(Words& words)
{
    return [this, field = target(words)] {
        return with<TextBox>(field, [&](TextBox& box) { return user_.backspace(box); });
    };
}

Pilote::Deed Pilote::replace(Words& words)
{
    return [this, field = target(words), text = words.next()] {
        return with<TextBox>(field, [&](TextBox& box) { return user_.replace(box, text); });
    };
}

Pilote::Deed Pilote::click(Words& words)
{
    return [this, button = target(words)] {
        return with<Control>(button, [&](Control& control) -> Refusal {
            if (auto* const option = dynamic_cast<OptionButton*>(&control))
                return user_.click(*option);
            if (auto* const command = dynamic_cast<CommandButton*>(&control))
                return user_.click(*command);
            return "the control is neither an option nor a button";
        });
    };
}

Pilote::Deed Pilote::select(Words& words)
{
    return [this, choices = target(words), row = whole(words.next())] {
        return with<ListBox>(choices, [&](ListBox& list) { return user_.choose(list, row); });
    };
}

Pilote::Deed Pilote::scroll(Words& words)
{
    return [this, scrollBar = target(words), value = whole(words.next())] {
        return with<ScrollBar>(scrollBar, [&](ScrollBar& bar) { return user_.move(bar, value); });
    };
}

Pilote::Deed Pilote::focus(Words& words)
{
    return [this, next = target(words)] {
        return with<Control>(next, [&](Control& control) { return user_.focus(control); });
    };
}

Pilote::Deed Pilote::answerNext(Words& words)
{
    const std::string word = words.next();
    if (word != "yes" && word != "no")
        throw Malformed{"neither yes nor no: " + word};
    return [this, answer = word == "yes" ? Answer::Yes : Answer::No]() -> Refusal {
        surroundings_.answer(answer);
        return {};
    };
}

Pilote::Target Pilote::target(Words& words)
{
    const std::string word = words.next();
    const std::size_t dot = word.find('.');
    if (dot == std::string::npos)
        throw Malformed{"not PANEL.CONTROL: " + word};
    return {.panel = word.substr(0, dot), .control = word.substr(dot + 1)};
}

template <class ControlClass, class Act>
Pilote::Refusal Pilote::with(const Target& target, Act&& act)
{
    const FeuilleCalcul* const open = panel(target.panel);
    if (open == nullptr)
        return "the panel is not on screen";
    Control* const control = open->find(target.control);
    if (control == nullptr)
        return "the panel has no such control";
    auto* const wanted = dynamic_cast<ControlClass*>(control);
    if (wanted == nullptr)
        return "the control is of another class";
    return act(*wanted);
}

FeuilleCalcul* Pilote::panel(std::string_view name) const
{
    if (!running())
        return nullptr;
    const auto& loaded = desk_.loadedPanels();
    const auto found = std::ranges::find(loaded, name, [](const FeuilleCalcul* one) { return one->design().name; });
    return found == loaded.end() ? nullptr : *found;
}

} // namespace ondelis::pilote
