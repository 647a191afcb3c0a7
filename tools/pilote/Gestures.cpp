#include "Gestures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

using Refusal = Actor::Refusal;

/// A whole number; the largest `int` if it is larger: no list and no bar goes that far.
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

/// The next word, "PANEL.CONTROL".
Actor::ControlPath controlPath(Tokenizer& words)
{
    const std::string word = words.next();
    const std::size_t dot = word.find('.');
    if (dot == std::string::npos)
        throw Malformed{"not PANEL.CONTROL: " + word};
    return {.panel = word.substr(0, dot), .control = word.substr(dot + 1)};
}

Gesture menu(Tokenizer& words)
{
    return [entry = words.next()](Actor& actor) { return actor.menu(entry); };
}

Gesture close(Tokenizer& words)
{
    return [window = words.next()](Actor& actor) { return actor.close(window); };
}

Gesture move(Tokenizer& words)
{
    const std::string window = words.next();
    const double left = readNumber(words.next());
    const double top = readNumber(words.next());
    return [=](Actor& actor) { return actor.move(window, left, top); };
}

Gesture minimise(Tokenizer& words)
{
    return [window = words.next()](Actor& actor) { return actor.minimise(window); };
}

Gesture restore(Tokenizer& words)
{
    return [window = words.next()](Actor& actor) { return actor.restore(window); };
}

Gesture type(Tokenizer& words)
{
    return [field = controlPath(words), text = words.next()](Actor& actor) { return actor.type(field, text); };
}

Gesture backspace(Tokenizer& words)
{
    return [field = controlPath(words)](Actor& actor) { return actor.backspace(field); };
}

Gesture replace(Tokenizer& words)
{
    return [field = controlPath(words), text = words.next()](Actor& actor) { return actor.replace(field, text); };
}

Gesture click(Tokenizer& words)
{
    return [button = controlPath(words)](Actor& actor) { return actor.click(button); };
}

Gesture select(Tokenizer& words)
{
    return [list = controlPath(words), row = whole(words.next())](Actor& actor) { return actor.select(list, row); };
}

Gesture scroll(Tokenizer& words)
{
    return [bar = controlPath(words), value = whole(words.next())](Actor& actor) { return actor.scroll(bar, value); };
}

Gesture focus(Tokenizer& words)
{
    return [control = controlPath(words)](Actor& actor) { return actor.focus(control); };
}

Actor::Key keyOf(const std::string& word, bool quoted)
{
    if (quoted && Len(word) == 1)
        return Actor::Key::Character;
    if (!quoted && word == "backspace")
        return Actor::Key::Backspace;
    if (!quoted && word == "back")
        return Actor::Key::Back;
    if (!quoted && word == "forward")
        return Actor::Key::Forward;
    throw Malformed{"neither a character in quotes nor backspace, back or forward: " + word};
}

Gesture hold(Tokenizer& words)
{
    const Actor::ControlPath control = controlPath(words);
    const bool quoted = words.quotedNext();
    const std::string word = words.next();
    const Actor::Key key = keyOf(word, quoted);
    const int times = whole(words.next());
    if (times < 1 || times > 1000)
        throw Malformed{"not a count from 1 to 1000"};
    return [=](Actor& actor) { return actor.hold(control, key, word, times); };
}

struct Reader {
    std::string_view word;
    Gesture (*read)(Tokenizer& words);
};

constexpr std::array<Reader, 13> gestures{{
    {"menu", menu},
    {"close", close},
    {"move", move},
    {"minimise", minimise},
    {"restore", restore},
    {"type", type},
    {"backspace", backspace},
    {"replace", replace},
    {"click", click},
    {"select", select},
    {"scroll", scroll},
    {"focus", focus},
    {"hold", hold},
}};

} // namespace

Gesture readGesture(std::string_view word, Tokenizer& words)
{
    const auto* const found = std::ranges::find(gestures, word, &Reader::word);
    return found == gestures.end() ? Gesture{} : found->read(words);
}

Answer readAnswer(Tokenizer& words)
{
    const std::string word = words.next();
    if (word != "yes" && word != "no")
        throw Malformed{"neither yes nor no: " + word};
    return word == "yes" ? Answer::Yes : Answer::No;
}

double readNumber(const std::string& word)
{
    double number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end || !(std::abs(number) <= std::numeric_limits<float>::max()))
        throw Malformed{"not a number of twips: " + word};
    return number;
}

} // namespace ondelis::pilote
