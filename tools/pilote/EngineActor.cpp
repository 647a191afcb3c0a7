#include "EngineActor.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/Runtime.h"
#include "shell/Menu.h"

namespace ondelis::pilote {

Actor::Refusal EngineActor::menu(const std::string& entry)
{
    if (auto refusal = unable())
        return refusal;
    const MenuEntry* const found = findMenuEntry(entry);
    if (found == nullptr)
        return "the menu has no such entry";
    frame_.click(*found);
    return {};
}

Actor::Refusal EngineActor::close(const std::string& window)
{
    if (auto refusal = unable())
        return refusal;
    if (window == "MDIOndelis") {
        frame_.close();
        return {};
    }
    FeuilleCalcul* const open = findPanel(frame_, window);
    return open == nullptr ? "the panel is not on screen" : user_.close(*open);
}

Actor::Refusal EngineActor::move(const std::string& window, double left, double top)
{
    if (auto refusal = unable())
        return refusal;
    if (window == "MDIOndelis") {
        frame_.geometryChanged({left, top}, {Double{frame_.Width}.value(), Double{frame_.Height}.value()});
        return {};
    }
    FeuilleCalcul* const open = findPanel(frame_, window);
    if (open == nullptr || !open->visible())
        return "the panel is not on screen";
    open->moved({left, top});
    return {};
}

Actor::Refusal EngineActor::minimise(const std::string& window)
{
    if (auto refusal = unable())
        return refusal;
    if (window != "MDIOndelis")
        return "only the main window can be minimised";
    minimised_ = true;
    return {};
}

Actor::Refusal EngineActor::restore(const std::string& window)
{
    if (boxWaits_ || frame_.runtime().ended())
        return unable();
    if (window != "MDIOndelis" || !minimised_)
        return "the window is not minimised";
    minimised_ = false;
    return {};
}

Actor::Refusal EngineActor::type(const ControlPath& field, const std::string& text)
{
    return with<TextBox>(field, [&](TextBox& box) { return user_.type(box, text); });
}

Actor::Refusal EngineActor::backspace(const ControlPath& field)
{
    return with<TextBox>(field, [&](TextBox& box) { return user_.backspace(box); });
}

Actor::Refusal EngineActor::replace(const ControlPath& field, const std::string& text)
{
    return with<TextBox>(field, [&](TextBox& box) { return user_.replace(box, text); });
}

Actor::Refusal EngineActor::click(const ControlPath& button)
{
    return with<Control>(button, [&](Control& control) -> Refusal {
        if (auto* const option = dynamic_cast<OptionButton*>(&control))
            return user_.click(*option);
        if (auto* const command = dynamic_cast<CommandButton*>(&control))
            return user_.click(*command);
        return "the control is neither an option nor a button";
    });
}

Actor::Refusal EngineActor::select(const ControlPath& list, int row)
{
    return with<ListBox>(list, [&](ListBox& choices) { return user_.choose(choices, row); });
}

Actor::Refusal EngineActor::scroll(const ControlPath& bar, int value)
{
    return with<ScrollBar>(bar, [&](ScrollBar& scrollBar) { return user_.move(scrollBar, value); });
}

Actor::Refusal EngineActor::focus(const ControlPath& control)
{
    return with<Control>(control, [&](Control& next) { return user_.focus(next); });
}

Actor::Refusal EngineActor::hold(const ControlPath& control, Key key, const std::string& character, int times)
{
    return with<Control>(control, [&](Control& held) -> Refusal {
        const bool arrow = key == Key::Back || key == Key::Forward;
        if (auto* const box = dynamic_cast<TextBox*>(&held); box != nullptr && !arrow)
            return holdInField(*box, key, character, times);
        if (auto* const bar = dynamic_cast<ScrollBar*>(&held); bar != nullptr && arrow)
            return holdOnBar(*bar, key, times);
        return "the key does nothing there";
    });
}

Actor::Refusal EngineActor::holdInField(TextBox& box, Key key, const std::string& character, int times)
{
    for (int count = 0; count < times; ++count) {
        const Refusal refusal = key == Key::Backspace ? user_.backspace(box) : user_.type(box, character);
        if (refusal)
            return count == 0 ? refusal : Refusal{}; // a key before has ended the program, or closed the field
    }
    return {};
}

Actor::Refusal EngineActor::holdOnBar(ScrollBar& bar, Key key, int times)
{
    for (int count = 0; count < times; ++count) {
        if (const Refusal refusal = user_.focus(bar))
            return count == 0 ? refusal : Refusal{};
        const int min = bar.Min.get().value();
        const int max = bar.Max.get().value();
        const int step = (key == Key::Forward) == (min <= max) ? bar.design().SmallChange.value()
                                                               : -bar.design().SmallChange.value();
        const auto [low, high] = std::minmax(min, max);
        user_.move(bar, std::clamp(bar.Value.get().value() + step, low, high));
    }
    return {};
}

Actor::Refusal EngineActor::unable() const
{
    if (frame_.runtime().ended())
        return "the program has ended";
    if (boxWaits_)
        return "a box waits for its answer";
    if (minimised_)
        return "the window is minimised";
    return {};
}

template <class ControlClass, class Act>
Actor::Refusal EngineActor::with(const ControlPath& path, Act&& act) const
{
    if (auto refusal = unable())
        return refusal;
    const FeuilleCalcul* const open = findPanel(frame_, path.panel);
    if (open == nullptr)
        return "the panel is not on screen";
    Control* const control = open->find(path.control);
    if (control == nullptr)
        return "the panel has no such control";
    auto* const wanted = dynamic_cast<ControlClass*>(control);
    if (wanted == nullptr)
        return "the control is of another class";
    return act(*wanted);
}

FeuilleCalcul* findPanel(const MDIOndelis& frame, std::string_view name)
{
    const auto& loaded = frame.runtime().loadedPanels();
    const auto found = std::ranges::find(loaded, name, [](const FeuilleCalcul* one) { return one->design().name; });
    return found == loaded.end() ? nullptr : *found;
}

} // namespace ondelis::pilote
