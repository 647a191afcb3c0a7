#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ondelis::pilote {

/// What a person does to the program; panels, controls and menu entries go by their names. What a person could not do
/// is refused with the reason, and changes nothing.
class Actor {
public:
    using Refusal = std::optional<std::string>;

    /// A control by its names.
    struct ControlPath {
        std::string panel;
        std::string control;
    };
    /// The keys that are held down.
    enum class Key { Character, Backspace, Back, Forward };

    Actor() = default;
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;
    virtual ~Actor() = default;

    virtual Refusal menu(const std::string& entry) = 0;
    /// A panel, or the main window, "MDIOndelis".
    virtual Refusal close(const std::string& window) = 0;
    /// Drags a window to that place; twips.
    virtual Refusal move(const std::string& window, double left, double top) = 0;
    virtual Refusal minimise(const std::string& window) = 0;
    virtual Refusal restore(const std::string& window) = 0;

    virtual Refusal type(const ControlPath& field, const std::string& text) = 0;
    virtual Refusal backspace(const ControlPath& field) = 0;
    virtual Refusal replace(const ControlPath& field, const std::string& text) = 0;
    virtual Refusal click(const ControlPath& button) = 0;
    virtual Refusal select(const ControlPath& list, int row) = 0;
    virtual Refusal scroll(const ControlPath& bar, int value) = 0;
    virtual Refusal focus(const ControlPath& control) = 0;
    /// Holds a key down until it has repeated that many times: one that types `character` or deletes, in a field, or an
    /// arrow key, on a bar.
    virtual Refusal hold(const ControlPath& control, Key key, const std::string& character, int times) = 0;
};

/// One thing that a person does.
using Gesture = std::function<Actor::Refusal(Actor&)>;

} // namespace ondelis::pilote
