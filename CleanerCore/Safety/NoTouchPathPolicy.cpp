#include "CleanerCore/Safety/NoTouchPathPolicy.h"

#include "CleanerCore/Safety/NoTouchRuleSet.h"
#include "Platform/Base/Text.h"

#include <optional>

namespace CleanerCore {

namespace {

using NoTouchRuleSet::Anchor;
using NoTouchRuleSet::Rule;
using NoTouchRuleSet::Token;
using NoTouchRuleSet::Tokens;

/// Where a folder stands, as far as homes are concerned. The value 0 belongs to the root folder.
enum class Place : std::uint8_t { root, varFolder, homesFolder, home, inHome, deeperInHome, elsewhere };

// The bits of a state: the tokens of the last two components, and what was decided above.
constexpr unsigned kTokenBits = 8;
constexpr std::uint64_t kTokenMask = 0xFF;
constexpr std::uint64_t kTokensMask = 0xFFFF;
constexpr unsigned kPlaceShift = 16;
constexpr std::uint64_t kPlaceMask = std::uint64_t{7} << kPlaceShift;
/// No-touch, and so is all that lies below.
constexpr std::uint64_t kRefused = std::uint64_t{1} << 19U;
/// This is the folder of iCloud Drive: no-touch, but its ".trash" is not.
constexpr std::uint64_t kICloudDrive = std::uint64_t{1} << 20U;
/// This lies in the Trash of iCloud Drive: the rules of the Library count no more.
constexpr std::uint64_t kICloudTrash = std::uint64_t{1} << 21U;
constexpr std::uint64_t kAllowsDatabases = std::uint64_t{1} << 22U;
/// This lies in a profile: no-touch, but bit n set says that a cache folder n + 1 levels below is not.
constexpr unsigned kProfileShift = 23;
constexpr std::uint64_t kProfileMask = std::uint64_t{7} << kProfileShift;
/// The profile is the folder of the snaps.
constexpr std::uint64_t kSnaps = std::uint64_t{1} << 26U;
/// The rows of the Linux table do not count here.
constexpr std::uint64_t kAppleRowsOnly = std::uint64_t{1} << 27U;

constexpr std::uint64_t placed(Place place)
{
    return static_cast<std::uint64_t>(place) << kPlaceShift;
}

constexpr Place placeOf(std::uint64_t bits)
{
    return static_cast<Place>((bits & kPlaceMask) >> kPlaceShift);
}

/// What makes a folder's items depend on more than the tables' names.
constexpr bool isPlain(std::uint64_t bits)
{
    return (bits & (kPlaceMask | kICloudDrive | kProfileMask)) == placed(Place::elsewhere);
}

Place descended(Place place, std::string_view component)
{
    switch (place) {
    case Place::root: {
        const auto name = Platform::Text::lowercased(component);
        if (name == "home" || name == "users") {
            return Place::homesFolder;
        }
        return name == "root" ? Place::home : name == "var" ? Place::varFolder : Place::elsewhere;
    }
    case Place::varFolder:
        return Platform::Text::lowercased(component) == "home" ? Place::homesFolder : Place::elsewhere;
    case Place::homesFolder:
        return Place::home;
    case Place::home:
        return Place::inHome;
    case Place::inHome:
        return Place::deeperInHome;
    case Place::deeperInHome:
    case Place::elsewhere:
        return Place::elsewhere;
    }
    return Place::elsewhere;
}

/// Where the folder above the item must stand for a rule of this length to begin directly below a home.
constexpr Place anchorPlace(std::uint8_t ruleLength)
{
    constexpr Place places[] = {Place::home, Place::inHome, Place::deeperInHome};
    return places[ruleLength - 1];
}

bool fits(const Rule& rule, std::uint64_t parentBits)
{
    const auto parent = static_cast<Token>(parentBits & kTokenMask);
    const auto grandparent = static_cast<Token>((parentBits >> kTokenBits) & kTokenMask);
    return (rule.parent == NoTouchRuleSet::kNoToken || rule.parent == parent)
        && (rule.grandparent == NoTouchRuleSet::kNoToken || rule.grandparent == grandparent)
        && (rule.anchor == Anchor::anywhere || placeOf(parentBits) == anchorPlace(rule.length))
        && ((parentBits & kAppleRowsOnly) == 0 || rule.table == NoTouchTable::apple);
}

/// The levels at which a profile's caches lie, as bits.
std::optional<std::uint64_t> cacheLevels(NoTouchEffect effect)
{
    switch (effect) {
    case NoTouchEffect::refusesButForCachesOneBelow:
        return 0b001;
    case NoTouchEffect::refusesButForCachesOneOrTwoBelow:
        return 0b011;
    case NoTouchEffect::refusesButForCachesTwoBelow:
        return 0b010;
    case NoTouchEffect::refusesButForCachesThreeBelow:
    case NoTouchEffect::refusesButForSnapCaches:
        return 0b100;
    case NoTouchEffect::refuses:
    case NoTouchEffect::refusesInLibrary:
    case NoTouchEffect::refusesButForItsTrash:
    case NoTouchEffect::refusesDatabase:
    case NoTouchEffect::allowsDatabasesBelow:
        return std::nullopt;
    }
    return std::nullopt;
}

/// `bits` with what a rule says of the item that it fits.
std::uint64_t applied(NoTouchEffect effect, std::uint64_t bits)
{
    if (const auto levels = cacheLevels(effect)) {
        if ((bits & kProfileMask) != 0) {
            return bits | kRefused;
        }
        return bits | (*levels << kProfileShift)
            | (effect == NoTouchEffect::refusesButForSnapCaches ? kSnaps : std::uint64_t{0});
    }
    switch (effect) {
    case NoTouchEffect::refusesInLibrary:
        return (bits & kICloudTrash) != 0 ? bits : bits | kRefused;
    case NoTouchEffect::refusesButForItsTrash:
        return (bits & kICloudTrash) != 0 ? bits : bits | kICloudDrive;
    case NoTouchEffect::refusesDatabase:
        return (bits & kAllowsDatabases) != 0 ? bits : bits | kRefused;
    case NoTouchEffect::allowsDatabasesBelow:
        return bits | kAllowsDatabases;
    default:
        // Whatever is not understood refuses.
        return bits | kRefused;
    }
}

/// `bits` after a step from a folder inside of a profile to the item with these tokens.
std::uint64_t inProfile(std::uint64_t bits, Token parent, Token name)
{
    const auto levels = (bits & kProfileMask) >> kProfileShift;
    const bool isCache =
        (bits & kSnaps) != 0 ? NoTouchRuleSet::isSnapCache(parent, name) : NoTouchRuleSet::isCacheFolderOfProfile(name);
    const auto outside = bits & ~(kProfileMask | kSnaps);
    if ((levels & 1U) != 0 && isCache) {
        return outside;
    }
    const auto levelsBelow = levels >> 1U;
    return levelsBelow == 0 ? outside | kRefused : (bits & ~kProfileMask) | (levelsBelow << kProfileShift);
}

/// The bits of the item `component` in the folder with `parentBits`, by all the rules.
[[gnu::noinline]] std::uint64_t judged(std::uint64_t parentBits, std::string_view component, Tokens tokens)
{
    const auto parent = static_cast<Token>(parentBits & kTokenMask);
    auto bits = parentBits & ~kTokensMask;
    if (placeOf(bits) != Place::elsewhere) {
        bits = (bits & ~kPlaceMask) | placed(descended(placeOf(bits), component));
    }
    if ((bits & kICloudDrive) != 0) {
        bits &= ~kICloudDrive;
        bits |= NoTouchRuleSet::isTrashOfICloudDrive(tokens.name) ? kICloudTrash : kRefused;
    }
    if ((bits & kProfileMask) != 0) {
        bits = inProfile(bits, parent, tokens.name);
    }
    for (const Token token : {tokens.name, tokens.ending}) {
        for (const Rule& rule : NoTouchRuleSet::rulesEndingIn(token)) {
            if (fits(rule, parentBits)) {
                bits = applied(rule.effect, bits);
            }
        }
    }
    if ((bits & kRefused) != 0) {
        return kRefused;
    }
    return bits | (std::uint64_t{parent} << kTokenBits) | tokens.name;
}

} // namespace

NoTouchPathPolicy::State NoTouchPathPolicy::State::fromBits(std::uint64_t bits)
{
    State state;
    state.m_bits = bits;
    return state;
}

NoTouchPathPolicy::State NoTouchPathPolicy::State::of(const Platform::FileURL& url, NoTouchScope scope)
{
    auto state = fromBits(scope == NoTouchScope::trash ? kAppleRowsOnly : 0);
    const auto components = url.pathComponents();
    for (std::size_t index = 1; index < components.size(); ++index) {
        state = state.descend(components[index]);
    }
    return state;
}

NoTouchPathPolicy::State NoTouchPathPolicy::State::descend(std::string_view component) const
{
    if ((m_bits & kRefused) != 0) {
        return *this;
    }
    const auto parent = static_cast<Token>(m_bits & kTokenMask);
    const Tokens tokens = NoTouchRuleSet::tokensOf(component, parent);
    // So ends nearly every call.
    if ((tokens.name | tokens.ending) == 0 && isPlain(m_bits)) {
        return fromBits((m_bits & ~kTokensMask) | (std::uint64_t{parent} << kTokenBits));
    }
    return fromBits(judged(m_bits, component, tokens));
}

bool NoTouchPathPolicy::State::isNoTouch() const
{
    return (m_bits & (kRefused | kICloudDrive | kProfileMask)) != 0;
}

} // namespace CleanerCore
