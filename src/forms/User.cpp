#include "forms/User.h"

#include <algorithm>
#include <limits>

#include "kit/Text.h"

namespace ondelis {
namespace {

constexpr int backspaceKey = 8;

/// The code point of a character; 0 for the empty text.
char32_t codePoint(std::string_view character)
{
    if (character.empty())
        return 0;
    const auto lead = static_cast<unsigned char>(character[0]);
    char32_t code = character.size() == 1 ? lead : lead & (0xFFU >> (character.size() + 1));
    for (const char byte : character.substr(1))
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    return code;
}

/// Whether a text can be cut here: a character starts, or the text ends.
bool isBetweenCharacters(std::string_view text, std::size_t at)
{
    return at == text.size() || startsCharacter(text[at]);
}

/// The position of the first line break of a text; its end if there is none.
std::size_t lineEnd(std::string_view text)
{
    return std::min(text.find_first_of("\r\n"), text.size());
}

/// What a person may put into a field that has room for so many characters: a one-line field takes only the first line.
std::string accepted(const TextBox& box, std::string_view put, int room)
{
    if (!box.design().multiLine)
        put = put.substr(0, lineEnd(put));
    return Left(put, std::max(0, room));
}

/// The text after an edit, with the caret after what was put in: what stood before and after that stays, and what was
/// put in is kept as far as the field accepts it.
std::string edited(const TextBox& box, std::string_view toCaret, std::string_view tail, int limit)
{
    const std::string_view before = box.Text.get();
    auto start = static_cast<std::size_t>(std::ranges::mismatch(before, toCaret).in1 - before.begin());
    start = std::min(start, before.size() - std::min(before.size(), tail.size())); // the rest is the tail's
    while (!isBetweenCharacters(before, start) || !isBetweenCharacters(toCaret, start))
        --start;
    const std::string_view head = toCaret.substr(0, start);
    return std::string{head} + accepted(box, toCaret.substr(start), limit - Len(head) - Len(tail)) + std::string{tail};
}

/// Whether a key puts that character into a field: Enter puts a line break into a field of several lines, and no key
/// enters any other control character. The Tab key leaves the field.
bool isEnteredByKey(const TextBox& box, std::string_view character)
{
    if (lineEnd(character) == 0)
        return box.design().multiLine;
    return static_cast<unsigned char>(character[0]) >= ' ';
}

/// The code of a key as `KeyPress` gets it: "?" for a character that does not fit in 16 bits.
Integer keyCode(char32_t character)
{
    return character <= 32767 ? static_cast<int>(character) : '?';
}

} // namespace

User::Refusal User::type(TextBox& box, std::string_view text)
{
    if (auto refusal = unwritable(box))
        return refusal;
    while (!text.empty()) {
        const std::string character = Left(text, 1);
        text.remove_prefix(character.size());
        if (!isEnteredByKey(box, character))
            continue;
        runtime_.perform([&] {
            moveFocusTo(box);
            box.keyPress(keyCode(codePoint(character)));
            const std::string before = box.Text;
            const int limit = box.design().MaxLength;
            if (limit == 0 || Len(before) < limit)
                box.Text = before + character;
        });
        if (unwritable(box)) // the key before has ended the program, or closed the field
            break;
    }
    return {};
}

User::Refusal User::backspace(TextBox& box)
{
    if (auto refusal = unwritable(box))
        return refusal;
    runtime_.perform([&] {
        moveFocusTo(box);
        const std::string before = box.Text;
        box.keyPress(backspaceKey);
        if (box.Text == before && !before.empty())
            box.Text = Left(before, Len(before) - 1);
    });
    return {};
}

User::Refusal User::replace(TextBox& box, std::string_view text)
{
    return enter(box, [&](int limit) { return accepted(box, text, limit); });
}

User::Refusal User::edit(TextBox& box, std::string_view toCaret, std::string_view tail)
{
    return enter(box, [&](int limit) { return edited(box, toCaret, tail, limit); });
}

User::Refusal User::enter(TextBox& box, const std::function<std::string(int limit)>& text)
{
    if (auto refusal = unwritable(box))
        return refusal;
    runtime_.perform([&] {
        moveFocusTo(box);
        const int limit = box.design().MaxLength;
        box.Text = text(limit == 0 ? std::numeric_limits<int>::max() : limit);
    });
    return {};
}

bool User::key(TextBox& box, char32_t character)
{
    bool rewritten = false;
    runtime_.perform([&] {
        const std::string before = box.Text;
        box.keyPress(keyCode(character));
        rewritten = !(box.Text == before);
    });
    return rewritten;
}

User::Refusal User::click(OptionButton& option)
{
    if (auto refusal = unreachable(option))
        return refusal;
    runtime_.perform([&] {
        moveFocusTo(option);
        option.Value = true;
    });
    return {};
}

User::Refusal User::click(CommandButton& button)
{
    if (auto refusal = unreachable(button))
        return refusal;
    runtime_.perform([&] {
        moveFocusTo(button);
        button.Value = true;
    });
    return {};
}

User::Refusal User::choose(ListBox& list, int row)
{
    if (auto refusal = unreachable(list))
        return refusal;
    if (row < 0 || row >= list.ListCount().value())
        return "the list has no such row";
    runtime_.perform([&] {
        moveFocusTo(list);
        list.choose(row);
    });
    return {};
}

User::Refusal User::move(ScrollBar& bar, int value)
{
    if (auto refusal = unreachable(bar))
        return refusal;
    if (value < -32768 || value > 32767 || !bar.allows(value))
        return "the bar does not reach that value";
    runtime_.perform([&] {
        moveFocusTo(bar);
        bar.Value = value;
    });
    return {};
}

User::Refusal User::focus(Control& control)
{
    if (auto refusal = unreachable(control))
        return refusal;
    if (!control.focusable())
        return "the control takes no keyboard";
    runtime_.perform([&] { moveFocusTo(control); });
    return {};
}

User::Refusal User::close(FeuilleCalcul& panel)
{
    if (runtime_.ended())
        return "the program has ended";
    if (!panel.loaded() || !panel.visible())
        return "the panel is not on screen";
    runtime_.perform([&] { panel.Unload(); });
    return {};
}

User::Refusal User::unreachable(const Control& control) const
{
    if (runtime_.ended())
        return "the program has ended";
    if (!control.panel().loaded() || !control.panel().visible())
        return "the panel is not on screen";
    if (!control.onScreen())
        return "the control is hidden";
    return {};
}

User::Refusal User::unwritable(const TextBox& box) const
{
    if (auto refusal = unreachable(box))
        return refusal;
    if (box.Locked)
        return "the field is locked";
    return {};
}

void User::moveFocusTo(Control& control)
{
    if (runtime_.focused() == &control)
        return;
    runtime_.setFocused(&control);
    runtime_.host().focusMoved(control);
    control.gotFocus();
}

} // namespace ondelis
