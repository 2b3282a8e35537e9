#pragma once

#include "CleanerCore/Safety/AppleNoTouchTable.h"
#include "CleanerCore/Safety/LinuxNoTouchTable.h"
#include "CleanerCore/Safety/NoTouchPatterns.h"
#include "CleanerCore/Safety/NoTouchRuleSet.h"
#include "Platform/Base/ASCII.h"

#include <algorithm>
#include <array>
#include <cstddef>

/// The names that the rows of the no-touch tables mention, numbered at compile time. Only `NoTouchRuleSet.cpp` has a use
/// for it.
namespace CleanerCore::NoTouchRuleSet {

using NoTouchPatterns::Matcher;
using NoTouchPatterns::Shape;

/// The caches inside of a profile that Chromium and Electron rebuild: disk cache, compiled scripts, compiled shaders.
inline constexpr std::string_view kCacheFolderNames =
    "cache|code cache|gpucache|dawngraphitecache|dawnwebgpucache|shadercache|grshadercache";

inline constexpr std::size_t kTokens = 256;

/// How many bytes of a beginning or an ending are hashed; none is shorter.
inline constexpr std::size_t kHashedBytes = 3;

template <typename Visitor>
constexpr void forEachRow(Visitor visit)
{
    for (const NoTouchRow& row : kAppleNoTouchTable) {
        visit(row, NoTouchTable::apple);
    }
    for (const NoTouchRow& row : kLinuxNoTouchTable) {
        visit(row, NoTouchTable::linuxDesktop);
    }
}

/// Every matcher of the tables; its token is its place here. Too many do not compile.
struct Vocabulary {
    std::array<Matcher, kTokens> matchers{};
    std::size_t count = 1;

    [[nodiscard]] constexpr Token token(const Matcher& matcher) const
    {
        for (std::size_t index = 1; index < count; ++index) {
            if (matchers[index] == matcher) {
                return static_cast<Token>(index);
            }
        }
        return kNoToken;
    }

    constexpr void add(std::string_view alternatives)
    {
        NoTouchPatterns::forEachPart(alternatives, '|', [this](std::string_view alternative) {
            const auto matcher = NoTouchPatterns::parseMatcher(alternative);
            if (token(matcher) == kNoToken) {
                matchers[count++] = matcher;
            }
        });
    }
};

constexpr Vocabulary makeVocabulary()
{
    Vocabulary vocabulary;
    forEachRow([&](const NoTouchRow& row, NoTouchTable) {
        const auto pattern = NoTouchPatterns::parsePattern(row.pattern);
        for (std::size_t index = 0; index < pattern.length; ++index) {
            vocabulary.add(pattern.components[index]);
        }
    });
    vocabulary.add(kCacheFolderNames);
    return vocabulary;
}

inline constexpr Vocabulary kVocabulary = makeVocabulary();

constexpr Token wholeName(std::string_view name)
{
    return kVocabulary.token({Shape::wholeName, name, 0});
}

inline constexpr Token kNumber = kVocabulary.token({Shape::number, {}, 0});

constexpr bool isLowerCaseASCII(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
        [](char byte) { return static_cast<unsigned char>(byte) < 0x80 && Platform::ASCII::lowercased(byte) == byte; });
}

constexpr bool isWellFormed(const Matcher& matcher)
{
    const bool isHashedByThreeBytes = matcher.shape != Shape::wholeName && matcher.shape != Shape::number;
    return isLowerCaseASCII(matcher.text) && (matcher.shape == Shape::number) == matcher.text.empty()
        && (!isHashedByThreeBytes || matcher.text.size() >= kHashedBytes);
}

/// A name has one token, so no whole name or beginning may begin as another beginning does, nor an ending end so.
constexpr bool collides(const Matcher& matcher, const Matcher& other)
{
    const bool isBeginning = other.shape == Shape::beginning || other.shape == Shape::beginningThenNumber;
    if (matcher.shape == Shape::ending || other.shape == Shape::ending) {
        return matcher.shape == other.shape && matcher.text.ends_with(other.text);
    }
    return isBeginning && matcher.text.starts_with(other.text);
}

constexpr bool isSound()
{
    for (std::size_t index = 1; index < kVocabulary.count; ++index) {
        if (!isWellFormed(kVocabulary.matchers[index])) {
            return false;
        }
        for (std::size_t other = 1; other < kVocabulary.count; ++other) {
            if (other != index && collides(kVocabulary.matchers[index], kVocabulary.matchers[other])) {
                return false;
            }
        }
    }
    return true;
}

static_assert(isSound());

} // namespace CleanerCore::NoTouchRuleSet
