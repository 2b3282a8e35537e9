#pragma once

#include "CleanerCore/Scan/CleanupCategory.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace CleanerCore {

/// The folder that a row counts from.
enum class XDGBase : std::uint8_t { cache, config, data, home };

/// How sure it is that what lies there can go.
enum class XDGLevel : std::uint8_t {
    /// The owner says, or everybody knows, that it makes the content again unasked.
    safe,
    /// It makes it again, at a price that the person should know of, and its owner must not be running.
    caution,
    /// It may hold what cannot be had again.
    manualReview,
};

/// Whether hidden items are looked into in a standard scan; the other modes always do.
enum class HiddenItems : std::uint8_t { skipped, included };

/// A place whose children are findings, each of which may go without the others.
struct XDGLocationRow {
    XDGBase base = XDGBase::cache;
    /// The owner's folder below the base.
    std::string_view folder;
    /// The variable by which the owner lets a person put that folder elsewhere; empty for none.
    std::string_view overrideVariable;
    /// The root below the owner's folder; empty for the folder itself. A component "*" is each real folder there (a
    /// profile, a product), "a|b" is first one and then the other.
    std::string_view path;
    CleanupCategory category = CleanupCategory::userCaches;
    /// Alternatives add their own name, a "*" the folder's in parentheses.
    std::string_view displayName;
    XDGLevel level = XDGLevel::manualReview;
    /// Who says so.
    std::string_view source;
    HiddenItems hiddenItems = HiddenItems::skipped;
};

/// The rows in the order in which their locations are listed.
[[nodiscard]] std::span<const XDGLocationRow> xdgLocationTable();

} // namespace CleanerCore
