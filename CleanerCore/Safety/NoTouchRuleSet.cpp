#include "CleanerCore/Safety/NoTouchRuleSet.h"

#include "CleanerCore/Safety/NoTouchVocabulary.h"
#include "Platform/Base/ASCII.h"
#include "Platform/Base/Text.h"

#include <algorithm>
#include <array>

namespace CleanerCore::NoTouchRuleSet {

namespace {

/// The rules, those with the same last token next to each other.
struct Rules {
    std::array<Rule, 512> rules{};
    std::array<std::uint16_t, kTokens + 1> starts{};
};

constexpr Rules makeRules()
{
    std::array<Rule, 512> found{};
    std::size_t count = 0;
    forEachRow([&](const NoTouchRow& row, NoTouchTable table) {
        const auto pattern = NoTouchPatterns::parsePattern(row.pattern);
        const auto alternatives = [&](std::size_t fromEnd) {
            return fromEnd < pattern.length ? pattern.components[pattern.length - 1 - fromEnd] : std::string_view();
        };
        const auto token = [](std::string_view alternative) {
            return alternative.empty() ? kNoToken : kVocabulary.token(NoTouchPatterns::parseMatcher(alternative));
        };
        NoTouchPatterns::forEachPart(alternatives(2), '|', [&](std::string_view grandparent) {
            NoTouchPatterns::forEachPart(alternatives(1), '|', [&](std::string_view parent) {
                NoTouchPatterns::forEachPart(alternatives(0), '|', [&](std::string_view last) {
                    found[count++] = {token(grandparent), token(parent), token(last),
                        pattern.isBelowHome ? Anchor::belowHome : Anchor::anywhere,
                        static_cast<std::uint8_t>(pattern.length), row.effect, table};
                });
            });
        });
    });

    Rules rules;
    std::size_t next = 0;
    for (std::size_t token = 0; token < kTokens; ++token) {
        rules.starts[token] = static_cast<std::uint16_t>(next);
        for (std::size_t index = 0; index < count && token != kNoToken; ++index) {
            if (found[index].last == token) {
                rules.rules[next++] = found[index];
            }
        }
    }
    rules.starts[kTokens] = static_cast<std::uint16_t>(next);
    return rules;
}

constexpr Rules kRules = makeRules();

constexpr auto kStandsBeforeNumber = [] {
    std::array<bool, kTokens> stands{};
    for (auto index = kRules.starts[kNumber]; index < kRules.starts[kNumber + 1U]; ++index) {
        stands[kRules.rules[index].parent] = true;
    }
    return stands;
}();

/// Tells the letters of both cases apart from nothing else that matters to a hash.
constexpr std::uint32_t folded(char byte)
{
    return static_cast<unsigned char>(byte) | 0x20U;
}

/// The tokens of some matchers, by a hash of what is cheap to see of a name. Nearly every name of a disk falls into an
/// empty bucket and is done with.
template <std::size_t kBuckets>
struct Index {
    std::array<std::uint8_t, kBuckets + 1> starts{};
    std::array<Token, kTokens> tokens{};

    constexpr Index(bool (*holds)(Shape), std::uint32_t (*hash)(std::string_view))
    {
        std::size_t next = 0;
        std::array<std::uint32_t, kTokens> buckets{};
        for (std::size_t token = 1; token < kVocabulary.count; ++token) {
            const Matcher& matcher = kVocabulary.matchers[token];
            buckets[token] = holds(matcher.shape) ? hash(matcher.text) % kBuckets : kBuckets;
        }
        for (std::uint32_t bucket = 0; bucket < kBuckets; ++bucket) {
            starts[bucket] = static_cast<std::uint8_t>(next);
            for (std::size_t token = 1; token < kVocabulary.count; ++token) {
                if (buckets[token] == bucket) {
                    tokens[next++] = static_cast<Token>(token);
                }
            }
        }
        starts[kBuckets] = static_cast<std::uint8_t>(next);
    }
};

constexpr std::uint32_t hashOfWholeName(std::string_view name)
{
    return folded(name.front()) * 37 + folded(name.back()) * 101 + static_cast<std::uint32_t>(name.size()) * 11;
}

constexpr std::uint32_t hashOfBeginning(std::string_view name)
{
    return folded(name[0]) * 5 + folded(name[1]) * 37 + folded(name[2]) * 101;
}

constexpr std::uint32_t hashOfEnding(std::string_view name)
{
    return hashOfBeginning(name.substr(name.size() - kHashedBytes));
}

constexpr Index<512> kWholeNames([](Shape shape) { return shape == Shape::wholeName; }, hashOfWholeName);
constexpr Index<256> kBeginnings(
    [](Shape shape) { return shape == Shape::beginning || shape == Shape::beginningThenNumber; }, hashOfBeginning);
constexpr Index<256> kEndings([](Shape shape) { return shape == Shape::ending; }, hashOfEnding);

bool isNumber(std::string_view text, std::size_t digitCount)
{
    return !text.empty() && (digitCount == 0 || text.size() == digitCount)
        && std::all_of(text.begin(), text.end(), Platform::ASCII::isDigit);
}

bool fits(std::string_view name, const Matcher& matcher)
{
    const auto length = matcher.text.size();
    if (name.size() < length) {
        return false;
    }
    switch (matcher.shape) {
    case Shape::wholeName:
        return Platform::ASCII::equalsIgnoringCase(name, matcher.text);
    case Shape::beginning:
        return Platform::ASCII::equalsIgnoringCase(name.substr(0, length), matcher.text);
    case Shape::ending:
        return Platform::ASCII::equalsIgnoringCase(name.substr(name.size() - length), matcher.text);
    case Shape::beginningThenNumber:
        return Platform::ASCII::equalsIgnoringCase(name.substr(0, length), matcher.text)
            && isNumber(name.substr(length), matcher.digitCount);
    case Shape::number:
        return isNumber(name, matcher.digitCount);
    }
    return false;
}

template <std::size_t kBuckets>
Token lookUp(std::string_view name, std::uint32_t hash, const Index<kBuckets>& index)
{
    const auto bucket = hash % kBuckets;
    for (std::size_t place = index.starts[bucket]; place < index.starts[bucket + 1]; ++place) {
        if (fits(name, kVocabulary.matchers[index.tokens[place]])) {
            return index.tokens[place];
        }
    }
    return kNoToken;
}

/// Lower-casing turns ASCII into ASCII and all other letters into other letters than those of ASCII, with two
/// exceptions: U+212A becomes "k", and U+0130 "i" and a combining point. Every name of the tables is ASCII, so a name
/// without these two letters is judged by folding its ASCII letters alone.
bool mayGainASCII(std::string_view name)
{
    return !Platform::ASCII::isASCII(name)
        && (name.find("\xE2\x84\xAA") != std::string_view::npos || name.find("\xC4\xB0") != std::string_view::npos);
}

Tokens tokensOfFolded(std::string_view name, Token parent)
{
    if (name.empty()) {
        return {};
    }
    Tokens tokens;
    tokens.name = lookUp(name, hashOfWholeName(name), kWholeNames);
    if (name.size() >= kHashedBytes) {
        tokens.ending = lookUp(name, hashOfEnding(name), kEndings);
        if (tokens.name == kNoToken) {
            tokens.name = lookUp(name, hashOfBeginning(name), kBeginnings);
        }
    }
    if (parent != kNoToken && kStandsBeforeNumber[parent] && isNumber(name, 0)) {
        tokens.name = kNumber;
    }
    return tokens;
}

[[gnu::cold, gnu::noinline]] Tokens tokensOfLowercased(std::string_view name, Token parent)
{
    return tokensOfFolded(Platform::Text::lowercased(name), parent);
}

constexpr auto kIsCacheFolder = [] {
    std::array<bool, kTokens> is{};
    NoTouchPatterns::forEachPart(kCacheFolderNames, '|', [&](std::string_view name) { is[wholeName(name)] = true; });
    return is;
}();

constexpr Token kSnapCommon = wholeName("common");
constexpr Token kSnapCache = wholeName(".cache");
constexpr Token kTrash = wholeName(".trash");
static_assert(kSnapCommon != kNoToken && kSnapCache != kNoToken && kTrash != kNoToken);

} // namespace

Tokens tokensOf(std::string_view component, Token parent)
{
    return mayGainASCII(component) ? tokensOfLowercased(component, parent) : tokensOfFolded(component, parent);
}

std::span<const Rule> rulesEndingIn(Token token)
{
    return std::span(kRules.rules)
        .subspan(kRules.starts[token], static_cast<std::size_t>(kRules.starts[token + 1U] - kRules.starts[token]));
}

bool isCacheFolderOfProfile(Token name)
{
    return kIsCacheFolder[name];
}

bool isSnapCache(Token parent, Token name)
{
    return parent == kSnapCommon && name == kSnapCache;
}

bool isTrashOfICloudDrive(Token name)
{
    return name == kTrash;
}

} // namespace CleanerCore::NoTouchRuleSet
