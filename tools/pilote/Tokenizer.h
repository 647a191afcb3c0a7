#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace ondelis::pilote {

/// The line is not a command; says why.
class Malformed final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads a line of the driver's language: words separated by blanks; a word in double quotes may contain blanks and the
/// escapes \n \r \t \" \\; `#` outside quotes starts a comment. A line that breaks these rules throws Malformed.
class Tokenizer {
public:
    /// Throws if the line is not UTF-8.
    explicit Tokenizer(std::string_view line);

    /// Whether only blanks and a comment are left.
    [[nodiscard]] bool atEnd() const;
    /// Whether the next word stands in quotes.
    [[nodiscard]] bool quotedNext() const;
    /// The next word, without its quotes and with its escapes read. Throws at the end.
    std::string next();
    /// All that is left as it stands, without the comment.
    std::string rest();
    /// Throws if a word is left.
    void finish() const;

private:
    std::string quoted();
    void skipBlanks();

    std::string_view rest_;
};

/// A text as a word in quotes, with its escapes.
[[nodiscard]] std::string inQuotes(std::string_view text);

} // namespace ondelis::pilote
