#include "Words.h"

#include <vector>

#include <gtest/gtest.h>

namespace ondelis::pilote {
namespace {

using List = std::vector<std::string>;

List wordsOf(std::string_view line)
{
    Words words{line};
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

TEST(WordsTest, areSeparatedByBlanks)
{
    EXPECT_EQ(wordsOf("type  CircuitsOscillants.TxtF\t14.1 \r"), (List{"type", "CircuitsOscillants.TxtF", "14.1"}));
    EXPECT_EQ(wordsOf(""), List{});
    EXPECT_EQ(wordsOf(" \t\r"), List{});
}

TEST(WordsTest, mayHoldBlanksInQuotes)
{
    EXPECT_EQ(wordsOf(R"(type A.B " 1 000 ")"), (List{"type", "A.B", " 1 000 "}));
    EXPECT_EQ(wordsOf(R"(type A.B "")"), (List{"type", "A.B", ""}));
}

TEST(WordsTest, haveEscapesInQuotes)
{
    EXPECT_EQ(wordsOf(R"("a\nb\tc\rd\"e\\f")"), List{"a\nb\tc\rd\"e\\f"});
    EXPECT_EQ(wordsOf(R"("\\n")"), List{"\\n"});
    EXPECT_EQ(wordsOf(R"(a\nb)"), List{"a\\nb"});
}

TEST(WordsTest, endWhereACommentStarts)
{
    EXPECT_EQ(wordsOf("start # the program"), List{"start"});
    EXPECT_EQ(wordsOf("start#now"), List{"start"});
    EXPECT_EQ(wordsOf("# nothing"), List{});
    EXPECT_EQ(wordsOf(R"(type A.B "#1"#one)"), (List{"type", "A.B", "#1"}));
}

TEST(WordsTest, keepAccentsAndSigns)
{
    EXPECT_EQ(
        wordsOf(R"(menu MenuAccèsAuxApplications "µF Ω 📻")"), (List{"menu", "MenuAccèsAuxApplications", "µF Ω 📻"}));
}

TEST(WordsTest, refuseWhatIsNotWellFormed)
{
    for (const char* const line : {R"(type A.B "open)", R"("ends in a backslash\)", R"("ends in an escaped quote\")",
             R"("a\qb")", R"("a"b)", R"(a"b")"})
        EXPECT_TRUE(malformed(line)) << line;
}

TEST(WordsTest, giveATextInQuotesBackAsItWas)
{
    for (const char* const text : {"", "12,5 µF", "a \"quoted\" # text", "\\n", "tab\tand\r\nline"})
        EXPECT_EQ(wordsOf(inQuotes(text)), List{text}) << text;
}

TEST(WordsTest, refuseTextsThatAreNotUtf8)
{
    for (const char* const bytes : {"\x80", "\xC3", "\xC3(", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80",
             "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xE2\x82"})
        EXPECT_TRUE(malformed(bytes)) << testing::PrintToString(bytes);
    EXPECT_FALSE(malformed("\xF4\x8F\xBF\xBF \xED\x9F\xBF \xE0\xA0\x80 \xC2\x80"));
}

TEST(WordsTest, giveTheRestWithoutItsComment)
{
    Words words{R"(expect A.B ["a # b", "c\"#"] # the items)"};
    words.next();
    words.next();
    EXPECT_EQ(words.rest(), R"(["a # b", "c\"#"] )");
    EXPECT_TRUE(words.atEnd());
}

TEST(WordsTest, tellAWordTooManyFromAWordMissing)
{
    Words words{"one two"};
    words.next();
    EXPECT_THROW(words.finish(), Malformed);
    words.next();
    EXPECT_NO_THROW(words.finish());
    EXPECT_THROW(words.next(), Malformed);
}

} // namespace
} // namespace ondelis::pilote
