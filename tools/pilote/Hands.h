#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ondelis::pilote {

/// What a person does to the program; panels, controls and menu entries go by their names. What a person could not do
/// is refused with the reason, and changes nothing.
class Hands {
public:
    using Refusal = std::optional<std::string>;

    /// A control by its names.
    struct Target {
        std::string panel;
        std::string control;
    };
    /// The keys that are held down.
    enum class Key { Character, Backspace, Back, Forward };

    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;

    virtual Refusal menu(const std::string& entry) = 0;
    /// A panel, or the main window, "MDIOndelis".
    virtual Refusal close(const std::string& window) = 0;
    /// Drags a window to that place; twips.
    virtual Refusal move(const std::string& window, double left, double top) = 0;
    virtual Refusal minimise(const std::string& window) = 0;
    virtual Refusal restore(const std::string& window) = 0;

    virtual Refusal type(const Target& field, const std::string& text) = 0;
    virtual Refusal backspace(const Target& field) = 0;
    virtual Refusal replace(const Target& field, const std::string& text) = 0;
    virtual Refusal click(const Target& button) = 0;
    virtual Refusal select(const Target& list, int row) = 0;
    virtual Refusal scroll(const Target& bar, int value) = 0;
    virtual Refusal focus(const Target& control) = 0;
    /// Holds a key down until it has repeated that many times: one that types `character` or deletes, in a field, or an
    /// arrow key, on a bar.
    virtual Refusal hold(const Target& control, Key key, const std::string& character, int times) = 0;
};

/// One thing that a person does.
using Gesture = std::function<Hands::Refusal(Hands&)>;

} // namespace ondelis::pilote
