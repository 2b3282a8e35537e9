#pragma once

#include <cstdint>
#include <string_view>

namespace CleanerCore {

/// Whose data a row keeps.
enum class NoTouchGroup : std::uint8_t {
    appleContainer,
    sensitiveLibrary,
    bundleOrImage,
    secret,
    mail,
    profile,
    sync,
    backup,
    virtualMachine,
    database,
    trash,
    installedTool,
};

/// What a row says of the item that its pattern ends at, and of what lies in it.
enum class NoTouchEffect : std::uint8_t {
    /// Both are no-touch.
    refuses,
    /// Both are no-touch, unless the path went through the Trash of iCloud Drive before.
    refusesInLibrary,
    /// iCloud Drive: both are no-touch, but for its folder ".trash". Below that folder no row of the kind
    /// `refusesInLibrary` and none of this kind counts any more.
    refusesButForItsTrash,
    /// Both are no-touch, unless a row of the kind `allowsDatabasesBelow` stands above.
    refusesDatabase,
    /// Says nothing of the item itself.
    allowsDatabasesBelow,
    /// An application's profile: both are no-touch, but for the cache folders at exactly the named level below the
    /// item and what lies in them. A profile inside of a profile has no such exception.
    refusesButForCachesOneBelow,
    refusesButForCachesOneOrTwoBelow,
    refusesButForCachesTwoBelow,
    refusesButForCachesThreeBelow,
    /// The homes of snaps, likewise: all but "<name>/common/.cache".
    refusesButForSnapCaches,
};

/// Whose layout a row speaks of.
enum class NoTouchTable : std::uint8_t { apple, linuxDesktop };

/// One rule about the shape of a path, lower-cased.
struct NoTouchRow {
    /// One to three components that stand next to each other anywhere in the path, separated by "/"; after "~/" they
    /// count only directly below a home: "/home/NAME", "/var/home/NAME", "/Users/NAME" or "/root".
    ///
    /// A component is a list of alternatives, separated by "|": a whole name, "name*" (the beginning of a name), "*name"
    /// (the end of one; only in the last component), "<digits>", "name<digits>" or "name<6 digits>".
    std::string_view pattern;
    NoTouchGroup group;
    NoTouchEffect effect;
    /// Who says that what lies there is a person's own, or that nothing can bring it back.
    std::string_view source;
};

} // namespace CleanerCore
