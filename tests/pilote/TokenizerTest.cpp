#include "Tokenizer.h"

#include <vector>

#include <gtest/gtest.h>

namespace ondelis::pilote {
namespace {

using List = std::vector<std::string>;

List wordsOf(std::string_view line)
{
    Tokenizer words{line};
    List all;
    while (!words.atEnd())
        all.push_back(words.next());
    return all;
}

bool malformed(std::string_view line)
{
    try {
        wordsOf(line);
    } catch (const Malformed&) {
        return true;
    }
    return false;
}

TEST(TokenizerTest, splitsAtBlanks)
{
    EXPECT_EQ(wordsOf("type  CircuitsOscillants.TxtF\t14.1 \r"), (List{"type", "CircuitsOscillants.TxtF", "14.1"}));
    EXPECT_EQ(wordsOf(""), List{});
    EXPECT_EQ(wordsOf(" \t\r"), List{});
}

TEST(TokenizerTest, keepsBlanksInQuotes)
{
    EXPECT_EQ(wordsOf(R"(type A.B " 1 000 ")"), (List{"type", "A.B", " 1 000 "}));
    EXPECT_EQ(wordsOf(R"(type A.B "")"), (List{"type", "A.B", ""}));
}

TEST(TokenizerTest, readsEscapesInQuotes)
{
    EXPECT_EQ(wordsOf(R"("a\nb\tc\rd\"e\\f")"), List{"a\nb\tc\rd\"e\\f"});
    EXPECT_EQ(wordsOf(R"("\\n")"), List{"\\n"});
    EXPECT_EQ(wordsOf(R"(a\nb)"), List{"a\\nb"});
}

TEST(TokenizerTest, endsWhereACommentStarts)
{
    EXPECT_EQ(wordsOf("start # the program"), List{"start"});
    EXPECT_EQ(wordsOf("start#now"), List{"start"});
    EXPECT_EQ(wordsOf("# nothing"), List{});
    EXPECT_EQ(wordsOf(R"(type A.B "#1"#one)"), (List{"type", "A.B", "#1"}));
}

TEST(TokenizerTest, keepsAccentsAndSigns)
{
    EXPECT_EQ(
        wordsOf(R"(menu MenuAccèsAuxApplications "µF Ω 📻")"), (List{"menu", "MenuAccèsAuxApplications", "µF Ω 📻"}));
}

TEST(TokenizerTest, refusesWhatIsNotWellFormed)
{
    for (const char* const line : {R"(type A.B "open)", R"("ends in a backslash\)", R"("ends in an escaped quote\")",
             R"("a\qb")", R"("a"b)", R"(a"b")"})
        EXPECT_TRUE(malformed(line)) << line;
}

TEST(TokenizerTest, givesATextInQuotesBackAsItWas)
{
    for (const char* const text : {"", "12,5 µF", "a \"quoted\" # text", "\\n", "tab\tand\r\nline"})
        EXPECT_EQ(wordsOf(inQuotes(text)), List{text}) << text;
}

TEST(TokenizerTest, refusesTextsThatAreNotUtf8)
{
    for (const char* const bytes : {"\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
             "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xE2\x82"})
        EXPECT_TRUE(malformed(bytes)) << testing::PrintToString(bytes);
    EXPECT_FALSE(malformed("\xF4\x8F\xBF\xBF \xED\x9F\xBF \xE0\xA0\x80 \xC2\x80"));
}

TEST(TokenizerTest, givesTheRestWithoutItsComment)
{
    Tokenizer words{R"(expect A.B ["a # b", "c\"#"] # the items)"};
    words.next();
    words.next();
    EXPECT_EQ(words.rest(), R"(["a # b", "c\"#"] )");
    EXPECT_TRUE(words.atEnd());
}

TEST(TokenizerTest, tellsAWordTooManyFromAWordMissing)
{
    Tokenizer words{"one two"};
    words.next();
    EXPECT_THROW(words.finish(), Malformed);
    words.next();
    EXPECT_NO_THROW(words.finish());
    EXPECT_THROW(words.next(), Malformed);
}

} // namespace
} // namespace ondelis::pilote
