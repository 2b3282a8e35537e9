#pragma once

#include "CleanerCore/Safety/NoTouchRow.h"

#include <cstdint>
#include <span>
#include <string_view>

/// The rows of the no-touch tables, compiled for judging one component at a time: each name that some row mentions has a
/// token, and a rule is a short sequence of tokens.
namespace CleanerCore::NoTouchRuleSet {

/// 0 stands for a name that no row mentions.
using Token = std::uint8_t;
inline constexpr Token kNoToken = 0;

/// What the rows know a component as. At most one whole name or beginning and one ending fit a component.
struct Tokens {
    Token name = kNoToken;
    Token ending = kNoToken;
};

enum class Anchor : std::uint8_t { anywhere, belowHome };

/// Fits where the component before is `parent` and the one before that `grandparent`; `kNoToken` fits any.
struct Rule {
    Token grandparent = kNoToken;
    Token parent = kNoToken;
    Token last = kNoToken;
    Anchor anchor = Anchor::anywhere;
    std::uint8_t length = 1;
    NoTouchEffect effect = NoTouchEffect::refuses;
    NoTouchTable table = NoTouchTable::apple;
};

/// Case does not matter, in any script: the answer is that for the lower-cased component. Allocates nothing unless the
/// name holds one of the two letters beyond ASCII that lower-case to ASCII. `parent` is the token of the folder's name.
[[nodiscard]] Tokens tokensOf(std::string_view component, Token parent);

/// The rules that end in `token`.
[[nodiscard]] std::span<const Rule> rulesEndingIn(Token token);

[[nodiscard]] bool isCacheFolderOfProfile(Token name);
/// "common/.cache"
[[nodiscard]] bool isSnapCache(Token parent, Token name);
[[nodiscard]] bool isTrashOfICloudDrive(Token name);

} // namespace CleanerCore::NoTouchRuleSet
