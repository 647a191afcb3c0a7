#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Controls.h"
#include "forms/Runtime.h"

namespace ondelis {

/// What a person does to a control, by mouse or by key, or to close a panel: the one way in for these actions. An
/// action on a control first gives it the keyboard, and runs the whole chain of handlers before it returns. What a
/// person could not do changes nothing and is refused with the reason.
class User {
public:
    using Refusal = std::optional<std::string>;

    explicit User(Runtime& runtime) : runtime_{runtime} { }

    /// Types a text key by key at the end of a field: `KeyPress`, then the character lands, unless `MaxLength` is
    /// reached, and `Change` is raised. No key enters a control character, except a line break in a field of several
    /// lines.
    Refusal type(TextBox& box, std::string_view text);
    /// The backspace key at the end of a field: `KeyPress` 8, then, if the handler left the text alone, the
    /// last character goes.
    Refusal backspace(TextBox& box);
    /// Pastes a text over the whole of a field, cut to `MaxLength`; into a field of one line, up to its first carriage
    /// return or line feed. No `KeyPress`.
    Refusal replace(TextBox& box, std::string_view text);
    /// Gives a field the text that results from an edit anywhere in it: the text up to the caret, which stands after
    /// what was put in, and the tail. What the edit puts in is cut like a paste, to the room that `MaxLength` leaves; a
    /// store may have made the rest longer than that. No `KeyPress`.
    Refusal edit(TextBox& box, std::string_view toCaret, std::string_view tail);
    /// A key on its way into a field; returns whether the panel rewrote the text meanwhile.
    bool key(TextBox& box, char32_t character);

    Refusal click(OptionButton& option);
    Refusal click(CommandButton& button);
    Refusal choose(ListBox& list, int row);
    Refusal move(ScrollBar& bar, int value);
    Refusal focus(Control& control);
    /// The close box of a panel.
    Refusal close(FeuilleCalcul& panel);

private:
    /// Why a person cannot reach the control; nothing where they can.
    [[nodiscard]] Refusal unreachable(const Control& control) const;
    [[nodiscard]] Refusal unwritable(const TextBox& box) const;
    void moveFocusTo(Control& control);
    /// Gives a field another text, made for the number of characters that it takes.
    Refusal enter(TextBox& box, const std::function<std::string(int limit)>& text);

    Runtime& runtime_;
};

} // namespace ondelis
