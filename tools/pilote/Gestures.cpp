#include "Gestures.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

using Refusal = Hands::Refusal;

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
Hands::Target target(Words& words)
{
    const std::string word = words.next();
    const std::size_t dot = word.find('.');
    if (dot == std::string::npos)
        throw Malformed{"not PANEL.CONTROL: " + word};
    return {.panel = word.substr(0, dot), .control = word.substr(dot + 1)};
}

Gesture menu(Words& words)
{
    return [entry = words.next()](Hands& hands) { return hands.menu(entry); };
}

Gesture close(Words& words)
{
    return [window = words.next()](Hands& hands) { return hands.close(window); };
}

Gesture move(Words& words)
{
    const std::string window = words.next();
    const double left = readNumber(words.next());
    const double top = readNumber(words.next());
    return [=](Hands& hands) { return hands.move(window, left, top); };
}

Gesture minimise(Words& words)
{
    return [window = words.next()](Hands& hands) { return hands.minimise(window); };
}

Gesture restore(Words& words)
{
    return [window = words.next()](Hands& hands) { return hands.restore(window); };
}

Gesture type(Words& words)
{
    return [field = target(words), text = words.next()](Hands& hands) { return hands.type(field, text); };
}

Gesture backspace(Words& words)
{
    return [field = target(words)](Hands& hands) { return hands.backspace(field); };
}

Gesture replace(Words& words)
{
    return [field = target(words), text = words.next()](Hands& hands) { return hands.replace(field, text); };
}

Gesture click(Words& words)
{
    return [button = target(words)](Hands& hands) { return hands.click(button); };
}

Gesture select(Words& words)
{
    return [list = target(words), row = whole(words.next())](Hands& hands) { return hands.select(list, row); };
}

Gesture scroll(Words& words)
{
    return [bar = target(words), value = whole(words.next())](Hands& hands) { return hands.scroll(bar, value); };
}

Gesture focus(Words& words)
{
    return [control = target(words)](Hands& hands) { return hands.focus(control); };
}

Hands::Key keyOf(const std::string& word, bool quoted)
{
    if (quoted && Len(word) == 1)
        return Hands::Key::Character;
    if (!quoted && word == "backspace")
        return Hands::Key::Backspace;
    if (!quoted && word == "back")
        return Hands::Key::Back;
    if (!quoted && word == "forward")
        return Hands::Key::Forward;
    throw Malformed{"neither a character in quotes nor backspace, back or forward: " + word};
}

Gesture hold(Words& words)
{
    const Hands::Target control = target(words);
    const bool quoted = words.quotedNext();
    const std::string word = words.next();
    const Hands::Key key = keyOf(word, quoted);
    const int times = whole(words.next());
    if (times < 1 || times > 1000)
        throw Malformed{"not a count from 1 to 1000"};
    return [=](Hands& hands) { return hands.hold(control, key, word, times); };
}

struct Reader {
    std::string_view word;
    Gesture (*read)(Words& words);
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

Gesture readGesture(std::string_view word, Words& words)
{
    const auto* const found = std::ranges::find(gestures, word, &Reader::word);
    return found == gestures.end() ? Gesture{} : found->read(words);
}

Answer readAnswer(Words& words)
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
