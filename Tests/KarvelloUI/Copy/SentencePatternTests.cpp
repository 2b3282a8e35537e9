#include "KarvelloUI/Copy/SentencePattern.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace KarvelloUI {
namespace {

using Parts = std::vector<std::optional<std::string>>;

/// The parts of the match as texts of their own; nothing without a match or when the search was given up.
std::optional<Parts> partsOf(std::string_view pattern, std::string_view text)
{
    const auto compiled = SentencePattern::compile(pattern);
    if (!compiled) {
        ADD_FAILURE() << "no expression: " << pattern;
        return std::nullopt;
    }
    MatchableSentence sentence(text);
    MatchBudget budget;
    const auto match = compiled->firstMatch(sentence, budget);
    if (!match || !*match) {
        return std::nullopt;
    }
    Parts parts;
    for (const auto& part : **match) {
        parts.push_back(part ? std::optional(std::string(*part)) : std::nullopt);
    }
    return parts;
}

TEST(SentencePattern, CatchesThePartsOfASentence)
{
    EXPECT_EQ(partsOf(R"(^(.+?)\ of\ (.+?)\ reviewed$)", "3 of 12 reviewed"), (Parts{"3", "12"}));
    EXPECT_EQ(partsOf(R"(^(.+?)\ failed\ ·\ (.+?)\.(.*?)$)", "2 failed · 1 KB."), (Parts{"2", "1 KB", ""}));
    EXPECT_EQ(partsOf(R"(^no\ group$)", "no group"), Parts{});
}

TEST(SentencePattern, WantsTheWholeSentence)
{
    EXPECT_EQ(partsOf(R"(^(.+?)\ status$)", "disk status ok"), std::nullopt);
    EXPECT_EQ(partsOf(R"(^Open\ (.+?)$)", "Reopen it"), std::nullopt);
    EXPECT_EQ(partsOf(R"(^(.+?)\ status$)", " status"), std::nullopt);
}

TEST(SentencePattern, LeavesAGroupEmptyThatTookNoPart)
{
    EXPECT_EQ(partsOf("^(a)?(b)$", "b"), (Parts{std::nullopt, "b"}));
}

TEST(SentencePattern, GivesTheBytesOfAnyNameBack)
{
    const std::string notText = "a\xFF\xC3 b 😀 한글 \xE2\x80\xAE";
    EXPECT_EQ(partsOf(R"(^Location:\ (.+?)\.$)", "Location: " + notText + "."), (Parts{notText}));
}

TEST(SentencePattern, DoesNotReachAcrossLines)
{
    EXPECT_EQ(partsOf(R"(^(.+?)\ items$)", "a\nb items"), std::nullopt);
    EXPECT_EQ(partsOf(R"(^(.+?)\n\nPreview:\ (.+?)$)", "a\n\nPreview: b"), (Parts{"a", "b"}));
    EXPECT_EQ(partsOf(R"(^Finder\\n(.+?)$)", "Finder\n/a"), std::nullopt);
}

TEST(SentencePattern, MatchesExpressionsOfAnyForm)
{
    EXPECT_EQ(partsOf(R"(^(\d+) (?:items|files)$)", "12 files"), (Parts{"12"}));
    EXPECT_EQ(partsOf("items", "12 items left"), Parts{});
    EXPECT_EQ(partsOf(R"(^price \$$)", "price $"), Parts{});
}

TEST(SentencePattern, IsNothingForABrokenExpression)
{
    EXPECT_EQ(SentencePattern::compile("^(.+?$"), nullptr);
    EXPECT_EQ(SentencePattern::shared("^(.+?$"), nullptr);
}

TEST(SentencePattern, IsCompiledOnceForAll)
{
    EXPECT_EQ(SentencePattern::shared("^(.+?) shared$"), SentencePattern::shared("^(.+?) shared$"));
}

TEST(SentencePattern, GivesUpOnASentenceThatWouldTakeTooLong)
{
    const auto pattern = SentencePattern::compile("^(.+?) (.+?) (.+?) (.+?)!$");
    std::string text;
    for (int word = 0; word < 2000; ++word) {
        text += "a ";
    }
    text += "!a";
    MatchableSentence sentence(text);
    MatchBudget budget;
    EXPECT_FALSE(pattern->firstMatch(sentence, budget));
    // What one expression has used up is not there for the next.
    EXPECT_LE(budget.ticks, 0);
    EXPECT_FALSE(SentencePattern::compile("^(.+?) (.+?)!b?$")->firstMatch(sentence, budget));
}

TEST(SentencePattern, MatchesAgainAndAgainAndAfterHavingGivenUp)
{
    const auto pattern = SentencePattern::shared("^(.+?) (.+?) (.+?) (.+?)!$");
    const auto parts = [&pattern](const std::string& text) -> std::optional<std::string> {
        MatchableSentence sentence(text);
        MatchBudget budget;
        const auto match = pattern->firstMatch(sentence, budget);
        return match && *match ? std::optional(std::string(*(**match)[3])) : std::nullopt;
    };
    std::string hostile;
    for (int word = 0; word < 2000; ++word) {
        hostile += "a ";
    }
    EXPECT_EQ(parts("a b c d!"), "d");
    EXPECT_EQ(parts("a b c longer than before!"), "longer than before");
    EXPECT_EQ(parts(hostile + "!a"), std::nullopt);
    EXPECT_EQ(parts("w x y z!"), "z") << "its budget is its own";
    EXPECT_EQ(parts("w x y"), std::nullopt);
}

TEST(SentencePattern, MatchesOnManyThreadsAtOnce)
{
    const auto pattern = SentencePattern::shared(R"(^(.+?)\ of\ (.+?)\ reviewed$)");
    std::vector<std::jthread> threads;
    std::vector<int> matches(4);
    for (int& found : matches) {
        threads.emplace_back([&found, &pattern] {
            for (int round = 0; round < 500; ++round) {
                MatchableSentence sentence("3 of 12 reviewed");
                MatchBudget budget;
                const auto match = pattern->firstMatch(sentence, budget);
                found += match && *match && (**match)[1] == "12" ? 1 : 0;
            }
        });
    }
    threads.clear();
    EXPECT_THAT(matches, testing::Each(500));
}

} // namespace
} // namespace KarvelloUI
