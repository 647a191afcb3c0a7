#include "Tokenizer.h"

#include <algorithm>

#include "kit/Text.h"

namespace ondelis::pilote {
namespace {

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

/// How many bytes the character at the front of a text takes; 0 if it is not well-formed.
std::size_t characterLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if (startsCharacter(text[i]))
            return 0;
    // Overlong encodings, surrogates, and code points beyond the last one.
    const unsigned second = byte(1);
    const bool wrong = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F)
        || (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return wrong ? 0 : length;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

char unescaped(char mark)
{
    switch (mark) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case '"':
    case '\\':
        return mark;
    default:
        throw Malformed{"an escape other than \\n \\r \\t \\\" \\\\"};
    }
}

} // namespace

Tokenizer::Tokenizer(std::string_view line) : rest_{line}
{
    if (!isUtf8(line))
        throw Malformed{"the line is not UTF-8"};
    skipBlanks();
}

bool Tokenizer::atEnd() const
{
    return rest_.empty() || rest_.front() == '#';
}

bool Tokenizer::quotedNext() const
{
    return !rest_.empty() && rest_.front() == '"';
}

std::string Tokenizer::next()
{
    if (atEnd())
        throw Malformed{"a word is missing"};
    if (quotedNext())
        return quoted();
    const auto* const end = std::ranges::find_if(rest_, [](char c) { return isBlank(c) || c == '#'; });
    std::string word{rest_.begin(), end};
    if (word.find('"') != std::string::npos)
        throw Malformed{"a quote inside a word"};
    rest_.remove_prefix(word.size());
    skipBlanks();
    return word;
}

std::string Tokenizer::rest()
{
    bool inQuotes = false;
    std::size_t end = 0;
    for (; end < rest_.size() && (inQuotes || rest_[end] != '#'); ++end)
        if (inQuotes && rest_[end] == '\\')
            ++end;
        else if (rest_[end] == '"')
            inQuotes = !inQuotes;
    std::string all{rest_.substr(0, end)};
    rest_ = {};
    return all;
}

void Tokenizer::finish() const
{
    if (!atEnd())
        throw Malformed{"a word too many"};
}

std::string Tokenizer::quoted()
{
    std::string word;
    rest_.remove_prefix(1);
    while (!rest_.empty() && rest_.front() != '"') {
        const bool escape = rest_.front() == '\\' && rest_.size() > 1;
        word += escape ? unescaped(rest_[1]) : rest_.front();
        rest_.remove_prefix(escape ? 2 : 1);
    }
    if (rest_.empty())
        throw Malformed{"a quote is not closed"};
    rest_.remove_prefix(1);
    if (!atEnd() && !isBlank(rest_.front()))
        throw Malformed{"a blank is missing after a quote"};
    skipBlanks();
    return word;
}

void Tokenizer::skipBlanks()
{
    const auto* const word = std::ranges::find_if_not(rest_, isBlank);
    rest_.remove_prefix(static_cast<std::size_t>(word - rest_.begin()));
}

std::string inQuotes(std::string_view text)
{
    std::string word{'"'};
    for (const char c : text) {
        if (c == '"' || c == '\\')
            word += '\\';
        switch (c) {
        case '\n':
            word += "\\n";
            break;
        case '\r':
            word += "\\r";
            break;
        case '\t':
            word += "\\t";
            break;
        default:
            word += c;
        }
    }
    return word + '"';
}

} // namespace ondelis::pilote
