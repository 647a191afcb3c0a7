#include "Gestures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "forms/Controls.h"
#include "forms/Desk.h"
#include "shell/Menu.h"

namespace ondelis::pilote {
namespace {

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

Gestures::Deed Gestures::read(std::string_view word, Words& words) const
{
    static constexpr std::array<Gesture, 9> gestures{{
        {"menu", &Gestures::menu},
        {"close", &Gestures::close},
        {"type", &Gestures::type},
        {"backspace", &Gestures::backspace},
        {"replace", &Gestures::replace},
        {"click", &Gestures::click},
        {"select", &Gestures::select},
        {"scroll", &Gestures::scroll},
        {"focus", &Gestures::focus},
    }};
    const auto* const found = std::ranges::find(gestures, word, &Gesture::word);
    return found == gestures.end() ? Deed{} : (this->*found->read)(words);
}

Gestures::Deed Gestures::menu(Words& words) const
{
    return [this, entry = findMenuEntry(words.next())](User&) -> Refusal {
        if (entry == nullptr)
            return "the menu has no such entry";
        frame_.click(*entry);
        return {};
    };
}

Gestures::Deed Gestures::close(Words& words) const
{
    return [this, name = words.next()](User& user) -> Refusal {
        if (name == "MDIOndelis") {
            frame_.close();
            return {};
        }
        FeuilleCalcul* const open = panel(name);
        return open == nullptr ? "the panel is not on screen" : user.close(*open);
    };
}

Gestures::Deed Gestures::type(Words& words) const
{
    return [this, field = target(words), text = words.next()](
               User& user) { return with<TextBox>(field, [&](TextBox& box) { return user.type(box, text); }); };
}

Gestures::Deed Gestures::backspace(Words& words) const
{
    return [this, field = target(words)](
               User& user) { return with<TextBox>(field, [&](TextBox& box) { return user.backspace(box); }); };
}

Gestures::Deed Gestures::replace(Words& words) const
{
    return [this, field = target(words), text = words.next()](
               User& user) { return with<TextBox>(field, [&](TextBox& box) { return user.replace(box, text); }); };
}

Gestures::Deed Gestures::click(Words& words) const
{
    return [this, button = target(words)](User& user) {
        return with<Control>(button, [&](Control& control) -> Refusal {
            if (auto* const option = dynamic_cast<OptionButton*>(&control))
                return user.click(*option);
            if (auto* const command = dynamic_cast<CommandButton*>(&control))
                return user.click(*command);
            return "the control is neither an option nor a button";
        });
    };
}

Gestures::Deed Gestures::select(Words& words) const
{
    return [this, choices = target(words), row = whole(words.next())](
               User& user) { return with<ListBox>(choices, [&](ListBox& list) { return user.choose(list, row); }); };
}

Gestures::Deed Gestures::scroll(Words& words) const
{
    return [this, scrollBar = target(words), value = whole(words.next())](User& user) {
        return with<ScrollBar>(scrollBar, [&](ScrollBar& bar) { return user.move(bar, value); });
    };
}

Gestures::Deed Gestures::focus(Words& words) const
{
    return [this, next = target(words)](
               User& user) { return with<Control>(next, [&](Control& control) { return user.focus(control); }); };
}

Gestures::Target Gestures::target(Words& words)
{
    const std::string word = words.next();
    const std::size_t dot = word.find('.');
    if (dot == std::string::npos)
        throw Malformed{"not PANEL.CONTROL: " + word};
    return {.panel = word.substr(0, dot), .control = word.substr(dot + 1)};
}

template <class ControlClass, class Act>
Gestures::Refusal Gestures::with(const Target& target, Act&& act) const
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

FeuilleCalcul* Gestures::panel(std::string_view name) const
{
    const auto& loaded = frame_.desk().loadedPanels();
    const auto found = std::ranges::find(loaded, name, [](const FeuilleCalcul* one) { return one->design().name; });
    return found == loaded.end() ? nullptr : *found;
}

Answer readAnswer(Words& words)
{
    const std::string word = words.next();
    if (word != "yes" && word != "no")
        throw Malformed{"neither yes nor no: " + word};
    return word == "yes" ? Answer::Yes : Answer::No;
}

} // namespace ondelis::pilote
